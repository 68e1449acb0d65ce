#include "axes/AxisArea.h"

#include <gtest/gtest.h>

TEST(AxisArea, quadrangleContainsItsInside)
{
    const AxisArea area = AxisArea::quadrangle({{{0, 0}, {100, 0}, {80, 40}, {20, 40}}});
    EXPECT_TRUE(area.contains({50, 20}));
    EXPECT_TRUE(area.contains({5, 5}));
    EXPECT_FALSE(area.contains({5, 30}));
    EXPECT_FALSE(area.contains({95, 30}));
    EXPECT_FALSE(area.contains({50, 41}));
    EXPECT_FALSE(area.contains({50, -1}));
}

TEST(AxisArea, quadrangleIsHalfOpenAsRectanglesAre)
{
    const AxisArea area = AxisArea::quadrangle({{{0, 0}, {10, 0}, {10, 10}, {0, 10}}});
    EXPECT_TRUE(area.contains({0, 0}));
    EXPECT_TRUE(area.contains({0, 5}));
    EXPECT_TRUE(area.contains({5, 0}));
    EXPECT_FALSE(area.contains({10, 5}));
    EXPECT_FALSE(area.contains({5, 10}));
}

TEST(AxisArea, clockwiseCornersEncloseTheSameArea)
{
    const AxisArea area = AxisArea::quadrangle({{{0, 0}, {0, 10}, {10, 10}, {10, 0}}});
    EXPECT_TRUE(area.contains({5, 5}));
    EXPECT_TRUE(area.contains({0, 5}));
    EXPECT_FALSE(area.contains({10, 5}));
    EXPECT_FALSE(area.contains({11, 5}));
}

TEST(AxisArea, bothHalvesOfABowTieAreInside)
{
    const AxisArea area = AxisArea::quadrangle({{{0, 0}, {100, 0}, {0, 100}, {100, 100}}});
    EXPECT_TRUE(area.contains({50, 20}));
    EXPECT_TRUE(area.contains({50, 80}));
    EXPECT_FALSE(area.contains({10, 50}));
    EXPECT_FALSE(area.contains({90, 50}));
}

TEST(AxisArea, cornersOnOnePointEncloseNothing)
{
    const AxisArea area = AxisArea::quadrangle({{{5, 5}, {5, 5}, {5, 5}, {5, 5}}});
    EXPECT_FALSE(area.contains({5, 5}));
}

TEST(AxisArea, circleContainsWhatIsNearerThanItsRadius)
{
    const AxisArea area = AxisArea::circle({100, 50}, 5);
    EXPECT_TRUE(area.contains({100, 50}));
    EXPECT_TRUE(area.contains({102.9F, 53.9F}));
    EXPECT_FALSE(area.contains({103, 54}));
    EXPECT_FALSE(area.contains({104, 54}));
}

TEST(AxisArea, circleWithoutRadiusContainsNothing)
{
    EXPECT_FALSE(AxisArea::circle({1, 1}, 0).contains({1, 1}));
}
