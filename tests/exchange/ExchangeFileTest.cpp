#include "exchange/ExchangeFile.h"

#include "exchange/SampleFacts.h"

#include <gtest/gtest.h>

namespace {

ExchangeFacts onePoint(const char *name)
{
    ExchangeFacts facts;
    facts.document = name;
    facts.series = {{1, samplefacts::points({{1, 2}}), nullptr}};
    return facts;
}

} // namespace

TEST(ExchangeFile, tablesFollowEachOtherWithAnEmptyLineBetween)
{
    EXPECT_EQ(
        exchangefile::content(ExchangeFormat::Csv, {onePoint("a"), onePoint("b")}, {false, {}}),
        QByteArray("1,2\r\n\r\n1,2\r\n"));
}

TEST(ExchangeFile, objectsFollowEachOtherLineByLine)
{
    const auto content =
        exchangefile::content(ExchangeFormat::Json, {onePoint("a"), onePoint("b")}, {});
    ASSERT_TRUE(content);
    EXPECT_EQ(content->count('\n'), 2);
    EXPECT_TRUE(content->contains("}\n{\"document\":\"b\""));
}

TEST(ExchangeFile, aWorkbookIsAnArchive)
{
    const auto content = exchangefile::content(ExchangeFormat::Xlsx, {onePoint("a")}, {});
    ASSERT_TRUE(content);
    EXPECT_TRUE(content->startsWith("PK"));
}
