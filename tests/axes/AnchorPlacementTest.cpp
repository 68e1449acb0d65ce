#include "axes/AnchorPlacement.h"

#include <gtest/gtest.h>

#include <limits>

using anchorplacement::defaultPlacement;
using anchorplacement::wholePlacement;

TEST(AnchorPlacement, parallelDefaultIsAFifthInsideTheEdges)
{
    const Anchors expected{{100, 80}, {400, 80}, {400, 320}, {100, 320}};
    EXPECT_EQ(defaultPlacement(axistype::parallel, {{500, 400}, 0}, {}), expected);
    EXPECT_EQ(defaultPlacement(axistype::quadrangle, {{500, 400}, 180}, {}), expected);
}

TEST(AnchorPlacement, turnedPictureHasItsSidesExchanged)
{
    const Anchors expected{{80, 100}, {320, 100}, {320, 400}, {80, 400}};
    EXPECT_EQ(defaultPlacement(axistype::parallel, {{500, 400}, 90}, {}), expected);
    EXPECT_EQ(defaultPlacement(axistype::parallel, {{500, 400}, 270}, {}), expected);
}

TEST(AnchorPlacement, onlyExactlyUprightPicturesKeepTheirSides)
{
    const Anchors exchanged{{80, 100}, {320, 100}, {320, 400}, {80, 400}};
    EXPECT_EQ(defaultPlacement(axistype::parallel, {{500, 400}, 0.001F}, {}), exchanged);
    EXPECT_EQ(defaultPlacement(axistype::parallel, {{500, 400}, 360}, {}), exchanged);
}

TEST(AnchorPlacement, defaultPlacesAreCutToWholePoints)
{
    const Anchors expected{{66, 66}, {266, 66}, {266, 266}, {66, 266}};
    EXPECT_EQ(defaultPlacement(axistype::parallel, {{333, 333}, 0}, {}), expected);
}

TEST(AnchorPlacement, defaultPlacesUseTheFractionOfThePictureSize)
{
    // 213.75 high: 0.8 x 213.75 is 171, 0.8 x 213 would be 170.4.
    EXPECT_EQ(defaultPlacement(axistype::parallel, {{320, 213.75F}, 0}, {}).anchor3,
              (FloatPoint{256, 171}));
}

TEST(AnchorPlacement, polarDefaultPointsToTheRightFromTheMiddle)
{
    const Anchors placed =
        defaultPlacement(axistype::polar, {{500, 400}, 0}, {{}, {}, {7, 8}, {9, 10}});
    EXPECT_EQ(placed.anchor1, (FloatPoint{250, 200}));
    EXPECT_EQ(placed.anchor2, (FloatPoint{370, 200}));
}

TEST(AnchorPlacement, polarDefaultLeavesTheUnusedAnchors)
{
    const Anchors placed =
        defaultPlacement(axistype::polar, {{500, 400}, 0}, {{}, {}, {7, 8}, {9, 10}});
    EXPECT_EQ(placed.anchor3, (FloatPoint{7, 8}));
    EXPECT_EQ(placed.anchor4, (FloatPoint{9, 10}));
}

TEST(AnchorPlacement, polarCentreIsCutToWholePoints)
{
    EXPECT_EQ(defaultPlacement(axistype::polar, {{401, 300}, 0}, {}).anchor1,
              (FloatPoint{200, 150}));
}

TEST(AnchorPlacement, polarSumIsCutRatherThanTheRadius)
{
    // The radius is 0.3 x 301 = 90.3; a centre with a fraction does not occur, so the sum is cut.
    EXPECT_EQ(defaultPlacement(axistype::polar, {{301, 301}, 0}, {}).anchor2,
              (FloatPoint{240, 150}));
}

TEST(AnchorPlacement, polarRadiusComesFromTheShorterUnturnedSide)
{
    const Anchors wide = defaultPlacement(axistype::polar, {{500, 400}, 90}, {});
    EXPECT_EQ(wide.anchor1, (FloatPoint{200, 250}));
    EXPECT_EQ(wide.anchor2, (FloatPoint{320, 250}));
    const Anchors tall = defaultPlacement(axistype::polar, {{200, 400}, 0}, {});
    EXPECT_EQ(tall.anchor2, (FloatPoint{160, 200}));
}

TEST(AnchorPlacement, wholePlacementIsTheCornersOfThePicture)
{
    const Anchors expected{{0, 0}, {640, 0}, {640, 480}, {0, 480}};
    EXPECT_EQ(wholePlacement({{640, 480}, 0}), expected);
}

TEST(AnchorPlacement, wholePlacementCutsFractionsAndExchangesSides)
{
    const Anchors upright{{0, 0}, {320, 0}, {320, 213}, {0, 213}};
    EXPECT_EQ(wholePlacement({{320, 213.9F}, 180}), upright);
    const Anchors turned{{0, 0}, {213, 0}, {213, 320}, {0, 320}};
    EXPECT_EQ(wholePlacement({{320, 213.9F}, 90}), turned);
}

TEST(AnchorPlacement, onlyTwoPositiveSidesAreAPositiveSize)
{
    EXPECT_TRUE(anchorplacement::hasPositiveSize({0.5F, 1}));
    EXPECT_FALSE(anchorplacement::hasPositiveSize({0, 10}));
    EXPECT_FALSE(anchorplacement::hasPositiveSize({10, 0}));
    EXPECT_FALSE(anchorplacement::hasPositiveSize({-1, 10}));
    EXPECT_FALSE(anchorplacement::hasPositiveSize({10, std::numeric_limits<float>::quiet_NaN()}));
}
