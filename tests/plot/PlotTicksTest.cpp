#include "plot/PlotTicks.h"

#include "plot/PlotContent.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

namespace {

std::string labels(const std::vector<PlotTick> &ticks)
{
    QStringList all;
    for (const PlotTick &tick : ticks) {
        if (!tick.label.isEmpty())
            all += tick.label;
    }
    return all.join(u' ').toStdString();
}

double positionOf(const std::vector<PlotTick> &ticks, const QString &label)
{
    for (const PlotTick &tick : ticks) {
        if (tick.label == label)
            return tick.position;
    }
    return -1;
}

} // namespace

TEST(PlotTicks, haveRoundValues)
{
    const std::vector<PlotTick> ticks = plotticks::along({-1, 1, false, false});
    EXPECT_EQ(labels(ticks), "−1 −0.5 0 0.5 1");
    EXPECT_EQ(positionOf(ticks, QStringLiteral("0.5")), 0.75);
}

TEST(PlotTicks, ofAReversedAxisComeInTheOrderOfTheirPlaces)
{
    EXPECT_EQ(labels(plotticks::along({0, 4, false, true})), "4 3.5 3 2.5 2 1.5 1 0.5 0");
}

TEST(PlotTicks, ofADecadeAxisArePowersOfTenWithMinorLines)
{
    const std::vector<PlotTick> ticks = plotticks::along({-5, -1, true, false});
    EXPECT_EQ(labels(ticks), "10⁻⁵ 10⁻⁴ 10⁻³ 10⁻² 10⁻¹");
    EXPECT_EQ(ticks.size(), 4U * 9 + 1);
    EXPECT_FALSE(ticks[1].isMajor);
}

TEST(PlotTicks, ofShortPowersAreWrittenInFull)
{
    EXPECT_EQ(labels(plotticks::along({-2, 3, true, false})), "0.01 0.1 1 10 100 1000");
}

TEST(PlotTicks, ofFewDecadesHaveLabelsBetweenThem)
{
    EXPECT_EQ(labels(plotticks::along({0, 1, true, false})), "1 2 5 10");
}

TEST(PlotTicks, withinADecadeHaveRoundValues)
{
    EXPECT_EQ(labels(plotticks::along({std::log10(2.0), std::log10(4.0), true, false})),
              "2 2.5 3 3.5 4");
}

TEST(PlotTicks, withinANarrowPartOfADecadeTellNeighboursApart)
{
    for (const double width : {1e-3, 1e-6, 1e-9}) {
        const auto ticks = plotticks::along({3 - width, 3 + width, true, false});
        ASSERT_GE(ticks.size(), 4U) << width;
        for (std::size_t i = 1; i < ticks.size(); ++i)
            EXPECT_NE(ticks[i - 1].label, ticks[i].label) << width;
    }
}

TEST(PlotTicks, tellNeighboursApart)
{
    const std::vector<PlotTick> ticks = plotticks::along({1234567, 1234568, false, false});
    EXPECT_EQ(labels(ticks), "1234567 1234567.2 1234567.4 1234567.6 1234567.8 1234568");
}

TEST(PlotTicks, ofHugeValuesAreWrittenWithAnExponent)
{
    EXPECT_EQ(labels(plotticks::along({-1e300, 1e300, false, false})),
              "−1e+300 −5e+299 0 5e+299 1e+300");
}

TEST(PlotTicks, aroundACircleBeginAtTheTop)
{
    const std::vector<PlotTick> ticks = plotticks::around({0, true, true, false});
    ASSERT_EQ(ticks.size(), 12U);
    EXPECT_EQ(labels(ticks), "90° 60° 30° 0° 330° 300° 270° 240° 210° 180° 150° 120°");
    EXPECT_NEAR(positionOf(ticks, QStringLiteral("0°")), 0.25, 1e-12);
    EXPECT_GE(ticks.front().position, 0);
    EXPECT_LT(ticks.back().position, 1);
}

TEST(PlotTicks, aroundACircleFollowDirectionSenseAndSign)
{
    EXPECT_EQ(labels(plotticks::around({std::numbers::pi / 2, false, true, true})),
              "0° 30° 60° 90° 120° 150° 180° −150° −120° −90° −60° −30°");
}

TEST(PlotTicks, inRadiansArePartsOfPi)
{
    EXPECT_EQ(labels(plotticks::around({std::numbers::pi / 2, false, false, true})),
              "0 π/6 π/3 π/2 2π/3 5π/6 π −5π/6 −2π/3 −π/2 −π/3 −π/6");
    EXPECT_EQ(labels(plotticks::around({std::numbers::pi / 2, false, false, false})),
              "0 π/6 π/3 π/2 2π/3 5π/6 π 7π/6 4π/3 3π/2 5π/3 11π/6");
}
