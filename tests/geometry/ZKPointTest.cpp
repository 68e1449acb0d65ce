#include "geometry/ZKPoint.h"

#include "archiving/ArchivedCopy.h"
#include "geometry/ZKVector.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

constexpr float kHalfPi = std::numbers::pi_v<float> / 2;

ZKPoint at(float x, float y) { return ZKPoint::pointWithX(x, y); }

} // namespace

TEST(ZKPoint, factoriesTakeEveryKindOfPair)
{
    EXPECT_EQ(ZKPoint::pointZero().point(), (FloatPoint{0, 0}));
    EXPECT_EQ(ZKPoint::pointWithX(1, 2).point(), (FloatPoint{1, 2}));
    EXPECT_EQ(ZKPoint::pointWithNSPoint({1, 2}).point(), (FloatPoint{1, 2}));
    EXPECT_EQ(ZKPoint::pointWithNSSize({3, 4}).point(), (FloatPoint{3, 4}));
    EXPECT_EQ(ZKPoint::pointWithZKPoint(at(1, 2)), at(1, 2));
    EXPECT_EQ(ZKPoint::pointOfSize({3, 4}), (FloatPoint{3, 4}));
}

TEST(ZKPoint, pointWithVectorNarrows)
{
    EXPECT_EQ(ZKPoint::pointWithVector(ZKVector::vectorWithX(0.1, 1e-50)).point(),
              (FloatPoint{0.1F, 0}));
}

TEST(ZKPoint, pointWithVectorOfOneDimensionHasNoY)
{
    EXPECT_EQ(ZKPoint::pointWithVector(*ZKVector::vectorWithNumberArray({5.0})), at(5, 0));
}

TEST(ZKPoint, plainPointsAddMultiplyAndDivide)
{
    EXPECT_EQ(ZKPoint::addPoint(FloatPoint{1, 2}, FloatPoint{3, 5}), (FloatPoint{4, 7}));
    EXPECT_EQ(ZKPoint::multiplyPoint({1, 2}, 1.5F), (FloatPoint{1.5F, 3}));
    EXPECT_EQ(ZKPoint::dividePoint({1, 3}, 2.0F), (FloatPoint{0.5F, 1.5F}));
}

TEST(ZKPoint, subPointFromTakesTheFirstOffTheSecond)
{
    EXPECT_EQ(ZKPoint::subPoint(FloatPoint{1, 1}, FloatPoint{4, 5}), (FloatPoint{3, 4}));
}

TEST(ZKPoint, setNSPointReplacesThePair)
{
    ZKPoint point = at(1, 2);
    point.setNSPoint({3, 4});
    EXPECT_EQ(point.X(), 3.0F);
    EXPECT_EQ(point.Y(), 4.0F);
}

TEST(ZKPoint, lengthAndDistanceAreFloats)
{
    EXPECT_EQ(at(3, 4).length(), 5.0F);
    EXPECT_EQ(at(1, 1).length(), std::sqrt(2.0F));
    EXPECT_EQ(at(1, 2).distanceFrom(at(4, 6)), 5.0F);
    EXPECT_TRUE(std::isinf(at(1e30F, 0).length()));
}

TEST(ZKPoint, isZeroIsExact)
{
    EXPECT_TRUE(at(0, -0.0F).isZero());
    EXPECT_FALSE(at(0, 1e-30F).isZero());
}

TEST(ZKPoint, isEqualToIsExact)
{
    EXPECT_TRUE(at(1, 2).isEqualTo(at(1, 2)));
    EXPECT_FALSE(at(1, 2).isEqualTo(at(1, 2.0000002F)));
    EXPECT_FALSE(at(NAN, 0).isEqualTo(at(NAN, 0)));
}

TEST(ZKPoint, scalarsAreAppliedInDoubleAndStoredAsFloat)
{
    ZKPoint added = at(16777216.0F, 1);
    added.addScalarSelf(1.5);
    EXPECT_EQ(added.X(), 16777218.0F);
    ZKPoint multiplied = at(3, 1);
    multiplied.mulScalarSelf(1.0 / 3.0);
    EXPECT_EQ(multiplied.X(), 1.0F);
    ZKPoint tiny = at(1e-30F, 1);
    tiny.mulScalarSelf(1e60);
    EXPECT_NEAR(tiny.X(), 1e30F, 1e24F);
}

TEST(ZKPoint, scalarsThemselvesAreNotNarrowed)
{
    // 0.1 as a float lies 1.49e-9 above 0.1 as a double; 1e60 is no float at all.
    constexpr auto difference = static_cast<float>(0.10000000149011612 - 0.1);
    ZKPoint added = at(-0.1F, -0.1F);
    added.addScalarSelf(0.1);
    EXPECT_EQ(added, at(-difference, -difference));
    ZKPoint subtracted = at(0.1F, 0.1F);
    subtracted.subScalarSelf(0.1);
    EXPECT_EQ(subtracted, at(difference, difference));
    ZKPoint divided = at(1e30F, 1e30F);
    divided.divScalarSelf(1e60);
    EXPECT_EQ(divided, at(1e-30F, 1e-30F));
}

TEST(ZKPoint, scalarOperationsReturnTheReceiver)
{
    ZKPoint point = at(1, 2);
    EXPECT_EQ(&point.addScalarSelf(1).subScalarSelf(3).mulScalarSelf(-2).divScalarSelf(4), &point);
    EXPECT_EQ(point, at(0.5F, -0.0F));
}

TEST(ZKPoint, divisionByZeroIsNotGuarded)
{
    ZKPoint point = at(1, 0);
    point.divScalarSelf(0.0);
    EXPECT_TRUE(std::isinf(point.X()));
    EXPECT_TRUE(std::isnan(point.Y()));
}

TEST(ZKPoint, sumAndDifferenceLeaveTheReceiverAlone)
{
    const ZKPoint point = at(1, 2);
    EXPECT_EQ(point.addPoint(at(3, 5)), at(4, 7));
    EXPECT_EQ(point.subPoint(at(3, 5)), at(-2, -3));
    EXPECT_EQ(point, at(1, 2));
}

TEST(ZKPoint, selfSumAndDifferenceChangeTheReceiver)
{
    ZKPoint point = at(1, 2);
    EXPECT_EQ(&point.addPointSelf(at(3, 5)), &point);
    EXPECT_EQ(point, at(4, 7));
    EXPECT_EQ(&point.subPointSelf(at(1, 1)), &point);
    EXPECT_EQ(point, at(3, 6));
}

TEST(ZKPoint, products)
{
    EXPECT_EQ(at(2, 3).mulPoint(at(5, 7)), -1.0F);
    EXPECT_EQ(at(2, 3).product(at(5, 7)), 31.0F);
}

TEST(ZKPoint, normalizeSelfDividesByTheLength)
{
    ZKPoint point = at(3, 4);
    EXPECT_EQ(&point.normalizeSelf(), &point);
    EXPECT_EQ(point, at(0.6F, 0.8F));
}

TEST(ZKPoint, normalizeSelfLeavesZeroAlone)
{
    ZKPoint point = ZKPoint::pointZero();
    EXPECT_EQ(point.normalizeSelf(), ZKPoint::pointZero());
}

TEST(ZKPoint, normalizeSelfTakesAnyLengthThatIsNotZero)
{
    ZKPoint point = at(0, 1e-21F);
    EXPECT_NEAR(point.normalizeSelf().Y(), 1, 0.01);
}

TEST(ZKPoint, angleIsSignedBySide)
{
    EXPECT_FLOAT_EQ(at(1, 0).angle(at(0, 1)), kHalfPi);
    EXPECT_FLOAT_EQ(at(1, 0).angle(at(0, -1)), -kHalfPi);
    EXPECT_EQ(at(1, 0).angleDeg(at(0, -1)), -90.0F);
}

TEST(ZKPoint, angleIsNotClamped)
{
    EXPECT_TRUE(std::isnan(ZKPoint::pointZero().angle(at(1, 0))));
    // For some points the rounded quotient lies above 1.
    bool anyIsNan = false;
    for (int i = 1; i < 200; ++i) {
        const ZKPoint point = at(static_cast<float>(i), static_cast<float>(i) * 0.7F);
        anyIsNan = anyIsNan || std::isnan(point.angle(point));
    }
    EXPECT_TRUE(anyIsNan);
}

TEST(ZKPoint, parallelNeedsAnExactlyZeroCrossProduct)
{
    EXPECT_TRUE(at(1, 2).isParallelTo(at(2, 4), false));
    EXPECT_FALSE(at(1, 2).isParallelTo(at(2, 4.000001F), true));
}

TEST(ZKPoint, antiparallelCountsOnlyWhenAllowed)
{
    EXPECT_FALSE(at(1, 0).isParallelTo(at(-2, 0), false));
    EXPECT_TRUE(at(1, 0).isParallelTo(at(-2, 0), true));
}

TEST(ZKPoint, withoutAnXProductTheYProductDecides)
{
    EXPECT_TRUE(at(0, 1).isParallelTo(at(0, 2), false));
    EXPECT_FALSE(at(0, 1).isParallelTo(at(0, -2), false));
    EXPECT_TRUE(at(0, 0).isParallelTo(at(3, 4), false));
}

TEST(ZKPoint, perpendicularNeedsAnExactlyZeroDotProduct)
{
    EXPECT_TRUE(at(1, 2).isPerpendicularTo(at(-2, 1)));
    EXPECT_FALSE(at(1, 2).isPerpendicularTo(at(-2, 1.0000002F)));
}

TEST(ZKPoint, lowerLeftAndUpperRightTakeEachCoordinate)
{
    EXPECT_EQ(at(1, 5).lowerLeft(at(3, 2)), at(1, 2));
    EXPECT_EQ(at(1, 5).upperRight(at(3, 2)), at(3, 5));
    ZKPoint lower = at(1, 5);
    EXPECT_EQ(&lower.lowerLeftSelf(at(3, 2)), &lower);
    EXPECT_EQ(lower, at(1, 2));
    ZKPoint upper = at(1, 5);
    EXPECT_EQ(&upper.upperRightSelf(at(3, 2)), &upper);
    EXPECT_EQ(upper, at(3, 5));
}

TEST(ZKPoint, isBetweenNearTheLine)
{
    EXPECT_TRUE(at(5, 5.5F).isBetween(at(0, 0), at(10, 10), 1));
    EXPECT_FALSE(at(5, 7).isBetween(at(0, 0), at(10, 10), 1));
}

TEST(ZKPoint, isNotBetweenOutsideTheWidenedBox)
{
    EXPECT_FALSE(at(12, 12).isBetween(at(0, 0), at(10, 10), 1));
    EXPECT_FALSE(at(-2, -2).isBetween(at(0, 0), at(10, 10), 1));
    EXPECT_FALSE(at(5, 3).isBetween(at(0, 0), at(10, 0), 1));
    EXPECT_FALSE(at(5, -3).isBetween(at(0, 0), at(10, 0), 1));
}

TEST(ZKPoint, isBetweenIncludesTheWidenedBox)
{
    EXPECT_TRUE(at(11, 0).isBetween(at(0, 0), at(10, 0), 1));
    EXPECT_TRUE(at(-1, 0).isBetween(at(0, 0), at(10, 0), 1));
    EXPECT_FALSE(at(11.01F, 0).isBetween(at(0, 0), at(10, 0), 1));
}

TEST(ZKPoint, isBetweenMeasuresAlongTheMinorAxisNotPerpendicular)
{
    // 1.2 above a line of slope 1 is only 0.85 away from it.
    EXPECT_FALSE(at(5, 6.2F).isBetween(at(0, 0), at(10, 10), 1));
    EXPECT_TRUE(at(5, 6).isBetween(at(0, 0), at(10, 10), 1));
}

TEST(ZKPoint, isBetweenMeasuresSteepLinesAlongX)
{
    EXPECT_TRUE(at(2, 5).isBetween(at(0, 0), at(2, 10), 1));
    EXPECT_FALSE(at(2.5F, 5).isBetween(at(0, 0), at(2, 10), 1));
    EXPECT_TRUE(at(-1, 5).isBetween(at(0, 10), at(0, 0), 1));
}

TEST(ZKPoint, isBetweenEqualPointsIsTheirBox)
{
    EXPECT_TRUE(at(4, 4).isBetween(at(3, 3), at(3, 3), 1));
    EXPECT_FALSE(at(4.01F, 3).isBetween(at(3, 3), at(3, 3), 1));
}

TEST(ZKPoint, logStringHasThePrefixFirst)
{
    EXPECT_EQ(at(1.5F, -0.0F).makeLogStringWith("anchor "), "anchor ( 1.5, -0 )");
    EXPECT_EQ(at(0.1F, 1e6F).makeLogStringWith(""), "( 0.1, 1e+06 )");
}

TEST(ZKPoint, archivesAsOnePair)
{
    SequentialEncoder coder;
    at(1.5F, -2).encodeWithCoder(coder);
    EXPECT_EQ(coder.items(), (std::vector<ArchivedItem>{ArchivedPoint{1.5F, -2}}));
    EXPECT_EQ(ArchivedCopy<ZKPoint>(at(1, 2)).className(), "ZKPoint");
}

TEST(ZKPoint, readsItsArchiveBack)
{
    SequentialEncoder coder;
    at(0.1F, -2).encodeWithCoder(coder);
    SequentialDecoder decoder(coder.items());
    EXPECT_EQ(ZKPoint::initWithCoder(decoder), at(0.1F, -2));
}

TEST(ZKPoint, readsNothingFromTwoDoubles)
{
    const std::vector<ArchivedItem> items = {1.0, 2.0};
    SequentialDecoder decoder(items);
    EXPECT_FALSE(ZKPoint::initWithCoder(decoder));
    EXPECT_TRUE(decoder.failed());
}
