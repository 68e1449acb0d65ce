#include "geometry/ZKVector.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;

ZKVector xy(double x, double y) { return ZKVector::vectorWithX(x, y); }

ZKVector xyz(double x, double y, double z) { return ZKVector::vectorWithX(x, y, z); }

ZKVector vectorOf(const std::vector<double> &numbers)
{
    return *ZKVector::vectorWithNumberArray(numbers);
}

void expectNear(const std::optional<ZKVector> &vector, const ZKVector &expected)
{
    ASSERT_TRUE(vector);
    ASSERT_EQ(vector->dimension(), expected.dimension());
    for (int i = 0; i < expected.dimension(); ++i)
        EXPECT_NEAR(vector->componentAt(i), expected.componentAt(i), 1e-12) << i;
}

} // namespace

TEST(ZKVectorProducts, dotProductTakesTheCommonComponents)
{
    EXPECT_EQ(xyz(1, 2, 3).product(xyz(4, 5, 6)), 32.0);
    EXPECT_EQ(xyz(1, 2, 3).product(xy(4, 5)), 14.0);
    EXPECT_EQ(xy(1, 2).product(xyz(4, 5, 6)), 14.0);
}

TEST(ZKVectorProducts, selfProductAndLengthTakeAllComponents)
{
    EXPECT_EQ(vectorOf({1, 1, 1, 1, 2, 1}).selfProduct(), 9.0);
    EXPECT_EQ(vectorOf({1, 1, 1, 1, 2, 1}).length(), 3.0);
}

TEST(ZKVectorProducts, crossProductOfTwoDimensionsIsAThirdOne)
{
    EXPECT_EQ(xy(2, 3).mulVector(xy(5, 7)), xyz(0, 0, -1));
}

TEST(ZKVectorProducts, crossProductOfThreeDimensions)
{
    EXPECT_EQ(xyz(1, 2, 3).mulVector(xyz(4, 5, 7)), xyz(-1, 5, -3));
}

TEST(ZKVectorProducts, otherDimensionsHaveNoCrossProduct)
{
    EXPECT_FALSE(xy(1, 2).mulVector(xyz(1, 2, 3)));
    EXPECT_FALSE(vectorOf({1}).mulVector(vectorOf({2})));
    EXPECT_FALSE(vectorOf({1, 2, 3, 4}).mulVector(vectorOf({1, 2, 3, 5})));
}

TEST(ZKVectorProducts, mulVectorSelfChangesOnlyThreeDimensions)
{
    ZKVector flat = xy(2, 3);
    flat.mulVectorSelf(xy(5, 7));
    EXPECT_EQ(flat, xy(2, 3));
    ZKVector space = xyz(1, 2, 3);
    space.mulVectorSelf(xyz(4, 5, 7));
    EXPECT_EQ(space, xyz(-1, 5, -3));
    space.mulVectorSelf(xy(1, 1));
    EXPECT_EQ(space, xyz(-1, 5, -3));
}

TEST(ZKVectorProducts, mulVector2NeedsTwoDimensionsOnBothSides)
{
    EXPECT_EQ(xy(2, 3).mulVector2(xy(5, 7)), -1.0);
    EXPECT_EQ(xy(2, 3).mulVector2(xyz(5, 7, 0)), 0.0);
    EXPECT_EQ(xyz(2, 3, 0).mulVector2(xy(5, 7)), 0.0);
}

TEST(ZKVectorAngle, isPositiveCounterClockwiseInThePlane)
{
    EXPECT_DOUBLE_EQ(xy(1, 0).angle(xy(0, 1)), kPi / 2);
    EXPECT_DOUBLE_EQ(xy(0, 1).angle(xy(1, 0)), -kPi / 2);
    EXPECT_DOUBLE_EQ(xy(2, 0).angle(xy(-3, -3)), -kPi * 3 / 4);
}

TEST(ZKVectorAngle, isUnsignedInSpace)
{
    EXPECT_DOUBLE_EQ(xyz(1, 0, 0).angle(xyz(0, 1, 0)), kPi / 2);
    EXPECT_DOUBLE_EQ(xyz(0, 1, 0).angle(xyz(1, 0, 0)), kPi / 2);
}

TEST(ZKVectorAngle, oppositeVectorsGiveExactlyPi)
{
    EXPECT_EQ(xy(1, 0).angle(xy(-1, 0)), kPi);
    EXPECT_EQ(xy(1, 0).angle(xy(-1, -1e-12)), -kPi);
    EXPECT_EQ(xy(1, 0).angle(xy(-1, 1e-12)), kPi);
}

TEST(ZKVectorAngle, aHairBelowTheDirectionIsExactlyZero)
{
    // An arc tangent would give -1e-12 here.
    EXPECT_EQ(xy(1, 0).angle(xy(1, -1e-12)), 0.0);
    EXPECT_FALSE(std::signbit(xy(1, 0).angle(xy(1, -1e-12))));
}

TEST(ZKVectorAngle, parallelVectorsAreZeroInSpiteOfRounding)
{
    for (int i = 1; i < 200; ++i) {
        const ZKVector vector = xy(i, i * 0.7);
        EXPECT_FALSE(std::isnan(vector.angle(vector.mulScalar(3)))) << i;
        EXPECT_NEAR(vector.angle(vector.mulScalar(3)), 0.0, 1e-7) << i;
    }
}

TEST(ZKVectorAngle, isZeroWithAZeroVectorOrAnotherDimension)
{
    EXPECT_EQ(xy(0, 0).angle(xy(0, 1)), 0.0);
    EXPECT_EQ(xy(0, 1).angle(xy(0, 0)), 0.0);
    EXPECT_EQ(xy(1, 0).angle(xyz(0, 1, 0)), 0.0);
}

TEST(ZKVectorAngle, inDegrees)
{
    EXPECT_DOUBLE_EQ(xy(1, 0).angleDeg(xy(0, -1)), -90.0);
    EXPECT_EQ(xy(1, 0).angleDeg(xy(-1, 0)), 180.0);
}

TEST(ZKVectorAngle, aboutAnAxisIsPositiveWhenTheCrossProductPointsAlongIt)
{
    EXPECT_DOUBLE_EQ(xyz(1, 0, 0).angle(xyz(0, 1, 0), xyz(0, 0, 5)), kPi / 2);
    EXPECT_DOUBLE_EQ(xyz(1, 0, 0).angle(xyz(0, 1, 0), xyz(0, 0, -5)), -kPi / 2);
}

TEST(ZKVectorAngle, aboutASlantedAxisIsNegatedBeyondTheTolerance)
{
    EXPECT_GT(xyz(1, 0, 0).angle(xyz(0, 1, 0), xyz(0, 1e-6, 1)), 0.0);
    EXPECT_LT(xyz(1, 0, 0).angle(xyz(0, 1, 0), xyz(0, 1e-4, 1)), 0.0);
}

TEST(ZKVectorAngle, aboutAnAxisNegatesTheSignedAngleOfThePlane)
{
    const ZKVector up = xyz(0, 0, 1);
    const ZKVector down = xyz(0, 0, -1);
    EXPECT_DOUBLE_EQ(xy(1, 0).angle(xy(0, 1), up), kPi / 2);
    EXPECT_DOUBLE_EQ(xy(1, 0).angle(xy(0, 1), down), -kPi / 2);
    // -pi/2 already; the cross product points down.
    EXPECT_DOUBLE_EQ(xy(0, 1).angle(xy(1, 0), up), kPi / 2);
    EXPECT_DOUBLE_EQ(xy(0, 1).angle(xy(1, 0), down), -kPi / 2);
}

TEST(ZKVectorAngle, aboutAnAxisOfThePlaneItselfIsNegated)
{
    EXPECT_DOUBLE_EQ(xy(1, 0).angle(xy(0, 1), xy(0, 1)), -kPi / 2);
}

TEST(ZKVectorAngle, ofZeroAboutAnAxisStaysZero)
{
    EXPECT_EQ(xyz(1, 0, 0).angle(xyz(2, 0, 0), xyz(0, 0, 1)), 0.0);
    EXPECT_FALSE(std::signbit(xyz(1, 0, 0).angle(xyz(2, 0, 0), xyz(0, 0, 1))));
}

TEST(ZKVectorAngle, withoutACrossProductIsNegated)
{
    EXPECT_DOUBLE_EQ(vectorOf({1, 0, 0, 0}).angle(vectorOf({0, 1, 0, 0}), vectorOf({0, 0, 1, 0})),
                     -kPi / 2);
}

TEST(ZKVectorStretch, stretchToSetsTheLength)
{
    EXPECT_EQ(xy(3, 4).stretchTo(10), xy(6, 8));
    EXPECT_EQ(xyz(0, 3, 4).stretchTo(10), xyz(0, 6, 8));
}

TEST(ZKVectorStretch, stretchToNegativeLengthKeepsTheDirection)
{
    expectNear(xy(3, 4).stretchTo(-2), xy(1.2, 1.6));
}

TEST(ZKVectorStretch, stretchByAddsToTheLength)
{
    EXPECT_EQ(xy(3, 4).stretchBy(5), xy(6, 8));
    expectNear(xy(3, 4).stretchBy(-4), xy(0.6, 0.8));
}

TEST(ZKVectorStretch, stretchByBeyondTheOriginKeepsTheDirection)
{
    EXPECT_EQ(xy(3, 4).stretchBy(-15), xy(6, 8));
}

TEST(ZKVectorStretch, ofAZeroVectorIsNotGuarded)
{
    EXPECT_TRUE(std::isnan(xy(0, 0).stretchTo(1).X()));
    EXPECT_TRUE(std::isnan(xy(0, 0).stretchBy(1).X()));
}

TEST(ZKVectorRotation, turnsCounterClockwise)
{
    const auto turned = xy(1, 0).rotateCCW(kPi / 2);
    expectNear(turned, xy(0, 1));
    EXPECT_EQ(turned->X(), std::cos(kPi / 2));
}

TEST(ZKVectorRotation, turnsClockwise) { expectNear(xy(2, 1).rotateCW(kPi / 2), xy(1, -2)); }

TEST(ZKVectorRotation, turnsByDegrees)
{
    expectNear(xy(2, 1).rotateDegCCW(90), xy(-1, 2));
    expectNear(xy(2, 1).rotateDegCW(90), xy(1, -2));
    expectNear(xy(1, 0).rotateDegCCW(30), xy(std::sqrt(3.0) / 2, 0.5));
}

TEST(ZKVectorRotation, inThePlaneNeedsTwoDimensions)
{
    EXPECT_FALSE(xyz(1, 0, 0).rotateCCW(1));
    EXPECT_FALSE(xyz(1, 0, 0).rotateCW(1));
    EXPECT_FALSE(xyz(1, 0, 0).rotateDegCCW(1));
    EXPECT_FALSE(vectorOf({1}).rotateDegCW(1));
}

TEST(ZKVectorRotation, aboutAnAxis)
{
    expectNear(xyz(1, 0, 0).rotate(kPi / 2, xyz(0, 0, 1)), xyz(0, 1, 0));
    expectNear(xyz(1, 0, 0).rotateDeg(90, xyz(0, 0, 1)), xyz(0, 1, 0));
    expectNear(xyz(1, 0, 0).rotateDeg(90, xyz(0, 0, -1)), xyz(0, -1, 0));
}

TEST(ZKVectorRotation, aboutAnAxisKeepsThePartAlongIt)
{
    expectNear(xyz(2, 0, 5).rotateDeg(90, xyz(0, 0, 3)), xyz(0, 2, 5));
    expectNear(xyz(0, 0, 5).rotateDeg(90, xyz(0, 0, 3)), xyz(0, 0, 5));
}

TEST(ZKVectorRotation, aboutTheDiagonalExchangesTheAxes)
{
    expectNear(xyz(1, 2, 3).rotateDeg(120, xyz(1, 1, 1)), xyz(3, 1, 2));
}

TEST(ZKVectorRotation, withoutAnAxisIsThatOfThePlane)
{
    expectNear(xy(2, 1).rotate(kPi / 2, std::nullopt), xy(-1, 2));
    EXPECT_FALSE(xyz(2, 1, 0).rotate(kPi / 2, std::nullopt));
}

TEST(ZKVectorRotation, anUnsuitableAxisYieldsNothing)
{
    EXPECT_FALSE(xyz(1, 0, 0).rotate(1, xy(0, 1)));
    EXPECT_FALSE(xy(1, 0).rotate(1, xyz(0, 0, 1)));
    EXPECT_FALSE(xyz(1, 0, 0).rotate(1, xyz(0, 0, 0)));
    EXPECT_FALSE(vectorOf({1}).rotate(1, vectorOf({1})));
    EXPECT_FALSE(vectorOf({1, 0, 0, 0}).rotate(1, vectorOf({0, 0, 0, 1})));
}

TEST(ZKVectorRotation, aboutAnAxisInThePlaneShortensWhatLiesAcrossIt)
{
    // The direction across has no component in the plane, so only the cosine is left.
    expectNear(xy(2, 3).rotate(kPi / 3, xy(0, 1)), xy(1, 3));
}
