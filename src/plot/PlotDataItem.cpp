#include "plot/PlotDataItem.h"

#include <QChart>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// The draw modes.
constexpr int markersOnly = 0;
constexpr int linesOnly = 2;

/// Markers whose places differ by less are one, in view points.
constexpr double distinctPlaces = 0.5;
/// Points of a line that differ by less are one.
constexpr double distinctLinePoints = 0.4;
/// A longer line is drawn in pieces: joining all of it takes too long.
constexpr qsizetype longestPiece = 500;
/// So many markers are stamped on a surface of pixels: nobody sees single ones.
constexpr std::size_t manyMarkers = 1000;
constexpr double nameDistance = 5;

void drawMarker(QPainter &painter, const PlotFigureSeries &series, QPointF place)
{
    const double half = series.size / 2;
    const QRectF square(place.x() - half, place.y() - half, series.size, series.size);
    if (series.shape == 0 || series.shape == 1)
        painter.drawRect(square);
    else
        painter.drawEllipse(square);
}

void prepare(QPainter &painter, const PlotFigureSeries &series)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(series.color, series.thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const bool isFilled = series.shape == 0 || series.shape == 2;
    painter.setBrush(isFilled ? QBrush(series.color) : QBrush(Qt::NoBrush));
}

/// The marker once, to be copied.
QPixmap stampOf(const PlotFigureSeries &series, double devicePixelRatio)
{
    const double side = series.size + 2 * series.thickness + 2;
    const int pixels = static_cast<int>(std::ceil(side * devicePixelRatio));
    QPixmap stamp(pixels, pixels);
    stamp.setDevicePixelRatio(devicePixelRatio);
    stamp.fill(Qt::transparent);
    QPainter painter(&stamp);
    prepare(painter, series);
    drawMarker(painter, series, QRectF(QPointF(0, 0), stamp.deviceIndependentSize()).center());
    return stamp;
}

void drawMarkers(QPainter &painter, const PlotFigureSeries &series,
                 const std::vector<QPointF> &places, const QRectF &area)
{
    const bool isStamped =
        places.size() >= manyMarkers && painter.paintEngine()->type() == QPaintEngine::Raster;
    const QPixmap stamp =
        isStamped ? stampOf(series, painter.device()->devicePixelRatio()) : QPixmap();
    const QPointF middle = QRectF(QPointF(0, 0), stamp.deviceIndependentSize()).center();
    const auto columns = static_cast<std::size_t>(area.width() / distinctPlaces) + 1;
    const auto rows = static_cast<std::size_t>(area.height() / distinctPlaces) + 1;
    std::vector<bool> isTaken(columns * rows);
    for (const QPointF &place : places) {
        const double column = std::floor((place.x() - area.left()) / distinctPlaces);
        const double row = std::floor((place.y() - area.top()) / distinctPlaces);
        if (column < 0 || row < 0 || column >= double(columns) || row >= double(rows))
            continue;
        const std::size_t cell =
            static_cast<std::size_t>(row) * columns + static_cast<std::size_t>(column);
        if (isTaken[cell])
            continue;
        isTaken[cell] = true;
        if (isStamped)
            painter.drawPixmap(place - middle, stamp);
        else
            drawMarker(painter, series, place);
    }
}

/// The points that a line on paper needs: of those that follow each other in one column of points
/// the first, the highest, the lowest and the last.
std::vector<QPointF> thinned(const std::vector<QPointF> &places)
{
    std::vector<QPointF> kept;
    for (std::size_t i = 0; i < places.size();) {
        const double column = std::floor(places[i].x());
        std::size_t end = i;
        std::size_t low = i;
        std::size_t high = i;
        for (; end < places.size() && std::floor(places[end].x()) == column; ++end) {
            low = places[end].y() < places[low].y() ? end : low;
            high = places[end].y() > places[high].y() ? end : high;
        }
        std::array needed{i, std::min(low, high), std::max(low, high), end - 1};
        for (std::size_t k = 0; k < needed.size(); ++k) {
            if (k == 0 || needed[k] != needed[k - 1])
                kept.push_back(places[needed[k]]);
        }
        i = end;
    }
    return kept;
}

void drawLine(QPainter &painter, const std::vector<QPointF> &allPlaces)
{
    const std::vector<QPointF> places = thinned(allPlaces);
    QPolygonF piece;
    for (const QPointF &place : places) {
        if (!piece.isEmpty()) {
            const QPointF way = place - piece.last();
            if (std::fabs(way.x()) + std::fabs(way.y()) < distinctLinePoints)
                continue;
        }
        piece.append(place);
        if (piece.size() == longestPiece) {
            painter.drawPolyline(piece);
            piece = QPolygonF{place};
        }
    }
    painter.drawPolyline(piece);
}

} // namespace

PlotDataItem::PlotDataItem(QChart &chart)
    : QGraphicsItem(&chart)
    , m_chart(chart)
{
    setZValue(1000); // above the lines of the axes
}

void PlotDataItem::setFigure(const PlotFigure &figure)
{
    m_figure = figure;
    update();
}

void PlotDataItem::placeChanged()
{
    prepareGeometryChange();
    update();
}

QRectF PlotDataItem::boundingRect() const { return m_chart.rect(); }

std::vector<QPointF> PlotDataItem::placesOf(const PlotFigureSeries &series) const
{
    const QRectF area = m_chart.plotArea();
    std::vector<QPointF> places;
    places.reserve(series.points.size());
    if (m_figure.isPolar) {
        const QPointF center = area.center();
        const double radius = std::min(area.width(), area.height()) / 2;
        for (const QPointF &point : series.points)
            places.emplace_back(center.x() + radius * point.x(), center.y() - radius * point.y());
        return places;
    }
    for (const QPointF &point : series.points)
        places.emplace_back(area.left() + area.width() * point.x(),
                            area.bottom() - area.height() * point.y());
    return places;
}

void PlotDataItem::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/,
                         QWidget * /*widget*/)
{
    const QRectF area = m_chart.plotArea();
    if (area.isEmpty())
        return;
    painter->save();
    for (const PlotFigureSeries &series : m_figure.series) {
        const std::vector<QPointF> places = placesOf(series);
        prepare(*painter, series);
        if (series.drawMode != markersOnly)
            drawLine(*painter, places);
        if (series.drawMode != linesOnly)
            drawMarkers(*painter, series, places, area);
        if (m_figure.series.size() > 1 && !places.empty())
            drawName(*painter, series, places.back());
    }
    painter->restore();
}

// The colours of two series may look alike to the reader: their names do not.
void PlotDataItem::drawName(QPainter &painter, const PlotFigureSeries &series, QPointF place) const
{
    QPainterPath text;
    text.addText({}, m_chart.font(), series.shortName);
    const double width = text.boundingRect().width();
    const double away = series.size / 2 + nameDistance;
    const bool fitsRight = place.x() + away + width <= m_chart.plotArea().right();
    text.translate(place + QPointF(fitsRight ? away : -away - width, -away));
    painter.strokePath(text, QPen(Qt::white, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(text, Qt::black);
}
