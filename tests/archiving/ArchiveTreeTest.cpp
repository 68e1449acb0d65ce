#include "archiving/ArchiveTree.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

class Nameplate final : public Archivable
{
public:
    [[nodiscard]] std::string_view className() const override { return "Nameplate"; }
    void encodeWithCoder(SequentialEncoder &coder) const override { coder.encodeChar(1); }
};

template <class T>
ArchiveDictionary dictionaryWith(T value)
{
    ArchiveDictionary dictionary;
    dictionary.set("key", ArchiveValue{std::move(value)});
    return dictionary;
}

} // namespace

TEST(ArchiveDictionary, keepsTheOrderInWhichKeysWereSet)
{
    ArchiveDictionary dictionary;
    dictionary.set("z", {std::int64_t{1}});
    dictionary.set("a", {std::int64_t{2}});
    dictionary.set("m", {std::int64_t{3}});
    ASSERT_EQ(dictionary.entries().size(), 3U);
    EXPECT_EQ(dictionary.entries()[0].first, "z");
    EXPECT_EQ(dictionary.entries()[1].first, "a");
    EXPECT_EQ(dictionary.entries()[2].first, "m");
}

TEST(ArchiveDictionary, aKeySetAgainKeepsItsPlace)
{
    ArchiveDictionary dictionary;
    dictionary.set("z", {std::int64_t{1}});
    dictionary.set("a", {std::int64_t{2}});
    dictionary.set("z", {std::int64_t{3}});
    ASSERT_EQ(dictionary.entries().size(), 2U);
    EXPECT_EQ(dictionary.entries()[0].first, "z");
    EXPECT_EQ(dictionary.intForKey("z"), 3);
}

TEST(ArchiveDictionary, findsNothingUnderAnUnknownKey)
{
    const ArchiveDictionary dictionary = dictionaryWith(std::int64_t{1});
    EXPECT_EQ(dictionary.find("other"), nullptr);
    EXPECT_NE(dictionary.find("key"), nullptr);
}

TEST(ArchiveDictionary, aMissingKeyReadsAsZero)
{
    const ArchiveDictionary dictionary;
    EXPECT_EQ(dictionary.intForKey("key"), 0);
    EXPECT_EQ(dictionary.doubleForKey("key"), 0.0);
    EXPECT_EQ(dictionary.floatForKey("key"), 0.0F);
    EXPECT_FALSE(dictionary.boolForKey("key"));
    EXPECT_EQ(dictionary.stringForKey("key"), "");
    EXPECT_EQ(dictionary.arrayForKey("key"), nullptr);
    EXPECT_EQ(dictionary.dictionaryForKey("key"), nullptr);
    EXPECT_EQ(dictionary.objectForKey("key"), nullptr);
}

TEST(ArchiveDictionary, aTextIsNoNumber)
{
    const ArchiveDictionary dictionary = dictionaryWith(std::string("12"));
    EXPECT_EQ(dictionary.intForKey("key"), 0);
    EXPECT_EQ(dictionary.doubleForKey("key"), 0.0);
    EXPECT_FALSE(dictionary.boolForKey("key"));
    EXPECT_EQ(dictionary.stringForKey("key"), "12");
}

TEST(ArchiveDictionary, aNumberIsNoText)
{
    EXPECT_EQ(dictionaryWith(12.0).stringForKey("key"), "");
}

TEST(ArchiveDictionary, anIntegerReadsAsEveryNumber)
{
    const ArchiveDictionary dictionary = dictionaryWith(std::int64_t{-3});
    EXPECT_EQ(dictionary.intForKey("key"), -3);
    EXPECT_EQ(dictionary.doubleForKey("key"), -3.0);
    EXPECT_EQ(dictionary.floatForKey("key"), -3.0F);
    EXPECT_TRUE(dictionary.boolForKey("key"));
}

TEST(ArchiveDictionary, aBooleanReadsAsOneOrZero)
{
    EXPECT_EQ(dictionaryWith(true).intForKey("key"), 1);
    EXPECT_EQ(dictionaryWith(true).doubleForKey("key"), 1.0);
    EXPECT_EQ(dictionaryWith(false).floatForKey("key"), 0.0F);
    EXPECT_TRUE(dictionaryWith(true).boolForKey("key"));
    EXPECT_FALSE(dictionaryWith(false).boolForKey("key"));
}

TEST(ArchiveDictionary, aFractionIsCutOffTowardZero)
{
    EXPECT_EQ(dictionaryWith(2.9).intForKey("key"), 2);
    EXPECT_EQ(dictionaryWith(-2.9).intForKey("key"), -2);
    EXPECT_EQ(dictionaryWith(2.9F).intForKey("key"), 2);
}

TEST(ArchiveDictionary, aFractionBelowOneIsTrueAllTheSame)
{
    EXPECT_TRUE(dictionaryWith(0.25).boolForKey("key"));
    EXPECT_FALSE(dictionaryWith(-0.0).boolForKey("key"));
}

TEST(ArchiveDictionary, aFloatWidensExactly)
{
    EXPECT_EQ(dictionaryWith(0.1F).doubleForKey("key"), 0.10000000149011612);
}

TEST(ArchiveDictionary, aDoubleNarrowsToFloat)
{
    EXPECT_EQ(dictionaryWith(0.1).floatForKey("key"), 0.1F);
}

TEST(ArchiveDictionary, anIntegerBeyondTheRangeStopsAtItsEnd)
{
    constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(dictionaryWith(std::int64_t{1} << 40).intForKey("key"), greatest);
    EXPECT_EQ(dictionaryWith(-(std::int64_t{1} << 40)).intForKey("key"), smallest);
    EXPECT_EQ(dictionaryWith(1e300).intForKey("key"), greatest);
    EXPECT_EQ(dictionaryWith(-1e300).intForKey("key"), smallest);
    EXPECT_EQ(dictionaryWith(std::numeric_limits<double>::infinity()).intForKey("key"), greatest);
    EXPECT_EQ(dictionaryWith(std::nan("")).intForKey("key"), 0);
}

TEST(ArchiveDictionary, givesArraysDictionariesAndObjectsBack)
{
    const auto object = std::make_shared<const Nameplate>();
    ArchiveDictionary dictionary;
    dictionary.set("array", {ArchiveArray{{1.5}, {true}}});
    dictionary.set("dictionary", {dictionaryWith(std::int64_t{4})});
    dictionary.set("object", {std::shared_ptr<const Archivable>(object)});

    ASSERT_NE(dictionary.arrayForKey("array"), nullptr);
    EXPECT_EQ(dictionary.arrayForKey("array")->size(), 2U);
    ASSERT_NE(dictionary.dictionaryForKey("dictionary"), nullptr);
    EXPECT_EQ(dictionary.dictionaryForKey("dictionary")->intForKey("key"), 4);
    EXPECT_EQ(dictionary.objectForKey("object"), object);
}

TEST(ArchiveDictionary, aNodeOfAnotherKindIsNotHandedOut)
{
    const ArchiveDictionary dictionary = dictionaryWith(ArchiveArray{});
    EXPECT_EQ(dictionary.dictionaryForKey("key"), nullptr);
    EXPECT_EQ(dictionary.objectForKey("key"), nullptr);
    EXPECT_EQ(dictionary.intForKey("key"), 0);
    EXPECT_EQ(dictionaryWith(1.0).arrayForKey("key"), nullptr);
}

TEST(ArchiveDictionary, anEmptyNodeReadsAsZero)
{
    const ArchiveDictionary dictionary = dictionaryWith(std::monostate{});
    EXPECT_EQ(dictionary.doubleForKey("key"), 0.0);
    EXPECT_EQ(dictionary.stringForKey("key"), "");
}
