#include "geometry/ZKLineSegment.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

ZKVector xy(double x, double y) { return ZKVector::vectorWithX(x, y); }

ZKVector xyz(double x, double y, double z) { return ZKVector::vectorWithX(x, y, z); }

ZKLineSegment segmentOf(FloatPoint a, FloatPoint b)
{
    return *ZKLineSegment::lineWithNSPointA(a, b);
}

} // namespace

TEST(ZKLineSegment, runsFromAToB)
{
    const auto segment = ZKLineSegment::lineWithPointA(xy(1, 2), xy(4, 6));
    ASSERT_TRUE(segment);
    EXPECT_EQ(segment->origin(), xy(1, 2));
    EXPECT_EQ(segment->direction(), xy(3, 4));
    EXPECT_EQ(segment->getEndPoint1(), xy(1, 2));
    EXPECT_EQ(segment->getEndPoint2(), xy(4, 6));
}

TEST(ZKLineSegment, fromFloatPointsGivesThemBack)
{
    const ZKLineSegment segment = segmentOf({0.1F, 2}, {4, 0.3F});
    EXPECT_EQ(segment.getEndPoint1(), xy(0.10000000149011612, 2));
    EXPECT_EQ(segment.getEndNSPoint1(), (FloatPoint{0.1F, 2}));
    EXPECT_EQ(segment.getEndNSPoint2(), (FloatPoint{4, 0.3F}));
}

TEST(ZKLineSegment, ofOnePointIsNothing)
{
    EXPECT_FALSE(ZKLineSegment::lineWithPointA(xy(1, 2), xy(1, 2)));
    EXPECT_FALSE(ZKLineSegment::lineWithNSPointA({1, 2}, {1, 2}));
    EXPECT_FALSE(ZKLineSegment::lineWithOrigin(xy(1, 2), xyz(1, 0, 0)));
}

TEST(ZKLineSegment, startsWithNoEnds)
{
    const auto segment = ZKLineSegment::lineWithOrigin(xy(0, 0), xy(1, 0));
    ASSERT_TRUE(segment);
    EXPECT_FALSE(segment->getEndPoint1());
    EXPECT_FALSE(segment->getEndPoint2());
    EXPECT_EQ(segment->getEndNSPoint1(), (FloatPoint{0, 0}));
    EXPECT_EQ(segment->getEndNSPoint2(), (FloatPoint{0, 0}));
    EXPECT_FALSE(segment->includesPoint(xy(0, 0)));
}

TEST(ZKLineSegment, includesItsWholeBoundingBox)
{
    const ZKLineSegment segment = segmentOf({0, 0}, {2, 2});
    EXPECT_TRUE(segment.includesPoint(xy(2, 2)));
    EXPECT_TRUE(segment.includesPoint(xy(0, 0)));
    EXPECT_TRUE(segment.includesPoint(xy(1, 0.5)));
    EXPECT_FALSE(segment.includesPoint(xy(2.0001, 1)));
    EXPECT_FALSE(segment.includesPoint(xy(1, -0.0001)));
}

TEST(ZKLineSegment, includesWithoutATolerance)
{
    const ZKLineSegment segment = segmentOf({0, 0}, {2, 2});
    EXPECT_FALSE(segment.includesPoint(xy(std::nextafter(2.0, 3.0), 1)));
    EXPECT_FALSE(segment.includesPoint(xy(1, -1e-300)));
    EXPECT_FALSE(segment.includesPoint(xy(1, NAN)));
}

TEST(ZKLineSegment, theBoxDoesNotDependOnTheOrderOfTheEnds)
{
    const ZKLineSegment segment = segmentOf({5, 0}, {1, 3});
    EXPECT_TRUE(segment.includesPoint(xy(1, 0)));
    EXPECT_TRUE(segment.includesPoint(xy(5, 3)));
    EXPECT_FALSE(segment.includesPoint(xy(0.9, 1)));
}

TEST(ZKLineSegment, includesNoPointOfAnotherDimension)
{
    EXPECT_FALSE(segmentOf({0, 0}, {2, 2}).includesPoint(xyz(1, 1, 0)));
}

TEST(ZKLineSegment, includesPointsOfSpace)
{
    const auto segment = ZKLineSegment::lineWithPointA(xyz(0, 0, 0), xyz(1, 2, 3));
    EXPECT_TRUE(segment->includesPoint(xyz(1, 0, 3)));
    EXPECT_FALSE(segment->includesPoint(xyz(1, 0, 3.1)));
}

TEST(ZKLineSegment, newEndsReplaceEndsAndBoxOnly)
{
    ZKLineSegment segment = segmentOf({0, 0}, {2, 2});
    segment.setEndPoint1(xy(9, 5), xy(7, 6));
    EXPECT_EQ(segment.getEndPoint1(), xy(9, 5));
    EXPECT_EQ(segment.getEndPoint2(), xy(7, 6));
    EXPECT_TRUE(segment.includesPoint(xy(8, 5)));
    EXPECT_FALSE(segment.includesPoint(xy(1, 1)));
    EXPECT_EQ(segment.origin(), xy(0, 0));
    EXPECT_EQ(segment.direction(), xy(2, 2));
}

TEST(ZKLineSegment, itsOwnEndMayBeSetAgain)
{
    ZKLineSegment segment = segmentOf({0, 0}, {2, 2});
    segment.setEndPoint1(*segment.getEndPoint2(), *segment.getEndPoint1());
    EXPECT_EQ(segment.getEndPoint1(), xy(2, 2));
    EXPECT_TRUE(segment.includesPoint(xy(0, 0)));
}

TEST(ZKLineSegmentCrossing, needsTheReceiversBox)
{
    const ZKLineSegment segment = segmentOf({0, 0}, {2, 0});
    EXPECT_EQ(segment.crossPointWith(segmentOf({1, -1}, {1, 1})), xy(1, 0));
    EXPECT_FALSE(segment.crossPointWith(segmentOf({3, -1}, {3, 1})));
}

TEST(ZKLineSegmentCrossing, doesNotAskHowFarTheOtherReaches)
{
    const ZKLineSegment segment = segmentOf({0, 0}, {2, 0});
    const ZKLineSegment farAway = segmentOf({1, 5}, {1, 6});
    EXPECT_EQ(segment.crossPointWith(farAway), xy(1, 0));
    EXPECT_FALSE(farAway.crossPointWith(segment));
}

TEST(ZKLineSegmentCrossing, includesTheEnds)
{
    const ZKLineSegment segment = segmentOf({0, 0}, {2, 0});
    EXPECT_EQ(segment.crossPointWith(segmentOf({2, 5}, {2, 6})), xy(2, 0));
    EXPECT_EQ(segment.crossPointWith(segmentOf({0, 5}, {0, 6})), xy(0, 0));
}

TEST(ZKLineSegmentCrossing, holdsForASegmentSeenAsALine)
{
    const ZKLineSegment segment = segmentOf({0, 0}, {2, 0});
    const ZKLine &line = segment;
    EXPECT_FALSE(line.crossPointWith(segmentOf({3, -1}, {3, 1})));
}

TEST(ZKLineSegmentCrossing, ofParallelSegmentsIsNothing)
{
    EXPECT_FALSE(segmentOf({0, 0}, {2, 0}).crossPointWith(segmentOf({0, 0}, {2, 0})));
}
