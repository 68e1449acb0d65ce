#include "geometry/FloatGeometry.h"

#include <gtest/gtest.h>

TEST(FloatGeometry, isHalfAsWideAsDoubles)
{
    EXPECT_EQ(sizeof(FloatPoint), 8U);
    EXPECT_EQ(sizeof(FloatSize), 8U);
    EXPECT_EQ(sizeof(FloatRect), 16U);
}

TEST(FloatGeometry, aStoreIntoAPointNarrows)
{
    const FloatPoint point = {static_cast<float>(0.1), static_cast<float>(1e-50)};
    EXPECT_EQ(static_cast<double>(point.x), 0.10000000149011612);
    EXPECT_EQ(point.y, 0.0F);
}

TEST(FloatRect, containsItsLeftAndBottomEdgesOnly)
{
    const FloatRect rect = {{1, 2}, {3, 4}};
    EXPECT_TRUE(rect.contains({1, 2}));
    EXPECT_TRUE(rect.contains({3.999F, 5.999F}));
    EXPECT_FALSE(rect.contains({4, 3}));
    EXPECT_FALSE(rect.contains({2, 6}));
    EXPECT_FALSE(rect.contains({0.999F, 3}));
    EXPECT_FALSE(rect.contains({2, 1.999F}));
}

TEST(FloatPoint, comparesExactly)
{
    EXPECT_FALSE((FloatPoint{1e-13F, 0} == FloatPoint{0, 0}));
    EXPECT_TRUE((FloatPoint{-0.0F, 0} == FloatPoint{0, 0}));
}
