#include "document/TestDocument.h"

#include "capture/DataSeries.h"
#include "capture/SeriesArchive.h"
#include "conversion/ZKConvCoordinateAffine.h"
#include "document/DocumentTypes.h"
#include "platform/DurableFile.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTranslator>

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdlib>
#include <random>

// How quickly a whole document answers with ten series of ten thousand points over a picture of
// 100 megapixels, on a clip of about 1600 x 1000 points; and how quickly one of 12 megapixels is
// saved.
namespace {

constexpr int pointsPerSeries = 10'000;
constexpr int width = 12'000;
constexpr int height = 8'400;

enum Curve { Smooth, Random };

/// A series as a document file keeps it.
ArchiveDictionary seriesData(Curve curve, int drawMode)
{
    const auto axes = ZKConvCoordinateAffine::convCoordWithX0Point(
        {0, 0}, {width, 0}, 0, width, false, {0, 0}, {0, height}, 0, height, false);
    std::mt19937 random(5);
    SeriesStore store;
    for (int series = 0; series < SeriesStore::seriesCount; ++series) {
        std::vector<ZKVector> points;
        for (int i = 0; i < pointsPerSeries; ++i) {
            const double along = double(i) / pointsPerSeries;
            if (curve == Smooth)
                points.push_back(ZKVector::vectorWithX(
                    along * width, height * (0.5 + 0.04 * series * std::sin(20 * along))));
            else
                points.push_back(ZKVector::vectorWithX(double(random() % width), //
                                                       double(random() % height)));
        }
        store.setList(series, PointList(std::move(points)));
        store.setConverter(series, axes);
        store.setMarkerDraw(series, drawMode);
    }
    ArchiveDictionary data;
    seriesarchive::putLists(data, store);
    return data;
}

/// A document on the digitizing page.
class Chart
{
public:
    Chart(Curve curve, int drawMode)
        : m_test(QSize(width, height))
    {
        m_test.document->window().resize(1640, 1210);
        const ArchiveDictionary data = seriesData(curve, drawMode);
        m_test.document->dataSeries().loadFromData(&data);
        m_test.digitize();
        view().rescaleImageWith(0.25F, true);
        paint();
    }

    GraphImageView &view() { return m_test.document->graphView(); }

    void pointAt(QPoint inViewport)
    {
        m_test.services.desktop->pointer =
            m_test.ui().pictureScrollArea->viewport()->mapToGlobal(inViewport);
        view().mouseCheckRoutine();
    }

    void scrollTo(FloatPoint origin) { m_test.ui().pictureScrollArea->scrollPoint(origin); }

    void paint()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

private:
    TestDocument m_test;
};

Chart chartFor(const benchmark::State &state)
{
    return {static_cast<Curve>(state.range(0)), static_cast<int>(state.range(1))};
}

/// One look at the pointer, without the painting that follows.
void hoverTick(benchmark::State &state)
{
    Chart chart = chartFor(state);
    int way = 0;
    for (auto step : state) {
        way = (way + 3) % 800;
        chart.pointAt({100 + way, 100 + way});
    }
}

/// The pointer moves, the guide follows, the window is painted.
void hoverFrame(benchmark::State &state)
{
    Chart chart = chartFor(state);
    int way = 0;
    for (auto step : state) {
        way = (way + 3) % 800;
        chart.pointAt({100 + way, 100 + way});
        chart.paint();
    }
}

void scrollByAWheelClick(benchmark::State &state)
{
    Chart chart = chartFor(state);
    float y = 0;
    for (auto step : state) {
        y = y > 900 ? 0 : y + 60;
        chart.scrollTo({300, y});
        chart.paint();
    }
}

void zoomStep(benchmark::State &state)
{
    Chart chart = chartFor(state);
    float scale = 0.25F;
    for (auto step : state) {
        scale = scale == 0.25F ? 0.35355338F : 0.25F;
        chart.view().rescaleImageWith(scale, true);
        chart.paint();
    }
}

/// A scan of 12 megapixels, whose noise makes it as hard to encode as scans are.
QImage scan()
{
    QImage picture(4000, 3000, QImage::Format_RGB32);
    std::mt19937 random(7);
    for (int y = 0; y < picture.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int light = 240 + static_cast<int>(random() % 12);
            line[x] = (x + y) % 400 < 4 ? qRgb(20, 40, 90) : qRgb(light, light, light);
        }
    }
    return picture;
}

void saveTo(const QTemporaryDir &folder, const MyDocument &document)
{
    const auto data = document.dataOfType(QLatin1String(documenttypes::curvegrabDocument));
    if (!data || durablefile::write(folder.filePath(QStringLiteral("scan.crvgrab")), *data))
        std::abort();
}

void firstSave(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QImage picture = scan();
    for (auto step : state) {
        state.PauseTiming();
        TestDocument test(QSize(0, 0));
        test.document->graphView().replaceImageWithImageRep(picture);
        state.ResumeTiming();
        saveTo(folder, *test.document);
    }
}

void saveAfterAPoint(benchmark::State &state)
{
    const QTemporaryDir folder;
    TestDocument test(QSize(0, 0));
    test.document->graphView().replaceImageWithImageRep(scan());
    saveTo(folder, *test.document);
    test.digitize();
    int x = 0;
    for (auto step : state) {
        x = (x + 7) % 300;
        test.click(10 + x, 50);
        saveTo(folder, *test.document);
    }
}

void allCurves(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgNames({"random", "mode"})
        ->ArgsProduct({{Smooth, Random}, {0, 1, 2}})
        ->Unit(benchmark::kMillisecond);
}

/// Lines between random points cover the picture many times over, which no chart does; drawing
/// them anew takes seconds.
void chartsAlone(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgNames({"random", "mode"})
        ->ArgsProduct({{Smooth}, {0, 1, 2}})
        ->Args({Random, 0})
        ->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(hoverTick)->Apply(allCurves);
BENCHMARK(hoverFrame)->Apply(allCurves);
BENCHMARK(scrollByAWheelClick)->Apply(chartsAlone);
BENCHMARK(zoomStep)->Apply(chartsAlone);
BENCHMARK(firstSave)->Unit(benchmark::kMillisecond);
BENCHMARK(saveAfterAPoint)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QTranslator texts;
    if (!texts.load(QStringLiteral(":/i18n/curvegrab_en.qm")))
        return 2;
    QCoreApplication::installTranslator(&texts);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
