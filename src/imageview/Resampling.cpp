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

/// Four channels of 8 bits, spread over lanes of 16 bits so that one multiplication weighs all.
struct Coloured
{
    using Pixel = std::uint32_t;
    using Lanes = std::uint64_t;
    static constexpr Lanes mask = 0x00ff00ff00ff00ffU;
    static constexpr Lanes half = 0x0080008000800080U;
    static Lanes spread(Pixel p)
    {
        return (p & 0x00ff00ffU) | (static_cast<Lanes>(p & 0xff00ff00U) << 24U);
    }
    static Pixel packed(Lanes lanes)
    {
        return static_cast<Pixel>((lanes & 0x00ff00ffU) | ((lanes >> 24U) & 0xff00ff00U));
    }
};

struct Gray
{
    using Pixel = std::uint8_t;
    using Lanes = std::uint32_t;
    static constexpr Lanes mask = 0xffU;
    static constexpr Lanes half = 0x80U;
    static Lanes spread(Pixel p) { return p; }
    static Pixel packed(Lanes lanes) { return static_cast<Pixel>(lanes); }
};

template <typename Channels>
const typename Channels::Pixel *line(const QImage &image, int row)
{
    return reinterpret_cast<const typename Channels::Pixel *>(image.constScanLine(row));
}

/// Mixes source rows, from column `begin` on, into `sum` (weighted by `one` in all).
template <typename Channels>
void mixRows(const QImage &source, const Mix &mix, const std::uint16_t *weights, int begin,
             std::vector<typename Channels::Lanes> &sum)
{
    const std::size_t count = sum.size();
    const auto *pixels = line<Channels>(source, mix.first) + begin;
    for (std::size_t x = 0; x < count; ++x)
        sum[x] = Channels::half + Channels::spread(pixels[x]) * weights[0];
    for (int row = 1; row < mix.count; ++row) {
        pixels = line<Channels>(source, mix.first + row) + begin;
        const typename Channels::Lanes weight = weights[row];
        for (std::size_t x = 0; x < count; ++x)
            sum[x] += Channels::spread(pixels[x]) * weight;
    }
}

template <typename Channels>
void mixColumns(const Mixes &columns, const std::vector<typename Channels::Lanes> &sum,
                typename Channels::Pixel *target)
{
    const int begin = columns.begin();
    for (const Mix &mix : columns.all()) {
        const std::uint16_t *weights = columns.weightsOf(mix);
        const auto *lanes = sum.data() + (mix.first - begin);
        typename Channels::Lanes total = Channels::half;
        for (int i = 0; i < mix.count; ++i)
            total += ((lanes[i] >> 8U) & Channels::mask) * weights[i];
        *target++ = Channels::packed((total >> 8U) & Channels::mask);
    }
}

template <typename Channels>
void mixAll(const QImage &source, const Mixes &columns, const Mixes &rows, QImage &result)
{
    std::vector<typename Channels::Lanes> sum(
        static_cast<std::size_t>(columns.end() - columns.begin()));
    const bool copiesColumns = columns.isCopy();
    int y = 0;
    for (const Mix &row : rows.all()) {
        auto *target = reinterpret_cast<typename Channels::Pixel *>(result.scanLine(y++));
        if (copiesColumns && row.count == 1) {
            std::memcpy(target, line<Channels>(source, row.first) + columns.begin(),
                        sum.size() * sizeof *target);
            continue;
        }
        mixRows<Channels>(source, row, rows.weightsOf(row), columns.begin(), sum);
        mixColumns<Channels>(columns, sum, target);
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
