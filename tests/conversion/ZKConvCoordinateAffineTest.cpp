#include "conversion/ZKConvCoordinateAffine.h"

#include "SampleConverters.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

using namespace sampleconverters;

namespace {

/// A converter whose axes are skewed and whose anchors lie nowhere near the graph's origin.
Affine skewed(bool logX = false, bool logY = false)
{
    return ZKConvCoordinateAffine::convCoordWithX0Point({137, 55}, {611, 90}, 2, 300, logX,
                                                        {70, 110}, {20, 480}, 0.5, 20, logY);
}

} // namespace

TEST(ZKConvCoordinateAffine, convertsAClickToValues)
{
    EXPECT_EQ(affine()->convertPointFromCartesian({300, 250}), (FloatPoint{5, 1.5F}));
}

TEST(ZKConvCoordinateAffine, convertsValuesToThePicture)
{
    EXPECT_EQ(affine()->convertPointToCartesian({10, 3}), (FloatPoint{500, 100}));
}

TEST(ZKConvCoordinateAffine, halfWayOnALogAxisIsTheGeometricMean)
{
    const Affine converter = affine({1, 100, true});
    EXPECT_EQ(converter->convertPointFromCartesian({300, 250}), (FloatPoint{10, 1.5F}));
    EXPECT_EQ(converter->convertPointToCartesian({10, 1.5F}), (FloatPoint{300, 250}));
}

TEST(ZKConvCoordinateAffine, logYConvertsYOnly)
{
    const Affine converter = affine({0, 10}, {1, 1000, true});
    const auto values = converter->convertFromCartesian(vector(300, 200));
    ASSERT_TRUE(values.has_value());
    EXPECT_DOUBLE_EQ(values->X(), 5);
    EXPECT_DOUBLE_EQ(values->Y(), 100);
}

TEST(ZKConvCoordinateAffine, logAxisWithAZeroOrNegativeValueIsNothing)
{
    EXPECT_EQ(affine({0, 100, true}), nullptr);
    EXPECT_EQ(affine({100, 0, true}), nullptr);
    EXPECT_EQ(affine({-1, 100, true}), nullptr);
    EXPECT_EQ(affine({0, 10}, {0, 3, true}), nullptr);
    EXPECT_EQ(affine({0, 10}, {3, -1, true}), nullptr);
}

TEST(ZKConvCoordinateAffine, logAxisWithANaNValueIsNothing)
{
    EXPECT_EQ(affine({notANumber, 100, true}), nullptr);
    EXPECT_EQ(affine({1, notANumber, true}), nullptr);
}

TEST(ZKConvCoordinateAffine, linearAxisTakesZeroAndNegativeValues)
{
    EXPECT_NE(affine({-10, 0}, {0, -3}), nullptr);
}

TEST(ZKConvCoordinateAffine, equalValuesOfAnAxisAreNothing)
{
    EXPECT_EQ(affine({4, 4}), nullptr);
    EXPECT_EQ(affine({0, 10}, {4, 4}), nullptr);
    EXPECT_EQ(affine({4, 4, true}), nullptr);
}

TEST(ZKConvCoordinateAffine, equalityOfValuesIsTestedAfterTheLogarithm)
{
    const double value = 1e300;
    const double neighbour = std::nextafter(value, infinity);
    ASSERT_EQ(std::log10(value), std::log10(neighbour));
    EXPECT_EQ(affine({value, neighbour, true}), nullptr);
    EXPECT_EQ(affine({0, 10}, {value, neighbour, true}), nullptr);
}

TEST(ZKConvCoordinateAffine, equalityOfValuesIsExact)
{
    EXPECT_NE(affine({1, std::nextafter(1.0, 2.0)}), nullptr);
}

TEST(ZKConvCoordinateAffine, parallelAxesAreNothing)
{
    EXPECT_EQ(ZKConvCoordinateAffine::convCoordWithX0Point({0, 0}, {100, 50}, 0, 1, false, {0, 40},
                                                           {100, 90}, 0, 1, false),
              nullptr);
}

TEST(ZKConvCoordinateAffine, coincidentAnchorsAreNothing)
{
    EXPECT_EQ(ZKConvCoordinateAffine::convCoordWithX0Point({5, 5}, {5, 5}, 0, 1, false, {0, 0},
                                                           {0, 100}, 0, 1, false),
              nullptr);
}

TEST(ZKConvCoordinateAffine, axesThatAreNearlyParallelAreAccepted)
{
    EXPECT_NE(ZKConvCoordinateAffine::convCoordWithX0Point({0, 0}, {100, 50}, 0, 1, false, {0, 40},
                                                           {100, 90.00001F}, 0, 1, false),
              nullptr);
}

TEST(ZKConvCoordinateAffine, originIsTheCrossingNotAnAnchor)
{
    const auto converter = ZKConvCoordinateAffine::convCoordWithX0Point(
        {100, 50}, {500, 50}, 2, 10, false, {80, 100}, {80, 400}, 1, 4, false);
    ASSERT_NE(converter, nullptr);
    EXPECT_EQ(*converter->origin(), vector(0, 0));
    EXPECT_EQ(converter->convertPointFromCartesian({50, 100}), (FloatPoint{1, 1}));
}

TEST(ZKConvCoordinateAffine, axesWhoseZerosDoNotCoincideAreConvertedByTheirCrossing)
{
    // The X axis runs along y = 100 and the Y axis along x = 300; x is 0 at (200, 100), y is 0 at
    // (300, 150), so the lines of x = 0 and of y = 0 cross in (200, 150).
    const auto converter = ZKConvCoordinateAffine::convCoordWithX0Point(
        {200, 100}, {400, 100}, 0, 2, false, {300, 150}, {300, 350}, 0, 4, false);
    ASSERT_NE(converter, nullptr);
    EXPECT_EQ(*converter->origin(), vector(200, 150));
    EXPECT_EQ(converter->convertPointFromCartesian({200, 100}), (FloatPoint{0, -1}));
}

TEST(ZKConvCoordinateAffine, originLiesOnTheLineOfXZeroByItsOwnArithmetic)
{
    const auto converter = ZKConvCoordinateAffine::convCoordWithX0Point(
        {0.1F, 0.7F}, {2.9F, 1.9F}, 0, 7, false, {5.3F, 1.1F}, {5.3F, 8.9F}, 0, 3, false);
    ASSERT_NE(converter, nullptr);
    EXPECT_EQ(converter->origin()->X(), 0.10000000149011612);
}

TEST(ZKConvCoordinateAffine, originOfALogAxisIsWhereItsValueIsOne)
{
    const Affine converter = affine({10, 1000, true}, {0, 3});
    EXPECT_EQ(*converter->origin(), vector(-100, 400));
    const auto point = converter->convertToCartesian(vector(1, 0));
    ASSERT_TRUE(point.has_value());
    EXPECT_EQ(*point, vector(-100, 400));
}

TEST(ZKConvCoordinateAffine, matrixColumnsAreTheUnitsOfTheAxes)
{
    const Affine converter = affine({0, 10}, {0, 3});
    EXPECT_EQ(*converter->xferMatrixToCartesian(), ZKMatrix::matrixWithA11(40, 0, 0, -100));
    EXPECT_EQ(*converter->xferMatrixFromCartesian(), ZKMatrix::matrixWithA11(0.025, 0, 0, -0.01));
}

TEST(ZKConvCoordinateAffine, flagsAreMadeOnlyWhenAnAxisIsLogarithmic)
{
    EXPECT_EQ(affine()->logArraySize(), 0);
    const Affine logY = affine({0, 10}, {1, 10, true});
    ASSERT_EQ(logY->logArraySize(), 2);
    EXPECT_EQ(logY->logConversion()[0], 0);
    EXPECT_EQ(logY->logConversion()[1], 1);
}

TEST(ZKConvCoordinateAffine, negativeValueOnALogAxisFlowsOnAsNaN)
{
    const auto point = affine({1, 100, true})->convertToCartesian(vector(-5, 1));
    ASSERT_TRUE(point.has_value());
    EXPECT_TRUE(std::isnan(point->X()));
}

TEST(ZKConvCoordinateAffine, zeroOnALogAxisFlowsOnAsInfinity)
{
    const auto point = affine({1, 100, true})->convertToCartesian(vector(0, 1));
    ASSERT_TRUE(point.has_value());
    EXPECT_EQ(point->X(), -infinity);
}

TEST(ZKConvCoordinateAffine, farOutsideALogAxisIsInfinite)
{
    const auto values = affine({1, 100, true})->convertFromCartesian(vector(1e6, 1));
    ASSERT_TRUE(values.has_value());
    EXPECT_EQ(values->X(), infinity);
}

TEST(ZKConvCoordinateAffine, axisVectorsAreTheMatrixColumnsEverywhere)
{
    std::vector<ZKVector> basis;
    const Affine converter = affine();
    converter->getAxisVectorsAt(vector(77, -8), basis);
    ASSERT_EQ(basis.size(), 2U);
    EXPECT_EQ(basis[0], vector(40, 0));
    EXPECT_EQ(basis[1], vector(0, -100));
    std::optional<ZKVector> vectorX;
    std::optional<ZKVector> vectorY;
    converter->getAxisVectorsAt(vector(-3, 1000), vectorX, vectorY);
    EXPECT_EQ(vectorX, basis[0]);
    EXPECT_EQ(vectorY, basis[1]);
}

TEST(ZKConvCoordinateAffine, buildingFailsBelowTwoDimensions)
{
    const auto one = ZKVector::vectorWithDimension(1).value();
    EXPECT_EQ(ZKConvCoordinateAffine::convCoordWithOrigin(one, std::array{one}), nullptr);
}

TEST(ZKConvCoordinateAffine, buildingNeedsAsManyBasisVectorsAsDimensions)
{
    const auto flat = std::array{vector(1, 0)};
    const auto threeVectors = std::array{vector(1, 0), vector(0, 1), vector(1, 1)};
    const auto inSpace = std::array{ZKVector::vectorWithX(1, 0, 0), ZKVector::vectorWithX(0, 1, 0)};
    EXPECT_EQ(ZKConvCoordinateAffine::convCoordWithOrigin(vector(0, 0), flat), nullptr);
    EXPECT_EQ(ZKConvCoordinateAffine::convCoordWithOrigin(vector(0, 0), threeVectors), nullptr);
    EXPECT_EQ(ZKConvCoordinateAffine::convCoordWithOrigin(vector(0, 0), inSpace), nullptr);
    EXPECT_EQ(ZKConvCoordinateAffine::convCoordWithOrigin(vector(0, 0), {}), nullptr);
}

TEST(ZKConvCoordinateAffine, buildingFailsForParallelBasisVectors)
{
    EXPECT_EQ(ZKConvCoordinateAffine::convCoordWithOrigin(vector(0, 0),
                                                          std::array{vector(1, 2), vector(2, 4)}),
              nullptr);
}

TEST(ZKConvCoordinateAffine, failedBuildingConvertsNothing)
{
    ZKConvCoordinateAffine converter;
    ASSERT_TRUE(
        converter.createXferMatrixWithOrigin(vector(1, 1), std::array{vector(1, 0), vector(0, 1)}));
    EXPECT_FALSE(
        converter.createXferMatrixWithOrigin(vector(0, 0), std::array{vector(1, 2), vector(2, 4)}));
    EXPECT_FALSE(converter.convertToCartesian(vector(1, 1)).has_value());
    EXPECT_FALSE(converter.convertFromCartesian(vector(1, 1)).has_value());
}

TEST(ZKConvCoordinateAffine, convertsInThreeDimensionsToo)
{
    const auto converter = ZKConvCoordinateAffine::convCoordWithOrigin(
        ZKVector::vectorWithX(1, 2, 3),
        std::array{ZKVector::vectorWithX(2, 0, 0), ZKVector::vectorWithX(0, 4, 0),
                   ZKVector::vectorWithX(0, 0, 8)});
    ASSERT_NE(converter, nullptr);
    EXPECT_EQ(converter->convertToCartesian(ZKVector::vectorWithX(1, 1, 1)),
              ZKVector::vectorWithX(3, 6, 11));
    EXPECT_EQ(converter->convertFromCartesian(ZKVector::vectorWithX(3, 6, 11)),
              ZKVector::vectorWithX(1, 1, 1));
    EXPECT_EQ(converter->convertPointFromCartesian({3, 6}), (FloatPoint{0, 0}));
}

TEST(ZKConvCoordinateAffine, vectorOfAnotherDimensionIsNothing)
{
    EXPECT_FALSE(affine()->convertToCartesian(ZKVector::vectorWithX(1, 1, 1)).has_value());
    EXPECT_FALSE(affine()->convertFromCartesian(ZKVector::vectorWithX(1, 1, 1)).has_value());
}

TEST(ZKConvCoordinateAffine, identicalInputGivesEqualConverters)
{
    EXPECT_TRUE(affine()->isEqualConverterAs(*affine()));
    EXPECT_FALSE(affine()->isEqualConverterAs(*affine({0, 11})));
    EXPECT_FALSE(affine()->isEqualConverterAs(*affine({1, 11})));
}

TEST(ZKConvCoordinateAffine, linearAndLogOnTheSameAnchorsAreEqual)
{
    EXPECT_TRUE(affine({0, 2})->isEqualConverterAs(*affine({1, 100, true})));
    EXPECT_TRUE(affine({1, 100, true})->isEqualConverterAs(*affine({0, 2})));
}

TEST(ZKConvCoordinateAffine, equalityOfMatricesScalesWithTheDeterminant)
{
    const auto moved = [](double valueX, double valueY) {
        return ZKConvCoordinateAffine::convCoordWithX0Point({100, 400}, {500.001F, 400}, 0, valueX,
                                                            false, {100, 400}, {100, 100}, 0,
                                                            valueY, false);
    };
    EXPECT_FALSE(affine({0, 10}, {0, 3})->isEqualConverterAs(*moved(10, 3)));
    EXPECT_TRUE(affine({0, 1e4}, {0, 3e3})->isEqualConverterAs(*moved(1e4, 3e3)));
}

TEST(ZKConvCoordinateAffine, notBuiltIsEqualToItselfOnly)
{
    const ZKConvCoordinateAffine converter;
    EXPECT_TRUE(converter.isEqualConverterAs(converter));
    EXPECT_FALSE(converter.isEqualConverterAs(ZKConvCoordinateAffine()));
    EXPECT_FALSE(converter.isEqualConverterAs(*affine()));
}

TEST(ZKConvCoordinateAffine, conversionHasTheBitsOfTheMatrixProducts)
{
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> coordinate(-500, 1500);
    for (const auto &converter : {skewed(), skewed(true, false), skewed(true, true)}) {
        for (int i = 0; i < 1000; ++i) {
            const ZKVector point = vector(coordinate(random), coordinate(random));
            const ZKVector expectedValues =
                converter->power10Conversion(converter->xferMatrixFromCartesian()
                                                 ->mulVector(point.subVector(*converter->origin()))
                                                 .value());
            const ZKVector values = converter->convertFromCartesian(point).value();
            ASSERT_TRUE(areIdentical(values, expectedValues));
            const ZKVector expectedPoint = converter->xferMatrixToCartesian()
                                               ->mulVector(converter->log10Conversion(values))
                                               .value()
                                               .addVector(*converter->origin());
            ASSERT_TRUE(areIdentical(converter->convertToCartesian(values), expectedPoint));
        }
    }
}

TEST(ZKConvCoordinateAffine, zeroAtTheOriginHasTheSignOfTheMatrixProduct)
{
    // Both elements of the inverse's first row are negative: their products with 0 are -0.
    const auto converter = ZKConvCoordinateAffine::convCoordWithOrigin(
        vector(5, 5), std::array{vector(-10, -30), vector(20, -100)});
    ASSERT_NE(converter, nullptr);
    const auto values = converter->convertFromCartesian(vector(5, 5));
    ASSERT_TRUE(values.has_value());
    EXPECT_EQ(values->X(), 0);
    EXPECT_FALSE(std::signbit(values->X()));
}

TEST(ZKConvCoordinateAffine, archivesOriginThenBothMatricesInline)
{
    const std::vector<ArchivedItem> expected{
        std::int32_t{0}, std::int32_t{2}, std::int8_t{0},  std::int8_t{1}, // base
        std::int32_t{2}, 100.0,           400.0,                           // origin
        std::int32_t{2}, std::int32_t{2}, std::int32_t{4}, 40.0,           0.0, 0.0, -100.0, // to
        std::int32_t{2}, std::int32_t{2}, std::int32_t{4}, 0.025,          0.0, 0.0, -0.01,  // from
    };
    const Affine converter = affine({0, 10}, {1, 1000, true});
    EXPECT_EQ(archived(*converter), expected);
    EXPECT_EQ(converter->className(), "ZKConvCoordinateAffine");
}

TEST(ZKConvCoordinateAffine, reopenedConverterConvertsEveryPointIdentically)
{
    const Affine converter = skewed(false, true);
    const Affine again = reopened(*converter);
    ASSERT_NE(again, nullptr);
    EXPECT_TRUE(again->isEqualConverterAs(*converter));
    std::mt19937_64 random(4);
    std::uniform_real_distribution<double> coordinate(-500, 1500);
    for (int i = 0; i < 1000; ++i) {
        const ZKVector point = vector(coordinate(random), coordinate(random));
        ASSERT_TRUE(areIdentical(again->convertFromCartesian(point),
                                 converter->convertFromCartesian(point)));
        ASSERT_TRUE(
            areIdentical(again->convertToCartesian(point), converter->convertToCartesian(point)));
    }
}
