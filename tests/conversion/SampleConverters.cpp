#include "SampleConverters.h"

#include "conversion/ConverterArchive.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace sampleconverters {

Affine affine(AxisValues x, AxisValues y)
{
    return ZKConvCoordinateAffine::convCoordWithX0Point({100, 400}, {500, 400}, x.value0, x.value1,
                                                        x.log, {100, 400}, {100, 100}, y.value0,
                                                        y.value1, y.log);
}

Keystone keystone(const Corners &corners, AxisValues x, AxisValues y)
{
    return ZKConvCoordinateKeystone::convCoordWithPointLB(
        corners.leftBottom, corners.rightBottom, corners.leftTop, corners.rightTop, x.value0,
        x.value1, x.log, y.value0, y.value1, y.log);
}

Polar polar(AxisValues r, std::int32_t tRange, bool rotateCCW)
{
    return ZKConvCoordinatePolar::convCoordWithCenter({100, 100}, {200, 100}, r.value0, r.value1,
                                                      r.log, tRange, rotateCCW);
}

ZKVector vector(double x, double y) { return ZKVector::vectorWithX(x, y); }

bool areIdentical(const std::optional<ZKVector> &a, const std::optional<ZKVector> &b)
{
    if (!a || !b)
        return a.has_value() == b.has_value();
    const auto sameNumber = [](double x, double y) {
        return (std::isnan(x) && std::isnan(y)) ||
               std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y);
    };
    return std::equal(a->buffer(), a->buffer() + a->dimension(), b->buffer(),
                      b->buffer() + b->dimension(), sameNumber);
}

std::vector<ArchivedItem> archived(const ZKConvCoordinate &converter)
{
    SequentialEncoder coder;
    converter.encodeWithCoder(coder);
    return coder.items();
}

std::shared_ptr<const ZKConvCoordinate> decoded(std::string_view className,
                                                const std::vector<ArchivedItem> &items)
{
    SequentialDecoder coder(items);
    return converterarchive::converterWithCoder(className, coder);
}

} // namespace sampleconverters
