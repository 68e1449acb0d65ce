#include "imageview/SubImage.h"

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace {

/// A length that misses a whole number by less has only lost it to rounding.
constexpr double roundingError = 1.0 / 256;

/// A part of one direction of the picture's pixels, in points from the first pixel's edge.
struct Span
{
    double low = 0;
    double high = 0;
};

/// The pixels for a span.
struct Pixels
{
    int first = 0;
    int count = 0;
    float length = 0; ///< points that they stand for, `count` rounded up from it
};

/// Which end of the span is the left (or upper) one of the part as it is seen, where its first
/// pixel begins.
enum class Begin { AtLow, AtHigh };

double withoutRoundingError(double length)
{
    const double whole = std::round(length);
    return std::fabs(length - whole) < roundingError && whole > 0 ? whole : length;
}

Pixels pixelsOf(const Span &span, Begin begin, int available)
{
    const double length = withoutRoundingError(span.high - span.low);
    const int count = std::min(static_cast<int>(std::ceil(length)), available);
    const int first = begin == Begin::AtLow ? static_cast<int>(std::lround(span.low))
                                            : static_cast<int>(std::lround(span.high)) - count;
    return {std::min(std::max(first, 0), available - count), count,
            static_cast<float>(std::min(length, static_cast<double>(count)))};
}

struct Part
{
    Pixels columns; ///< of the upright picture
    Pixels rows;    ///< from its top
};

/// Where the area of the turned picture lies in the upright one.
Part partUnder(const FloatRect &area, float rotation, const Picture &picture)
{
    const Span x{static_cast<double>(area.origin.x),
                 static_cast<double>(area.origin.x) + static_cast<double>(area.size.width)};
    const Span y{static_cast<double>(area.origin.y),
                 static_cast<double>(area.origin.y) + static_cast<double>(area.size.height)};
    const double width = static_cast<double>(picture.size().width);
    const double height = static_cast<double>(picture.size().height);
    const int columns = picture.pixels().width();
    const int rows = picture.pixels().height();
    if (rotation == 90)
        return {pixelsOf(y, Begin::AtHigh, columns), pixelsOf(x, Begin::AtLow, rows)};
    if (rotation == 180)
        return {pixelsOf({width - x.high, width - x.low}, Begin::AtHigh, columns),
                pixelsOf(y, Begin::AtHigh, rows)};
    if (rotation == 270)
        return {pixelsOf({width - y.high, width - y.low}, Begin::AtLow, columns),
                pixelsOf({height - x.high, height - x.low}, Begin::AtHigh, rows)};
    return {pixelsOf(x, Begin::AtLow, columns),
            pixelsOf({height - y.high, height - y.low}, Begin::AtLow, rows)};
}

/// A part of the pixels without a copy of them, which a turned part of a huge picture would only
/// make once more; valid as long as the pixels are.
QImage windowOn(const QImage &pixels, const Part &part)
{
    const auto first = static_cast<std::ptrdiff_t>(part.columns.first) * pixels.depth() / 8;
    return {pixels.constScanLine(part.rows.first) + first, part.columns.count, part.rows.count,
            pixels.bytesPerLine(), pixels.format()};
}

FloatRect cutTo(FloatSize size, const FloatRect &area)
{
    const float left = std::max(area.origin.x, 0.0F);
    const float bottom = std::max(area.origin.y, 0.0F);
    return {{left, bottom},
            {std::min(area.origin.x + area.size.width, size.width) - left,
             std::min(area.origin.y + area.size.height, size.height) - bottom}};
}

} // namespace

std::optional<Picture> subimage::cut(const Picture &picture, float rotation, FloatRect area)
{
    const bool turnedAside = rotation == 90 || rotation == 270;
    const FloatSize size = picture.size();
    const FloatRect inside = cutTo(turnedAside ? FloatSize{size.height, size.width} : size, area);
    if (!(inside.size.width > 0 && inside.size.height > 0))
        return {};
    const Part part = partUnder(inside, rotation, picture);
    const QImage seen = windowOn(picture.pixels(), part);
    QImage pixels = turnedAside || rotation == 180
                        ? seen.transformed(QTransform().rotate(-static_cast<qreal>(rotation)))
                        : seen.copy();
    const FloatSize upright{part.columns.length, part.rows.length};
    return Picture::fromPixels(std::move(pixels),
                               turnedAside ? FloatSize{upright.height, upright.width} : upright);
}
