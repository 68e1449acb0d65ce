#include "conversion/ZKConvCoordinateKeystone.h"

#include "SampleConverters.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace sampleconverters;

namespace {

/// The picture point that a camera would show for (u, v) of the unit square whose corners it shows
/// in `corners`: the perspective mapping that a keystone converter is not.
ZKVector perspectivePoint(const Corners &corners, double u, double v)
{
    const ZKVector p0 = ZKVector::vectorWithNSPoint(corners.leftBottom);
    const ZKVector p1 = ZKVector::vectorWithNSPoint(corners.rightBottom);
    const ZKVector p2 = ZKVector::vectorWithNSPoint(corners.rightTop);
    const ZKVector p3 = ZKVector::vectorWithNSPoint(corners.leftTop);
    const ZKVector d1 = p1.subVector(p2);
    const ZKVector d2 = p3.subVector(p2);
    const ZKVector s = p0.subVector(p1).addVector(p2).subVector(p3);
    const double g = s.mulVector2(d2) / d1.mulVector2(d2);
    const double h = d1.mulVector2(s) / d1.mulVector2(d2);
    const ZKVector alongX = p1.subVector(p0).addVector(p1.mulScalar(g)).mulScalar(u);
    const ZKVector alongY = p3.subVector(p0).addVector(p3.mulScalar(h)).mulScalar(v);
    return p0.addVector(alongX).addVector(alongY).divScalar(g * u + h * v + 1);
}

/// A picture point to values by the lines themselves.
std::optional<ZKVector> convertedByLines(const ZKConvCoordinateKeystone &converter,
                                         const ZKVector &point)
{
    std::optional<ZKVector> vectorX;
    std::optional<ZKVector> vectorY;
    converter.getAxisVectorsAt(point, vectorX, vectorY);
    const auto constantX = ZKLine::lineWithOrigin(point, *vectorY);
    const auto constantY = ZKLine::lineWithOrigin(point, *vectorX);
    if (!constantX || !constantY)
        return std::nullopt;
    const auto onX = converter.axisX()->crossPointWith(*constantX);
    const auto onY = converter.axisY()->crossPointWith(*constantY);
    if (!onX || !onY)
        return std::nullopt;
    const ZKVector origin = *converter.origin();
    const ZKVector unitX = *converter.unitX();
    const ZKVector unitY = *converter.unitY();
    const ZKVector units = vector(onX->subVector(origin).product(unitX) / unitX.selfProduct(),
                                  onY->subVector(origin).product(unitY) / unitY.selfProduct());
    return converter.power10Conversion(units.addVector(*converter.originValue()));
}

/// Values to a picture point by the lines themselves.
std::optional<ZKVector> convertedBackByLines(const ZKConvCoordinateKeystone &converter,
                                             const ZKVector &values)
{
    const ZKVector units = converter.log10Conversion(values).subVector(*converter.originValue());
    const ZKVector onX = converter.unitX()->mulScalar(units.X()).addVector(*converter.origin());
    const ZKVector onY = converter.unitY()->mulScalar(units.Y()).addVector(*converter.origin());
    const auto constantY = converter.paraX() ? ZKLine::lineWithOrigin(onY, *converter.unitX())
                                             : ZKLine::lineWithPointA(onY, *converter.crossX());
    const auto constantX = converter.paraY() ? ZKLine::lineWithOrigin(onX, *converter.unitY())
                                             : ZKLine::lineWithPointA(onX, *converter.crossY());
    if (!constantX || !constantY)
        return std::nullopt;
    return constantY->crossPointWith(*constantX);
}

} // namespace

TEST(ZKConvCoordinateKeystone, newConverterIsParallelAndConvertsNothing)
{
    const ZKConvCoordinateKeystone converter;
    EXPECT_TRUE(converter.paraX());
    EXPECT_TRUE(converter.paraY());
    EXPECT_FALSE(converter.origin().has_value());
    EXPECT_FALSE(converter.convertToCartesian(vector(1, 1)).has_value());
    EXPECT_FALSE(converter.convertFromCartesian(vector(1, 1)).has_value());
}

TEST(ZKConvCoordinateKeystone, squareConvertsLinearly)
{
    const Keystone converter = keystone(square, {0, 10}, {0, 20});
    EXPECT_TRUE(converter->paraX());
    EXPECT_TRUE(converter->paraY());
    EXPECT_EQ(converter->convertPointFromCartesian({50, 25}), (FloatPoint{5, 5}));
    EXPECT_EQ(converter->convertPointToCartesian({5, 5}), (FloatPoint{50, 25}));
}

TEST(ZKConvCoordinateKeystone, rectangleGivesTheValuesOfTheAffineConverter)
{
    const Corners rectangle{{30, 40}, {330, 40}, {30, 240}, {330, 240}};
    const Keystone converter = keystone(rectangle, {2, 8}, {1, 1000, true});
    const auto parallel = ZKConvCoordinateAffine::convCoordWithX0Point(
        {30, 40}, {330, 40}, 2, 8, false, {30, 40}, {30, 240}, 1, 1000, true);
    for (const FloatPoint point : {FloatPoint{30, 40}, FloatPoint{100, 170}, FloatPoint{-5, 300}}) {
        const auto values = converter->convertFromCartesian(ZKVector::vectorWithNSPoint(point));
        const auto expected = parallel->convertFromCartesian(ZKVector::vectorWithNSPoint(point));
        ASSERT_TRUE(values.has_value());
        EXPECT_NEAR(values->X(), expected->X(), 1e-12 * 8);
        EXPECT_NEAR(values->Y() / expected->Y(), 1, 1e-12);
    }
}

TEST(ZKConvCoordinateKeystone, trapezoidHasOneCrossing)
{
    const Keystone converter = keystone(trapezoid);
    EXPECT_TRUE(converter->paraX());
    EXPECT_FALSE(converter->crossX().has_value());
    EXPECT_FALSE(converter->paraY());
    ASSERT_TRUE(converter->crossY().has_value());
    EXPECT_EQ(*converter->crossY(), vector(50, 250));
}

TEST(ZKConvCoordinateKeystone, trapezoidConvergesTowardsItsCrossing)
{
    const Keystone converter = keystone(trapezoid);
    EXPECT_EQ(converter->convertPointFromCartesian({50, 50}), (FloatPoint{5, 5}));
    const auto values = converter->convertFromCartesian(vector(25, 50));
    ASSERT_TRUE(values.has_value());
    EXPECT_DOUBLE_EQ(values->X(), 1.875);
    EXPECT_DOUBLE_EQ(values->Y(), 5);
    EXPECT_EQ(converter->convertPointToCartesian({1.875F, 5}), (FloatPoint{25, 50}));
}

TEST(ZKConvCoordinateKeystone, cornersHaveTheirValues)
{
    const Keystone converter = keystone(generalQuadrilateral, {2, 12}, {-3, 7});
    const auto at = [&converter](FloatPoint corner) {
        return converter->convertPointFromCartesian(corner);
    };
    EXPECT_EQ(at(generalQuadrilateral.leftBottom), (FloatPoint{2, -3}));
    EXPECT_EQ(at(generalQuadrilateral.rightBottom), (FloatPoint{12, -3}));
    EXPECT_EQ(at(generalQuadrilateral.leftTop), (FloatPoint{2, 7}));
    EXPECT_EQ(at(generalQuadrilateral.rightTop), (FloatPoint{12, 7}));
}

TEST(ZKConvCoordinateKeystone, anchorsThatRunCounterClockwiseAreHandedOverAs1243)
{
    const FloatPoint anchor1{0, 0};
    const FloatPoint anchor2{100, 0};
    const FloatPoint anchor3{90, 80};
    const FloatPoint anchor4{10, 90};
    const auto converter = ZKConvCoordinateKeystone::convCoordWithPointLB(
        anchor1, anchor2, anchor4, anchor3, 0, 10, false, 0, 20, false);
    ASSERT_NE(converter, nullptr);
    EXPECT_EQ(*converter->unitY(), vector(0.5, 4.5));
    EXPECT_EQ(converter->convertPointFromCartesian(anchor4), (FloatPoint{0, 20}));
    EXPECT_EQ(converter->convertPointFromCartesian(anchor3), (FloatPoint{10, 20}));
}

TEST(ZKConvCoordinateKeystone, valuesAreLinearAlongBottomAndLeftEdge)
{
    const Keystone converter = keystone(generalQuadrilateral);
    const ZKVector origin = ZKVector::vectorWithNSPoint(generalQuadrilateral.leftBottom);
    for (int i = 0; i <= 10; ++i) {
        const auto onBottom =
            converter->convertFromCartesian(origin.addVector(converter->unitX()->mulScalar(i)));
        const auto onLeft =
            converter->convertFromCartesian(origin.addVector(converter->unitY()->mulScalar(i)));
        EXPECT_NEAR(onBottom->X(), i, 1e-11);
        EXPECT_NEAR(onBottom->Y(), 0, 1e-11);
        EXPECT_NEAR(onLeft->Y(), i, 1e-11);
        EXPECT_NEAR(onLeft->X(), 0, 1e-11);
    }
}

TEST(ZKConvCoordinateKeystone, isNoPerspectiveMapping)
{
    const Keystone converter = keystone(generalQuadrilateral, {0, 1}, {0, 1});
    const ZKVector camera = perspectivePoint(generalQuadrilateral, 0.5, 0.5);
    const auto values = converter->convertFromCartesian(camera);
    ASSERT_TRUE(values.has_value());
    EXPECT_GT(std::fabs(values->X() - 0.5) + std::fabs(values->Y() - 0.5), 0.01);
}

TEST(ZKConvCoordinateKeystone, halfTheHeightOfATrapezoidIsHalfTheValueUnlikeInAPhotograph)
{
    const Keystone converter = keystone(trapezoid, {0, 1}, {0, 1});
    EXPECT_DOUBLE_EQ(converter->convertToCartesian(vector(0.5, 0.5))->Y(), 50);
    EXPECT_DOUBLE_EQ(perspectivePoint(trapezoid, 0.5, 0.5).Y(), 62.5);
}

TEST(ZKConvCoordinateKeystone, parallelMeansADeterminantOfExactlyZero)
{
    Corners almost = square;
    almost.rightTop.y = std::nextafter(100.0F, 200.0F);
    const Keystone converter = keystone(almost);
    EXPECT_FALSE(converter->paraX());
    ASSERT_TRUE(converter->crossX().has_value());
    EXPECT_GT(std::fabs(converter->crossX()->X()), 1e6);
    EXPECT_TRUE(converter->paraY());
}

TEST(ZKConvCoordinateKeystone, topParallelToBottomOnlyLeavesTheRightEdgeACrossing)
{
    const Corners corners{{0, 0}, {100, 0}, {0, 100}, {70, 100}};
    const Keystone converter = keystone(corners);
    EXPECT_TRUE(converter->paraX());
    EXPECT_FALSE(converter->paraY());
    EXPECT_FALSE(converter->crossX().has_value());
    EXPECT_TRUE(converter->crossY().has_value());
}

TEST(ZKConvCoordinateKeystone, rightParallelToLeftOnlyLeavesTheTopEdgeACrossing)
{
    const Corners corners{{0, 0}, {100, 0}, {0, 100}, {100, 70}};
    const Keystone converter = keystone(corners);
    EXPECT_FALSE(converter->paraX());
    EXPECT_TRUE(converter->paraY());
    EXPECT_TRUE(converter->crossX().has_value());
    EXPECT_FALSE(converter->crossY().has_value());
}

TEST(ZKConvCoordinateKeystone, axesRunAlongBottomAndLeftEdgeInTheirLength)
{
    const Keystone converter = keystone(generalQuadrilateral);
    EXPECT_EQ(converter->axisX()->origin(), vector(10, 20));
    EXPECT_EQ(converter->axisX()->direction(), vector(400, 40));
    EXPECT_EQ(converter->axisY()->origin(), vector(10, 20));
    EXPECT_EQ(converter->axisY()->direction(), vector(30, 300));
    EXPECT_EQ(*converter->unitX(), vector(40, 4));
    EXPECT_EQ(*converter->originValue(), vector(0, 0));
}

TEST(ZKConvCoordinateKeystone, coincidentNeighboursAreNothing)
{
    EXPECT_EQ(keystone({{5, 5}, {5, 5}, {0, 100}, {100, 100}}), nullptr);
    EXPECT_EQ(keystone({{0, 0}, {100, 0}, {0, 0}, {100, 100}}), nullptr);
    EXPECT_EQ(keystone({{0, 0}, {100, 0}, {0, 100}, {0, 100}}), nullptr);
    EXPECT_EQ(keystone({{0, 0}, {100, 0}, {0, 100}, {100, 0}}), nullptr);
}

TEST(ZKConvCoordinateKeystone, aUnitTooSmallForANumberIsNothing)
{
    EXPECT_EQ(keystone(square, {0, infinity}), nullptr);
    EXPECT_EQ(keystone(square, {0, 10}, {0, infinity}), nullptr);
}

TEST(ZKConvCoordinateKeystone, equalValuesOfAnAxisAreNothing)
{
    EXPECT_EQ(keystone(square, {4, 4}), nullptr);
    EXPECT_EQ(keystone(square, {0, 1}, {4, 4}), nullptr);
    ZKConvCoordinateKeystone converter;
    EXPECT_FALSE(converter.prepareWithOriginLB({0, 0}, {1, 0}, {0, 1}, {1, 1}, 4, 4, 0, 1));
    EXPECT_FALSE(converter.prepareWithOriginLB({0, 0}, {1, 0}, {0, 1}, {1, 1}, 0, 1, 4, 4));
}

TEST(ZKConvCoordinateKeystone, equalityOfValuesIsTestedAfterTheLogarithm)
{
    const double value = 1e300;
    const double neighbour = std::nextafter(value, infinity);
    EXPECT_EQ(keystone(square, {value, neighbour, true}), nullptr);
    EXPECT_EQ(keystone(square, {0, 10}, {value, neighbour, true}), nullptr);
    EXPECT_NE(keystone(square, {value, neighbour, false}), nullptr);
}

TEST(ZKConvCoordinateKeystone, logAxisWithAValueNotAboveZeroIsNothing)
{
    EXPECT_EQ(keystone(square, {0, 10, true}), nullptr);
    EXPECT_EQ(keystone(square, {1, -10, true}), nullptr);
    EXPECT_EQ(keystone(square, {0, 10}, {0, 10, true}), nullptr);
    EXPECT_EQ(keystone(square, {0, 10}, {1, notANumber, true}), nullptr);
}

TEST(ZKConvCoordinateKeystone, logAxesConvertTheirOwnComponent)
{
    const Keystone logX = keystone(trapezoid, {1, 100, true}, {0, 10});
    EXPECT_EQ(logX->convertPointFromCartesian({50, 50}), (FloatPoint{10, 5}));
    EXPECT_EQ(logX->convertPointToCartesian({10, 5}), (FloatPoint{50, 50}));
    const Keystone logY = keystone(trapezoid, {0, 10}, {1, 100, true});
    EXPECT_EQ(logY->convertPointFromCartesian({50, 50}), (FloatPoint{5, 10}));
    EXPECT_EQ(*logY->originValue(), vector(0, 0));
    ASSERT_EQ(logY->logArraySize(), 2);
    EXPECT_EQ(logY->logConversion()[0], 0);
    EXPECT_EQ(logY->logConversion()[1], 1);
}

TEST(ZKConvCoordinateKeystone, flagsAreMadeOnlyWhenAnAxisIsLogarithmic)
{
    EXPECT_EQ(keystone(square)->logArraySize(), 0);
}

TEST(ZKConvCoordinateKeystone, negativeValueOnALogAxisFlowsOnAsNaN)
{
    const auto point = keystone(trapezoid, {1, 100, true})->convertToCartesian(vector(-5, 1));
    ASSERT_TRUE(point.has_value());
    EXPECT_TRUE(std::isnan(point->X()));
}

TEST(ZKConvCoordinateKeystone, theCrossingItselfHasNoValues)
{
    const Keystone converter = keystone(trapezoid);
    EXPECT_FALSE(converter->convertFromCartesian(vector(50, 250)).has_value());
    EXPECT_EQ(converter->convertPointFromCartesian({50, 250}), (FloatPoint{0, 0}));
}

TEST(ZKConvCoordinateKeystone, aLineThatMissesItsAxisHasNoValues)
{
    // On the height of the crossing the line towards it never meets the bottom edge.
    const Keystone converter = keystone(trapezoid);
    EXPECT_FALSE(converter->convertFromCartesian(vector(70, 250)).has_value());
}

TEST(ZKConvCoordinateKeystone, linesThatDoNotCrossHaveNoPicturePoint)
{
    // The top and the right edge are one line: it meets the bottom edge in (100, 0), the left edge
    // in (0, 100). The lines of x = 20, through (200, 0), and of y = 5, through (0, 50), are
    // parallel.
    const Keystone converter = keystone({{0, 0}, {100, 0}, {0, 100}, {50, 50}});
    ASSERT_EQ(converter->crossX(), vector(100, 0));
    ASSERT_EQ(converter->crossY(), vector(0, 100));
    EXPECT_FALSE(converter->convertToCartesian(vector(20, 5)).has_value());
    EXPECT_EQ(converter->convertPointToCartesian({20, 5}), (FloatPoint{0, 0}));
}

TEST(ZKConvCoordinateKeystone, aValueInTheCrossingHasNoLineAndNoPicturePoint)
{
    // The top edge runs down the left edge, so the lines of constant y meet in the corner LB.
    const Keystone converter = keystone({{0, 0}, {100, 0}, {0, 100}, {0, 50}});
    ASSERT_EQ(converter->crossX(), vector(0, 0));
    EXPECT_FALSE(converter->convertToCartesian(vector(5, 0)).has_value());
    EXPECT_TRUE(converter->convertToCartesian(vector(5, 1)).has_value());
}

TEST(ZKConvCoordinateKeystone, vectorOfAnotherDimensionHasNoValues)
{
    EXPECT_FALSE(
        keystone(square)->convertFromCartesian(ZKVector::vectorWithX(1, 1, 1)).has_value());
}

TEST(ZKConvCoordinateKeystone, axisVectorsPointToTheCrossings)
{
    const Keystone converter = keystone(trapezoid);
    std::optional<ZKVector> vectorX;
    std::optional<ZKVector> vectorY;
    converter->getAxisVectorsAt(vector(30, 40), vectorX, vectorY);
    EXPECT_EQ(vectorX, vector(10, 0));
    EXPECT_EQ(vectorY, vector(20, 210));
}

TEST(ZKConvCoordinateKeystone, axisVectorTowardsCrossXWhereTheTopIsNotParallel)
{
    const Keystone converter = keystone({{0, 0}, {100, 0}, {0, 100}, {100, 50}});
    ASSERT_EQ(converter->crossX(), vector(200, 0));
    std::optional<ZKVector> vectorX;
    std::optional<ZKVector> vectorY;
    converter->getAxisVectorsAt(vector(30, 40), vectorX, vectorY);
    EXPECT_EQ(vectorX, vector(170, -40));
    EXPECT_EQ(vectorY, vector(0, 10));
}

TEST(ZKConvCoordinateKeystone, basisHoldsOnlyTheDirectionOfY)
{
    std::vector<ZKVector> basis{vector(1, 1), vector(2, 2)};
    keystone(trapezoid)->getAxisVectorsAt(vector(30, 40), basis);
    ASSERT_EQ(basis.size(), 1U);
    EXPECT_EQ(basis.front(), vector(20, 210));
}

TEST(ZKConvCoordinateKeystone, identicalInputGivesEqualConverters)
{
    EXPECT_TRUE(
        keystone(generalQuadrilateral)->isEqualConverterAs(*keystone(generalQuadrilateral)));
}

TEST(ZKConvCoordinateKeystone, originValueIsComparedExactly)
{
    // The units of the two differ far less than the tolerance, and so do the origin values.
    const Keystone converter = keystone(trapezoid, {1, 10}, {1, 10});
    EXPECT_FALSE(converter->isEqualConverterAs(*keystone(trapezoid, {1 + 1e-9, 10}, {1, 10})));
    EXPECT_FALSE(converter->isEqualConverterAs(*keystone(trapezoid, {1, 10}, {1 + 1e-9, 10})));
    EXPECT_TRUE(converter->isEqualConverterAs(*keystone(trapezoid, {1, 10 + 1e-9}, {1, 10})));
}

TEST(ZKConvCoordinateKeystone, unitsAreComparedWithinTheTolerance)
{
    EXPECT_TRUE(keystone(trapezoid, {0, 10.001})->isEqualConverterAs(*keystone(trapezoid)));
    EXPECT_FALSE(keystone(trapezoid, {0, 10.01})->isEqualConverterAs(*keystone(trapezoid)));
    EXPECT_TRUE(
        keystone(trapezoid, {0, 10}, {0, 10.001})->isEqualConverterAs(*keystone(trapezoid)));
    EXPECT_FALSE(
        keystone(trapezoid, {0, 10}, {0, 10.01})->isEqualConverterAs(*keystone(trapezoid)));
}

TEST(ZKConvCoordinateKeystone, originIsComparedWithinTheTolerance)
{
    const auto shifted = [](float by) {
        return keystone({{100 + by, 100}, {200 + by, 100}, {100 + by, 200}, {200 + by, 200}});
    };
    EXPECT_TRUE(shifted(0)->isEqualConverterAs(*shifted(0.01F)));
    EXPECT_FALSE(shifted(0)->isEqualConverterAs(*shifted(0.1F)));
}

TEST(ZKConvCoordinateKeystone, crossingsAreComparedWithinTheTolerance)
{
    Corners moved = trapezoid;
    moved.rightTop.x += 0.001F;
    EXPECT_TRUE(keystone(trapezoid)->isEqualConverterAs(*keystone(moved)));
    moved.rightTop.x += 1;
    EXPECT_FALSE(keystone(trapezoid)->isEqualConverterAs(*keystone(moved)));
}

TEST(ZKConvCoordinateKeystone, parallelAndCrossingEdgesAreNeverEqual)
{
    Corners almost = square;
    almost.rightTop.y = std::nextafter(100.0F, 200.0F);
    EXPECT_FALSE(keystone(square)->isEqualConverterAs(*keystone(almost)));
    EXPECT_FALSE(keystone(almost)->isEqualConverterAs(*keystone(square)));
    almost = square;
    almost.rightTop.x = std::nextafter(100.0F, 200.0F);
    EXPECT_FALSE(keystone(square)->isEqualConverterAs(*keystone(almost)));
    EXPECT_FALSE(keystone(almost)->isEqualConverterAs(*keystone(square)));
}

TEST(ZKConvCoordinateKeystone, linearAndLogOnTheSameCornersAreEqual)
{
    EXPECT_TRUE(
        keystone(trapezoid, {0, 2})->isEqualConverterAs(*keystone(trapezoid, {1, 100, true})));
}

TEST(ZKConvCoordinateKeystone, notPreparedIsEqualToItselfOnly)
{
    const ZKConvCoordinateKeystone converter;
    EXPECT_TRUE(converter.isEqualConverterAs(converter));
    EXPECT_FALSE(converter.isEqualConverterAs(ZKConvCoordinateKeystone()));
    EXPECT_FALSE(converter.isEqualConverterAs(*keystone(square)));
    EXPECT_FALSE(keystone(square)->isEqualConverterAs(converter));
}

TEST(ZKConvCoordinateKeystone, conversionHasTheBitsOfTheLineCrossings)
{
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> coordinate(-300, 700);
    const Corners topOnly{{0, 0}, {100, 0}, {0, 100}, {100, 70}};
    for (const auto &converter :
         {keystone(square), keystone(trapezoid, {1, 100, true}), keystone(topOnly),
          keystone(generalQuadrilateral, {3, -8}, {0.1, 1e4, true})}) {
        for (int i = 0; i < 1000; ++i) {
            const ZKVector point = vector(coordinate(random), coordinate(random));
            const auto values = converter->convertFromCartesian(point);
            ASSERT_TRUE(values.has_value());
            ASSERT_TRUE(areIdentical(values, convertedByLines(*converter, point)));
            ASSERT_TRUE(areIdentical(converter->convertToCartesian(*values),
                                     convertedBackByLines(*converter, *values)));
        }
    }
}

TEST(ZKConvCoordinateKeystone, archivesParallelFlagsVectorsLinesAndTheCrossingThatExists)
{
    const std::vector<ArchivedItem> expected{
        std::int32_t{1},
        std::int32_t{0}, // base, no flags
        std::int8_t{1},
        std::int8_t{0}, // paraX, paraY
        std::int32_t{2},
        0.0,
        0.0, // origin
        std::int32_t{2},
        1.0,
        2.0, // originValue
        std::int32_t{2},
        10.0,
        0.0, // unitX
        std::int32_t{2},
        2.0,
        10.0, // unitY
        std::int32_t{2},
        0.0,
        0.0,
        std::int32_t{2},
        100.0,
        0.0, // axisX
        std::int32_t{2},
        0.0,
        0.0,
        std::int32_t{2},
        20.0,
        100.0, // axisY
        std::int32_t{2},
        50.0,
        250.0, // crossY
    };
    const Keystone converter = keystone(trapezoid, {1, 11}, {2, 12});
    EXPECT_EQ(archived(*converter), expected);
    EXPECT_EQ(converter->className(), "ZKConvCoordinateKeystone");
}

TEST(ZKConvCoordinateKeystone, archivesCrossXBeforeCrossY)
{
    const Keystone converter = keystone(generalQuadrilateral);
    const auto items = archived(*converter);
    ASSERT_EQ(items.size(), 2U + 2U + 4 * 3U + 2 * 6U + 2 * 3U);
    EXPECT_EQ(items[items.size() - 5], ArchivedItem{converter->crossX()->X()});
    EXPECT_EQ(items[items.size() - 2], ArchivedItem{converter->crossY()->X()});
}

TEST(ZKConvCoordinateKeystone, archivesNoCrossingOfASquare)
{
    EXPECT_EQ(archived(*keystone(square)).size(), 2U + 2U + 4 * 3U + 2 * 6U);
}

TEST(ZKConvCoordinateKeystone, reopenedConverterIsTheSame)
{
    std::mt19937_64 random(6);
    std::uniform_real_distribution<double> coordinate(-300, 700);
    for (const auto &converter :
         {keystone(square), keystone(trapezoid), keystone(generalQuadrilateral, {1, 10, true})}) {
        const Keystone again = reopened(*converter);
        ASSERT_NE(again, nullptr);
        EXPECT_TRUE(again->isEqualConverterAs(*converter));
        EXPECT_EQ(again->paraX(), converter->paraX());
        EXPECT_EQ(again->paraY(), converter->paraY());
        EXPECT_EQ(again->crossX(), converter->crossX());
        EXPECT_EQ(again->crossY(), converter->crossY());
        for (int i = 0; i < 200; ++i) {
            const ZKVector point = vector(coordinate(random), coordinate(random));
            ASSERT_TRUE(areIdentical(again->convertFromCartesian(point),
                                     converter->convertFromCartesian(point)));
        }
    }
}
