#include "geometry/ZKRect.h"

#include <gtest/gtest.h>

TEST(ZKRect, rectOfSizeLiesAtTheOrigin)
{
    EXPECT_EQ(ZKRect::rectOfSize({3, 4}), (FloatRect{{0, 0}, {3, 4}}));
}

TEST(ZKRect, rectOfOriginJoinsOriginAndSize)
{
    EXPECT_EQ(ZKRect::rectOfOrigin({1, 2}, {3, 4}), (FloatRect{{1, 2}, {3, 4}}));
}

TEST(ZKRect, mutiplyRectMultipliesOriginAndSize)
{
    EXPECT_EQ(ZKRect::mutiplyRect({{1, 2}, {3, 4}}, 2.5F), (FloatRect{{2.5F, 5}, {7.5F, 10}}));
}

TEST(ZKRect, mutiplyRectWorksInSinglePrecision)
{
    EXPECT_EQ(ZKRect::mutiplyRect({{0.1F, 0}, {0, 0}}, 0.1F).origin.x, 0.1F * 0.1F);
}

TEST(ZKRect, divideRectDividesOriginAndSize)
{
    EXPECT_EQ(ZKRect::divideRect({{2, 4}, {6, -8}}, 2.0F), (FloatRect{{1, 2}, {3, -4}}));
}

TEST(ZKRect, normalizeRectTurnsNegativeSizesRound)
{
    EXPECT_EQ(ZKRect::normalizeRect({{10, 10}, {-4, -6}}), (FloatRect{{6, 4}, {4, 6}}));
}

TEST(ZKRect, normalizeRectTurnsEachSideByItself)
{
    EXPECT_EQ(ZKRect::normalizeRect({{10, 10}, {-4, 6}}), (FloatRect{{6, 10}, {4, 6}}));
    EXPECT_EQ(ZKRect::normalizeRect({{10, 10}, {4, -6}}), (FloatRect{{10, 4}, {4, 6}}));
}

TEST(ZKRect, normalizeRectLeavesPositiveSizesAlone)
{
    EXPECT_EQ(ZKRect::normalizeRect({{1, 2}, {3, 0}}), (FloatRect{{1, 2}, {3, 0}}));
}

TEST(ZKRect, centerOfRectIsInTheMiddle)
{
    EXPECT_EQ(ZKRect::centerOfRect({{1, 2}, {3, 4}}), (FloatPoint{2.5F, 4}));
}
