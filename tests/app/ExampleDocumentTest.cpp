#include "app/ConsoleFixture.h"

#include <cmath>

namespace {

class ExampleDocument : public ConsoleFixture
{
protected:
    const QString example = QStringLiteral(CURVEGRAB_SOURCE "/examples/damped-oscillation.crvgrab");
};

} // namespace

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

TEST_F(ExampleDocument, isSmall) { EXPECT_LT(QFileInfo(example).size(), 100'000); }
