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

TEST(CsvText, whatIsNoNumberIsAnEmptyField)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    ExchangeFacts facts;
    facts.series = {
        {1, samplefacts::points({{infinite, 0.0 * infinite}, {1, -infinite}}), nullptr}};
    EXPECT_EQ(csvtext::table(facts, {false, {}}), ",\r\n1,\r\n");
    EXPECT_EQ(csvtext::table(facts, {false, 3}), ",\r\n1,\r\n");
}
