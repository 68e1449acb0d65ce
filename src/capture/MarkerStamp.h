#pragma once

#include <QImage>
#include <QPointF>

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

class QPainter;

/// A small picture that is put at many places of a raster surface: drawn once, then copied. Places
/// count to a quarter of a pixel, for each of which the picture is drawn when it is first needed.
class MarkerStamp
{
public:
    /// Draws the picture about a centre.
    using Drawing = std::function<void(QPainter &painter, QPointF centre)>;

    /// `reach` is how far the drawing goes from its centre, in pixels. Where `opaque`, a copy
    /// that nobody could tell from the one before is left out.
    MarkerStamp(Drawing drawing, double reach, bool opaque);

    /// Puts the picture at `centre`; the painter counts in pixels.
    void putAt(QPainter &painter, QPointF centre);

private:
    static constexpr int steps = 4; ///< places within a pixel, in either direction

    [[nodiscard]] const QImage &imageFor(int stepX, int stepY);

    Drawing m_drawing;
    int m_middle;
    bool m_opaque;
    std::array<QImage, std::size_t{steps} * steps> m_images;
    std::optional<std::pair<std::int64_t, std::int64_t>> m_last;
};
