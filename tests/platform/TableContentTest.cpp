#include "platform/TableContent.h"

#include <gtest/gtest.h>

namespace {

QByteArray csvOf(const char *text)
{
    return tablecontent::fromText(QString::fromUtf8(text))->data(QStringLiteral("text/csv"));
}

} // namespace

TEST(TableContent, isTheTextByteForByte)
{
    const auto content = tablecontent::fromText(QStringLiteral("x\ty\n1.5\t\n"));
    EXPECT_EQ(content->data(QStringLiteral("text/plain")), QByteArray("x\ty\n1.5\t\n"));
}

TEST(TableContent, isATableForSpreadsheets)
{
    const auto content = tablecontent::fromText(QStringLiteral("x\ty\n1.5\t\n"));
    EXPECT_EQ(content->html().count(QStringLiteral("<tr>")), 2);
}

TEST(TableContent, isCommaSeparatedValues) { EXPECT_EQ(csvOf("x\ty\n1.5\t\n"), "x,y\r\n1.5,\r\n"); }

TEST(TableContent, quotesWhatAReaderOfCommaSeparatedValuesWouldTakeApart)
{
    EXPECT_EQ(csvOf("a,b\tsay \"no\"\n"), "\"a,b\",\"say \"\"no\"\"\"\r\n");
}

TEST(TableContent, leavesAFieldOfCommaSeparatedValuesEmptyWhereThereIsNoNumber)
{
    EXPECT_EQ(csvOf("1\tinf\n-inf\t-nan\n"), "1,\r\n,\r\n");
}
