#include "app/ConsoleFixture.h"
#include "document/ExampleDocuments.h"

#include <QList>
#include <QPointF>

#include <cmath>
#include <numbers>

namespace {

QString exampleCalled(const char *name)
{
    return QStringLiteral(CURVEGRAB_SOURCE "/examples/") + QLatin1String(name);
}

class ExampleDocument : public ConsoleFixture
{
protected:
    const QString example = exampleCalled("damped-oscillation.crvgrab");

    /// The points of an example's only series.
    QList<QPointF> points(const char *name)
    {
        EXPECT_EQ(run({"--export", "-", "--no-titles", exampleCalled(name)}), exitcode::success)
            << qPrintable(err());
        QList<QPointF> result;
        for (const QByteArray &line : out().trimmed().split('\n')) {
            const QList<QByteArray> fields = line.split('\t');
            EXPECT_EQ(fields.size(), 2);
            result.append({fields.first().toDouble(), fields.last().toDouble()});
        }
        EXPECT_EQ(result.size(), 20);
        return result;
    }
};

} // namespace

// A value may be off by what one and a half pixels stand for: the click, the anchors and the
// drawing are each true to half a pixel.
TEST_F(ExampleDocument, growthHoldsTheCurveOfItsChart)
{
    for (const QPointF &point : points("growth-semilogarithmic.crvgrab")) {
        const double cells = 3e8 / (1 + 3e8 / 5e3 * std::exp(-0.9 * point.x()));
        // Half a pixel in time where the curve is steepest, and one and a half in height.
        EXPECT_NEAR(std::log10(point.y()), std::log10(cells), 1.5 * 6 / 574 + 0.39 * 24 / 850)
            << "at " << point.x();
    }
}

TEST_F(ExampleDocument, slantedChartHoldsTheCurveOfItsChart)
{
    for (const QPointF &point : points("slanted-chart.crvgrab"))
        EXPECT_NEAR(point.y(), 2 + 0.25 * point.x() * point.x(), 1.5 * 20 / 440 + 2 * 4.0 / 600)
            << "at " << point.x();
}

TEST_F(ExampleDocument, cardioidHoldsTheCurveOfItsChart)
{
    for (const QPointF &point : points("cardioid-polar.crvgrab"))
        EXPECT_NEAR(point.y(), 4 + 4 * std::cos(point.x() / 180 * std::numbers::pi), 3.0 / 28)
            << "at " << point.x();
}

TEST_F(ExampleDocument, holdsTheCurveOfItsChart)
{
    ASSERT_EQ(run({"--export", "-", "--no-titles", example}), exitcode::success)
        << qPrintable(err());
    const QList<QByteArray> lines = out().trimmed().split('\n');
    EXPECT_EQ(lines.size(), 20);
    for (const QByteArray &line : lines) {
        const QList<QByteArray> fields = line.split('\t');
        ASSERT_EQ(fields.size(), 2);
        const double time = fields[0].toDouble();
        // Half a pixel in time where the curve is steepest, and one in height.
        EXPECT_NEAR(fields[1].toDouble(), 5 * std::exp(-time / 4) * std::cos(2 * time), 0.08)
            << "at " << time;
    }
}

TEST_F(ExampleDocument, isSmall)
{
    for (const exampledocuments::Example &document : exampledocuments::all())
        EXPECT_LT(QFileInfo(exampleCalled(document.file)).size(), 100'000) << document.file;
}
