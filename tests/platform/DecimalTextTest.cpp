#include "platform/DecimalText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

using decimaltext::Comma;
using decimaltext::scanNumber;

TEST(DecimalText, theLengthEndsWhereTheNumberEnds)
{
    EXPECT_EQ(scanNumber("12.5e3abc", Comma::IsThePoint)->length, 6U);
    EXPECT_EQ(scanNumber("1e+", Comma::IsThePoint)->length, 1U);
    EXPECT_EQ(scanNumber("1,5,2", Comma::IsThePoint)->length, 3U);
}

TEST(DecimalText, aCommaCanEndTheNumber)
{
    const auto scanned = scanNumber("1,5", Comma::EndsTheNumber);
    ASSERT_TRUE(scanned);
    EXPECT_EQ(scanned->value, 1.0);
    EXPECT_EQ(scanned->length, 1U);
}

TEST(DecimalText, textWithoutADigitIsNoNumber)
{
    for (const char *text : {"", "-", "+", ".", "-.", ",5", "e5", " 1", "inf", "nan", "--1", "+-1"})
        EXPECT_FALSE(scanNumber(text, Comma::IsThePoint)) << text;
}

TEST(DecimalText, aTooLargeNumberIsTheLargestFiniteOne)
{
    constexpr double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(scanNumber("1e400", Comma::IsThePoint)->value, largest);
    EXPECT_EQ(scanNumber("-1e400", Comma::IsThePoint)->value, -largest);
    EXPECT_EQ(scanNumber("1e99999999999999999999999", Comma::IsThePoint)->value, largest);
    EXPECT_EQ(scanNumber(std::string(400, '9'), Comma::IsThePoint)->value, largest);
    EXPECT_EQ(scanNumber("0." + std::string(100, '0') + "1e500", Comma::IsThePoint)->value,
              largest);
}

TEST(DecimalText, aTooSmallNumberIsZeroOfItsSign)
{
    EXPECT_EQ(scanNumber("1e-400", Comma::IsThePoint)->value, 0.0);
    EXPECT_TRUE(std::signbit(scanNumber("-1e-400", Comma::IsThePoint)->value));
    EXPECT_EQ(scanNumber("1e-99999999999999999999999", Comma::IsThePoint)->value, 0.0);
    EXPECT_EQ(scanNumber("0." + std::string(400, '0') + "1", Comma::IsThePoint)->value, 0.0);
    EXPECT_EQ(scanNumber(std::string(100, '9') + "e-500", Comma::IsThePoint)->value, 0.0);
}

TEST(DecimalText, zeroWithAnyExponentIsZero)
{
    EXPECT_EQ(scanNumber("0e99999999999999999999999", Comma::IsThePoint)->value, 0.0);
    EXPECT_EQ(scanNumber("0.000e400", Comma::IsThePoint)->value, 0.0);
}

TEST(DecimalText, theExtremesOfDoubleAreRead)
{
    EXPECT_EQ(scanNumber("1.7976931348623157e308", Comma::IsThePoint)->value,
              std::numeric_limits<double>::max());
    EXPECT_EQ(scanNumber("5e-324", Comma::IsThePoint)->value,
              std::numeric_limits<double>::denorm_min());
}
