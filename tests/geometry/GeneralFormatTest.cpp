#include "geometry/GeneralFormat.h"

#include <gtest/gtest.h>

#include <limits>

using generalformat::general;

TEST(GeneralFormat, givesSixSignificantDigitsWithoutTrailingZeros)
{
    EXPECT_EQ(general(1.5), "1.5");
    EXPECT_EQ(general(2.0), "2");
    EXPECT_EQ(general(1.0 / 3.0), "0.333333");
    EXPECT_EQ(general(-1234.5678), "-1234.57");
    EXPECT_EQ(general(0.0), "0");
}

TEST(GeneralFormat, roundsTiesToEven)
{
    EXPECT_EQ(general(123456.5), "123456");
    EXPECT_EQ(general(123457.5), "123458");
}

TEST(GeneralFormat, keepsTheSignOfZero) { EXPECT_EQ(general(-0.0), "-0"); }

TEST(GeneralFormat, turnsToAnExponentOfAtLeastTwoDigits)
{
    EXPECT_EQ(general(999999.0), "999999");
    EXPECT_EQ(general(999999.5), "1e+06");
    EXPECT_EQ(general(1e6), "1e+06");
    EXPECT_EQ(general(1.5e-7), "1.5e-07");
    EXPECT_EQ(general(0.0001), "0.0001");
    EXPECT_EQ(general(0.00001), "1e-05");
    EXPECT_EQ(general(1.25e100), "1.25e+100");
    EXPECT_EQ(general(std::numeric_limits<double>::denorm_min()), "4.94066e-324");
    EXPECT_EQ(general(std::numeric_limits<double>::lowest()), "-1.79769e+308");
}

TEST(GeneralFormat, writesInfinityAndNotANumberAsCDoes)
{
    EXPECT_EQ(general(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(general(-std::numeric_limits<double>::infinity()), "-inf");
    EXPECT_EQ(general(std::numeric_limits<double>::quiet_NaN()), "nan");
}
