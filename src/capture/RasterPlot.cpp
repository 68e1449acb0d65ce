#include "capture/RasterPlot.h"

#include "capture/MarkerDrawing.h"
#include "capture/MarkerStamp.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

/// How far, in pixels, a line may pass from a point that was left out.
constexpr double tolerance = 0.125;
/// A series of up to so many points needs no help.
constexpr std::size_t shortSeries = 300;
/// The rim that antialiasing adds to an outline.
constexpr double softEdge = 1;

bool isFinite(QPointF p) { return std::isfinite(p.x()) && std::isfinite(p.y()); }

bool isWithin(QPointF p, const QRectF &rect)
{
    return p.x() >= rect.left() && p.x() <= rect.right() && p.y() >= rect.top() &&
           p.y() <= rect.bottom();
}

/// The range of t for which a + t (b - a) is inside.
struct Range
{
    double from = 0;
    double to = 1;

    /// Narrows the range by start + t * step >= 0.
    void narrow(double start, double step)
    {
        const double t = -start / step;
        if (step > 0)
            from = std::max(from, t);
        else if (step < 0)
            to = std::min(to, t);
        else if (start < 0)
            to = -1;
    }
};

/// The part of the step from a to b that lies in the rectangle.
std::optional<QLineF> clipped(QPointF a, QPointF b, const QRectF &rect)
{
    if (isWithin(a, rect) && isWithin(b, rect))
        return QLineF(a, b);
    const QPointF step = b - a;
    Range range;
    range.narrow(a.x() - rect.left(), step.x());
    range.narrow(rect.right() - a.x(), -step.x());
    range.narrow(a.y() - rect.top(), step.y());
    range.narrow(rect.bottom() - a.y(), -step.y());
    if (!(range.from <= range.to))
        return std::nullopt;
    const QPointF from = range.from > 0 ? a + step * range.from : a;
    const QPointF to = range.to < 1 ? a + step * range.to : b;
    return QLineF(from, to);
}

/// The straight lines from one point that pass all points since then within the tolerance.
class LineOfSight
{
public:
    explicit LineOfSight(QPointF from)
        : m_from(from)
    {}

    /// Whether a straight line to `point` passes the points before it; it is one of them then.
    [[nodiscard]] bool reaches(QPointF point)
    {
        const QPointF step = point - m_from;
        if (!m_hasDirection)
            return startsWith(step);
        const double along = QPointF::dotProduct(m_direction, step);
        const double across = m_direction.x() * step.y() - m_direction.y() * step.x();
        // What turns back is a corner.
        if (along < m_farthest || across < m_lowest * along || across > m_highest * along)
            return false;
        narrow(along, across);
        return true;
    }

private:
    bool startsWith(QPointF step)
    {
        const double length = std::hypot(step.x(), step.y());
        if (length > tolerance) {
            m_hasDirection = true;
            m_direction = step / length;
            narrow(length, 0);
        }
        return true;
    }

    void narrow(double along, double across)
    {
        m_farthest = along;
        m_lowest = std::max(m_lowest, (across - tolerance) / along);
        m_highest = std::min(m_highest, (across + tolerance) / along);
    }

    QPointF m_from;
    QPointF m_direction;
    bool m_hasDirection = false;
    double m_farthest = 0;
    double m_lowest = -std::numeric_limits<double>::infinity(); ///< slopes against the direction
    double m_highest = std::numeric_limits<double>::infinity();
};

} // namespace

bool RasterPlot::suits(const QPainter &painter)
{
    const QPaintEngine *engine = painter.paintEngine();
    if (engine == nullptr || engine->type() != QPaintEngine::Raster)
        return false;
    const QTransform &t = painter.deviceTransform();
    return t.isInvertible() && t.type() <= QTransform::TxScale &&
           std::abs(t.m11()) == std::abs(t.m22());
}

RasterPlot::RasterPlot(QPainter &painter, const PlotStyle &style)
    : m_painter(painter)
    , m_style(style)
    , m_toPixels(painter.deviceTransform())
    , m_pixels(std::abs(m_toPixels.m11()))
    , m_opaque(style.color.screenColor().alpha() == 255)
{
    // What is left of the device transform when the painter's own one is taken away.
    const QTransform surface = painter.worldTransform().inverted() * m_toPixels;
    if (painter.hasClipping())
        m_visible = m_toPixels.mapRect(painter.clipBoundingRect());
    else
        m_visible =
            surface.mapRect(QRectF(0, 0, painter.device()->width(), painter.device()->height()));
    m_pen = QPen(style.color.screenColor(), double(style.thickness) * m_pixels, Qt::SolidLine,
                 Qt::RoundCap, Qt::RoundJoin);
    m_painter.save();
    m_painter.setWorldTransform(surface.inverted());
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(m_pen);
}

RasterPlot::~RasterPlot() { m_painter.restore(); }

void RasterPlot::drawMarkers(const std::vector<QPointF> &points)
{
    const double size = double(m_style.size) * m_pixels;
    const double reach = (size + m_pen.widthF()) * 0.5;
    const QRectF visible = m_visible.adjusted(-reach, -reach, reach, reach);
    const auto drawing = [this, size](QPainter &painter, QPointF centre) {
        painter.setPen(m_pen);
        markerdrawing::drawMarker(
            painter, m_style.shape,
            QRectF(centre.x() - size * 0.5, centre.y() - size * 0.5, size, size));
    };
    MarkerStamp stamp(drawing, reach, m_opaque);
    for (const QPointF &point : points) {
        const QPointF pixel = m_toPixels.map(point);
        if (!isWithin(pixel, visible))
            continue;
        if (points.size() <= shortSeries)
            drawing(m_painter, pixel);
        else
            stamp.putAt(m_painter, pixel);
    }
    m_painter.setBrush(Qt::NoBrush);
}

void RasterPlot::drawLine(const std::vector<QPointF> &points)
{
    std::vector<QPointF> pixels;
    pixels.reserve(points.size());
    for (const QPointF &point : points) {
        if (isFinite(point))
            pixels.push_back(m_toPixels.map(point));
    }
    const double reach = m_pen.widthF() * 0.5 + softEdge;
    const bool isShort = pixels.size() <= shortSeries;
    const std::vector<QPolygonF> parts = visibleParts(
        isShort ? pixels : thinned(pixels), m_visible.adjusted(-reach, -reach, reach, reach));
    if (m_opaque && !isShort) {
        strokeInPieces(parts);
        return;
    }
    // Pieces of a translucent line would show where they overlap.
    QPainterPath path;
    for (const QPolygonF &part : parts) {
        if (part.boundingRect().size() == QSizeF(0, 0)) // an outline would leave nothing of it
            m_painter.drawPoint(part.front());
        else
            path.addPolygon(part);
    }
    m_painter.drawPath(path);
}

void RasterPlot::strokeInPieces(const std::vector<QPolygonF> &parts)
{
    const double radius = m_pen.widthF() * 0.5;
    const auto disc = [this, radius](QPainter &painter, QPointF centre) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_pen.brush());
        painter.drawEllipse(centre, radius, radius);
    };
    MarkerStamp joint(disc, radius, true);
    QPen flat = m_pen;
    flat.setCapStyle(Qt::FlatCap);
    m_painter.setPen(flat);
    for (const QPolygonF &part : parts) {
        joint.putAt(m_painter, part.front());
        for (qsizetype i = 1; i < part.size(); ++i) {
            m_painter.drawLine(part[i - 1], part[i]);
            joint.putAt(m_painter, part[i]);
        }
    }
}

std::vector<QPointF> RasterPlot::thinned(const std::vector<QPointF> &points)
{
    if (points.size() < 3)
        return points;
    std::vector<QPointF> kept{points.front()};
    LineOfSight sight(points.front());
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (sight.reaches(points[i]))
            continue;
        kept.push_back(points[i - 1]);
        sight = LineOfSight(points[i - 1]);
        static_cast<void>(sight.reaches(points[i]));
    }
    kept.push_back(points.back());
    return kept;
}

std::vector<QPolygonF> RasterPlot::visibleParts(const std::vector<QPointF> &points,
                                                const QRectF &visible)
{
    std::vector<QPolygonF> parts;
    bool goesOn = false;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const std::optional<QLineF> step = clipped(points[i - 1], points[i], visible);
        if (step) {
            if (!goesOn)
                parts.push_back({step->p1()});
            parts.back().push_back(step->p2());
        }
        goesOn = step && isWithin(points[i], visible);
    }
    return parts;
}
