#include "conversion/GridValues.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

using namespace gridvalues;

namespace {

std::vector<double> positions(const std::vector<Line> &lines)
{
    std::vector<double> all;
    for (const Line &line : lines)
        all.push_back(line.position);
    return all;
}

std::vector<double> majorPositions(const std::vector<Line> &lines)
{
    std::vector<double> major;
    for (const Line &line : lines) {
        if (line.isMajor)
            major.push_back(line.position);
    }
    return major;
}

using Values = std::vector<double>;

} // namespace

TEST(GridValues, aStepIsTheNextOfOneTwoFive)
{
    EXPECT_EQ(stepOfAtLeast(1), (Step{1, 0}));
    EXPECT_EQ(stepOfAtLeast(1.2), (Step{2, 0}));
    EXPECT_EQ(stepOfAtLeast(2.1), (Step{5, 0}));
    EXPECT_EQ(stepOfAtLeast(5.1), (Step{1, 1}));
    EXPECT_EQ(stepOfAtLeast(0.048), (Step{5, -2}));
    EXPECT_EQ(stepOfAtLeast(1000), (Step{1, 3}));
    EXPECT_EQ(stepOfAtLeast(0.001), (Step{1, -3}));
    EXPECT_EQ(stepOfAtLeast(3e200), (Step{5, 200}));
}

TEST(GridValues, stepsAreCountedAsExactlyAsADoubleCan)
{
    EXPECT_EQ((Step{1, -1}.times(3)), 0.3);
    EXPECT_EQ((Step{2, -2}.times(-7)), -0.14);
    EXPECT_EQ((Step{5, 22}.times(2)), 1e23);
    EXPECT_EQ((Step{1, -310}.length()), 1e-310);
}

TEST(GridValues, linesOfALinearAxisAreMultiplesOfTheStep)
{
    EXPECT_EQ(positions(linesIn({-0.25, 0.5}, false, 0.15)), (Values{-0.2, 0, 0.2, 0.4}));
    EXPECT_EQ(majorPositions(linesIn({0, 10}, false, 3)), (Values{0, 5, 10}));
}

TEST(GridValues, anEndThatIsALineButForRoundingHasIt)
{
    EXPECT_EQ(positions(linesIn({0.1 + 0.2, 0.6}, false, 0.1)), (Values{0.3, 0.4, 0.5, 0.6}));
}

TEST(GridValues, aRangeWithoutALineHasNone) { EXPECT_TRUE(linesIn({1.1, 1.9}, false, 1).empty()); }

TEST(GridValues, aRangeOfOnePointHasTheLineThere)
{
    EXPECT_EQ(positions(linesIn({2, 2}, false, 1)), (Values{2}));
    EXPECT_EQ(positions(linesIn({2, 2}, true, 0.5)), (Values{2}));
}

TEST(GridValues, decadesHaveMinorLinesWhereThereIsRoom)
{
    const std::vector<Line> lines = linesIn({0, 2}, true, 0.3);
    EXPECT_EQ(majorPositions(lines), (Values{0, 1, 2}));
    ASSERT_EQ(lines.size(), 19U);
    EXPECT_EQ(lines[1], (Line{std::log10(2.0), false}));
    EXPECT_EQ(lines[17], (Line{1 + std::log10(9.0), false}));
}

TEST(GridValues, narrowDecadesHaveTwoAndFive)
{
    const std::vector<Line> lines = linesIn({0, 2}, true, 1);
    EXPECT_EQ(positions(lines), (Values{0, std::log10(2.0), std::log10(5.0), 1, 1 + std::log10(2.0),
                                        1 + std::log10(5.0), 2}));
}

TEST(GridValues, crowdedDecadesAreLeftOut)
{
    EXPECT_EQ(positions(linesIn({-1, 11}, true, 1.5)), (Values{0, 2, 4, 6, 8, 10}));
}

TEST(GridValues, decadesBelowOneAreCountedDownwards)
{
    EXPECT_EQ(majorPositions(linesIn({-2.5, 0}, true, 0.3)), (Values{-2, -1, 0}));
}

TEST(GridValues, withinADecadeRoundValuesTakeTheirPlace)
{
    const std::vector<Line> lines = linesIn({std::log10(2.0), std::log10(5.0)}, true, 0.1);
    EXPECT_EQ(positions(lines),
              (Values{std::log10(2.0), std::log10(3.0), std::log10(4.0), std::log10(5.0)}));
}

TEST(GridValues, thereAreNeverTooMany)
{
    EXPECT_LE(linesIn({0, 1}, false, 1e-9).size(), maximumLines + 1U);
    EXPECT_GE(linesIn({0, 1}, false, 1e-9).size(), maximumLines / 3U);
    EXPECT_LE(linesIn({-150, 150}, true, 1e-9).size(), 3 * maximumLines + 1U);
    EXPECT_LE(linesIn({-1e6, 1e6}, true, 1e-9).size(), maximumLines + 1U);
}

TEST(GridValues, whatNoDoubleCanTellApartHasNoLines)
{
    EXPECT_TRUE(linesIn({1e300, std::nextafter(1e300, 2e300)}, false, 1).empty());
    EXPECT_TRUE(linesIn({1e300, 1e300}, true, 0.1).empty());
}

TEST(GridValues, whatIsNotFiniteHasNoLines)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    for (const bool isLogarithmic : {false, true}) {
        EXPECT_TRUE(linesIn({0, infinity}, isLogarithmic, 1).empty());
        EXPECT_TRUE(linesIn({-infinity, 0}, isLogarithmic, 1).empty());
        EXPECT_TRUE(linesIn({notANumber, 1}, isLogarithmic, 1).empty());
        EXPECT_TRUE(linesIn({0, 1}, isLogarithmic, notANumber).empty());
        EXPECT_TRUE(linesIn({0, 1}, isLogarithmic, 0).empty());
        EXPECT_TRUE(linesIn({1, 0}, isLogarithmic, 1).empty());
    }
    EXPECT_TRUE(linesIn({-1.5e308, 1.5e308}, false, 1).empty());
}

TEST(GridValues, decadesBeyondWhatADoubleHoldsHaveNoRoundValues)
{
    EXPECT_TRUE(linesIn({400, 400.5}, true, 0.1).empty());
    for (const Line &line : linesIn({-323.9, -323.2}, true, 0.1))
        EXPECT_TRUE(std::isfinite(line.position));
}
