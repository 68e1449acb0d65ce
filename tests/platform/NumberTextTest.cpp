#include "platform/NumberText.h"

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cmath>
#include <limits>
#include <string>

namespace {

/// Puts the process into the first installed locale with a decimal comma; where there is
/// none the C locale stays.
class CommaLocale
{
public:
    CommaLocale()
        : m_before(std::setlocale(LC_NUMERIC, nullptr))
    {
        constexpr std::array names{"de_DE.UTF-8", "de_DE.utf8",  "de_DE",       "fr_FR.UTF-8",
                                   "fr_FR.utf8",  "nl_NL.UTF-8", "es_ES.UTF-8", "ru_RU.UTF-8"};
        for (const char *name : names) {
            if (std::setlocale(LC_NUMERIC, name))
                return;
        }
    }
    ~CommaLocale() { std::setlocale(LC_NUMERIC, m_before.c_str()); }
    CommaLocale(const CommaLocale &) = delete;
    CommaLocale &operator=(const CommaLocale &) = delete;

private:
    std::string m_before;
};

struct FieldText
{
    const char *text;
    double value;
};

} // namespace

TEST(NumberText, generalHasSixSignificantDigits)
{
    EXPECT_EQ(numbertext::general(0), "0");
    EXPECT_EQ(numbertext::general(1.5), "1.5");
    EXPECT_EQ(numbertext::general(0.1), "0.1");
    EXPECT_EQ(numbertext::general(1.0 / 3.0), "0.333333");
    EXPECT_EQ(numbertext::general(-1234567), "-1.23457e+06");
    EXPECT_EQ(numbertext::general(100000), "100000");
    EXPECT_EQ(numbertext::general(1e6), "1e+06");
    EXPECT_EQ(numbertext::general(0.0001), "0.0001");
    EXPECT_EQ(numbertext::general(0.00001), "1e-05");
    EXPECT_EQ(numbertext::general(1e-300), "1e-300");
}

TEST(NumberText, aFieldKeepsSixDigitsOfWhatItShows)
{
    EXPECT_EQ(numbertext::asShown(0.1 + 0.2), 0.3);
    EXPECT_EQ(numbertext::asShown(-1234567.8), -1.23457e6);
    EXPECT_EQ(numbertext::asShown(std::numeric_limits<double>::infinity()), 0);
}

TEST(NumberText, tiesGoToTheEvenDigit)
{
    EXPECT_EQ(numbertext::general(123456.5), "123456");
    EXPECT_EQ(numbertext::general(123457.5), "123458");
    EXPECT_EQ(numbertext::general(12.25, 3), "12.2");
    EXPECT_EQ(numbertext::general(12.75, 3), "12.8");
    EXPECT_EQ(numbertext::fixed(66.25, 1), "66.2");
    EXPECT_EQ(numbertext::fixed(66.75, 1), "66.8");
    EXPECT_EQ(numbertext::fixed(0.5, 0), "0");
}

TEST(NumberText, theExactBinaryValueIsRounded)
{
    EXPECT_EQ(numbertext::fixed(0.15, 1), "0.1");
    EXPECT_EQ(numbertext::fixed(0.25, 1), "0.2");
    EXPECT_EQ(numbertext::fixed(0.35, 1), "0.3");
    EXPECT_EQ(numbertext::general(2.675, 3), "2.67");
    EXPECT_EQ(numbertext::general(0.1, 20), "0.10000000000000000555");
}

TEST(NumberText, minusZeroIsKept)
{
    EXPECT_EQ(numbertext::general(-0.0), "-0");
    EXPECT_EQ(numbertext::general(-0.0, 5, 6), "    -0");
    EXPECT_EQ(numbertext::fixed(-0.0, 1), "-0.0");
    EXPECT_EQ(numbertext::fixed(-0.04, 1), "-0.0");
}

TEST(NumberText, zeroDigitsCountAsOne)
{
    EXPECT_EQ(numbertext::general(26, 0), "3e+01");
    EXPECT_EQ(numbertext::general(0.26, 0), "0.3");
}

TEST(NumberText, widthPadsOnTheLeftAndNeverCuts)
{
    EXPECT_EQ(numbertext::general(1.5, 5, 10), "       1.5");
    EXPECT_EQ(numbertext::general(123456, 5, 10), "1.2346e+05");
    EXPECT_EQ(numbertext::general(-123456, 5, 10), "-1.2346e+05");
    EXPECT_EQ(numbertext::general(1.5, 5, 3), "1.5");
    EXPECT_EQ(numbertext::general(1.5, 5, 0), "1.5");
}

TEST(NumberText, valuesThatAreNoNumbersReadAsInC)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(numbertext::general(infinity), "inf");
    EXPECT_EQ(numbertext::general(-infinity), "-inf");
    EXPECT_EQ(numbertext::general(std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(numbertext::fixed(infinity, 2), "inf");
}

TEST(NumberText, theLargestNumbersFit)
{
    constexpr double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(numbertext::fixed(-largest, 3).size(), 1U + 309U + 1U + 3U);
    EXPECT_EQ(numbertext::general(largest, 400).size(), 309U);
}

TEST(NumberText, thePointStaysUnderACommaLocale)
{
    const CommaLocale locale;
    EXPECT_EQ(numbertext::general(1.5), "1.5");
    EXPECT_EQ(numbertext::general(1.5, 5, 10), "       1.5");
    EXPECT_EQ(numbertext::fixed(1.25, 1), "1.2");
    EXPECT_EQ(numbertext::doubleValue(QStringLiteral("1.5")), 1.5);
    EXPECT_EQ(numbertext::doubleValue(QStringLiteral("1,5")), 1.5);
}

class NumberTextOfField : public testing::TestWithParam<FieldText>
{};

TEST_P(NumberTextOfField, readsTheLongestNumberItBeginsWith)
{
    EXPECT_EQ(numbertext::doubleValue(QString::fromUtf8(GetParam().text)), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, NumberTextOfField,
    testing::Values(FieldText{"12abc", 12}, FieldText{"1,5", 1.5}, FieldText{"1,234,5", 1.234},
                    FieldText{"", 0}, FieldText{"1e2x", 100}, FieldText{"1e", 1},
                    FieldText{"1e+", 1}, FieldText{"1E-2", 0.01}, FieldText{"inf", 0},
                    FieldText{"nan", 0}, FieldText{"infinity", 0}, FieldText{"0x10", 0},
                    FieldText{"  -3", -3}, FieldText{"\t \n7", 7}, FieldText{"\u00a07", 7},
                    FieldText{"+4", 4}, FieldText{".5", 0.5}, FieldText{"-.5", -0.5},
                    FieldText{"5.", 5}, FieldText{"5,", 5}, FieldText{",5", 0}, FieldText{"-", 0},
                    FieldText{".", 0}, FieldText{"- 3", 0}, FieldText{"abc", 0},
                    FieldText{"1.5,3", 1.5}, FieldText{"1,5.3", 1.5}, FieldText{"1,5e3", 1500},
                    FieldText{"1 000", 1}, FieldText{"1.2.3", 1.2}, FieldText{"5.e2", 500},
                    FieldText{"\u0663", 0}, FieldText{"3\u00b5", 3}));

TEST(NumberText, fieldsKeepTheFullPrecision)
{
    EXPECT_EQ(numbertext::doubleValue(QStringLiteral("0.1")), 0.1);
    EXPECT_EQ(numbertext::doubleValue(QStringLiteral("3.141592653589793")), 3.141592653589793);
}

TEST(NumberText, aFieldNeverHoldsAnInfinity)
{
    constexpr double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(numbertext::doubleValue(QStringLiteral("1e999")), largest);
    EXPECT_EQ(numbertext::doubleValue(QStringLiteral("-1e999")), -largest);
}

TEST(NumberText, aMinusSignBeforeZeroIsKeptOnReading)
{
    EXPECT_TRUE(std::signbit(numbertext::doubleValue(QStringLiteral("-0"))));
}

TEST(NumberText, wholeNumbersDropWhatFollows)
{
    EXPECT_EQ(numbertext::integerValue(QStringLiteral("250.9")), 250);
    EXPECT_EQ(numbertext::integerValue(QStringLiteral("2e2")), 2);
    EXPECT_EQ(numbertext::integerValue(QStringLiteral("1,5")), 1);
    EXPECT_EQ(numbertext::integerValue(QStringLiteral("  -3x")), -3);
    EXPECT_EQ(numbertext::integerValue(QStringLiteral("+4")), 4);
}

TEST(NumberText, unreadableWholeNumbersAreZero)
{
    for (const char *text : {"", "-", "+", "+-4", ".5", "abc", "inf"})
        EXPECT_EQ(numbertext::integerValue(QString::fromUtf8(text)), 0) << text;
    EXPECT_EQ(numbertext::integerValue(QStringLiteral("0x10")), 0);
}

TEST(NumberText, wholeNumbersStopAtTheEndsOfTheirRange)
{
    EXPECT_EQ(numbertext::integerValue(QStringLiteral("99999999999")), 2147483647);
    EXPECT_EQ(numbertext::integerValue(QStringLiteral("-99999999999")), -2147483647 - 1);
}
