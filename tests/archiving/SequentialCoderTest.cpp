#include "archiving/SequentialCoder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

ArchivedBytes bytesOf(std::byte value)
{
    return std::make_shared<const std::vector<std::byte>>(std::vector<std::byte>{value});
}

} // namespace

TEST(SequentialEncoder, keepsTheValuesInTheOrderHandedOver)
{
    const ArchivedBytes bytes = bytesOf(std::byte{7});
    SequentialEncoder coder;
    coder.encodeInt(-5);
    coder.encodeChar(1);
    coder.encodeDouble(0.1);
    coder.encodePoint({1.5F, -2.0F});
    coder.encodeBytes(bytes);

    const std::vector<ArchivedItem> expected = {std::int32_t{-5}, std::int8_t{1}, 0.1,
                                                ArchivedPoint{1.5F, -2.0F}, bytes};
    EXPECT_EQ(coder.items(), expected);
}

TEST(SequentialEncoder, sharesBytesWithTheirMaker)
{
    const ArchivedBytes bytes = bytesOf(std::byte{7});
    SequentialEncoder coder;
    coder.encodeBytes(bytes);
    EXPECT_EQ(std::get<ArchivedBytes>(coder.items().front()).get(), bytes.get());
}

TEST(SequentialDecoder, givesTheValuesBackInOrder)
{
    const ArchivedBytes bytes = bytesOf(std::byte{7});
    SequentialEncoder coder;
    coder.encodeInt(std::numeric_limits<std::int32_t>::min());
    coder.encodeChar(-128);
    coder.encodeDouble(-0.0);
    coder.encodePoint({1.5F, -2.0F});
    coder.encodeBytes(bytes);

    SequentialDecoder decoder(coder.items());
    EXPECT_EQ(decoder.decodeInt(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(decoder.decodeChar(), -128);
    EXPECT_TRUE(std::signbit(decoder.decodeDouble()));
    EXPECT_EQ(decoder.decodePoint(), (ArchivedPoint{1.5F, -2.0F}));
    EXPECT_EQ(decoder.decodeBytes(), bytes);
    EXPECT_FALSE(decoder.failed());
    EXPECT_EQ(decoder.remaining(), 0U);
}

TEST(SequentialDecoder, countsWhatIsLeft)
{
    const std::vector<ArchivedItem> items = {std::int32_t{1}, 2.0, 3.0};
    SequentialDecoder decoder(items);
    EXPECT_EQ(decoder.remaining(), 3U);
    EXPECT_EQ(decoder.decodeInt(), 1);
    EXPECT_EQ(decoder.remaining(), 2U);
}

TEST(SequentialDecoder, failsWhenNoneIsLeft)
{
    SequentialDecoder decoder({});
    EXPECT_FALSE(decoder.failed());
    EXPECT_EQ(decoder.decodeDouble(), 0.0);
    EXPECT_TRUE(decoder.failed());
}

TEST(SequentialDecoder, failsForAValueOfAnotherType)
{
    const std::vector<ArchivedItem> items = {std::int32_t{7}};
    SequentialDecoder asDouble(items);
    EXPECT_EQ(asDouble.decodeDouble(), 0.0);
    EXPECT_TRUE(asDouble.failed());
    SequentialDecoder asChar(items);
    EXPECT_EQ(asChar.decodeChar(), 0);
    EXPECT_TRUE(asChar.failed());
    SequentialDecoder asPoint(items);
    EXPECT_EQ(asPoint.decodePoint(), ArchivedPoint{});
    EXPECT_TRUE(asPoint.failed());
    SequentialDecoder asBytes(items);
    EXPECT_EQ(asBytes.decodeBytes(), nullptr);
    EXPECT_TRUE(asBytes.failed());
}

TEST(SequentialDecoder, anIntegerFromAFileIsAnyTypeThatHoldsIt)
{
    const std::vector<ArchivedItem> items = {ArchivedInteger{-128}, ArchivedInteger{-128}};
    SequentialDecoder coder(items);
    EXPECT_EQ(coder.decodeInt(), -128);
    EXPECT_EQ(coder.decodeChar(), -128);
    EXPECT_FALSE(coder.failed());
}

TEST(SequentialDecoder, failsForAnIntegerFromAFileThatIsTooLarge)
{
    const std::vector<ArchivedItem> items = {ArchivedInteger{128}};
    SequentialDecoder asChar(items);
    EXPECT_EQ(asChar.decodeChar(), 0);
    EXPECT_TRUE(asChar.failed());
    const std::vector<ArchivedItem> larger = {ArchivedInteger{2'147'483'648}};
    SequentialDecoder asInt(larger);
    EXPECT_EQ(asInt.decodeInt(), 0);
    EXPECT_TRUE(asInt.failed());
    SequentialDecoder asDouble(items);
    EXPECT_EQ(asDouble.decodeDouble(), 0.0);
    EXPECT_TRUE(asDouble.failed());
}

TEST(SequentialDecoder, theFirstFailureSticks)
{
    const std::vector<ArchivedItem> items = {std::int32_t{7}, 2.5};
    SequentialDecoder decoder(items);
    EXPECT_EQ(decoder.decodeDouble(), 0.0);
    EXPECT_EQ(decoder.decodeInt(), 0);
    EXPECT_EQ(decoder.decodeDouble(), 0.0);
    EXPECT_TRUE(decoder.failed());
}

TEST(SequentialDecoder, markedAsFailedGivesZeros)
{
    const std::vector<ArchivedItem> items = {std::int32_t{7}};
    SequentialDecoder decoder(items);
    decoder.fail();
    EXPECT_TRUE(decoder.failed());
    EXPECT_EQ(decoder.decodeInt(), 0);
}
