#include "exchange/ExchangeNumber.h"

#include <gtest/gtest.h>

#include <limits>

TEST(ExchangeNumber, withoutDigitsIsTheShortestTextThatReadsBack)
{
    EXPECT_EQ(exchangenumber::text(0.1), "0.1");
    EXPECT_EQ(exchangenumber::text(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(exchangenumber::text(-0.0), "-0");
    EXPECT_EQ(exchangenumber::text(1e300), "1e+300");
}

TEST(ExchangeNumber, roundsToTheDigits)
{
    EXPECT_EQ(exchangenumber::text(1.0 / 3, 4), "0.3333");
    EXPECT_EQ(exchangenumber::text(123456.0, 3), "1.23e+05");
    EXPECT_EQ(exchangenumber::text(0.1, 17), "0.10000000000000001");
}

TEST(ExchangeNumber, ofSinglePrecisionShowsNoMoreThanThereIs)
{
    EXPECT_EQ(exchangenumber::text(0.1F), "0.1");
}

TEST(ExchangeNumber, namesWhatIsNoNumber)
{
    EXPECT_EQ(exchangenumber::text(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(exchangenumber::text(-std::numeric_limits<double>::infinity(), 3), "-inf");
    EXPECT_EQ(exchangenumber::text(-std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(ExchangeNumber, roundedIsWhatTheTextStandsFor)
{
    EXPECT_EQ(exchangenumber::rounded(1.0 / 3, 2), 0.33);
    EXPECT_EQ(exchangenumber::rounded(1.0 / 3, std::nullopt), 1.0 / 3);
}
