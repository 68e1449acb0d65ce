#include "conversion/ConverterArchive.h"

#include "SampleConverters.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using namespace sampleconverters;

namespace {

using Items = std::vector<ArchivedItem>;

Items with(Items items, std::size_t index, ArchivedItem item)
{
    items.at(index) = std::move(item);
    return items;
}

/// Every class with a converter that has log flags.
std::vector<std::shared_ptr<const ZKConvCoordinate>> oneOfEachClass()
{
    return {std::make_shared<ZKConvCoordinate>(), affine({1, 10, true}),
            keystone(generalQuadrilateral, {1, 10, true}), polar({1, 10, true}, 0)};
}

} // namespace

TEST(ConverterArchive, classNameDecidesTheClass)
{
    for (const auto &converter : oneOfEachClass()) {
        const auto again = decoded(converter->className(), archived(*converter));
        ASSERT_NE(again, nullptr) << converter->className();
        EXPECT_EQ(again->className(), converter->className());
        EXPECT_EQ(again->converterType(), converter->converterType());
    }
}

TEST(ConverterArchive, whatIsReadIsWrittenAgain)
{
    for (const auto &converter : oneOfEachClass()) {
        const Items items = archived(*converter);
        EXPECT_EQ(archived(*decoded(converter->className(), items)), items);
    }
}

TEST(ConverterArchive, anyFlagThatIsNotZeroIsSetAndKept)
{
    const Items items = with(archived(*affine({1, 100, true})), 2, std::int8_t{-7});
    const auto converter = decoded("ZKConvCoordinateAffine", items);
    ASSERT_NE(converter, nullptr);
    EXPECT_EQ(converter->convertPointFromCartesian({300, 250}).x, 10);
    EXPECT_EQ(archived(*converter), items);
}

TEST(ConverterArchive, valuesBehindTheConverterStay)
{
    for (const auto &converter : oneOfEachClass()) {
        Items items = archived(*converter);
        items.emplace_back(std::int32_t{4711});
        SequentialDecoder coder(items);
        EXPECT_NE(converterarchive::converterWithCoder(converter->className(), coder), nullptr);
        EXPECT_EQ(coder.decodeInt(), 4711);
        EXPECT_FALSE(coder.failed());
    }
}

TEST(ConverterArchive, unknownClassIsRefused)
{
    const Items items = archived(*affine());
    SequentialDecoder coder(items);
    EXPECT_EQ(converterarchive::converterWithCoder("ZKConvCoordinateSpherical", coder), nullptr);
    EXPECT_TRUE(coder.failed());
}

TEST(ConverterArchive, typeCodeOfAnotherClassIsRefused)
{
    for (const auto &converter : oneOfEachClass()) {
        for (std::int32_t type = -2; type < 4; ++type) {
            if (type == converter->converterType())
                continue;
            const Items items = with(archived(*converter), 0, type);
            EXPECT_EQ(decoded(converter->className(), items), nullptr)
                << converter->className() << " with type " << type;
        }
    }
}

TEST(ConverterArchive, cutAnywhereIsRefused)
{
    for (const auto &converter : oneOfEachClass()) {
        const Items items = archived(*converter);
        for (std::size_t length = 0; length < items.size(); ++length) {
            const Items cut(items.begin(), items.begin() + static_cast<std::ptrdiff_t>(length));
            SequentialDecoder coder(cut);
            EXPECT_EQ(converterarchive::converterWithCoder(converter->className(), coder), nullptr)
                << converter->className() << " cut to " << length;
            EXPECT_TRUE(coder.failed());
        }
    }
}

TEST(ConverterArchive, valueOfAnotherTypeIsRefused)
{
    for (const auto &converter : oneOfEachClass()) {
        const Items items = archived(*converter);
        for (std::size_t i = 0; i < items.size(); ++i)
            EXPECT_EQ(decoded(converter->className(), with(items, i, ArchivedPoint{1, 2})), nullptr)
                << converter->className() << " value " << i;
    }
}

TEST(ConverterArchive, flagCountBeyondTheValuesIsRefused)
{
    const Items items = archived(*affine({1, 10, true}));
    EXPECT_EQ(decoded("ZKConvCoordinateAffine", with(items, 1, std::int32_t{0x7fffffff})), nullptr);
    EXPECT_EQ(decoded("ZKConvCoordinateAffine", with(items, 1, std::int32_t{-1})), nullptr);
    EXPECT_EQ(decoded("ZKConvCoordinateAffine", with(items, 1, std::int32_t{3})), nullptr);
}

TEST(ConverterArchive, hugeDimensionIsRefused)
{
    for (const std::int32_t count : {0x7fffffff, -1, 0}) {
        EXPECT_EQ(decoded("ZKConvCoordinateAffine", with(archived(*affine()), 2, count)), nullptr);
        EXPECT_EQ(decoded("ZKConvCoordinatePolar", with(archived(*polar({0, 1}, 0)), 2, count)),
                  nullptr);
        EXPECT_EQ(decoded("ZKConvCoordinateKeystone", with(archived(*keystone(square)), 4, count)),
                  nullptr);
    }
}

TEST(ConverterArchive, hugeMatrixIsRefused)
{
    const Items items = archived(*affine());
    for (std::size_t count = 5; count < 8; ++count)
        EXPECT_EQ(decoded("ZKConvCoordinateAffine", with(items, count, std::int32_t{0x7fffffff})),
                  nullptr);
}

TEST(ConverterArchive, matrixSizeThatIsNotRowsTimesColumnsIsRefused)
{
    EXPECT_EQ(decoded("ZKConvCoordinateAffine", with(archived(*affine()), 7, std::int32_t{3})),
              nullptr);
}

TEST(ConverterArchive, matrixOfAnotherShapeIsRefused)
{
    Items items = with(archived(*affine()), 5, std::int32_t{1});
    items = with(std::move(items), 6, std::int32_t{4});
    EXPECT_EQ(decoded("ZKConvCoordinateAffine", items), nullptr);
}

TEST(ConverterArchive, convertersOfSpaceAreRefused)
{
    const auto inSpace = ZKConvCoordinateAffine::convCoordWithOrigin(
        ZKVector::vectorWithX(1, 2, 3),
        std::array{ZKVector::vectorWithX(2, 0, 0), ZKVector::vectorWithX(0, 4, 0),
                   ZKVector::vectorWithX(0, 0, 8)});
    EXPECT_EQ(decoded("ZKConvCoordinateAffine", archived(*inSpace)), nullptr);
}

TEST(ConverterArchive, vectorOfAnotherDimensionIsRefused)
{
    Items items = with(archived(*polar({0, 1}, 0)), 2, std::int32_t{3});
    items.insert(items.begin() + 5, 0.0);
    EXPECT_EQ(decoded("ZKConvCoordinatePolar", items), nullptr);
    items = with(archived(*polar({0, 1}, 0)), 2, std::int32_t{1});
    items.erase(items.begin() + 4);
    EXPECT_EQ(decoded("ZKConvCoordinatePolar", items), nullptr);
}

TEST(ConverterArchive, lineOfSpaceIsRefused)
{
    // Two counts and the third components of axisX, which starts behind four vectors.
    Items items = archived(*keystone(square));
    items.at(16) = std::int32_t{3};
    items.at(19) = std::int32_t{3};
    items.insert(items.begin() + 22, 0.0);
    items.insert(items.begin() + 19, 0.0);
    EXPECT_EQ(decoded("ZKConvCoordinateKeystone", items), nullptr);
}

TEST(ConverterArchive, lineWithoutDirectionIsRefused)
{
    for (const std::size_t direction : {20U, 26U}) {
        Items items = archived(*keystone(square));
        items.at(direction) = 0.0;
        items.at(direction + 1) = 0.0;
        EXPECT_EQ(decoded("ZKConvCoordinateKeystone", items), nullptr) << direction;
    }
}

TEST(ConverterArchive, keystoneUnitOfZeroIsRefused)
{
    for (const std::size_t unit : {11U, 14U}) {
        Items items = archived(*keystone(square));
        items.at(unit) = 0.0;
        items.at(unit + 1) = 0.0;
        EXPECT_EQ(decoded("ZKConvCoordinateKeystone", items), nullptr) << unit;
    }
}

TEST(ConverterArchive, crossingThatTheFlagsPromiseMustBeThere)
{
    EXPECT_EQ(
        decoded("ZKConvCoordinateKeystone", with(archived(*keystone(square)), 2, std::int8_t{0})),
        nullptr);
}

TEST(ConverterArchive, polarUnitOfZeroIsReadAsItCanBeMade)
{
    const auto converter =
        ZKConvCoordinatePolar::convCoordWithCenter({1, 1}, {1, 1}, 0, 10, false, 0, true);
    EXPECT_NE(reopened(*converter), nullptr);
}

TEST(ConverterArchive, convertersThatWereNeverBuiltAreNotReadBack)
{
    EXPECT_EQ(reopened(ZKConvCoordinateAffine()), nullptr);
    EXPECT_EQ(reopened(ZKConvCoordinateKeystone()), nullptr);
    EXPECT_EQ(reopened(ZKConvCoordinatePolar()), nullptr);
}

TEST(ConverterArchive, coderThatFailedBeforeGivesNothing)
{
    const Items items = archived(*affine());
    SequentialDecoder coder(items);
    coder.fail();
    EXPECT_EQ(converterarchive::converterWithCoder("ZKConvCoordinateAffine", coder), nullptr);
}
