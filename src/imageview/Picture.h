#pragma once

#include "geometry/FloatGeometry.h"

#include <QImage>

#include <array>
#include <optional>

/// A picture: its size in points and its pixels (opaque, top row first), one per point. The
/// pixels are the size rounded up, the picture's top left corner being that of the first pixel.
/// Small copies for reduced drawing, made once, come with it.
class Picture
{
public:
    /// How many pixels, along each side, are averaged into one of a reduced copy.
    static constexpr std::array<int, 2> reductions{4, 8};

    /// A picture of any pixels: on white, of a size in points that equals its size in pixels
    /// (stored resolutions do not count), and enlarged, at most tenfold, until its longer side is
    /// 320 points. Nothing without pixels or without memory.
    [[nodiscard]] static std::optional<Picture> fromImageRep(QImage rep);

    /// A picture of `pixels` as they are; nothing unless they have `size` rounded up.
    [[nodiscard]] static std::optional<Picture> fromPixels(QImage pixels, FloatSize size);

    [[nodiscard]] FloatSize size() const { return m_size; }

    /// The pixels, RGB32 or Grayscale8.
    [[nodiscard]] const QImage &pixels() const { return m_pixels; }

    /// The pixels reduced by `reductions[index]`, by averaging areas.
    [[nodiscard]] const QImage &reducedPixels(std::size_t index) const
    {
        return m_reduced.at(index);
    }

private:
    Picture(QImage pixels, FloatSize size);

    QImage m_pixels;
    FloatSize m_size;
    std::array<QImage, reductions.size()> m_reduced;
};
