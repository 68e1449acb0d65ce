#include "plot/PlotFigure.h"

#include "plot/SampleContent.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double rounding = 1e-12;

void expectAt(const PlotFigure &figure, std::size_t index, double x, double y)
{
    ASSERT_LT(index, figure.series.at(0).points.size());
    const QPointF point = figure.series[0].points[index];
    EXPECT_NEAR(point.x(), x, rounding) << index;
    EXPECT_NEAR(point.y(), y, rounding) << index;
}

} // namespace

TEST(PlotFigure, placesPointsBetweenTheEndsOfTheAxes)
{
    const PlotFigure figure = plotfigure::of(samplecontent::linear({{0, 0}, {5, 2.5}, {10, 10}}));
    expectAt(figure, 0, 0, 0);
    expectAt(figure, 1, 0.5, 0.25);
    expectAt(figure, 2, 1, 1);
    EXPECT_EQ(figure.pointCount, 3);
    EXPECT_EQ(figure.leftOutCount, 0);
}

TEST(PlotFigure, logarithmicAxesPlaceDecadesEvenly)
{
    PlotContent content = samplecontent::linear({{1, 1}, {10, 100}});
    content.x = {1, 1000, true, false};
    content.y = {1, 10000, true, false};
    const PlotFigure figure = plotfigure::of(content);
    expectAt(figure, 0, 0, 0);
    expectAt(figure, 1, 1.0 / 3, 0.5);
}

TEST(PlotFigure, axesThatRunBackwardsOnThePictureDoSoHere)
{
    PlotContent content = samplecontent::linear({{2, 3}});
    content.x.isReversed = true;
    content.y.isReversed = true;
    expectAt(plotfigure::of(content), 0, 0.8, 0.7);
}

TEST(PlotFigure, anAxisGrowsToARoundValueWherePointsLieBeyond)
{
    const PlotFigure figure = plotfigure::of(samplecontent::linear({{0, -3}, {17, 10}}));
    // x to 20 in steps of 5, y from -4 in steps of 2.
    expectAt(figure, 0, 0, 1.0 / 14);
    expectAt(figure, 1, 0.85, 1);
}

TEST(PlotFigure, aPointThatMissesTheEndOfItsAxisLeavesTheAxisAlone)
{
    PlotContent content = samplecontent::linear({{0.9999, 10.01}, {1000.1, -0.01}});
    content.x = {1, 1000, true, false};
    const PlotFigure figure = plotfigure::of(content);
    EXPECT_NEAR(figure.series[0].points[0].x(), 0, 0.001);
    EXPECT_NEAR(figure.series[0].points[0].y(), 1, 0.002);
    EXPECT_NEAR(figure.series[0].points[1].x(), 1, 0.001);
    EXPECT_NEAR(figure.series[0].points[1].y(), 0, 0.002);
}

TEST(PlotFigure, aLogarithmicAxisGrowsByDecades)
{
    PlotContent content = samplecontent::linear({{50, 1}});
    content.x = {1, 10, true, false};
    expectAt(plotfigure::of(content), 0, std::log10(50.0) / 2, 0.1);
}

TEST(PlotFigure, pointsWithoutPlaceAreLeftOutAndCounted)
{
    PlotContent content = samplecontent::linear(
        {{1, 5}, {0, 5}, {-1, 5}, {notANumber, 5}, {5, infinity}, {5, -infinity}, {5, 1.1e300}});
    content.x = {1, 10, true, false};
    const PlotFigure figure = plotfigure::of(content);
    EXPECT_EQ(figure.pointCount, 1);
    EXPECT_EQ(figure.leftOutCount, 6);
    expectAt(figure, 0, 0, 0.5);
}

TEST(PlotFigure, hugeValuesKeepTheirPlaces)
{
    PlotContent content = samplecontent::linear({{-1e300, 1e-300}, {1e300, 0}});
    content.y = {0, 2e-300, false, false};
    const PlotFigure figure = plotfigure::of(content);
    expectAt(figure, 0, 0, 0.5);
    expectAt(figure, 1, 1, 0);
    EXPECT_FALSE(figure.xTicks.empty());
}

TEST(PlotFigure, withoutSeriesThereAreTheAxes)
{
    PlotContent content = samplecontent::linear({});
    content.series.clear();
    const PlotFigure figure = plotfigure::of(content);
    EXPECT_EQ(figure.xTicks.front().label, QStringLiteral("0"));
    EXPECT_EQ(figure.xTicks.back().label, QStringLiteral("10"));
    EXPECT_TRUE(figure.series.empty());
}

TEST(PlotFigure, axesWithoutSenseTakeTheirRangeFromThePoints)
{
    PlotContent content = samplecontent::linear({{100, 7}});
    content.x = {0, -5, true, false};
    content.y = {notANumber, infinity, false, false};
    expectAt(plotfigure::of(content), 0, 0.5, 0.5);
    content.series.clear();
    EXPECT_FALSE(plotfigure::of(content).xTicks.empty());
}

TEST(PlotFigure, polarPointsLieWhereTheirAnglePoints)
{
    const PlotFigure figure =
        plotfigure::of(samplecontent::polar({{0, 10}, {90, 5}, {180, 10}, {-90, 10}, {45, 0}}));
    expectAt(figure, 0, 1, 0);
    expectAt(figure, 1, 0, 0.5);
    expectAt(figure, 2, -1, 0);
    expectAt(figure, 3, 0, -1);
    expectAt(figure, 4, 0, 0);
}

TEST(PlotFigure, anglesFollowTheDirectionAndSenseOfThePicture)
{
    PlotContent content = samplecontent::polar({{0, 10}, {30, 10}});
    content.angles.zeroDirection = std::numbers::pi / 2;
    content.angles.isCounterClockwise = false;
    const PlotFigure figure = plotfigure::of(content);
    expectAt(figure, 0, 0, 1);
    expectAt(figure, 1, 0.5, std::sqrt(0.75));
}

TEST(PlotFigure, anglesKeepTheUnitUnderWhichTheyWereTaken)
{
    PlotContent content = samplecontent::polar({{std::numbers::pi, 10}});
    content.series[0].anglesAreInDegrees = false;
    expectAt(plotfigure::of(content), 0, -1, 0);
}

TEST(PlotFigure, aLogarithmicRadiusBeginsAtTheCentre)
{
    PlotContent content = samplecontent::polar({{0, 10}});
    content.y = {1, 100, true, false};
    expectAt(plotfigure::of(content), 0, 0.5, 0);
}

TEST(PlotFigure, theLeastValuesHavePlaces)
{
    constexpr double least = std::numeric_limits<double>::denorm_min();
    PlotContent content = samplecontent::linear({{least, 2 * least}, {3 * least, 5}});
    content.x = {least, 3 * least, false, false};
    content.y = {least, 2 * least, false, false};
    const PlotFigure figure = plotfigure::of(content);
    expectAt(figure, 0, 0.5, 0);
    expectAt(figure, 1, 0.5, 1);
    content.y = {0, 40 * least, false, false};
    EXPECT_EQ(plotfigure::of(content).pointCount, 2);
}

TEST(PlotFigure, pointsOfOtherAxesAreLeftOutAndLeaveTheRangeAlone)
{
    PlotContent content = samplecontent::linear({{500, 500}, {2, 2}});
    content.series[0].hasOtherAxes = true;
    content.series.push_back(samplecontent::series({{5, 2}}));
    const PlotFigure figure = plotfigure::of(content);
    EXPECT_EQ(figure.pointCount, 1);
    EXPECT_EQ(figure.leftOutCount, 2);
    ASSERT_EQ(figure.series.size(), 1U);
    EXPECT_EQ(figure.series[0].points[0], QPointF(0.5, 0.2));
}

TEST(PlotFigure, aSeriesOfWhichNothingIsShownIsNotNamed)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    PlotContent content = samplecontent::linear({{5, 2}});
    content.series.push_back(samplecontent::series({{infinite, 2}, {5, -infinite}}));
    content.series[1].name = QStringLiteral("nowhere");
    const PlotFigure figure = plotfigure::of(content);
    ASSERT_EQ(figure.series.size(), 1U);
    EXPECT_NE(figure.series[0].name, QStringLiteral("nowhere"));
    EXPECT_EQ(figure.leftOutCount, 2);
}
