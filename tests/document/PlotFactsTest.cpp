#include "document/PlotFacts.h"

#include "axes/CurrentAxes.h"
#include "capture/DataSeries.h"
#include "document/TestDocument.h"
#include "plot/PlotContent.h"
#include "plot/PlotFigure.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

/// As a document may have it that another program wrote: typed values never fall.
void setRanges(TestDocument &test, std::pair<double, double> x, std::pair<double, double> y,
               bool isLogarithmic = false)
{
    CurrentAxes &axes = test.document->currentAxes();
    ArchiveDictionary data = axes.dataForSave();
    data.set("Min X Value", {x.first});
    data.set("Max X Value", {x.second});
    data.set("Min Y Value", {y.first});
    data.set("Max Y Value", {y.second});
    data.set("Log Y Axis", {isLogarithmic});
    axes.loadFromData(&data);
}

/// Points about the centre, each as far from it as the radius anchor or half as far.
void expectDirectionsOfThePicture(const TestDocument &test)
{
    const auto converter = test.document->currentAxes().makeAxisConverter();
    ASSERT_NE(converter, nullptr);
    const std::vector<std::pair<double, double>> ways{{80, 60}, {-60, 80}, {-40, -30}, {30, -40}};
    PlotContent content = plotfacts::of(*test.document);
    content.series.resize(1);
    content.series[0].anglesAreInDegrees = content.angles.isInDegrees;
    for (const auto &[x, y] : ways) {
        const auto values =
            converter->convertFromCartesian(ZKVector::vectorWithX(200 + x, 200 + y));
        content.series[0].points.push_back({values->X(), values->Y()});
    }
    const PlotFigure figure = plotfigure::of(content);
    ASSERT_EQ(figure.pointCount, static_cast<int>(ways.size()));
    for (std::size_t i = 0; i < ways.size(); ++i) {
        EXPECT_NEAR(figure.series[0].points[i].x(), ways[i].first / 100, 1e-9) << i;
        EXPECT_NEAR(figure.series[0].points[i].y(), ways[i].second / 100, 1e-9) << i;
    }
}

} // namespace

TEST(PlotFacts, haveTheSeriesWithPointsAndTheirStyle)
{
    TestDocument test;
    test.digitize();
    test.command("moveToNextSeries");
    test.click(120, 100);
    test.click(200, 150);
    const PlotContent content = plotfacts::of(*test.document);
    ASSERT_EQ(content.series.size(), 1U);
    const PlotSeries &series = content.series[0];
    EXPECT_EQ(series.name, test.ui().seriesPopup->itemText(1));
    EXPECT_EQ(series.shortName, QStringLiteral("2"));
    ASSERT_EQ(series.points.size(), 2U);
    EXPECT_EQ(series.points[0].x, test.document->dataSeries().points(1)[0].X());
    EXPECT_EQ(series.points[0].y, test.document->dataSeries().points(1)[0].Y());
    const auto style = test.services.prefs().plotPrefsForSeries(1);
    EXPECT_EQ(series.color, CurvegrabPrefs::colorForPlotPref(style).screenColor());
    EXPECT_EQ(series.shape, CurvegrabPrefs::shapeForPlotPref(style));
}

TEST(PlotFacts, haveTheAxesAsTheyAreSet)
{
    TestDocument test;
    const PlotContent content = plotfacts::of(*test.document);
    const CurrentAxes &axes = test.document->currentAxes();
    EXPECT_FALSE(content.isPolar);
    EXPECT_EQ(content.x, (PlotAxis{axes.minXValue(), axes.maxXValue(), false, false}));
    EXPECT_EQ(content.y, (PlotAxis{axes.minYValue(), axes.maxYValue(), false, false}));
}

TEST(PlotFacts, knowAxesThatRunBackwards)
{
    TestDocument test;
    test.document->currentAxes().setAnchors({{400, 300}, {100, 300}, {100, 100}, {400, 100}});
    const PlotContent content = plotfacts::of(*test.document);
    EXPECT_TRUE(content.x.isReversed);
    EXPECT_TRUE(content.y.isReversed);
}

TEST(PlotFacts, knowTheDirectionOfPolarAxes)
{
    TestDocument test;
    test.command("choosePolarAxes");
    test.document->currentAxes().setAnchors({{200, 200}, {200, 100}, {0, 0}, {0, 0}});
    const PlotContent content = plotfacts::of(*test.document);
    EXPECT_TRUE(content.isPolar);
    EXPECT_NEAR(content.angles.zeroDirection, -1.5707963267948966, 1e-12);
    EXPECT_EQ(content.angles.isCounterClockwise, test.document->currentAxes().rotCCW());
}

TEST(PlotFacts, anAxisThatRunsUprightIsReversedOnlyDownwards)
{
    TestDocument test;
    CurrentAxes &axes = test.document->currentAxes();
    for (const float lean : {-2.0F, 0.0F, 2.0F}) {
        axes.setAnchors({{200, 100}, {200 + lean, 300}, {400, 300}, {400, 100 + lean}});
        EXPECT_FALSE(plotfacts::of(*test.document).x.isReversed) << lean;
        EXPECT_FALSE(plotfacts::of(*test.document).y.isReversed) << lean;
        axes.setAnchors({{200, 300}, {200 + lean, 100}, {100, 100}, {100, 300 + lean}});
        EXPECT_TRUE(plotfacts::of(*test.document).x.isReversed) << lean;
        EXPECT_TRUE(plotfacts::of(*test.document).y.isReversed) << lean;
    }
}

TEST(PlotFacts, aChartThatWasTurnedIsNotMirrored)
{
    TestDocument test;
    CurrentAxes &axes = test.document->currentAxes();
    const std::vector<FloatPoint> toTheLeft{{400, 100}, {402, 300}, {200, 302}, {200, 102}};
    const std::vector<FloatPoint> toTheRight{{200, 300}, {198, 100}, {400, 98}, {400, 298}};
    for (const auto &anchors : {toTheLeft, toTheRight}) {
        axes.setAnchors(anchors);
        EXPECT_FALSE(plotfacts::of(*test.document).x.isReversed) << anchors[0].x;
        EXPECT_FALSE(plotfacts::of(*test.document).y.isReversed) << anchors[0].x;
    }
}

TEST(PlotFacts, valuesThatFallAlongAnAxisRunTheOtherWay)
{
    TestDocument test;
    setRanges(test, {9, 3}, {-2, -8});
    EXPECT_TRUE(plotfacts::of(*test.document).x.isReversed);
    EXPECT_TRUE(plotfacts::of(*test.document).y.isReversed);
    test.document->currentAxes().setAnchors({{400, 300}, {100, 300}, {100, 100}, {400, 100}});
    EXPECT_FALSE(plotfacts::of(*test.document).x.isReversed);
    EXPECT_FALSE(plotfacts::of(*test.document).y.isReversed);
}

TEST(PlotFacts, polarPointsLieInTheDirectionsOfThePicture)
{
    for (const bool isLogarithmic : {false, true}) {
        for (const auto &[centre, end] : {std::pair{1.0, 100.0}, std::pair{100.0, 1.0}}) {
            TestDocument test;
            test.command("choosePolarAxes");
            test.document->currentAxes().setAnchors({{200, 200}, {280, 260}, {0, 0}, {0, 0}});
            setRanges(test, {0, 1}, {centre, end}, isLogarithmic);
            expectDirectionsOfThePicture(test);
        }
    }
}

TEST(PlotFacts, pointsOfTheOtherKindOfAxesHaveNoPlace)
{
    TestDocument test;
    test.digitize();
    test.click(120, 100);
    EXPECT_EQ(plotfigure::of(plotfacts::of(*test.document)).leftOutCount, 0);
    test.setAxes();
    test.command("choosePolarAxes");
    const PlotFigure onPolarAxes = plotfigure::of(plotfacts::of(*test.document));
    EXPECT_EQ(onPolarAxes.pointCount, 0);
    EXPECT_EQ(onPolarAxes.leftOutCount, 1);
    test.digitize();
    test.command("moveToNextSeries");
    test.click(120, 100);
    EXPECT_EQ(plotfigure::of(plotfacts::of(*test.document)).pointCount, 1);
    test.setAxes();
    test.command("chooseParallelAxes");
    const PlotFigure onParallelAxes = plotfigure::of(plotfacts::of(*test.document));
    EXPECT_EQ(onParallelAxes.pointCount, 1);
    EXPECT_EQ(onParallelAxes.leftOutCount, 1);
}
