#include "exchange/ExchangeFormat.h"

#include <gtest/gtest.h>

TEST(ExchangeFormat, everyNameNamesItsFormat)
{
    for (const ExchangeFormat format : exchangeformat::all)
        EXPECT_EQ(exchangeformat::fromName(exchangeformat::nameOf(format)), format);
    EXPECT_EQ(exchangeformat::fromName(QStringLiteral("ods")), std::nullopt);
    EXPECT_EQ(exchangeformat::fromName(QString()), std::nullopt);
}

TEST(ExchangeFormat, theExtensionOfAFileNamesItInAnyCase)
{
    EXPECT_EQ(exchangeformat::ofFile(QStringLiteral("/a/data.csv")), ExchangeFormat::Csv);
    EXPECT_EQ(exchangeformat::ofFile(QStringLiteral("DATA.JSON")), ExchangeFormat::Json);
    EXPECT_EQ(exchangeformat::ofFile(QStringLiteral("a.b.xlsx")), ExchangeFormat::Xlsx);
}

TEST(ExchangeFormat, everyOtherFileIsText)
{
    for (const char *name : {"data.txt", "-", "data", "data.dat", "csv", "/dev/stdout", "a.csv/b"})
        EXPECT_EQ(exchangeformat::ofFile(QString::fromLatin1(name)), ExchangeFormat::Text) << name;
}
