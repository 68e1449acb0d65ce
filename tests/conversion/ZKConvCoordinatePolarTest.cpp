#include "conversion/ZKConvCoordinatePolar.h"

#include "SampleConverters.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace sampleconverters;

namespace {

constexpr AxisValues linear{0, 10};

ZKVector from(const Polar &converter, double x, double y)
{
    return converter->convertFromCartesian(vector(x, y)).value();
}

ZKVector to(const Polar &converter, double theta, double r)
{
    return converter->convertToCartesian(vector(theta, r)).value();
}

/// As after opening a document that says so: the converter with another angle offset.
Polar withAngleOffset(double offset)
{
    std::vector<ArchivedItem> items = archived(*polar(linear, 3));
    items.at(items.size() - 4) = offset;
    return std::dynamic_pointer_cast<const ZKConvCoordinatePolar>(
        decoded("ZKConvCoordinatePolar", items));
}

} // namespace

TEST(ZKConvCoordinatePolar, newConverterIsCounterClockwiseInDegreesAndConvertsNothing)
{
    const ZKConvCoordinatePolar converter;
    EXPECT_TRUE(converter.ccwTheta());
    EXPECT_TRUE(converter.degreeMode());
    EXPECT_FALSE(converter.center().has_value());
    EXPECT_FALSE(converter.convertToCartesian(vector(1, 1)).has_value());
    EXPECT_FALSE(converter.convertFromCartesian(vector(1, 1)).has_value());
}

TEST(ZKConvCoordinatePolar, fieldsAreCentreUnitAndOrigin)
{
    const Polar converter = polar({2, 12}, 0);
    EXPECT_EQ(*converter->center(), vector(100, 100));
    EXPECT_EQ(*converter->unitR(), vector(10, 0));
    EXPECT_EQ(*converter->originValue(), vector(twoPi, 2));
}

TEST(ZKConvCoordinatePolar, degreesFromZero)
{
    const Polar converter = polar(linear, 0);
    EXPECT_EQ(converter->convertPointFromCartesian({150, 100}), (FloatPoint{0, 5}));
    EXPECT_EQ(converter->convertPointFromCartesian({100, 150}), (FloatPoint{90, 5}));
    EXPECT_EQ(converter->convertPointFromCartesian({0, 100}), (FloatPoint{180, 10}));
    EXPECT_EQ(converter->convertPointFromCartesian({100, 50}), (FloatPoint{270, 5}));
}

TEST(ZKConvCoordinatePolar, degreesAroundZero)
{
    const Polar converter = polar(linear, 1);
    EXPECT_EQ(converter->convertPointFromCartesian({100, 50}), (FloatPoint{-90, 5}));
    EXPECT_EQ(converter->convertPointFromCartesian({0, 100}), (FloatPoint{180, 10}));
}

TEST(ZKConvCoordinatePolar, radiansFromZero)
{
    const Polar converter = polar(linear, 2);
    EXPECT_DOUBLE_EQ(from(converter, 100, 150).X(), pi / 2);
    EXPECT_DOUBLE_EQ(from(converter, 100, 50).X(), 3 * pi / 2);
    EXPECT_EQ(from(converter, 150, 100).X(), 0);
}

TEST(ZKConvCoordinatePolar, radiansAroundZeroClockwise)
{
    const Polar converter = polar(linear, 3, false);
    EXPECT_DOUBLE_EQ(from(converter, 100, 50).X(), pi / 2);
    EXPECT_DOUBLE_EQ(from(converter, 100, 50).Y(), 5);
    EXPECT_DOUBLE_EQ(from(converter, 100, 150).X(), -pi / 2);
}

TEST(ZKConvCoordinatePolar, westIsTheUpperEndOfTheRangeInBothDirections)
{
    EXPECT_EQ(from(polar(linear, 1, true), 0, 100).X(), 180);
    EXPECT_EQ(from(polar(linear, 1, false), 0, 100).X(), 180);
    EXPECT_EQ(from(polar(linear, 3, true), 0, 100).X(), pi);
    EXPECT_EQ(from(polar(linear, 3, false), 0, 100).X(), pi);
}

TEST(ZKConvCoordinatePolar, eastIsZeroNeverAFullTurn)
{
    EXPECT_EQ(from(polar(linear, 0, true), 150, 100).X(), 0);
    EXPECT_EQ(from(polar(linear, 0, false), 150, 100).X(), 0);
    EXPECT_EQ(from(polar(linear, 2, true), 150, 100).X(), 0);
    EXPECT_EQ(from(polar(linear, 2, false), 150, 100).X(), 0);
}

TEST(ZKConvCoordinatePolar, aHairBelowTheZeroDirectionIsExactlyZero)
{
    EXPECT_EQ(from(polar(linear, 0), 200, 100 - 1e-7).X(), 0);
}

TEST(ZKConvCoordinatePolar, aHairFromWestIsExactlyTheUpperEnd)
{
    EXPECT_EQ(from(polar(linear, 1), 0, 100 - 1e-7).X(), 180);
    EXPECT_EQ(from(polar(linear, 1), 0, 100 + 1e-7).X(), 180);
}

TEST(ZKConvCoordinatePolar, clockwiseMirrorsTheAngles)
{
    const Polar converter = polar(linear, 0, false);
    EXPECT_DOUBLE_EQ(from(converter, 100, 50).X(), 90);
    EXPECT_DOUBLE_EQ(from(converter, 100, 150).X(), 270);
}

TEST(ZKConvCoordinatePolar, angleIsMeasuredFromTheUnitAndClockwiseToTheUnit)
{
    // The two angles differ in their last bits: the lengths divide in another order.
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> coordinate(-300, 700);
    const Polar ccw = polar({0, 7}, 3, true);
    const Polar cw = polar({0, 7}, 3, false);
    for (int i = 0; i < 1000; ++i) {
        const ZKVector point = vector(coordinate(random), coordinate(random));
        const ZKVector fromCenter = point.subVector(vector(100, 100));
        ASSERT_EQ(ccw->convertFromCartesian(point)->X(), ccw->unitR()->angle(fromCenter));
        ASSERT_EQ(cw->convertFromCartesian(point)->X(), fromCenter.angle(*cw->unitR()));
    }
}

TEST(ZKConvCoordinatePolar, rangeCodesSetUnitAndOffset)
{
    EXPECT_TRUE(polar(linear, 0)->degreeMode());
    EXPECT_EQ(polar(linear, 0)->originValue()->X(), twoPi);
    EXPECT_TRUE(polar(linear, 1)->degreeMode());
    EXPECT_EQ(polar(linear, 1)->originValue()->X(), 0);
    EXPECT_FALSE(polar(linear, 2)->degreeMode());
    EXPECT_EQ(polar(linear, 2)->originValue()->X(), twoPi);
    EXPECT_FALSE(polar(linear, 3)->degreeMode());
    EXPECT_EQ(polar(linear, 3)->originValue()->X(), 0);
}

TEST(ZKConvCoordinatePolar, codesAboveTheTableAreRadiansFromZero)
{
    EXPECT_FALSE(polar(linear, 4)->degreeMode());
    EXPECT_EQ(polar(linear, 4)->originValue()->X(), twoPi);
}

TEST(ZKConvCoordinatePolar, codesBelowTheTableAreBelowTwoAndSoDegrees)
{
    EXPECT_TRUE(polar(linear, -1)->degreeMode());
    EXPECT_EQ(polar(linear, -1)->originValue()->X(), twoPi);
}

TEST(ZKConvCoordinatePolar, anglesAreWrappedOnceOnly)
{
    // 20 lies more than three turns up, so one turn less is still out of the range.
    EXPECT_DOUBLE_EQ(from(withAngleOffset(20), 150, 100).X(), 20 - twoPi);
    EXPECT_DOUBLE_EQ(from(withAngleOffset(-20), 150, 100).X(), -20 + twoPi);
}

TEST(ZKConvCoordinatePolar, wrappingTakesBothEndsOfTheRange)
{
    EXPECT_EQ(from(withAngleOffset(twoPi), 150, 100).X(), 0);
    EXPECT_EQ(from(withAngleOffset(-pi), 150, 100).X(), twoPi - pi);
    EXPECT_EQ(from(withAngleOffset(std::nextafter(twoPi, 0.0)), 150, 100).X(),
              std::nextafter(twoPi, 0.0));
    EXPECT_EQ(from(withAngleOffset(std::nextafter(-pi, 0.0)), 150, 100).X(),
              std::nextafter(-pi, 0.0));
}

TEST(ZKConvCoordinatePolar, toThePictureCounterClockwise)
{
    const ZKVector north = to(polar(linear, 0), 90, 5);
    EXPECT_NEAR(north.X(), 100, 1e-12);
    EXPECT_NEAR(north.Y(), 150, 1e-12);
}

TEST(ZKConvCoordinatePolar, toThePictureClockwiseInRadians)
{
    const ZKVector south = to(polar(linear, 3, false), pi / 2, 5);
    EXPECT_NEAR(south.X(), 100, 1e-12);
    EXPECT_NEAR(south.Y(), 50, 1e-12);
}

TEST(ZKConvCoordinatePolar, anglesOfAnyRangeAndTurnReachThePicture)
{
    EXPECT_NEAR(to(polar(linear, 0), -270, 5).Y(), 150, 1e-10);
    EXPECT_NEAR(to(polar(linear, 1), 450, 5).Y(), 150, 1e-10);
}

TEST(ZKConvCoordinatePolar, angleOffsetIsTakenOffBeforeTurning)
{
    const double turn = 90.0 / 180.0 * pi - twoPi;
    EXPECT_EQ(to(polar(linear, 0), 90, 5),
              vector(10 * std::cos(turn) * 5 + 100, 10 * std::sin(turn) * 5 + 100));
}

TEST(ZKConvCoordinatePolar, degreesAreDividedBeforeTheyAreMultiplied)
{
    const auto converter =
        ZKConvCoordinatePolar::convCoordWithCenter({0, 0}, {100, 0}, 0, 10, false, 1, true);
    for (int degrees = -180; degrees <= 180; ++degrees) {
        const double turn = degrees / 180.0 * pi;
        EXPECT_EQ(to(converter, degrees, 5),
                  vector(10 * std::cos(turn) * 5, 10 * std::sin(turn) * 5))
            << degrees;
    }
}

TEST(ZKConvCoordinatePolar, radiansAreMultipliedBeforeTheyAreDivided)
{
    const Polar converter = polar(linear, 1);
    for (int i = 1; i < 200; ++i) {
        const ZKVector fromCenter = vector(i, 60);
        EXPECT_EQ(from(converter, 100 + i, 160).X(),
                  converter->unitR()->angle(fromCenter) * 180.0 / pi)
            << i;
    }
}

TEST(ZKConvCoordinatePolar, radiusBelowTheCentreValueLandsOnTheOppositeSide)
{
    EXPECT_NEAR(to(polar({5, 10}, 1), 0, 0).X(), 0, 1e-12);
    EXPECT_NEAR(to(polar({5, 10}, 1), 0, 0).Y(), 100, 1e-12);
}

TEST(ZKConvCoordinatePolar, radiusFromThePictureIsNeverBelowTheCentreValue)
{
    EXPECT_EQ(from(polar({5, 10}, 0), 0, 100).Y(), 10);
    EXPECT_EQ(from(polar({5, 10}, 0), 100, 100).Y(), 5);
}

TEST(ZKConvCoordinatePolar, centreHasAngleZero)
{
    EXPECT_EQ(from(polar(linear, 0), 100, 100), vector(0, 0));
    EXPECT_EQ(from(polar(linear, 1, false), 100, 100), vector(0, 0));
}

TEST(ZKConvCoordinatePolar, descendingRadiiTurnTheZeroDirectionRound)
{
    const Polar converter = polar({10, 0}, 0);
    EXPECT_EQ(*converter->unitR(), vector(-10, 0));
    EXPECT_EQ(from(converter, 0, 100), vector(0, 20));
    EXPECT_EQ(from(converter, 200, 100), vector(180, 20));
}

TEST(ZKConvCoordinatePolar, radiusPointOnTheCentreIsAcceptedAndGivesInfiniteAndNaN)
{
    const auto converter =
        ZKConvCoordinatePolar::convCoordWithCenter({100, 100}, {100, 100}, 0, 10, false, 0, true);
    ASSERT_NE(converter, nullptr);
    EXPECT_EQ(from(converter, 150, 100), vector(0, infinity));
    EXPECT_TRUE(std::isnan(from(converter, 100, 100).Y()));
    EXPECT_EQ(to(converter, 30, 5), vector(100, 100));
}

TEST(ZKConvCoordinatePolar, logRadius)
{
    const Polar converter = polar({1, 100, true}, 0);
    EXPECT_EQ(converter->convertPointFromCartesian({150, 100}), (FloatPoint{0, 10}));
    EXPECT_EQ(converter->convertPointFromCartesian({100, 200}), (FloatPoint{90, 100}));
    EXPECT_NEAR(to(converter, 0, 10).X(), 150, 1e-12);
}

TEST(ZKConvCoordinatePolar, angleIsNeverLogarithmic)
{
    const Polar converter = polar({1, 100, true}, 0);
    ASSERT_EQ(converter->logArraySize(), 2);
    EXPECT_EQ(converter->logConversion()[0], 0);
    EXPECT_EQ(converter->logConversion()[1], 1);
    EXPECT_EQ(polar(linear, 0)->logArraySize(), 0);
}

TEST(ZKConvCoordinatePolar, negativeRadiusOnALogAxisFlowsOnAsNaN)
{
    EXPECT_TRUE(std::isnan(to(polar({1, 100, true}, 0), 0, -5).X()));
}

TEST(ZKConvCoordinatePolar, logRadiusWithAValueNotAboveZeroIsNothing)
{
    EXPECT_EQ(polar({0, 10, true}, 0), nullptr);
    EXPECT_EQ(polar({10, 0, true}, 0), nullptr);
    EXPECT_EQ(polar({1, -10, true}, 0), nullptr);
    EXPECT_EQ(polar({notANumber, 10, true}, 0), nullptr);
}

TEST(ZKConvCoordinatePolar, equalRadiiAreNothing)
{
    EXPECT_EQ(polar({4, 4}, 0), nullptr);
    EXPECT_EQ(polar({4, 4, true}, 0), nullptr);
}

TEST(ZKConvCoordinatePolar, equalityOfRadiiIsTestedAfterTheLogarithm)
{
    const double value = 1e300;
    const double neighbour = std::nextafter(value, infinity);
    EXPECT_EQ(polar({value, neighbour, true}, 0), nullptr);
    EXPECT_NE(polar({value, neighbour}, 0), nullptr);
}

TEST(ZKConvCoordinatePolar, preparingAlwaysSucceeds)
{
    ZKConvCoordinatePolar converter;
    EXPECT_TRUE(converter.prepareWithCenter({1, 1}, {1, 1}, 4, 4, 0, true));
}

TEST(ZKConvCoordinatePolar, secondAxisVectorIsTheCentrePoint)
{
    const Polar converter = polar(linear, 0);
    std::optional<ZKVector> vectorX;
    std::optional<ZKVector> vectorY;
    converter->getAxisVectorsAt(vector(130, 140), vectorX, vectorY);
    EXPECT_EQ(vectorX, vector(30, 40));
    EXPECT_EQ(vectorY, vector(100, 100));
}

TEST(ZKConvCoordinatePolar, radialDirectionInTheCentreIsTheUnit)
{
    FloatPoint basis1;
    FloatPoint basis2;
    polar(linear, 0)->getAxisVectorsAtPoint({100, 100}, basis1, basis2);
    EXPECT_EQ(basis1, (FloatPoint{10, 0}));
    EXPECT_EQ(basis2, (FloatPoint{100, 100}));
}

TEST(ZKConvCoordinatePolar, basisHoldsOnlyTheCentre)
{
    std::vector<ZKVector> basis{vector(1, 1), vector(2, 2)};
    polar(linear, 0)->getAxisVectorsAt(vector(130, 140), basis);
    ASSERT_EQ(basis.size(), 1U);
    EXPECT_EQ(basis.front(), vector(100, 100));
}

TEST(ZKConvCoordinatePolar, oneRotationSenseIsEqualWhateverTheUnits)
{
    EXPECT_TRUE(polar(linear, 0, true)->isEqualConverterAs(*polar(linear, 0, true)));
    EXPECT_TRUE(polar(linear, 0, true)->isEqualConverterAs(*polar(linear, 2, true)));
    EXPECT_TRUE(polar(linear, 1, false)->isEqualConverterAs(*polar(linear, 3, false)));
}

TEST(ZKConvCoordinatePolar, changingTheRotationSenseIsNotNoticed)
{
    EXPECT_TRUE(polar(linear, 0, true)->isEqualConverterAs(*polar(linear, 0, false)));
    EXPECT_TRUE(polar(linear, 2, false)->isEqualConverterAs(*polar(linear, 2, true)));
}

TEST(ZKConvCoordinatePolar, otherRotationSenseAndOtherUnitsAreNotEqual)
{
    EXPECT_FALSE(polar(linear, 0, true)->isEqualConverterAs(*polar(linear, 2, false)));
    EXPECT_FALSE(polar(linear, 1, false)->isEqualConverterAs(*polar(linear, 3, true)));
}

TEST(ZKConvCoordinatePolar, anotherRangeIsAnotherConverter)
{
    EXPECT_FALSE(polar(linear, 0)->isEqualConverterAs(*polar(linear, 1)));
}

TEST(ZKConvCoordinatePolar, vectorsAreComparedWithinTheTolerance)
{
    const auto moved = [](FloatPoint center, FloatPoint radius) {
        return ZKConvCoordinatePolar::convCoordWithCenter(center, radius, 0, 10, false, 0, true);
    };
    const Polar converter = polar(linear, 0);
    EXPECT_TRUE(converter->isEqualConverterAs(*moved({100, 100.001F}, {200, 100.001F})));
    EXPECT_FALSE(converter->isEqualConverterAs(*moved({100, 100.1F}, {200, 100.1F})));
    EXPECT_TRUE(converter->isEqualConverterAs(*moved({100, 100}, {200.01F, 100})));
    EXPECT_FALSE(converter->isEqualConverterAs(*moved({100, 100}, {200.1F, 100})));
    EXPECT_TRUE(converter->isEqualConverterAs(*polar({0.0005, 10.0005}, 0)));
    EXPECT_FALSE(converter->isEqualConverterAs(*polar({0.005, 10.005}, 0)));
}

TEST(ZKConvCoordinatePolar, linearAndLogOnTheSameAnchorsAreEqual)
{
    EXPECT_TRUE(polar({0, 2}, 0)->isEqualConverterAs(*polar({1, 100, true}, 0)));
}

TEST(ZKConvCoordinatePolar, notPreparedIsEqualToItselfOnly)
{
    const ZKConvCoordinatePolar converter;
    EXPECT_TRUE(converter.isEqualConverterAs(converter));
    EXPECT_FALSE(converter.isEqualConverterAs(ZKConvCoordinatePolar()));
    EXPECT_FALSE(polar(linear, 0)->isEqualConverterAs(converter));
}

TEST(ZKConvCoordinatePolar, archivesVectorsThenFlags)
{
    const std::vector<ArchivedItem> expected{
        std::int32_t{2},
        std::int32_t{2},
        std::int8_t{0},
        std::int8_t{1}, // base
        std::int32_t{2},
        100.0,
        100.0, // center
        std::int32_t{2},
        50.0,
        0.0, // unitR
        std::int32_t{2},
        twoPi,
        0.0, // originValue
        std::int8_t{0},
        std::int8_t{1}, // ccwTheta, degreeMode
    };
    const Polar converter = polar({1, 100, true}, 0, false);
    EXPECT_EQ(archived(*converter), expected);
    EXPECT_EQ(converter->className(), "ZKConvCoordinatePolar");
}

TEST(ZKConvCoordinatePolar, reopenedConverterKeepsRangeUnitAndSense)
{
    for (std::int32_t range = 0; range < 4; ++range) {
        for (const bool ccw : {true, false}) {
            const Polar converter = polar({1, 100, true}, range, ccw);
            const Polar again = reopened(*converter);
            ASSERT_NE(again, nullptr);
            EXPECT_EQ(again->ccwTheta(), ccw);
            EXPECT_EQ(again->degreeMode(), range < 2);
            EXPECT_EQ(from(again, 60, 20), from(converter, 60, 20));
            EXPECT_EQ(to(again, 1.5, 7), to(converter, 1.5, 7));
        }
    }
}
