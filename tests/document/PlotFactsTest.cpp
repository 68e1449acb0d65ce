#include "document/PlotFacts.h"

#include "axes/CurrentAxes.h"
#include "capture/DataSeries.h"
#include "document/TestDocument.h"
#include "plot/PlotContent.h"

#include <gtest/gtest.h>

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
