#include "plot/PlotContent.h"
#include "plot/PlotFigure.h"
#include "plot/PlotModule.h"
#include "plot/PlotView.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <random>

// How quickly a plot of very many points is prepared and drawn.
namespace {

/// Ten series of so many points, with markers and lines.
PlotContent manyPoints(int pointsPerSeries)
{
    constexpr int seriesCount = 10;
    std::mt19937 random(7);
    std::uniform_real_distribution<double> value(0, 10);
    PlotContent content;
    content.x = {0, 10, false, false};
    content.y = {0, 10, false, false};
    for (int i = 0; i < seriesCount; ++i) {
        PlotSeries series;
        series.name = QString::number(i + 1);
        series.color = QColor::fromHsv(i * 36, 255, 200);
        series.size = 9;
        series.thickness = 1;
        series.drawMode = 1;
        for (int k = 0; k < pointsPerSeries; ++k)
            series.points.push_back({10.0 * k / pointsPerSeries, value(random)});
        content.series.push_back(std::move(series));
    }
    return content;
}

void preparePlot(benchmark::State &state)
{
    const PlotContent content = manyPoints(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(plotfigure::of(content));
}

void drawPlot(benchmark::State &state)
{
    PlotModule module(QStringLiteral(CURVEGRAB_PLOT_MODULE_FOLDER));
    if (module.maker() == nullptr) {
        state.SkipWithError("the module that draws plots is missing");
        return;
    }
    QWidget window;
    window.resize(640, 520);
    PlotView *const view = module.maker()->makeView(&window);
    view->resize(window.size());
    window.show();
    const PlotFigure figure = plotfigure::of(manyPoints(static_cast<int>(state.range(0))));
    QImage image(view->size(), QImage::Format_RGB32);
    for ([[maybe_unused]] auto step : state) {
        view->showFigure(figure);
        QCoreApplication::processEvents();
        QPainter painter(&image);
        view->drawInto(painter, view->rect());
    }
}

} // namespace

BENCHMARK(preparePlot)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(drawPlot)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
