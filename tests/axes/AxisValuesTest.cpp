#include "axes/AxisValues.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace {

constexpr bool linear = false;
constexpr bool logarithmic = true;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

std::vector<std::string> keys(const RangeCorrection &correction)
{
    std::vector<std::string> result;
    for (const BadValueMessage &message : correction.messages)
        result.emplace_back(message.key);
    return result;
}

using Keys = std::vector<std::string>;

} // namespace

TEST(AxisValues, minimumInOrderIsKeptWithoutMessage)
{
    const RangeCorrection result = axisvalues::minimumEdited({2, 5, linear});
    EXPECT_EQ(result.range, (AxisRange{2, 5, linear}));
    EXPECT_FALSE(result.minimumReplaced);
    EXPECT_FALSE(result.maximumReplaced);
    EXPECT_TRUE(result.messages.empty());
}

TEST(AxisValues, linearMinimumAboveMaximumRaisesTheMaximumByTen)
{
    const RangeCorrection result = axisvalues::minimumEdited({5, 3, linear});
    EXPECT_EQ(result.range, (AxisRange{5, 15, linear}));
    EXPECT_FALSE(result.minimumReplaced);
    EXPECT_TRUE(result.maximumReplaced);
    ASSERT_EQ(keys(result), Keys{"SmallMax"});
    EXPECT_EQ(result.messages[0].fieldShouldEdit, RangeEnd::Maximum);
}

TEST(AxisValues, linearMaximumBelowMinimumLowersTheMinimumByTen)
{
    const RangeCorrection result = axisvalues::maximumEdited({5, 3, linear});
    EXPECT_EQ(result.range, (AxisRange{-7, 3, linear}));
    EXPECT_TRUE(result.minimumReplaced);
    EXPECT_FALSE(result.maximumReplaced);
    ASSERT_EQ(keys(result), Keys{"LargeMin"});
    EXPECT_EQ(result.messages[0].fieldShouldEdit, RangeEnd::Minimum);
}

TEST(AxisValues, minimumEqualToMaximumIsOutOfOrder)
{
    EXPECT_EQ(axisvalues::minimumEdited({4, 4, linear}).range, (AxisRange{4, 14, linear}));
    EXPECT_EQ(axisvalues::maximumEdited({4, 4, linear}).range, (AxisRange{-6, 4, linear}));
}

TEST(AxisValues, logMinimumAboveMaximumRaisesTheMaximumByADecade)
{
    const RangeCorrection result = axisvalues::minimumEdited({200, 100, logarithmic});
    EXPECT_EQ(result.range, (AxisRange{200, 2000, logarithmic}));
    EXPECT_EQ(keys(result), Keys{"SmallMax"});
}

TEST(AxisValues, logMaximumBelowMinimumLowersTheMinimumByADecade)
{
    const RangeCorrection result = axisvalues::maximumEdited({20, 10, logarithmic});
    EXPECT_EQ(result.range, (AxisRange{1, 10, logarithmic}));
    EXPECT_EQ(keys(result), Keys{"LargeMin"});
}

TEST(AxisValues, logMinimumOfZeroBecomesATenth)
{
    const RangeCorrection result = axisvalues::minimumEdited({0, 100, logarithmic});
    EXPECT_EQ(result.range, (AxisRange{0.1, 100, logarithmic}));
    EXPECT_TRUE(result.minimumReplaced);
    EXPECT_FALSE(result.maximumReplaced);
    ASSERT_EQ(keys(result), Keys{"InvalidLog"});
    EXPECT_EQ(result.messages[0].fieldShouldEdit, RangeEnd::Minimum);
}

TEST(AxisValues, replacedLogMinimumIsComparedWithTheMaximum)
{
    const RangeCorrection result = axisvalues::minimumEdited({0, 0.05, logarithmic});
    EXPECT_EQ(result.range, (AxisRange{0.1, 1.0, logarithmic}));
    EXPECT_TRUE(result.minimumReplaced);
    EXPECT_TRUE(result.maximumReplaced);
    ASSERT_EQ(keys(result), (Keys{"InvalidLog", "SmallMax"}));
    EXPECT_EQ(result.messages[0].fieldShouldEdit, RangeEnd::Minimum);
    EXPECT_EQ(result.messages[1].fieldShouldEdit, RangeEnd::Maximum);
}

TEST(AxisValues, negativeLogMaximumBecomesAHundredWithOneMessage)
{
    const RangeCorrection result = axisvalues::maximumEdited({0.1, -3, logarithmic});
    EXPECT_EQ(result.range, (AxisRange{0.1, 100, logarithmic}));
    EXPECT_TRUE(result.maximumReplaced);
    ASSERT_EQ(keys(result), Keys{"InvalidLog"});
    EXPECT_EQ(result.messages[0].fieldShouldEdit, RangeEnd::Maximum);
}

TEST(AxisValues, replacedLogMaximumIsComparedWithTheMinimum)
{
    const RangeCorrection result = axisvalues::maximumEdited({500, 0, logarithmic});
    EXPECT_EQ(result.range, (AxisRange{10, 100, logarithmic}));
    ASSERT_EQ(keys(result), (Keys{"InvalidLog", "LargeMin"}));
    EXPECT_EQ(result.messages[0].fieldShouldEdit, RangeEnd::Maximum);
    EXPECT_EQ(result.messages[1].fieldShouldEdit, RangeEnd::Minimum);
}

TEST(AxisValues, linearAxisTakesNegativeValues)
{
    EXPECT_TRUE(axisvalues::minimumEdited({-5, 3, linear}).messages.empty());
    EXPECT_TRUE(axisvalues::maximumEdited({-5, -3, linear}).messages.empty());
}

TEST(AxisValues, valueThatIsNoNumberPassesBothTests)
{
    for (const bool log : {linear, logarithmic}) {
        const RangeCorrection minimum = axisvalues::minimumEdited({notANumber, 3, log});
        EXPECT_TRUE(std::isnan(minimum.range.minimum));
        EXPECT_EQ(minimum.range.maximum, 3);
        EXPECT_TRUE(minimum.messages.empty());
        const RangeCorrection maximum = axisvalues::maximumEdited({3, notANumber, log});
        EXPECT_TRUE(std::isnan(maximum.range.maximum));
        EXPECT_TRUE(maximum.messages.empty());
    }
    EXPECT_TRUE(axisvalues::madeLogarithmic({notANumber, notANumber, true}).messages.empty());
}

TEST(AxisValues, madeLogarithmicReplacesABadMinimum)
{
    const RangeCorrection result = axisvalues::madeLogarithmic({-1, 50, logarithmic});
    EXPECT_EQ(result.range, (AxisRange{0.1, 50, logarithmic}));
    EXPECT_TRUE(result.minimumReplaced);
    EXPECT_FALSE(result.maximumReplaced);
    ASSERT_EQ(keys(result), Keys{"InvalidLog"});
    EXPECT_EQ(result.messages[0].fieldShouldEdit, RangeEnd::Minimum);
}

TEST(AxisValues, madeLogarithmicReplacesABadMaximum)
{
    const RangeCorrection result = axisvalues::madeLogarithmic({3, 0, logarithmic});
    EXPECT_EQ(result.range, (AxisRange{3, 100, logarithmic}));
    ASSERT_EQ(keys(result), Keys{"InvalidLog"});
    EXPECT_EQ(result.messages[0].fieldShouldEdit, RangeEnd::Maximum);
}

TEST(AxisValues, madeLogarithmicWithTwoBadValuesTellsOnceAtTheMaximum)
{
    const RangeCorrection result = axisvalues::madeLogarithmic({-1, 0, logarithmic});
    EXPECT_EQ(result.range, (AxisRange{0.1, 100, logarithmic}));
    EXPECT_TRUE(result.minimumReplaced);
    EXPECT_TRUE(result.maximumReplaced);
    ASSERT_EQ(keys(result), Keys{"InvalidLog"});
    EXPECT_EQ(result.messages[0].fieldShouldEdit, RangeEnd::Maximum);
}

TEST(AxisValues, madeLogarithmicLeavesTheOrderAlone)
{
    const RangeCorrection reversed = axisvalues::madeLogarithmic({50, 2, logarithmic});
    EXPECT_EQ(reversed.range, (AxisRange{50, 2, logarithmic}));
    EXPECT_TRUE(reversed.messages.empty());
    const RangeCorrection replaced = axisvalues::madeLogarithmic({-1, 0.05, logarithmic});
    EXPECT_EQ(replaced.range, (AxisRange{0.1, 0.05, logarithmic}));
    EXPECT_EQ(keys(replaced), Keys{"InvalidLog"});
}
