#pragma once

#include "plot/PlotFigure.h"
#include "plot/PlotView.h"

class PlotDataItem;
class QAbstractAxis;
class QChart;
class QChartView;

/// A plot made with the charting library: its axes, grid, labels and legend, and our points.
class ChartPlotView final : public PlotView
{
    Q_OBJECT

public:
    explicit ChartPlotView(QWidget *parent);

    void showFigure(const PlotFigure &figure) override;
    void drawInto(QPainter &painter, const QRectF &target) override;

private:
    void makeChart();
    void makeAxes();
    void makeLegend();
    [[nodiscard]] QAbstractAxis *addAxis(const std::vector<PlotTick> &ticks, bool isX,
                                         bool isMajor);

    PlotFigure m_figure;
    QChartView *m_chartView = nullptr; // child
    QChart *m_chart = nullptr;         // owned by the chart view
    PlotDataItem *m_data = nullptr;    // child of the chart
};
