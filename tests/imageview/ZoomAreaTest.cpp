#include "imageview/ZoomArea.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr FloatSize picture{400, 300};
constexpr float infinity = std::numeric_limits<float>::infinity();

} // namespace

TEST(ZoomArea, aDragInAnyDirectionGivesTheSameRectangle)
{
    const FloatRect rect{{100, 50}, {30, 20}};
    EXPECT_EQ(zoomarea::dragged({100, 50}, {30, 20}, picture), rect);
    EXPECT_EQ(zoomarea::dragged({130, 50}, {-30, 20}, picture), rect);
    EXPECT_EQ(zoomarea::dragged({100, 70}, {30, -20}, picture), rect);
    EXPECT_EQ(zoomarea::dragged({130, 70}, {-30, -20}, picture), rect);
}

TEST(ZoomArea, isCutToThePictureOnEverySide)
{
    EXPECT_EQ(zoomarea::dragged({10, 20}, {-50, -60}, picture), (FloatRect{{0, 0}, {10, 20}}));
    EXPECT_EQ(zoomarea::dragged({390, 280}, {50, 60}, picture), (FloatRect{{390, 280}, {10, 20}}));
}

TEST(ZoomArea, beyondThePictureNothingIsLeft)
{
    EXPECT_EQ(zoomarea::dragged({-2, 50}, {-5, 10}, picture), FloatRect{});
    EXPECT_EQ(zoomarea::dragged({10, 301}, {10, 10}, picture), FloatRect{});
}

TEST(ZoomArea, withoutWidthOrHeightItKeepsItsPlace)
{
    EXPECT_EQ(zoomarea::dragged({100, 50}, {0, 20}, picture), (FloatRect{{100, 50}, {0, 20}}));
    EXPECT_EQ(zoomarea::dragged({100, 50}, {0, 0}, picture), (FloatRect{{100, 50}, {0, 0}}));
}

TEST(ZoomArea, theSmallerRatioFills)
{
    EXPECT_EQ(zoomarea::factorToFill({200, 100}, {400, 300}), 2.0F);
    EXPECT_EQ(zoomarea::factorToFill({100, 150}, {400, 300}), 2.0F);
}

TEST(ZoomArea, theLargerRatioShrinksInto)
{
    EXPECT_EQ(zoomarea::factorToShrinkInto({200, 75}, {400, 300}), 0.5F);
    EXPECT_EQ(zoomarea::factorToShrinkInto({100, 150}, {400, 300}), 0.5F);
}

TEST(ZoomArea, anAreaWithoutSizeAsksForNoEndOfScale)
{
    EXPECT_EQ(zoomarea::factorToFill({0, 0}, {400, 300}), infinity);
    EXPECT_EQ(zoomarea::factorToShrinkInto({0, 0}, {400, 300}), 0.0F);
}

TEST(ZoomArea, theOtherSideDecidesForAnAreaWithoutWidth)
{
    EXPECT_EQ(zoomarea::factorToFill({0, 100}, {400, 300}), 3.0F);
    EXPECT_EQ(zoomarea::factorToFill({0, 100}, {0, 300}), 3.0F);
    EXPECT_EQ(zoomarea::factorToShrinkInto({0, 150}, {0, 300}), 0.5F);
}

TEST(ZoomArea, noSizesAtAllGiveNoNumber)
{
    EXPECT_TRUE(std::isnan(zoomarea::factorToFill({0, 0}, {0, 0})));
    EXPECT_TRUE(std::isnan(zoomarea::factorToShrinkInto({0, 0}, {0, 0})));
}
