#pragma once

#include "plot/PlotFigure.h"

#include <QGraphicsItem>

class QChart;

/// The markers and lines of a plot, over the axes of a chart. The chart's own series make an object
/// of each point, which takes seconds for many.
class PlotDataItem final : public QGraphicsItem
{
public:
    /// A child of `chart`, which must not change its kind.
    explicit PlotDataItem(QChart &chart);

    void setFigure(const PlotFigure &figure);
    /// The axes have another place now.
    void placeChanged();

    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    [[nodiscard]] std::vector<QPointF> placesOf(const PlotFigureSeries &series) const;
    void drawName(QPainter &painter, const PlotFigureSeries &series, QPointF place) const;

    QChart &m_chart;
    PlotFigure m_figure;
};
