#include "exchange/CsvText.h"

#include "exchange/SampleFacts.h"

#include <gtest/gtest.h>

#include <limits>

TEST(CsvText, seriesStandSideBySideWithTheirTitles)
{
    EXPECT_EQ(csvtext::table(samplefacts::twoSeries(), {}),
              "Series_01_x,Series_01_y,Series_03_theta,Series_03_r\r\n"
              "0.1,-2.5,15,7.5\r\n"
              "0.3333333333333333,1e+20,,\r\n");
}

TEST(CsvText, withoutTitlesBeginsWithTheData)
{
    EXPECT_EQ(csvtext::table(samplefacts::twoSeries(), {false, 3}), "0.1,-2.5,15,7.5\r\n"
                                                                    "0.333,1e+20,,\r\n");
}

TEST(CsvText, whatIsNoNumberIsNamed)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    ExchangeFacts facts;
    facts.series = {{1, samplefacts::points({{infinite, 0.0 * infinite}}), nullptr}};
    EXPECT_EQ(csvtext::table(facts, {false, {}}), "inf,nan\r\n");
}

TEST(CsvText, fieldsThatNeedItStandInQuotes)
{
    EXPECT_EQ(csvtext::field("plain"), "plain");
    EXPECT_EQ(csvtext::field("a,b"), "\"a,b\"");
    EXPECT_EQ(csvtext::field("say \"a\""), "\"say \"\"a\"\"\"");
    EXPECT_EQ(csvtext::field("two\nlines"), "\"two\nlines\"");
    EXPECT_EQ(csvtext::field("two\rlines"), "\"two\rlines\"");
    EXPECT_EQ(csvtext::field(""), "");
}
