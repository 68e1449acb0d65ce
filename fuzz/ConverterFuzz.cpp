#include "conversion/ConverterArchive.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

// Turns bytes into archived values, decodes a converter from them and uses it. The first byte
// chooses the class; then each value is a byte for its type and its bytes, short forms included so
// that counts and round numbers are found quickly. What runs out of bytes reads zeros.

namespace {

constexpr std::array<std::string_view, 5> classNames{
    "ZKConvCoordinateAffine", "ZKConvCoordinateKeystone", "ZKConvCoordinatePolar",
    "ZKConvCoordinate", "ZKVector"};

class ByteReader
{
public:
    explicit ByteReader(std::span<const std::uint8_t> bytes)
        : m_bytes(bytes)
    {}

    [[nodiscard]] bool atEnd() const { return m_bytes.empty(); }

    template <class T>
    T next()
    {
        T value{};
        const std::size_t count = std::min(sizeof(T), m_bytes.size());
        if (count > 0)
            std::memcpy(&value, m_bytes.data(), count);
        m_bytes = m_bytes.subspan(count);
        return value;
    }

private:
    std::span<const std::uint8_t> m_bytes;
};

ArchivedItem nextItem(ByteReader &reader)
{
    switch (reader.next<std::uint8_t>() % 7) {
    case 0:
        return std::int32_t{reader.next<std::int8_t>()};
    case 1:
        return reader.next<std::int32_t>();
    case 2:
        return reader.next<std::int8_t>();
    case 3:
        return static_cast<double>(reader.next<std::int8_t>());
    case 4:
        return reader.next<double>();
    case 5:
        return ArchivedPoint{reader.next<float>(), reader.next<float>()};
    default:
        return ArchivedBytes();
    }
}

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Equal values, where a NaN counts as equal to any NaN.
bool areSameItems(const ArchivedItem &a, const ArchivedItem &b)
{
    const double *x = std::get_if<double>(&a);
    const double *y = std::get_if<double>(&b);
    if (x != nullptr && y != nullptr && std::isnan(*x) && std::isnan(*y))
        return true;
    return a == b;
}

std::vector<ArchivedItem> archived(const ZKConvCoordinate &converter)
{
    SequentialEncoder coder;
    converter.encodeWithCoder(coder);
    return coder.items();
}

/// What was decoded must survive being saved and opened again.
void saveAndReopen(const ZKConvCoordinate &converter)
{
    const std::vector<ArchivedItem> items = archived(converter);
    SequentialDecoder coder(items);
    const auto again = converterarchive::converterWithCoder(converter.className(), coder);
    require(again != nullptr && !coder.failed() && coder.remaining() == 0);
    const std::vector<ArchivedItem> itemsAgain = archived(*again);
    require(
        std::equal(items.begin(), items.end(), itemsAgain.begin(), itemsAgain.end(), areSameItems));
}

void convertPoints(const ZKConvCoordinate &converter)
{
    for (const auto &[x, y] : {std::pair{0.0, 0.0}, {100.0, 250.0}, {-1e300, 1e-300}}) {
        const ZKVector point = ZKVector::vectorWithX(x, y);
        const auto values = converter.convertFromCartesian(point);
        require(!values || values->dimension() == 2);
        const auto back = converter.convertToCartesian(values.value_or(point));
        require(!back || back->dimension() == 2);
        FloatPoint basis1;
        FloatPoint basis2;
        converter.getAxisVectorsAtPoint(point.vectorToNSPoint(), basis1, basis2);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    ByteReader reader({data, size});
    const std::string_view className =
        classNames.at(reader.next<std::uint8_t>() % classNames.size());
    std::vector<ArchivedItem> items;
    while (!reader.atEnd())
        items.push_back(nextItem(reader));

    SequentialDecoder coder(items);
    const auto converter = converterarchive::converterWithCoder(className, coder);
    require((converter == nullptr) == coder.failed());
    if (converter) {
        require(converter->className() == className);
        require(converter->isEqualConverterAs(*converter));
        saveAndReopen(*converter);
        convertPoints(*converter);
    }
    return 0;
}
