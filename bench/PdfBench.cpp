#include "imageview/PdfFiles.h"
#include "imageview/ZKPdfDocument.h"
#include "platform/Modules.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cmath>

// How long the pages of PDF files take on letter paper.
namespace {

constexpr float usualScale = 4;

/// A page with a frame, a grid, and a curve of `vertices` points that swings up and down.
QByteArray pageWithCurve(int vertices)
{
    const auto number = [](double value) { return QByteArray::number(value, 'f', 2); };
    QByteArray content = "0.5 w 60 100 492 592 re S\n";
    for (int line = 1; line < 10; ++line)
        content +=
            "60 " + number(100 + line * 59.2) + " m 552 " + number(100 + line * 59.2) + " l S\n";
    content += "0 0 1 RG 1 w\n";
    for (int i = 0; i < vertices; ++i) {
        const double x = 60 + 492.0 * i / vertices;
        const double y = 396 + 250 * std::sin(x / 11) * std::cos(x / 40) + 20 * std::sin(7.0 * i);
        content += number(x) + ' ' + number(y) + (i == 0 ? " m\n" : " l\n");
    }
    content += "S";
    return pdffiles::withPage("/MediaBox [0 0 612 792]", content);
}

void paintPage(benchmark::State &state, const QString &path)
{
    const auto document = ZKPdfDocument::zkPdfDocumentWithFile(path);
    for (auto step : state) {
        auto picture = document->getImageOfPage(1, usualScale);
        if (!picture)
            state.SkipWithError("the page is not painted");
        benchmark::DoNotOptimize(picture);
    }
}

void plainPage(benchmark::State &state) { paintPage(state, pdffiles::stored("letter-1.pdf")); }

void pageWithCurveOf(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("curve.pdf"));
    pdffiles::written(path, pageWithCurve(static_cast<int>(state.range(0))));
    paintPage(state, path);
}

void openAndPreview(benchmark::State &state)
{
    const QString path = pdffiles::stored("letter-25.pdf");
    for (auto step : state) {
        const auto document = ZKPdfDocument::zkPdfDocumentWithFile(path);
        auto preview = document->previewOfPage(25, 1);
        benchmark::DoNotOptimize(preview);
    }
}

} // namespace

BENCHMARK(plainPage)->Unit(benchmark::kMillisecond);
BENCHMARK(pageWithCurveOf)->Arg(20'000)->Unit(benchmark::kMillisecond);
BENCHMARK(openAndPreview)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    modules::setFolder(QStringLiteral(CURVEGRAB_MODULE_FOLDER));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
