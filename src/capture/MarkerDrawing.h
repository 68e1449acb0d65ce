#pragma once

#include "capture/CaptureSurroundings.h"

#include <QPixmap>

#include <memory>
#include <vector>

class PointList;
class QPainter;
class QRectF;
class ZKConvCoordinate;
class ZKVector;

/// What the drawing of markers asks of the series store; the indexes are 0 to 9.
class MarkerSource
{
public:
    virtual ~MarkerSource() = default;
    /// The points of a series in graph values, in their order.
    [[nodiscard]] virtual const PointList &list(int series) const = 0;
    /// The converter with which the points of a series were taken.
    [[nodiscard]] virtual std::shared_ptr<const ZKConvCoordinate> converterOf(int series) const = 0;
    /// 0 markers, 1 markers and lines, 2 lines.
    [[nodiscard]] virtual int markerDrawOf(int series) const = 0;
};

/// The drawing of captured points. Every painter has view coordinates: the origin is at the bottom
/// left of the picture, y grows upwards. It is handed back in the state in which it came.
namespace markerdrawing {

/// Draws the marker of `shape` with the painter's pen, filled in the pen's colour where the shape
/// is a filled one; an unknown shape draws nothing.
void drawMarker(QPainter &painter, int shape, const QRectF &square);

/// `drawData:andConverter:andScale:andPrefs:markerLine:` draws one series. The points are graph
/// values; a marker keeps its size in view points whatever `scale` is.
void drawData(QPainter &painter, const std::vector<ZKVector> &points,
              const std::shared_ptr<const ZKConvCoordinate> &converter, float scale,
              const PlotStyle &prefs, int markerLine);

/// `drawDataMarkersWithScale:` draws all ten series, later ones over earlier ones.
void drawDataMarkersWithScale(QPainter &painter, float scale, const MarkerSource &source,
                              const CapturePrefs &prefs);

/// The marker of a series on a transparent square of `side` view points, for lists and headers; a
/// marker that is larger is drawn smaller.
[[nodiscard]] QPixmap swatch(const PlotStyle &style, int side, qreal devicePixelRatio);

} // namespace markerdrawing
