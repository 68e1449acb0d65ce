#include "conversion/AxisGrid.h"
#include "SampleConverters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

using namespace axisgrid;
using sampleconverters::affine;
using sampleconverters::keystone;
using sampleconverters::polar;

namespace {

constexpr double exactly = 1e-9;

/// The graph component `index` where a segment begins and ends.
std::pair<double, double> valuesOf(const ZKConvCoordinate &converter, const Segment &segment,
                                   bool isX)
{
    const auto start =
        converter.convertFromCartesian(ZKVector::vectorWithX(segment.start.x, segment.start.y));
    const auto end =
        converter.convertFromCartesian(ZKVector::vectorWithX(segment.end.x, segment.end.y));
    return isX ? std::pair{start->X(), end->X()} : std::pair{start->Y(), end->Y()};
}

bool isInside(Point point, FloatSize picture)
{
    constexpr double rounding = 1e-6;
    return point.x >= -rounding && point.x <= double(picture.width) + rounding &&
           point.y >= -rounding && point.y <= double(picture.height) + rounding;
}

/// The x of the upright segments, the y of the level ones.
std::vector<double> uprightAt(const Grid &grid)
{
    std::vector<double> all;
    for (const Segment &segment : grid.segments) {
        if (std::fabs(segment.start.x - segment.end.x) < exactly)
            all.push_back(segment.start.x);
    }
    return all;
}

std::vector<double> levelAt(const Grid &grid)
{
    std::vector<double> all;
    for (const Segment &segment : grid.segments) {
        if (std::fabs(segment.start.y - segment.end.y) < exactly)
            all.push_back(segment.start.y);
    }
    return all;
}

void expectNear(std::vector<double> found, std::vector<double> expected)
{
    std::sort(found.begin(), found.end());
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_NEAR(found[i], expected[i], exactly) << i;
}

/// Every segment has one value of one of the two components from end to end, a round one.
void expectLinesOfConstantValues(const ZKConvCoordinate &converter, const Grid &grid,
                                 FloatSize picture, double step)
{
    ASSERT_FALSE(grid.isEmpty());
    for (const Segment &segment : grid.segments) {
        EXPECT_TRUE(isInside(segment.start, picture) && isInside(segment.end, picture));
        const auto [x0, x1] = valuesOf(converter, segment, true);
        const auto [y0, y1] = valuesOf(converter, segment, false);
        const bool isOfX = std::fabs(x0 - x1) < 1e-6;
        const double value = isOfX ? x0 : y0;
        EXPECT_NEAR(value, isOfX ? x1 : y1, 1e-6);
        EXPECT_NEAR(value / step, std::round(value / step), 1e-6);
    }
}

} // namespace

TEST(AxisGrid, ofParallelAxesHasRoundValuesAllOverThePicture)
{
    const Grid grid = gridOf(*affine(), {600, 500}, 48);
    // 40 pixels for one of x: lines for each 2. 100 for one of y: for each 0.5.
    expectNear(uprightAt(grid), {20, 100, 180, 260, 340, 420, 500, 580});
    expectNear(levelAt(grid), {0, 50, 100, 150, 200, 250, 300, 350, 400, 450, 500});
    EXPECT_TRUE(grid.circles.empty());
}

TEST(AxisGrid, segmentsReachFromEdgeToEdge)
{
    const Grid grid = gridOf(*affine(), {600, 500}, 48);
    const Segment &upright = grid.segments.front();
    EXPECT_NEAR(std::min(upright.start.y, upright.end.y), 0, exactly);
    EXPECT_NEAR(std::max(upright.start.y, upright.end.y), 500, exactly);
}

TEST(AxisGrid, ofLogarithmicAxesHasDecadesWithMinorLines)
{
    // One decade of x in 200 pixels.
    const Grid grid = gridOf(*affine({1, 100, true}, {0, 3}), {600, 500}, 48);
    std::vector<double> major;
    std::vector<double> minor;
    for (const Segment &segment : grid.segments) {
        if (std::fabs(segment.start.x - segment.end.x) < exactly)
            (segment.isMajor ? major : minor).push_back(segment.start.x);
    }
    expectNear(major, {100, 300, 500});
    EXPECT_EQ(minor.size(), 6U + 8U + 8U + 2U);
    EXPECT_TRUE(std::any_of(minor.begin(), minor.end(), [](double x) {
        return std::fabs(x - (100 + 200 * std::log10(2.0))) < exactly;
    }));
}

TEST(AxisGrid, ofSlantedAxesRunsAlongThem)
{
    const auto slanted = ZKConvCoordinateAffine::convCoordWithX0Point(
        {100, 100}, {500, 140}, 0, 10, false, {100, 100}, {130, 400}, 0, 10, false);
    const Grid grid = gridOf(*slanted, {600, 500}, 40);
    expectLinesOfConstantValues(*slanted, grid, {600, 500}, 1);
}

TEST(AxisGrid, ofAQuadrangleMeetsWhereItsSidesMeet)
{
    const auto converter = keystone(sampleconverters::generalQuadrilateral);
    const Grid grid = gridOf(*converter, {450, 350}, 20);
    expectLinesOfConstantValues(*converter, grid, {450, 350}, 0.5);
    const ZKVector meeting = *converter->crossY();
    int upright = 0;
    for (const Segment &segment : grid.segments) {
        const auto [x0, x1] = valuesOf(*converter, segment, true);
        if (std::fabs(x0 - x1) > 1e-6)
            continue;
        ++upright;
        const double turn = (segment.end.x - segment.start.x) * (meeting.Y() - segment.start.y) -
                            (segment.end.y - segment.start.y) * (meeting.X() - segment.start.x);
        EXPECT_NEAR(turn / 1e6, 0, 1e-6);
    }
    EXPECT_GT(upright, 10);
}

TEST(AxisGrid, ofATrapezoidHasLevelLinesWithTheValuesOfItsLeftEdge)
{
    const Grid grid = gridOf(*keystone(sampleconverters::trapezoid), {100, 100}, 8);
    const std::vector<double> level = levelAt(grid);
    expectNear(level, {0, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100});
}

TEST(AxisGrid, ofAQuadrangleEndsBeforeItsLinesCrowd)
{
    // The sides meet in (50, 250), inside this picture.
    const Grid grid = gridOf(*keystone(sampleconverters::trapezoid), {100, 400}, 8);
    ASSERT_FALSE(grid.isEmpty());
    for (const Segment &segment : grid.segments)
        EXPECT_LT(std::max(segment.start.y, segment.end.y), 226);
}

TEST(AxisGrid, ofPolarAxesHasCirclesAndRays)
{
    const Grid grid = gridOf(*polar({0, 10}, 0), {200, 200}, 40);
    std::vector<double> radii;
    for (const Circle &circle : grid.circles) {
        EXPECT_EQ(circle.centre.x, 100);
        EXPECT_EQ(circle.centre.y, 100);
        radii.push_back(circle.radius);
    }
    expectNear(radii, {50, 100});
    const auto majors = std::count_if(grid.segments.begin(), grid.segments.end(),
                                      [](const Segment &ray) { return ray.isMajor; });
    EXPECT_EQ(majors, 12);
}

TEST(AxisGrid, raysOfPolarAxesHaveRoundAnglesWhateverTheirUnitAndSense)
{
    for (const std::int32_t range : {0, 1, 2, 3}) {
        for (const bool ccw : {false, true}) {
            const auto converter = ZKConvCoordinatePolar::convCoordWithCenter(
                {110, 90}, {190, 140}, 0, 10, false, range, ccw);
            const double tenDegrees = range < 2 ? 10 : sampleconverters::pi / 18;
            const Grid grid = gridOf(*converter, {200, 200}, 10);
            ASSERT_EQ(grid.segments.size(), 36U) << range << ccw;
            for (const Segment &ray : grid.segments) {
                const double angle = valuesOf(*converter, ray, true).second / tenDegrees;
                EXPECT_NEAR(angle, std::round(angle), 1e-6) << range << ccw;
            }
        }
    }
}

TEST(AxisGrid, ofPolarAxesReachesAPictureBesideTheCentre)
{
    const auto converter =
        ZKConvCoordinatePolar::convCoordWithCenter({-300, 100}, {-200, 100}, 0, 10, false, 0, true);
    const Grid grid = gridOf(*converter, {200, 200}, 40);
    std::vector<double> radii;
    for (const Circle &circle : grid.circles)
        radii.push_back(circle.radius);
    expectNear(radii, {300, 350, 400, 450, 500});
    for (const Segment &ray : grid.segments)
        EXPECT_TRUE(isInside(ray.start, {200, 200}) && isInside(ray.end, {200, 200}));
}

TEST(AxisGrid, aLogarithmicRadiusHasDecades)
{
    const Grid grid = gridOf(*polar({1, 100, true}, 0), {200, 200}, 40);
    std::vector<double> decades;
    for (const Circle &circle : grid.circles) {
        if (circle.isMajor)
            decades.push_back(circle.radius);
    }
    expectNear(decades, {50, 100});
}

TEST(AxisGrid, aRadiusThatFallsOutwardsCountsFromTheCentre)
{
    const auto converter = polar({10, 0}, 0);
    const Grid grid = gridOf(*converter, {200, 200}, 40);
    ASSERT_EQ(grid.circles.size(), 2U);
    const auto value =
        converter->convertFromCartesian(ZKVector::vectorWithX(100 + grid.circles[0].radius, 100));
    EXPECT_NEAR(value->Y(), 15, exactly);
}

TEST(AxisGrid, ofAConverterThatConvertsNothingIsEmpty)
{
    EXPECT_TRUE(gridOf(ZKConvCoordinate(), {200, 200}, 40).isEmpty());
    EXPECT_TRUE(gridOf(ZKConvCoordinateAffine(), {200, 200}, 40).isEmpty());
    EXPECT_TRUE(gridOf(ZKConvCoordinateKeystone(), {200, 200}, 40).isEmpty());
    EXPECT_TRUE(gridOf(ZKConvCoordinatePolar(), {200, 200}, 40).isEmpty());
}

TEST(AxisGrid, ofAnEmptyPictureIsEmpty) { EXPECT_TRUE(gridOf(*affine(), {}, 40).isEmpty()); }

TEST(AxisGrid, ofARadiusPointOnTheCentreIsEmpty)
{
    const auto converter =
        ZKConvCoordinatePolar::convCoordWithCenter({100, 100}, {100, 100}, 0, 10, false, 0, true);
    EXPECT_TRUE(gridOf(*converter, {200, 200}, 40).isEmpty());
}

TEST(AxisGrid, ofAFoldedQuadrangleDoesNoHarm)
{
    const sampleconverters::Corners bowTie{{0, 0}, {100, 0}, {100, 100}, {0, 100}};
    const auto converter = keystone(bowTie);
    ASSERT_NE(converter, nullptr);
    const Grid grid = gridOf(*converter, {200, 200}, 10);
    EXPECT_FALSE(grid.isEmpty());
    for (const Segment &segment : grid.segments)
        EXPECT_TRUE(isInside(segment.start, {200, 200}) && isInside(segment.end, {200, 200}));
}

TEST(AxisGrid, ofAQuadrangleThatIsATriangleIsEmpty)
{
    const auto converter = keystone({{0, 0}, {100, 0}, {50, 0}, {100, 100}});
    ASSERT_NE(converter, nullptr);
    EXPECT_TRUE(gridOf(*converter, {200, 200}, 10).isEmpty());
}

TEST(AxisGrid, valuesOfAnySizeDoNoHarm)
{
    for (const double high : {1e-300, 1e-140, 1e140}) {
        const Grid grid = gridOf(*affine({0, high}, {-high, high}), {600, 500}, 48);
        EXPECT_FALSE(grid.isEmpty()) << high;
        for (const Segment &segment : grid.segments)
            EXPECT_TRUE(isInside(segment.start, {600, 500}) && isInside(segment.end, {600, 500}));
    }
}

TEST(AxisGrid, hasALimitedNumberOfLines)
{
    EXPECT_LT(gridOf(*affine(), {100000, 100000}, 1).segments.size(), 1000U);
    EXPECT_LT(gridOf(*polar({0, 10}, 0), {100000, 100000}, 1).circles.size(), 500U);
}
