#include "imageview/Resampling.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

namespace {

/// The share of the whole that the weights of one pixel add up to.
constexpr int one = 256;

/// The source pixels that one pixel of the result is mixed of.
struct Mix
{
    int first = 0;
    int count = 0;
    std::size_t weights = 0; ///< index of the first weight
};

class Mixes
{
public:
    Mixes(const resampling::Direction &direction, int sourceLength)
    {
        m_mixes.reserve(static_cast<std::size_t>(direction.count));
        for (int i = 0; i < direction.count; ++i) {
            if (direction.step > 1) {
                const double from = direction.start + i * direction.step;
                addAverage(from, from + direction.step, sourceLength);
            } else {
                addBetween(direction.start + (i + 0.5) * direction.step - 0.5, sourceLength);
            }
        }
    }

    [[nodiscard]] const std::vector<Mix> &all() const { return m_mixes; }
    [[nodiscard]] const std::uint16_t *weightsOf(const Mix &mix) const
    {
        return m_weights.data() + mix.weights;
    }
    [[nodiscard]] int begin() const { return m_mixes.front().first; }
    [[nodiscard]] int end() const { return m_mixes.back().first + m_mixes.back().count; }

    /// Whether pixels are taken over one by one.
    [[nodiscard]] bool isCopy() const
    {
        return m_weights.size() == m_mixes.size() &&
               static_cast<std::size_t>(end() - begin()) == m_mixes.size();
    }

private:
    void addAverage(double from, double to, int length)
    {
        const double begin = std::clamp(from, 0.0, static_cast<double>(length));
        const double end = std::clamp(to, 0.0, static_cast<double>(length));
        const int first = std::min(static_cast<int>(std::floor(begin)), length - 1);
        const int last = std::max(static_cast<int>(std::ceil(end)) - 1, first);
        m_mixes.push_back({first, last - first + 1, m_weights.size()});
        if (first == last) {
            m_weights.push_back(one);
            return;
        }
        long given = 0;
        for (int pixel = first; pixel <= last; ++pixel) {
            const double covered = (std::min(end, pixel + 1.0) - begin) / (end - begin);
            const long upToHere = std::lround(covered * one);
            m_weights.push_back(static_cast<std::uint16_t>(upToHere - given));
            given = upToHere;
        }
    }

    void addBetween(double position, int length)
    {
        const double below = std::floor(position);
        const long share = std::lround((position - below) * one);
        const auto limited = [length](double pixel) {
            return static_cast<int>(std::clamp(pixel, 0.0, length - 1.0));
        };
        const int first = limited(share == one ? below + 1 : below);
        const int second = limited(below + 1);
        if (share == 0 || first == second) {
            m_mixes.push_back({first, 1, m_weights.size()});
            m_weights.push_back(one);
            return;
        }
        m_mixes.push_back({first, 2, m_weights.size()});
        m_weights.push_back(static_cast<std::uint16_t>(one - share));
        m_weights.push_back(static_cast<std::uint16_t>(share));
    }

    std::vector<Mix> m_mixes;
    std::vector<std::uint16_t> m_weights;
};

/// Sums of weighted bytes, one for each channel of each column. 16 bits are enough, because the
/// weights of a pixel add up to `one` and half of it is added for rounding.
using Sums = std::vector<std::uint16_t>;

constexpr int half = one / 2;

/// Four channels of 8 bits; their sums are weighed together, as four lanes of one number.
struct Coloured
{
    static constexpr int channels = 4;
    using Pixel = std::uint32_t;
    using Lanes = std::uint64_t;
    static constexpr Lanes mask = 0x00ff00ff00ff00ffU;
    static constexpr Lanes rounding = 0x0080008000800080U;
    static Pixel packed(Lanes lanes)
    {
        const Lanes pairs = lanes | (lanes >> 8U);
        return static_cast<Pixel>((pairs & 0xffffU) | ((pairs >> 16U) & 0xffff0000U));
    }
};

struct Gray
{
    static constexpr int channels = 1;
    using Pixel = std::uint8_t;
    using Lanes = std::uint16_t;
    static constexpr std::uint32_t mask = 0xffU;
    static constexpr std::uint32_t rounding = half;
    static Pixel packed(std::uint32_t lanes) { return static_cast<Pixel>(lanes); }
};

/// Mixes source rows, from byte `begin` on, into `sums`, which become bytes again. The loops are
/// over bytes and without branches, which compilers turn into vector instructions.
void mixRows(const QImage &source, const Mix &mix, const std::uint16_t *weights, std::size_t begin,
             Sums &sums)
{
    const std::size_t count = sums.size();
    std::uint16_t *const sum = sums.data();
    for (int row = 0; row < mix.count; ++row) {
        const uchar *const bytes = source.constScanLine(mix.first + row) + begin;
        const std::uint16_t weight = weights[row];
        if (row == 0) {
            for (std::size_t i = 0; i < count; ++i)
                sum[i] = static_cast<std::uint16_t>(half + bytes[i] * weight);
        } else {
            for (std::size_t i = 0; i < count; ++i)
                sum[i] = static_cast<std::uint16_t>(sum[i] + bytes[i] * weight);
        }
    }
    for (std::size_t i = 0; i < count; ++i)
        sum[i] = static_cast<std::uint16_t>(sum[i] / one);
}

template <typename Channels>
void mixColumns(const Mixes &columns, const Sums &sums, typename Channels::Pixel *target)
{
    const int begin = columns.begin();
    for (const Mix &mix : columns.all()) {
        const std::uint16_t *weights = columns.weightsOf(mix);
        const std::uint16_t *sum =
            sums.data() + static_cast<std::ptrdiff_t>(mix.first - begin) * Channels::channels;
        auto total = Channels::rounding;
        for (int i = 0; i < mix.count; ++i) {
            typename Channels::Lanes lanes = 0;
            std::memcpy(&lanes, sum, sizeof lanes);
            sum += Channels::channels;
            total += lanes * weights[i];
        }
        *target++ = Channels::packed((total >> 8U) & Channels::mask);
    }
}

template <typename Channels>
void mixAll(const QImage &source, const Mixes &columns, const Mixes &rows, QImage &result)
{
    const auto width = static_cast<std::size_t>(columns.end() - columns.begin());
    const std::size_t begin =
        static_cast<std::size_t>(columns.begin()) * sizeof(typename Channels::Pixel);
    Sums sums(width * Channels::channels);
    const bool copiesColumns = columns.isCopy();
    int y = 0;
    for (const Mix &row : rows.all()) {
        auto *target = reinterpret_cast<typename Channels::Pixel *>(result.scanLine(y++));
        if (copiesColumns && row.count == 1) {
            std::memcpy(target, source.constScanLine(row.first) + begin, width * sizeof *target);
            continue;
        }
        mixRows(source, row, rows.weightsOf(row), begin, sums);
        mixColumns<Channels>(columns, sums, target);
    }
}

} // namespace

QImage resampling::resampled(const QImage &source, Direction columns, Direction rows)
{
    QImage result(columns.count, rows.count, source.format());
    if (result.isNull() || source.isNull())
        return {};
    const Mixes columnMixes(columns, source.width());
    const Mixes rowMixes(rows, source.height());
    if (source.format() == QImage::Format_Grayscale8)
        mixAll<Gray>(source, columnMixes, rowMixes, result);
    else
        mixAll<Coloured>(source, columnMixes, rowMixes, result);
    return result;
}
