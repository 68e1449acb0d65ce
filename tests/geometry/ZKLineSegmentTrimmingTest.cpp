#include "geometry/ZKLineSegment.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr FloatRect kSquare = {{0, 0}, {10, 10}};

using Ends = std::pair<FloatPoint, FloatPoint>;

/// The ends of the line through `a` and `b` within `rect`, as floats.
std::optional<Ends> trimmed(FloatPoint a, FloatPoint b, FloatRect rect = kSquare)
{
    const auto segment = ZKLineSegment::lineWithNSPointA(a, b, rect);
    if (!segment)
        return std::nullopt;
    return Ends{segment->getEndNSPoint1(), segment->getEndNSPoint2()};
}

Ends ends(FloatPoint end1, FloatPoint end2) { return {end1, end2}; }

} // namespace

TEST(ZKLineSegmentTrimming, leftToRight)
{
    EXPECT_EQ(trimmed({-10, 5}, {20, 5}), ends({0, 5}, {10, 5}));
    EXPECT_EQ(trimmed({-5, 0}, {15, 10}), ends({0, 2.5F}, {10, 7.5F}));
}

TEST(ZKLineSegmentTrimming, leftToBottom)
{
    EXPECT_EQ(trimmed({-1, 6}, {6, -1}), ends({0, 5}, {5, 0}));
}

TEST(ZKLineSegmentTrimming, leftToTop)
{
    EXPECT_EQ(trimmed({-1, 4}, {6, 11}), ends({0, 5}, {5, 10}));
}

TEST(ZKLineSegmentTrimming, bottomToTop)
{
    EXPECT_EQ(trimmed({5, -3}, {5, 20}), ends({5, 0}, {5, 10}));
    EXPECT_EQ(trimmed({4, -10}, {6, 30}), ends({4.5F, 0}, {5, 10}));
}

TEST(ZKLineSegmentTrimming, rightToBottom)
{
    EXPECT_EQ(trimmed({4, -1}, {11, 6}), ends({10, 5}, {5, 0}));
}

TEST(ZKLineSegmentTrimming, rightToTop)
{
    EXPECT_EQ(trimmed({4, 11}, {11, 4}), ends({10, 5}, {5, 10}));
}

TEST(ZKLineSegmentTrimming, whollyOutsideIsNothing)
{
    EXPECT_FALSE(trimmed({-10, 11}, {20, 11}));
    EXPECT_FALSE(trimmed({-1, 0}, {-1, 10}));
    EXPECT_FALSE(trimmed({0, 25}, {25, 0}));
}

TEST(ZKLineSegmentTrimming, ofOnePointIsNothing) { EXPECT_FALSE(trimmed({5, 5}, {5, 5})); }

TEST(ZKLineSegmentTrimming, takesTheInfiniteLine)
{
    EXPECT_EQ(trimmed({4, 5}, {5, 5}), ends({0, 5}, {10, 5}));
    EXPECT_EQ(trimmed({20, 5}, {30, 5}), ends({0, 5}, {10, 5}));
}

TEST(ZKLineSegmentTrimming, endsDoNotFollowTheOrderOfAAndB)
{
    EXPECT_EQ(trimmed({20, 5}, {-10, 5}), ends({0, 5}, {10, 5}));
    EXPECT_EQ(trimmed({5, 20}, {5, -3}), ends({5, 0}, {5, 10}));
    EXPECT_EQ(trimmed({4, -1}, {11, 6}), trimmed({11, 6}, {4, -1}));
}

TEST(ZKLineSegmentTrimming, originAndDirectionStay)
{
    const auto segment = ZKLineSegment::lineWithNSPointA({20, 5}, {18, 5}, kSquare);
    ASSERT_TRUE(segment);
    EXPECT_EQ(segment->origin(), ZKVector::vectorWithX(20, 5));
    EXPECT_EQ(segment->direction(), ZKVector::vectorWithX(-2, 0));
}

TEST(ZKLineSegmentTrimming, theBoxIsThatOfTheNewEnds)
{
    const auto segment = ZKLineSegment::lineWithNSPointA({20, 5}, {18, 5}, kSquare);
    ASSERT_TRUE(segment);
    EXPECT_TRUE(segment->includesPoint(ZKVector::vectorWithX(3, 5)));
    EXPECT_FALSE(segment->includesPoint(ZKVector::vectorWithX(19, 5)));
}

TEST(ZKLineSegmentTrimming, alongAnEdgeIsTheEdge)
{
    EXPECT_EQ(trimmed({0, 2}, {0, 3}), ends({0, 0}, {0, 10}));
    EXPECT_EQ(trimmed({10, 2}, {10, 3}), ends({10, 0}, {10, 10}));
    EXPECT_EQ(trimmed({2, 0}, {3, 0}), ends({0, 0}, {10, 0}));
    EXPECT_EQ(trimmed({2, 10}, {3, 10}), ends({0, 10}, {10, 10}));
}

TEST(ZKLineSegmentTrimming, thePicturesOwnEdgesAppearAtEverySize)
{
    for (const float width : {1.0F, 320.0F, 213.3333282F, 0.1F, 4961.0F}) {
        const FloatRect rect = {{0, 0}, {width, width * 0.7F}};
        const float height = rect.size.height;
        EXPECT_EQ(trimmed({0, 0}, {width, 0}, rect), ends({0, 0}, {width, 0}));
        EXPECT_EQ(trimmed({0, height}, {width, height}, rect), ends({0, height}, {width, height}));
        EXPECT_EQ(trimmed({0, 0}, {0, height}, rect), ends({0, 0}, {0, height}));
        EXPECT_EQ(trimmed({width, 0}, {width, height}, rect), ends({width, 0}, {width, height}));
    }
}

TEST(ZKLineSegmentTrimming, throughTwoOppositeCornersIsTheDiagonal)
{
    EXPECT_EQ(trimmed({-1, -1}, {1, 1}), ends({0, 0}, {10, 10}));
    EXPECT_EQ(trimmed({-1, 11}, {1, 9}), ends({0, 10}, {10, 0}));
}

TEST(ZKLineSegmentTrimming, throughTheLowerLeftCornerToTheTopHasNoLength)
{
    EXPECT_EQ(trimmed({-1, -2}, {1, 2}), ends({0, 0}, {0, 0}));
}

TEST(ZKLineSegmentTrimming, throughTheLowerRightCornerToTheTopHasNoLength)
{
    EXPECT_EQ(trimmed({11, -2}, {9, 2}), ends({10, 0}, {10, 0}));
}

TEST(ZKLineSegmentTrimming, throughAnUpperCornerToTheBottomIsWhole)
{
    EXPECT_EQ(trimmed({-1, 12}, {1, 8}), ends({0, 10}, {5, 0}));
    EXPECT_EQ(trimmed({11, 12}, {9, 8}), ends({10, 10}, {5, 0}));
}

TEST(ZKLineSegmentTrimming, throughACornerToTheSideIsWhole)
{
    EXPECT_EQ(trimmed({-2, -1}, {2, 1}), ends({0, 0}, {10, 5}));
    EXPECT_EQ(trimmed({12, -1}, {8, 1}), ends({0, 5}, {10, 0}));
    EXPECT_EQ(trimmed({-2, 11}, {2, 9}), ends({0, 10}, {10, 5}));
}

TEST(ZKLineSegmentTrimming, touchingACornerFromOutsideHasNoLength)
{
    EXPECT_EQ(trimmed({-1, 1}, {1, -1}), ends({0, 0}, {0, 0}));
    EXPECT_EQ(trimmed({-1, 9}, {1, 11}), ends({0, 10}, {0, 10}));
    EXPECT_EQ(trimmed({9, -1}, {11, 1}), ends({10, 0}, {10, 0}));
    EXPECT_EQ(trimmed({9, 11}, {11, 9}), ends({10, 10}, {10, 10}));
}

TEST(ZKLineSegmentTrimming, farEdgesAreFloatSums)
{
    const FloatRect rect = {{0.1F, 0}, {0.2F, 10}};
    const auto segment = ZKLineSegment::lineWithNSPointA({-10, 5}, {20, 5}, rect);
    ASSERT_TRUE(segment);
    const float sum = 0.1F + 0.2F;
    EXPECT_NE(static_cast<double>(sum), static_cast<double>(0.1F) + static_cast<double>(0.2F));
    EXPECT_EQ(segment->getEndPoint2()->X(), static_cast<double>(sum));
}

TEST(ZKLineSegmentTrimming, aRectangleWithoutAWidthHasTwoEdges)
{
    EXPECT_EQ(trimmed({-10, 5}, {20, 5}, {{4, 0}, {0, 10}}), ends({4, 5}, {4, 5}));
    EXPECT_EQ(trimmed({5, -10}, {5, 20}, {{0, 4}, {10, 0}}), ends({5, 4}, {5, 4}));
    EXPECT_FALSE(trimmed({-10, 5}, {20, 5}, {{4, 4}, {0, 0}}));
}

TEST(ZKLineSegmentTrimming, aSecondEdgeMustBeMet)
{
    // The far edges lie at infinity, where nothing can be met.
    const float infinity = std::numeric_limits<float>::infinity();
    EXPECT_FALSE(trimmed({-10, 5}, {20, 5}, {{0, 0}, {infinity, 10}}));
    EXPECT_FALSE(trimmed({5, -10}, {5, 20}, {{0, 0}, {10, infinity}}));
}

TEST(ZKLineSegmentTrimming, aCornerThatRoundingPutsOnOneEdgeOnlyIsNothing)
{
    // The line touches the upper right corner; the other edge's crossing is rounded past its end.
    EXPECT_FALSE(trimmed({-72931, 56969}, {73489, -56681},
                         {{1.71096957F, 1.67321897F}, {277.289032F, 142.326782F}}));
    EXPECT_FALSE(trimmed({-183256, 231776}, {61356, -77004},
                         {{1.00869453F, 1.70469725F}, {201.991302F, 189.295303F}}));
}

TEST(ZKLineSegmentTrimming, byADirectionAddsItToThePoint)
{
    const auto segment = ZKLineSegment::lineWithNSPoint({4, 5}, {2, 0}, kSquare);
    ASSERT_TRUE(segment);
    EXPECT_EQ(segment->origin(), ZKVector::vectorWithX(4, 5));
    EXPECT_EQ(segment->direction(), ZKVector::vectorWithX(2, 0));
    EXPECT_EQ(segment->getEndNSPoint1(), (FloatPoint{0, 5}));
    EXPECT_EQ(segment->getEndNSPoint2(), (FloatPoint{10, 5}));
}

TEST(ZKLineSegmentTrimming, byADirectionSumsInSinglePrecision)
{
    const auto segment =
        ZKLineSegment::lineWithNSPoint({16777216.0F, 0}, {1, 5}, {{16777210.0F, 0}, {10, 10}});
    ASSERT_TRUE(segment);
    EXPECT_EQ(segment->direction(), ZKVector::vectorWithX(0, 5));
}

TEST(ZKLineSegmentTrimming, byNoDirectionIsNothing)
{
    EXPECT_FALSE(ZKLineSegment::lineWithNSPoint({4, 5}, {0, 0}, kSquare));
}
