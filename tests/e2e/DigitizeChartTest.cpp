#include "e2e/ProgramUnderTest.h"

#include <QPointF>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

// The main job, as a user does it: a chart that a plotting program drew from a known formula, its
// axes marked, twenty points clicked, the numbers saved as text. A value may be off by what one
// and a half pixels stand for: the click, the anchors and the drawing are each true to half a
// pixel.

namespace {

constexpr int pointCount = 20;
constexpr double pixels = 1.5;

QString example(const char *name)
{
    return QStringLiteral(CURVEGRAB_EXAMPLES "/") + QString::fromLatin1(name);
}

/// Where the axes are by default on a picture of this size.
struct DefaultAnchors
{
    explicit DefaultAnchors(double width, double height)
        : one(0.2 * width, 0.2 * height)
        , two(0.8 * width, 0.2 * height)
        , three(0.8 * width, 0.8 * height)
        , four(0.2 * width, 0.8 * height)
    {}
    QPointF one, two, three, four;
};

double cross(QPointF a, QPointF b) { return a.x() * b.y() - a.y() * b.x(); }

/// Where the lines through p along d and through q along e meet.
QPointF meeting(QPointF p, QPointF d, QPointF q, QPointF e)
{
    return p + d * (cross(q - p, e) / cross(d, e));
}

} // namespace

TEST(DigitizeChart, parallelLinearAxesGiveTheFormulaBack)
{
    ProgramUnderTest program(example("damped-oscillation.png"));
    ASSERT_TRUE(program.waitForPicture());
    const DefaultAnchors start(1000, 700);
    program.drag(start.one, {100, 84});
    // Anchor 1 took its neighbours along: they slide on their sides.
    program.drag({800, 84}, {950, 84});
    program.drag({100, 560}, {100, 658});
    program.enter("alt+i", "0");
    program.enter("alt+x", "10");
    program.enter("alt+n", "-4");
    program.enter("alt+m", "6");
    program.key("ctrl+2");
    const auto yOf = [](double x) { return 5 * std::exp(-x / 4) * std::cos(2 * x); };
    for (int i = 0; i < pointCount; ++i) {
        const double x = 0.25 + 0.5 * i;
        program.click({100 + 850 * x / 10, 84 + 574 * (yOf(x) + 4) / 10});
    }
    const auto rows = program.savedData();
    ASSERT_EQ(rows.size(), static_cast<std::size_t>(pointCount));
    for (int i = 0; i < pointCount; ++i) {
        const double x = 0.25 + 0.5 * i;
        const auto &row = rows.at(static_cast<std::size_t>(i));
        ASSERT_EQ(row.size(), 2U);
        EXPECT_NEAR(row[0], x, pixels * 10 / 850) << "point " << i;
        EXPECT_NEAR(row[1], yOf(x), pixels * 10 / 574) << "point " << i;
    }
}

TEST(DigitizeChart, parallelLogarithmicAxesGiveTheFormulaBack)
{
    ProgramUnderTest program(example("decay-logarithmic.png"));
    ASSERT_TRUE(program.waitForPicture());
    const DefaultAnchors start(1000, 700);
    program.drag(start.one, {100, 84});
    program.drag({800, 84}, {950, 84});
    program.drag({100, 560}, {100, 658});
    program.enter("alt+i", "1");
    program.enter("alt+x", "1000");
    program.toggleNextCheckBox();
    program.enter("alt+n", "0.1");
    program.enter("alt+m", "10000");
    program.toggleNextCheckBox();
    program.key("ctrl+2");
    const auto yOf = [](double x) { return 8000 * std::pow(x, -1.2); };
    const auto xOf = [](int i) { return std::pow(10, 0.1 + 0.14 * i); };
    for (int i = 0; i < pointCount; ++i)
        program.click(
            {100 + 850 * std::log10(xOf(i)) / 3, 84 + 574 * (std::log10(yOf(xOf(i))) + 1) / 5});
    const auto rows = program.savedData();
    ASSERT_EQ(rows.size(), static_cast<std::size_t>(pointCount));
    for (int i = 0; i < pointCount; ++i) {
        const auto &row = rows.at(static_cast<std::size_t>(i));
        ASSERT_EQ(row.size(), 2U);
        EXPECT_NEAR(std::log10(row[0]), std::log10(xOf(i)), pixels * 3 / 850) << "point " << i;
        EXPECT_NEAR(std::log10(row[1]), std::log10(yOf(xOf(i))), pixels * 5 / 574) << "point " << i;
    }
}

TEST(DigitizeChart, quadrangleAxesGiveTheFormulaBack)
{
    ProgramUnderTest program(example("slanted-chart.png"));
    ASSERT_TRUE(program.waitForPicture());
    const QPointF lb(120, 90);
    const QPointF rb(880, 150);
    const QPointF rt(800, 610);
    const QPointF lt(190, 560);
    const QPointF vanishingX = meeting(lb, rb - lb, lt, rt - lt);
    const QPointF vanishingY = meeting(lb, lt - lb, rb, rt - rb);
    const auto inPicture = [&](double x, double y) {
        const QPointF onBottom = lb + (rb - lb) * (x / 8);
        const QPointF onLeft = lb + (lt - lb) * (y / 20);
        return meeting(onBottom, vanishingY - onBottom, onLeft, vanishingX - onLeft);
    };
    const DefaultAnchors start(1000, 700);
    // The axes menu, its second item: quadrangle axes.
    program.key("alt+a");
    program.key("q");
    program.drag(start.one, lb);
    program.drag(start.two, rb);
    program.drag(start.three, rt);
    program.drag(start.four, lt);
    program.enter("alt+x", "8");
    program.enter("alt+i", "0");
    program.enter("alt+m", "20");
    program.enter("alt+n", "0");
    program.key("ctrl+2");
    const auto yOf = [](double x) { return 2 + 0.25 * x * x; };
    const auto xOf = [](int i) { return 0.2 + 0.4 * i; };
    for (int i = 0; i < pointCount; ++i)
        program.click(inPicture(xOf(i), yOf(xOf(i))));
    const auto rows = program.savedData();
    ASSERT_EQ(rows.size(), static_cast<std::size_t>(pointCount));
    for (int i = 0; i < pointCount; ++i) {
        const auto &row = rows.at(static_cast<std::size_t>(i));
        ASSERT_EQ(row.size(), 2U);
        // The top edge is the shortest: a pixel stands for most there.
        EXPECT_NEAR(row[0], xOf(i), pixels * 8 / 600) << "point " << i;
        EXPECT_NEAR(row[1], yOf(xOf(i)), pixels * 20 / 440) << "point " << i;
    }
}

TEST(DigitizeChart, polarAxesGiveTheFormulaBack)
{
    ProgramUnderTest program(example("cardioid-polar.png"));
    ASSERT_TRUE(program.waitForPicture());
    program.key("alt+a");
    program.key("o");
    // The centre is where it belongs by default; the radius of 0.3 of the side goes to 280.
    program.drag({560, 350}, {630, 350});
    program.enter("alt+m", "10");
    program.enter("alt+n", "0");
    program.key("ctrl+2");
    const auto rOf = [](double degrees) {
        return 4 + 4 * std::cos(degrees / 180 * std::numbers::pi);
    };
    const auto thetaOf = [](int i) { return 5.0 + 15.0 * (i < 10 ? i : i + 4); };
    for (int i = 0; i < pointCount; ++i) {
        const double theta = thetaOf(i) / 180 * std::numbers::pi;
        const double length = 28 * rOf(thetaOf(i));
        program.click({350 + length * std::cos(theta), 350 + length * std::sin(theta)});
    }
    const auto rows = program.savedData();
    ASSERT_EQ(rows.size(), static_cast<std::size_t>(pointCount));
    for (int i = 0; i < pointCount; ++i) {
        const auto &row = rows.at(static_cast<std::size_t>(i));
        ASSERT_EQ(row.size(), 2U);
        const double degreesOfAPixel = 180 / std::numbers::pi / (28 * rOf(thetaOf(i)));
        EXPECT_NEAR(row[0], thetaOf(i), pixels * degreesOfAPixel) << "point " << i;
        EXPECT_NEAR(row[1], rOf(thetaOf(i)), pixels / 28) << "point " << i;
    }
}
