#include "conversion/ZKConvCoordinate.h"

#include "SampleConverters.h"
#include "archiving/ArchiveTree.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <type_traits>

using namespace sampleconverters;

namespace {

/// A base converter with flags for its components.
template <std::size_t Count>
std::shared_ptr<const ZKConvCoordinate> withFlags(const std::array<bool, Count> &flags)
{
    auto converter = std::make_shared<ZKConvCoordinate>();
    converter->setLogConversion(flags);
    return converter;
}

} // namespace

TEST(ZKConvCoordinate, newBaseHasTypeMinusOneAndNoFlags)
{
    const ZKConvCoordinate base;
    EXPECT_EQ(base.converterType(), -1);
    EXPECT_EQ(base.logArraySize(), 0);
    EXPECT_TRUE(base.logConversion().empty());
}

TEST(ZKConvCoordinate, typeCodesAreThoseOfTheAxisTypes)
{
    EXPECT_EQ(ZKConvCoordinateAffine().converterType(), 0);
    EXPECT_EQ(ZKConvCoordinateKeystone().converterType(), 1);
    EXPECT_EQ(ZKConvCoordinatePolar().converterType(), 2);
}

TEST(ZKConvCoordinate, baseConvertsNothing)
{
    const ZKConvCoordinate base;
    EXPECT_FALSE(base.convertToCartesian(vector(1, 2)).has_value());
    EXPECT_FALSE(base.convertFromCartesian(vector(1, 2)).has_value());
}

TEST(ZKConvCoordinate, pointFormsOfAFailedConversionAreZero)
{
    const ZKConvCoordinate base;
    EXPECT_EQ(base.convertPointToCartesian({3, 4}), (FloatPoint{0, 0}));
    EXPECT_EQ(base.convertPointFromCartesian({3, 4}), (FloatPoint{0, 0}));
}

TEST(ZKConvCoordinate, baseLeavesTheBasisArrayAlone)
{
    std::vector<ZKVector> basis{vector(7, 8)};
    ZKConvCoordinate().getAxisVectorsAt(vector(1, 2), basis);
    ASSERT_EQ(basis.size(), 1U);
    EXPECT_EQ(basis.front(), vector(7, 8));
}

TEST(ZKConvCoordinate, baseLeavesTheAxisVectorsAlone)
{
    std::optional<ZKVector> vectorX = vector(7, 8);
    std::optional<ZKVector> vectorY;
    ZKConvCoordinate().getAxisVectorsAt(vector(1, 2), vectorX, vectorY);
    ASSERT_TRUE(vectorX.has_value());
    EXPECT_EQ(*vectorX, vector(7, 8));
    EXPECT_FALSE(vectorY.has_value());
}

TEST(ZKConvCoordinate, outPointsStayWhenNoAxisVectorCameBack)
{
    FloatPoint basis1{1.5F, 2.5F};
    FloatPoint basis2{3.5F, 4.5F};
    ZKConvCoordinate().getAxisVectorsAtPoint({9, 9}, basis1, basis2);
    EXPECT_EQ(basis1, (FloatPoint{1.5F, 2.5F}));
    EXPECT_EQ(basis2, (FloatPoint{3.5F, 4.5F}));
}

TEST(ZKConvCoordinate, convertersThatAreNotBuiltGiveNoAxisVectors)
{
    FloatPoint basis1{1.5F, 2.5F};
    FloatPoint basis2{3.5F, 4.5F};
    ZKConvCoordinateAffine().getAxisVectorsAtPoint({9, 9}, basis1, basis2);
    ZKConvCoordinateKeystone().getAxisVectorsAtPoint({9, 9}, basis1, basis2);
    ZKConvCoordinatePolar().getAxisVectorsAtPoint({9, 9}, basis1, basis2);
    EXPECT_EQ(basis1, (FloatPoint{1.5F, 2.5F}));
    EXPECT_EQ(basis2, (FloatPoint{3.5F, 4.5F}));
}

TEST(ZKConvCoordinate, axisVectorsThatCameBackAreStoredAsFloatPoints)
{
    FloatPoint basis1{1.5F, 2.5F};
    FloatPoint basis2{3.5F, 4.5F};
    affine({0, 10}, {0, 3})->getAxisVectorsAtPoint({9, 9}, basis1, basis2);
    EXPECT_EQ(basis1, (FloatPoint{40, 0}));
    EXPECT_EQ(basis2, (FloatPoint{0, -100}));
}

TEST(ZKConvCoordinate, basesAreEqualByTheirTypeCode)
{
    const ZKConvCoordinate base;
    EXPECT_TRUE(base.isEqualConverterAs(ZKConvCoordinate()));
    EXPECT_FALSE(base.isEqualConverterAs(*affine()));
}

TEST(ZKConvCoordinate, kindsAreNeverEqualToEachOther)
{
    const auto parallel = ZKConvCoordinateAffine::convCoordWithX0Point(
        {0, 0}, {100, 0}, 0, 10, false, {0, 0}, {0, 100}, 0, 10, false);
    const auto quadrangle = keystone(square);
    const auto circle = polar({0, 10}, 0);
    EXPECT_FALSE(parallel->isEqualConverterAs(*quadrangle));
    EXPECT_FALSE(quadrangle->isEqualConverterAs(*parallel));
    EXPECT_FALSE(circle->isEqualConverterAs(*quadrangle));
    EXPECT_FALSE(quadrangle->isEqualConverterAs(*circle));
    EXPECT_FALSE(circle->isEqualConverterAs(*parallel));
    EXPECT_FALSE(parallel->isEqualConverterAs(*circle));
}

TEST(ZKConvCoordinate, logTouchesFlaggedComponentsOnly)
{
    const auto converter = withFlags(std::array{false, true});
    EXPECT_EQ(converter->log10Conversion(vector(100, 1000)), vector(100, 3));
    EXPECT_EQ(converter->power10Conversion(vector(2, 3)), vector(2, 1000));
}

TEST(ZKConvCoordinate, logWithoutFlagsIsAPlainCopy)
{
    const ZKConvCoordinate base;
    EXPECT_EQ(base.log10Conversion(vector(100, -5)), vector(100, -5));
    EXPECT_EQ(base.power10Conversion(vector(100, -5)), vector(100, -5));
}

TEST(ZKConvCoordinate, logLeavesItsArgumentAlone)
{
    const ZKVector values = vector(100, 1000);
    (void)withFlags(std::array{true, true})->log10Conversion(values);
    EXPECT_EQ(values, vector(100, 1000));
}

TEST(ZKConvCoordinate, fewerFlagsThanComponentsLeaveTheRestLinear)
{
    const auto converter = withFlags(std::array{true});
    EXPECT_EQ(converter->log10Conversion(ZKVector::vectorWithX(100, 100, 100)),
              ZKVector::vectorWithX(2, 100, 100));
}

TEST(ZKConvCoordinate, moreFlagsThanComponentsAreNotUsed)
{
    const auto converter = withFlags(std::array{false, true, true, true, true});
    EXPECT_EQ(converter->log10Conversion(vector(100, 100)), vector(100, 2));
    EXPECT_EQ(converter->logArraySize(), 5);
}

TEST(ZKConvCoordinate, logOfZeroIsMinusInfinityAndOfANegativeNumberNaN)
{
    const ZKVector result = withFlags(std::array{true, true})->log10Conversion(vector(0, -5));
    EXPECT_EQ(result.X(), -infinity);
    EXPECT_TRUE(std::isnan(result.Y()));
}

TEST(ZKConvCoordinate, newFlagsReplaceTheOldOnes)
{
    ZKConvCoordinate converter;
    converter.setLogConversion(std::array{true, true, true});
    converter.setLogConversion(std::array{false});
    EXPECT_EQ(converter.logArraySize(), 1);
    EXPECT_EQ(converter.log10Conversion(vector(100, 100)), vector(100, 100));
    converter.setLogConversion({});
    EXPECT_EQ(converter.logArraySize(), 0);
}

TEST(ZKConvCoordinate, archivesTypeThenFlagCountThenOneCharPerFlag)
{
    const auto converter = withFlags(std::array{true, false, true});
    const std::vector<ArchivedItem> expected{std::int32_t{-1}, std::int32_t{3}, std::int8_t{1},
                                             std::int8_t{0}, std::int8_t{1}};
    EXPECT_EQ(archived(*converter), expected);
    EXPECT_EQ(converter->className(), "ZKConvCoordinate");
}

TEST(ZKConvCoordinate, isNeverCopied)
{
    EXPECT_FALSE(std::is_copy_constructible_v<ZKConvCoordinateAffine>);
    EXPECT_FALSE(std::is_copy_assignable_v<ZKConvCoordinateAffine>);
    EXPECT_FALSE(std::is_move_constructible_v<ZKConvCoordinateAffine>);
}

TEST(ZKConvCoordinate, sharedByTwoNodesOfTheTreeItIsOneObject)
{
    const Affine converter = affine({notANumber, 10}, {0, 3});
    ArchiveDictionary guide;
    ArchiveDictionary series;
    guide.set("converter", ArchiveValue{std::shared_ptr<const Archivable>(converter)});
    series.set("converter", ArchiveValue{std::shared_ptr<const Archivable>(converter)});
    const auto ofGuide =
        std::dynamic_pointer_cast<const ZKConvCoordinate>(guide.objectForKey("converter"));
    const auto ofSeries =
        std::dynamic_pointer_cast<const ZKConvCoordinate>(series.objectForKey("converter"));
    ASSERT_NE(ofGuide, nullptr);
    EXPECT_EQ(ofGuide, ofSeries);
    EXPECT_TRUE(ofGuide->isEqualConverterAs(*ofSeries));
}

TEST(ZKConvCoordinate, theVerySameObjectIsEqualEvenWithNaNInside)
{
    const Affine parallel = affine({notANumber, 10}, {0, 3});
    const Keystone quadrangle = keystone(square, {notANumber, 10});
    const Polar circle = polar({notANumber, 10}, 0);
    EXPECT_TRUE(parallel->isEqualConverterAs(*parallel));
    EXPECT_TRUE(quadrangle->isEqualConverterAs(*quadrangle));
    EXPECT_TRUE(circle->isEqualConverterAs(*circle));
    EXPECT_FALSE(parallel->isEqualConverterAs(*affine({notANumber, 10}, {0, 3})));
    EXPECT_FALSE(quadrangle->isEqualConverterAs(*keystone(square, {notANumber, 10})));
    EXPECT_FALSE(circle->isEqualConverterAs(*polar({notANumber, 10}, 0)));
}
