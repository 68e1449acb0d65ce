#include "capture/MarkerDrawing.h"

#include "capture/PointList.h"
#include "capture/RasterPlot.h"
#include "conversion/ZKConvCoordinate.h"
#include "geometry/ZKVector.h"
#include "platform/DefaultLineStyle.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

constexpr int seriesCount = 10;

// The draw modes.
constexpr int markersOnly = 0;
constexpr int lineOnly = 2;

/// Where the points are, in view coordinates.
std::vector<QPointF> viewPositions(const std::vector<ZKVector> &points,
                                   const ZKConvCoordinate &converter, float scale)
{
    std::vector<QPointF> positions;
    positions.reserve(points.size());
    for (const ZKVector &point : points) {
        const FloatPoint q = converter.convertPointToCartesian(point.vectorToNSPoint());
        const FloatPoint position{scale * q.x, scale * q.y};
        positions.emplace_back(position.x, position.y);
    }
    return positions;
}

/// Draws the points with the painter as it is, for surfaces that keep shapes (a PDF, a picture
/// file of lines) and for slanted ones.
void drawShapes(QPainter &painter, const std::vector<QPointF> &positions, const PlotStyle &prefs,
                int markerLine)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(prefs.color.screenColor(), static_cast<qreal>(prefs.thickness),
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const double size = prefs.size;
    const double half = size * 0.5;
    QPainterPath line;
    bool isFirst = true;
    for (const QPointF &position : positions) {
        if (!std::isfinite(position.x()) || !std::isfinite(position.y()))
            continue;
        if (markerLine != lineOnly)
            markerdrawing::drawMarker(painter, prefs.shape,
                                      QRectF(position.x() - half, position.y() - half, size, size));
        if (isFirst)
            line.moveTo(position);
        else
            line.lineTo(position);
        isFirst = false;
    }
    if (markerLine != markersOnly)
        painter.strokePath(line, painter.pen());
    painter.restore();
}

} // namespace

void markerdrawing::drawMarker(QPainter &painter, int shape, const QRectF &square)
{
    const bool isFilled = shape == 0 || shape == 2;
    painter.setBrush(isFilled ? painter.pen().brush() : QBrush(Qt::NoBrush));
    // The painter fills first and outlines then.
    if (shape == 0 || shape == 1)
        painter.drawRect(square);
    else if (shape == 2 || shape == 3)
        painter.drawEllipse(square);
}

void markerdrawing::drawData(QPainter &painter, const std::vector<ZKVector> &points,
                             const std::shared_ptr<const ZKConvCoordinate> &converter, float scale,
                             const PlotStyle &prefs, int markerLine)
{
    defaultlinestyle::setCapStyle(Qt::RoundCap);
    defaultlinestyle::setJoinStyle(Qt::RoundJoin);
    if (!converter || points.empty())
        return;
    const std::vector<QPointF> positions = viewPositions(points, *converter, scale);
    if (!RasterPlot::suits(painter)) {
        drawShapes(painter, positions, prefs, markerLine);
        return;
    }
    RasterPlot plot(painter, prefs);
    if (markerLine != lineOnly)
        plot.drawMarkers(positions);
    if (markerLine != markersOnly)
        plot.drawLine(positions);
}

void markerdrawing::drawDataMarkersWithScale(QPainter &painter, float scale,
                                             const MarkerSource &source, const CapturePrefs &prefs)
{
    for (int series = 0; series < seriesCount; ++series)
        drawData(painter, source.list(series).points(), source.converterOf(series), scale,
                 prefs.plotPrefsForSeries(series), source.markerDrawOf(series));
}

QPixmap markerdrawing::swatch(const PlotStyle &style, int side, qreal devicePixelRatio)
{
    const auto pixels = static_cast<int>(std::ceil(side * devicePixelRatio));
    QPixmap pixmap(pixels, pixels);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const double thickness = style.thickness;
    painter.setPen(
        QPen(style.color.screenColor(), thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const double size = std::min(double(style.size), side - thickness);
    const double origin = (side - size) * 0.5;
    drawMarker(painter, style.shape, QRectF(origin, origin, size, size));
    return pixmap;
}
