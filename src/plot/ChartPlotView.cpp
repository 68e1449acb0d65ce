#include "plot/ChartPlotView.h"

#include "plot/PlotDataItem.h"

#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QPolarChart>
#include <QScatterSeries>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

namespace {

constexpr int onlyLines = 2;
constexpr int lightestGrey = 235;
constexpr int lightGrey = 210;
constexpr int darkGrey = 90;

QColor grey(int value) { return {value, value, value}; }

/// Whether both have the same axes and legend, so that only points differ.
bool haveSameFrame(const PlotFigure &a, const PlotFigure &b)
{
    return a.isPolar == b.isPolar && a.xTicks == b.xTicks && a.yTicks == b.yTicks &&
           std::equal(a.series.begin(), a.series.end(), b.series.begin(), b.series.end(),
                      [](const PlotFigureSeries &one, const PlotFigureSeries &other) {
                          return one.name == other.name && one.color == other.color &&
                                 one.size == other.size && one.thickness == other.thickness &&
                                 one.shape == other.shape && one.drawMode == other.drawMode;
                      });
}

/// A series without points: it stands for one of ours in the legend.
QXYSeries *legendSeries(const PlotFigureSeries &series)
{
    const QPen pen(series.color, series.thickness);
    if (series.drawMode == onlyLines) {
        auto line = std::make_unique<QLineSeries>();
        line->setPen(pen);
        line->setName(series.name);
        return line.release();
    }
    auto markers = std::make_unique<QScatterSeries>();
    const bool isSquare = series.shape == 0 || series.shape == 1;
    const bool isFilled = series.shape == 0 || series.shape == 2;
    markers->setMarkerShape(isSquare ? QScatterSeries::MarkerShapeRectangle
                                     : QScatterSeries::MarkerShapeCircle);
    markers->setMarkerSize(series.size);
    markers->setPen(pen);
    markers->setBrush(isFilled ? QBrush(series.color) : QBrush(Qt::white));
    markers->setName(series.name);
    return markers.release();
}

} // namespace

ChartPlotView::ChartPlotView(QWidget *parent)
    : PlotView(parent)
    , m_chartView(new QChartView(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_chartView);
    m_chartView->setRenderHint(QPainter::Antialiasing);
    // Around the chart too, whatever the colours of the desktop.
    m_chartView->scene()->setBackgroundBrush(Qt::white);
    m_chartView->setFrameShape(QFrame::NoFrame);
    m_chartView->setFocusPolicy(Qt::NoFocus);
    makeChart();
}

void ChartPlotView::showFigure(const PlotFigure &figure)
{
    const bool hasSameFrame = haveSameFrame(m_figure, figure);
    m_figure = figure;
    // A new chart, because axes that are taken away stay visible for a while.
    if (!hasSameFrame) {
        makeChart();
        makeAxes();
        makeLegend();
    }
    m_data->setFigure(figure);
}

void ChartPlotView::makeChart()
{
    // The view gives what it showed back, its own first chart too.
    const std::unique_ptr<QChart> former(m_chartView->chart());
    m_chart = m_figure.isPolar ? new QPolarChart() : new QChart();
    m_chart->setAnimationOptions(QChart::NoAnimation);
    m_chart->setBackgroundRoundness(0);
    m_chart->setBackgroundBrush(Qt::white);
    m_chart->setMargins(QMargins(12, 12, 12, 12));
    m_chart->legend()->setAlignment(Qt::AlignRight);
    m_chart->legend()->setMarkerShape(QLegend::MarkerShapeFromSeries);
    m_chart->legend()->setLabelColor(Qt::black);
    m_chartView->setChart(m_chart);
    m_data = new PlotDataItem(*m_chart);
    connect(m_chart, &QChart::plotAreaChanged, this, [data = m_data] { data->placeChanged(); });
}

QAbstractAxis *ChartPlotView::addAxis(const std::vector<PlotTick> &ticks, bool isX, bool isMajor)
{
    auto made = std::make_unique<QCategoryAxis>();
    QCategoryAxis *const axis = made.get();
    axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    axis->setRange(0, 1);
    bool isFirst = true;
    for (const PlotTick &tick : ticks) {
        if (tick.isMajor != isMajor)
            continue;
        if (isFirst)
            axis->setStartValue(tick.position);
        isFirst = false;
        axis->append(isMajor ? tick.label : QString::number(axis->count()), tick.position);
    }
    axis->setLabelsVisible(isMajor);
    axis->setLineVisible(isMajor);
    axis->setLinePen(QPen(grey(darkGrey), 1));
    axis->setLabelsColor(Qt::black);
    axis->setGridLinePen(QPen(grey(isMajor ? lightGrey : lightestGrey), 1));
    if (m_figure.isPolar)
        static_cast<QPolarChart *>(m_chart)->addAxis(made.release(),
                                                     isX ? QPolarChart::PolarOrientationAngular
                                                         : QPolarChart::PolarOrientationRadial);
    else
        m_chart->addAxis(made.release(), isX ? Qt::AlignBottom : Qt::AlignLeft);
    return axis;
}

void ChartPlotView::makeAxes()
{
    // Axes without a series have no range.
    auto *carrier = new QLineSeries();
    m_chart->addSeries(carrier);
    std::vector<QAbstractAxis *> axes{addAxis(m_figure.xTicks, true, true),
                                      addAxis(m_figure.yTicks, false, true)};
    if (!m_figure.isPolar) {
        axes.push_back(addAxis(m_figure.xTicks, true, false));
        axes.push_back(addAxis(m_figure.yTicks, false, false));
    }
    for (QAbstractAxis *axis : axes)
        carrier->attachAxis(axis);
}

void ChartPlotView::makeLegend()
{
    m_chart->legend()->setVisible(!m_figure.series.empty());
    for (const PlotFigureSeries &series : m_figure.series)
        m_chart->addSeries(legendSeries(series));
    m_chart->legend()->markers().constFirst()->setVisible(false);
}

void ChartPlotView::drawInto(QPainter &painter, const QRectF &target)
{
    m_chartView->scene()->render(&painter, target, m_chartView->sceneRect());
}
