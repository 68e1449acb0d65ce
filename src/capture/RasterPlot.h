#pragma once

#include "capture/CaptureSurroundings.h"

#include <QPen>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QTransform>

#include <vector>

class QPainter;

/// Draws one series on a raster surface so that ten thousand points take a few milliseconds: what
/// cannot be seen is left out, markers and the round joins of lines are stamps, and the line goes
/// from one to the next without the cost of one long outline. A short series is drawn as it is.
///
/// While it lives the painter counts in device pixels.
class RasterPlot
{
public:
    /// Whether the painter draws on a raster surface that is neither slanted nor stretched.
    [[nodiscard]] static bool suits(const QPainter &painter);

    RasterPlot(QPainter &painter, const PlotStyle &style);
    ~RasterPlot();
    RasterPlot(const RasterPlot &) = delete;
    RasterPlot &operator=(const RasterPlot &) = delete;

    /// The points are in the coordinates that the painter had. One that is not finite is left out.
    void drawMarkers(const std::vector<QPointF> &points);
    void drawLine(const std::vector<QPointF> &points);

    /// The line through `points` (pixels) without the points that nobody would miss: every one that
    /// was left out lies on the rest to an eighth of a pixel. The first and the last always stay.
    [[nodiscard]] static std::vector<QPointF> thinned(const std::vector<QPointF> &points);

    /// The parts of the line through `points` that pass through `visible`.
    [[nodiscard]] static std::vector<QPolygonF> visibleParts(const std::vector<QPointF> &points,
                                                             const QRectF &visible);

private:
    void strokeInPieces(const std::vector<QPolygonF> &parts);

    QPainter &m_painter;
    PlotStyle m_style;
    QTransform m_toPixels;
    double m_pixels; ///< pixels in a view point
    QRectF m_visible;
    QPen m_pen;
    bool m_opaque;
};
