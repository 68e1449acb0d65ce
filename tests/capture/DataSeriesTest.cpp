#include "capture/DataSeries.h"

#include "SeriesFixture.h"
#include "conversion/ZKConvCoordinateKeystone.h"
#include "platform/Texts.h"

#include <QTest>

#include <gtest/gtest.h>

using DataSeriesTest = SeriesFixture;

namespace {

const IndexSet allSeries = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};

const CallLog refreshCalls = {"table.noteNumberOfRowsChanged", "guide.setAutoXValue",
                              "view.setNeedsDisplay", "info.updateDataInfo"};

CallLog seriesChangedCalls(int series)
{
    return {"preview.setPreview", "preview.setNeedsDisplay",
            "table.scrollColumnToVisible " + std::to_string(series), "guide.seriesChanged",
            "info.updateDataInfo"};
}

/// Quadrangle axes with a vanishing point at (50, 250) and the value `x0` at the left.
SeriesConverter quadrangleAxes(double x0)
{
    return ZKConvCoordinateKeystone::convCoordWithPointLB({0, 0}, {100, 0}, {20, 100}, {80, 100},
                                                          x0, 10, false, 0, 10, false);
}

CallLog joined(const CallLog &first, const CallLog &second)
{
    CallLog all = first;
    all.insert(all.end(), second.begin(), second.end());
    return all;
}

} // namespace

TEST_F(DataSeriesTest, hasTenSeries) { EXPECT_EQ(series.count(), 10); }

TEST_F(DataSeriesTest, wakingUpTakesTheSeriesOfThePopup)
{
    seriesPopup.setCurrentIndex(6);
    DataSeries other({&seriesPopup, &markerDrawPopup, &sortCheck},
                     {document, view, currentAxes, prefs, infoPanel});
    other.connectTo({&guide, &table, &preview});
    other.awakeFromNib();
    EXPECT_EQ(other.currentSeries(), 6);
    EXPECT_EQ(preview.size, 16);
    EXPECT_EQ(calls, (CallLog{"preview.setPreview", "preview.setNeedsDisplay"}));
}

TEST_F(DataSeriesTest, wakingUpTakesTheStateOfTheSortCheck)
{
    sortCheck.setChecked(true);
    DataSeries other({&seriesPopup, &markerDrawPopup, &sortCheck},
                     {document, view, currentAxes, prefs, infoPanel});
    other.connectTo({&guide, &table, &preview});
    other.awakeFromNib();
    EXPECT_TRUE(other.autoSortByX());
}

// Adding points

TEST_F(DataSeriesTest, withoutConverterNothingIsAdded)
{
    EXPECT_FALSE(click(1, 2, nullptr));
    EXPECT_TRUE(calls.empty());
    EXPECT_FALSE(document.undo.canUndo());
    EXPECT_TRUE(document.messages.shown.empty());
}

TEST_F(DataSeriesTest, aClickAddsThePointToTheCurrentSeries)
{
    choose(4);
    EXPECT_TRUE(click(1, 2));
    EXPECT_EQ(pairs(4), (Pairs{{1, 2}}));
    EXPECT_EQ(series.currentIndex(), 1);
}

TEST_F(DataSeriesTest, pointsKeepTheSinglePrecisionOfTheClick)
{
    click(0.1F, 0.2F);
    EXPECT_EQ(series.points(0)[0].X(), 0.10000000149011612);
    EXPECT_EQ(series.points(0)[0].Y(), 0.20000000298023224);
}

TEST_F(DataSeriesTest, aClickTellsEveryoneOnceInOrder)
{
    click(1, 2);
    EXPECT_EQ(calls, refreshCalls);
}

TEST_F(DataSeriesTest, theFirstClickIntoAnEmptySeriesAdoptsItsConverterSilently)
{
    const SeriesConverter others = parallelAxes(20);
    click(1, 2, axes);
    table.selection = {0};
    series.deleteSelection();
    EXPECT_EQ(series.converterOf(0), axes);
    EXPECT_TRUE(click(3, 4, others));
    EXPECT_EQ(series.converterOf(0), others);
    EXPECT_EQ(series.currentSeries(), 0);
    EXPECT_TRUE(document.messages.shown.empty());
}

TEST_F(DataSeriesTest, anEqualConverterJoinsTheSeriesWhichKeepsItsOwn)
{
    click(1, 2, axes);
    EXPECT_TRUE(click(3, 4, parallelAxes(10)));
    EXPECT_EQ(series.currentIndex(), 2);
    EXPECT_EQ(series.converterOf(0), axes);
}

TEST_F(DataSeriesTest, axesThatDifferOnlyInBeingLogarithmicJoinTheSeries)
{
    const SeriesConverter linear = ZKConvCoordinateAffine::convCoordWithX0Point(
        {0, 0}, {100, 0}, 0, 2, false, {0, 0}, {0, 100}, 0, 1, false);
    const SeriesConverter logarithmic = ZKConvCoordinateAffine::convCoordWithX0Point(
        {0, 0}, {100, 0}, 1, 100, true, {0, 0}, {0, 100}, 0, 1, false);
    click(1, 0.5F, linear);
    EXPECT_TRUE(click(10, 0.5F, logarithmic));
    EXPECT_EQ(series.currentIndex(), 2);
    EXPECT_EQ(series.converterOf(0), linear);
    EXPECT_TRUE(document.messages.shown.empty());
}

TEST_F(DataSeriesTest, otherAxesMoveThePointToTheNextEmptySeriesAbove)
{
    fill({3, 4});
    choose(3);
    const SeriesConverter others = parallelAxes(20);
    EXPECT_TRUE(click(7, 8, others));
    EXPECT_EQ(series.currentSeries(), 5);
    EXPECT_EQ(seriesPopup.currentIndex(), 5);
    EXPECT_EQ(pairs(5), (Pairs{{7, 8}}));
    EXPECT_EQ(series.converterOf(5), others);
    EXPECT_EQ(pairs(3), (Pairs{{3, 3}}));
    EXPECT_EQ(series.converterOf(3), axes);
}

TEST_F(DataSeriesTest, otherAxesMoveThePointDownwardsWhenAllAboveAreUsed)
{
    fill({0, 2, 3, 4, 5, 6, 7, 8, 9});
    choose(3);
    EXPECT_TRUE(click(7, 8, parallelAxes(20)));
    EXPECT_EQ(series.currentSeries(), 1);
    ASSERT_EQ(document.messages.shown.size(), 1U);
    EXPECT_EQ(document.messages.shown[0].informativeText,
              texts::localizedFormat("NextSeriesUsed", 2));
}

TEST_F(DataSeriesTest, theMessageAboutTheNextSeriesHasOneButtonAndCountsFromOne)
{
    fill({0});
    click(7, 8, parallelAxes(20));
    ASSERT_EQ(document.messages.shown.size(), 1U);
    const Sheet &sheet = document.messages.shown[0];
    EXPECT_EQ(sheet.message, texts::localized("AxisChanged"));
    EXPECT_TRUE(sheet.informativeText.contains(QStringLiteral("series 2")));
    EXPECT_EQ(sheet.defaultButton, texts::localized("OK"));
    EXPECT_TRUE(sheet.alternateButton.isEmpty());
}

TEST_F(DataSeriesTest, thePointIsAddedWithoutWaitingForTheMessage)
{
    fill({0});
    click(7, 8, parallelAxes(20));
    ASSERT_EQ(document.messages.handlers.size(), 1U);
    EXPECT_EQ(pairs(1), (Pairs{{7, 8}}));
}

TEST_F(DataSeriesTest, movingToAnotherSeriesTellsOfTheSeriesThenOfThePoint)
{
    fill({0});
    calls.clear();
    click(7, 8, parallelAxes(20));
    EXPECT_EQ(calls, joined(seriesChangedCalls(1), refreshCalls));
}

TEST_F(DataSeriesTest, theMessageComesAfterTheChangeOfSeriesAndBeforeThePoint)
{
    fill({0});
    calls.clear();
    CallLog before;
    document.messages.presented = [&] {
        before = calls;
        EXPECT_FALSE(series.isValidSeries(1));
    };
    click(7, 8, parallelAxes(20));
    EXPECT_EQ(before, seriesChangedCalls(1));
}

TEST_F(DataSeriesTest, theEndOfTheMessageChangesNothing)
{
    fill({0});
    click(7, 8, parallelAxes(20));
    calls.clear();
    ASSERT_EQ(document.messages.handlers.size(), 1U);
    ASSERT_TRUE(document.messages.handlers[0]);
    document.messages.handlers[0](SheetAnswer::Default);
    EXPECT_TRUE(calls.empty());
    EXPECT_EQ(series.currentSeries(), 1);
    EXPECT_EQ(document.messages.shown.size(), 1U);
}

TEST_F(DataSeriesTest, aClickThatHasNoGraphValuesAddsZero)
{
    const SeriesConverter quadrangle = quadrangleAxes(1);
    const FloatPoint values = quadrangle->convertPointFromCartesian({50, 250});
    EXPECT_TRUE(click(values.x, values.y, quadrangle));
    EXPECT_EQ(pairs(0), (Pairs{{0, 0}}));
}

TEST_F(DataSeriesTest, aQuadrangleWhoseCornerValueWasRoundedBeginsAnotherSeries)
{
    // After reopening a document the axes have the value that its field shows, the series the one
    // that was typed.
    click(1, 2, quadrangleAxes(1.2345678));
    EXPECT_TRUE(click(3, 4, quadrangleAxes(1.23457)));
    EXPECT_EQ(series.currentSeries(), 1);
    EXPECT_EQ(document.messages.shown.size(), 1U);
}

TEST_F(DataSeriesTest, otherAxesWithAllSeriesInUseAddNothing)
{
    fill(allSeries);
    choose(3);
    calls.clear();
    EXPECT_FALSE(click(7, 8, parallelAxes(20)));
    EXPECT_EQ(series.maxRows(), 1);
    EXPECT_EQ(series.numberOfRowsInTableView(), 1);
    EXPECT_EQ(series.currentSeries(), 3);
    EXPECT_EQ(series.converterOf(3), axes);
    EXPECT_TRUE(calls.empty());
    ASSERT_EQ(document.messages.shown.size(), 1U);
    EXPECT_EQ(document.messages.shown[0].message, texts::localized("AxisChanged"));
    EXPECT_EQ(document.messages.shown[0].informativeText, texts::localized("SeriesIsFull"));
}

TEST_F(DataSeriesTest, polarAxesDoNotJoinASeriesOfParallelAxes)
{
    click(1, 2, axes);
    EXPECT_TRUE(click(3, 4, polarAxes()));
    EXPECT_EQ(series.currentSeries(), 1);
}

// Choosing a series

TEST_F(DataSeriesTest, seriesChangedTellsEveryoneOnceInOrder)
{
    seriesPopup.setCurrentIndex(7);
    series.seriesChanged();
    EXPECT_EQ(series.currentSeries(), 7);
    EXPECT_EQ(preview.size, 17);
    EXPECT_EQ(calls, seriesChangedCalls(7));
}

TEST_F(DataSeriesTest, moveToNextSeriesChangesTheSeriesExactlyOnce)
{
    series.moveToNextSeries();
    EXPECT_EQ(series.currentSeries(), 1);
    EXPECT_EQ(seriesPopup.currentIndex(), 1);
    EXPECT_EQ(calls, seriesChangedCalls(1));
}

TEST_F(DataSeriesTest, moveToPrevSeriesChangesTheSeriesExactlyOnce)
{
    choose(5);
    calls.clear();
    series.moveToPrevSeries();
    EXPECT_EQ(series.currentSeries(), 4);
    EXPECT_EQ(calls, seriesChangedCalls(4));
}

TEST_F(DataSeriesTest, moveToNextSeriesStopsAtTheLast)
{
    choose(9);
    calls.clear();
    series.moveToNextSeries();
    EXPECT_EQ(series.currentSeries(), 9);
    EXPECT_TRUE(calls.empty());
}

TEST_F(DataSeriesTest, moveToPrevSeriesStopsAtTheFirst)
{
    series.moveToPrevSeries();
    EXPECT_EQ(series.currentSeries(), 0);
    EXPECT_TRUE(calls.empty());
}

TEST_F(DataSeriesTest, theUserChoosesASeriesInThePopup)
{
    seriesPopup.show();
    QTest::keyClick(&seriesPopup, Qt::Key_Down);
    EXPECT_EQ(series.currentSeries(), 1);
    EXPECT_EQ(calls, seriesChangedCalls(1));
}

TEST_F(DataSeriesTest, settingThePopupByProgramIsNoAction)
{
    seriesPopup.setCurrentIndex(3);
    EXPECT_TRUE(calls.empty());
    EXPECT_EQ(series.currentSeries(), 0);
}

TEST_F(DataSeriesTest, choosingASeriesMarksTheDocument)
{
    series.moveToNextSeries();
    EXPECT_EQ(document.changeCount, 1);
}

// Draw modes

TEST_F(DataSeriesTest, theDrawModeBelongsToTheCurrentSeries)
{
    choose(2);
    series.setDrawLines();
    EXPECT_EQ(series.markerDrawOf(2), 2);
    EXPECT_EQ(series.markerDrawOf(0), 0);
    choose(0);
    EXPECT_EQ(markerDrawPopup.currentIndex(), 0);
    choose(2);
    EXPECT_EQ(markerDrawPopup.currentIndex(), 2);
    EXPECT_EQ(preview.mode, 2);
}

TEST_F(DataSeriesTest, theDrawModeCommandsSelectTheirItem)
{
    series.setDrawMarkersAndLines();
    EXPECT_EQ(markerDrawPopup.currentIndex(), 1);
    EXPECT_EQ(series.markerDrawOf(0), 1);
    series.setDrawLines();
    EXPECT_EQ(markerDrawPopup.currentIndex(), 2);
    EXPECT_EQ(series.markerDrawOf(0), 2);
    series.setDrawMarkers();
    EXPECT_EQ(markerDrawPopup.currentIndex(), 0);
    EXPECT_EQ(series.markerDrawOf(0), 0);
}

TEST_F(DataSeriesTest, aNewDrawModeIsShownOnceByPreviewAndPicture)
{
    series.setDrawLines();
    EXPECT_EQ(calls,
              (CallLog{"preview.setPreview", "preview.setNeedsDisplay", "view.setNeedsDisplay"}));
    EXPECT_EQ(preview.mode, 2);
}

TEST_F(DataSeriesTest, theUserChoosesADrawModeInThePopup)
{
    markerDrawPopup.show();
    QTest::keyClick(&markerDrawPopup, Qt::Key_Down);
    EXPECT_EQ(series.markerDrawOf(0), 1);
    EXPECT_EQ(calls,
              (CallLog{"preview.setPreview", "preview.setNeedsDisplay", "view.setNeedsDisplay"}));
}

TEST_F(DataSeriesTest, drawModesDoNotMarkTheDocument)
{
    series.setDrawLines();
    endEvent();
    EXPECT_EQ(document.changeCount, 0);
    EXPECT_FALSE(document.undo.canUndo());
}

// Sorting

TEST_F(DataSeriesTest, switchingSortingOnSortsEverySeries)
{
    for (const int i : {0, 9}) {
        choose(i);
        click(2, 1);
        click(1, 5);
        click(1, 4);
    }
    calls.clear();
    series.simulateToggleSort();
    EXPECT_EQ(pairs(0), (Pairs{{1, 4}, {1, 5}, {2, 1}}));
    EXPECT_EQ(pairs(9), (Pairs{{1, 4}, {1, 5}, {2, 1}}));
    EXPECT_EQ(calls, (CallLog{"table.reloadData", "view.setNeedsDisplay"}));
}

TEST_F(DataSeriesTest, switchingSortingOffLeavesTheOrderAsItIs)
{
    click(2, 0);
    click(1, 0);
    series.simulateToggleSort();
    calls.clear();
    series.simulateToggleSort();
    EXPECT_FALSE(sortCheck.isChecked());
    EXPECT_FALSE(series.autoSortByX());
    EXPECT_EQ(pairs(0), (Pairs{{1, 0}, {2, 0}}));
    EXPECT_TRUE(calls.empty());
    click(0, 0);
    EXPECT_EQ(pairs(0), (Pairs{{1, 0}, {2, 0}, {0, 0}}));
}

TEST_F(DataSeriesTest, theUserSwitchesSortingWithTheCheckBox)
{
    click(2, 0);
    click(1, 0);
    sortCheck.show();
    QTest::keyClick(&sortCheck, Qt::Key_Space);
    EXPECT_TRUE(series.autoSortByX());
    EXPECT_EQ(pairs(0), (Pairs{{1, 0}, {2, 0}}));
}

TEST_F(DataSeriesTest, settingTheSortCheckByProgramIsNoAction)
{
    sortCheck.setChecked(true);
    EXPECT_FALSE(series.autoSortByX());
    EXPECT_TRUE(calls.empty());
}

TEST_F(DataSeriesTest, aMixedCheckBecomesOn)
{
    sortCheck.setTristate(true);
    sortCheck.setCheckState(Qt::PartiallyChecked);
    series.simulateToggleSort();
    EXPECT_EQ(sortCheck.checkState(), Qt::Checked);
    EXPECT_TRUE(series.autoSortByX());
}

TEST_F(DataSeriesTest, withSortingOnAClickFindsItsPlace)
{
    series.simulateToggleSort();
    click(5, 0);
    click(1, 0);
    click(3, 2);
    click(3, 1);
    EXPECT_EQ(pairs(0), (Pairs{{1, 0}, {3, 1}, {3, 2}, {5, 0}}));
}

TEST_F(DataSeriesTest, sortingIsNoActionToUndoAndDoesNotMarkTheDocument)
{
    series.simulateToggleSort();
    endEvent();
    EXPECT_FALSE(document.undo.canUndo());
    EXPECT_EQ(document.changeCount, 0);
}

TEST_F(DataSeriesTest, aHundredThousandPointsStayUsable)
{
    constexpr int count = 100000;
    std::vector<ZKVector> points;
    for (int i = 0; i < count; ++i)
        points.push_back(vectorOf(i, 0));
    click(0, 0);
    series.setDataArray({PointList(points), 0});
    endEvent();
    series.simulateToggleSort();
    for (int i = 0; i < 50; ++i)
        click(static_cast<float>(i) + 0.5F, 0);
    EXPECT_EQ(series.maxRows(), count + 50);
    EXPECT_EQ(series.points(0)[1].X(), 0.5);
    EXPECT_EQ(series.points(0)[2].X(), 1);
}

// Questions

TEST_F(DataSeriesTest, xValueForSeries1IsTheOneOfTheFirstSeriesAtTheSameIndex)
{
    click(11, 0);
    click(12, 0);
    choose(1);
    EXPECT_EQ(series.xValueForSeries1(), 11);
    click(0, 0);
    EXPECT_EQ(series.xValueForSeries1(), 12);
}

TEST_F(DataSeriesTest, xValueForSeries1NeedsStrictlyMorePointsInTheFirstSeries)
{
    click(11, 0);
    click(12, 0);
    choose(1);
    click(0, 0);
    click(0, 0);
    EXPECT_EQ(series.xValueForSeries1(), currentAxes.minXValue());
    click(0, 0);
    EXPECT_EQ(series.xValueForSeries1(), currentAxes.minXValue());
}

TEST_F(DataSeriesTest, xValueForSeries1WithinTheFirstSeriesIsTheMinimumOfTheAxes)
{
    click(11, 0);
    EXPECT_EQ(series.xValueForSeries1(), currentAxes.minXValue());
}

TEST_F(DataSeriesTest, validSeriesAreThoseWithPoints)
{
    fill({2, 5, 7});
    EXPECT_EQ(series.validSeries(), (IndexSet{2, 5, 7}));
    EXPECT_EQ(series.validSeriesBetween(6, 2), (IndexSet{2, 5}));
    EXPECT_EQ(series.validSeriesWithin({1, 2, 7}), (IndexSet{2, 7}));
    EXPECT_FALSE(series.isValidSeries(-1));
}

TEST_F(DataSeriesTest, theSelectionIsTheOneOfTheTable)
{
    table.selection = {2, 3, 8};
    EXPECT_EQ(series.numSelectedSeries(), 3);
    EXPECT_EQ(series.selectedSeries(), (IndexSet{2, 3, 8}));
}

// Cells

TEST_F(DataSeriesTest, aCellShowsThePointWithThreeSignificantDigits)
{
    click(0.123456F, 1234.5F);
    EXPECT_EQ(series.tableView(0, 0), QStringLiteral("(0.123, 1.23e+03)"));
}

TEST_F(DataSeriesTest, cellsRoundTiesToEven)
{
    click(12.25F, 66.25F);
    EXPECT_EQ(series.tableView(0, 0), QStringLiteral("(12.2, 66.2)"));
}

TEST_F(DataSeriesTest, aCellBelowTheLastPointIsEmpty)
{
    click(1, 1);
    click(2, 2);
    click(3, 3);
    EXPECT_FALSE(series.tableView(0, 2).isEmpty());
    EXPECT_TRUE(series.tableView(0, 3).isEmpty());
    EXPECT_TRUE(series.tableView(1, 0).isEmpty());
}

TEST_F(DataSeriesTest, cellsOutsideTheTableAreEmpty)
{
    click(1, 1);
    EXPECT_TRUE(series.tableView(-1, 0).isEmpty());
    EXPECT_TRUE(series.tableView(10, 0).isEmpty());
    EXPECT_TRUE(series.tableView(0, -1).isEmpty());
}

// Copying

TEST_F(DataSeriesTest, copySelectionPutsTheSelectedSeriesOnTheClipboard)
{
    fill({1, 3});
    table.selection = {3};
    series.copySelection();
    EXPECT_EQ(document.pasteboard.texts, std::vector<QString>{QStringLiteral("3\t3\n")});
}

TEST_F(DataSeriesTest, copySelectionFollowsThePreferenceForCopying)
{
    fill({1});
    table.selection = {1};
    prefs.copyTitle = true;
    prefs.saveTitle = false;
    series.copySelection();
    EXPECT_EQ(document.pasteboard.texts,
              std::vector<QString>{QStringLiteral("Series_02_x\tSeries_02_y\n1\t1\n")});
}

TEST_F(DataSeriesTest, copySelectionWithoutSelectionLeavesTheClipboardAlone)
{
    fill({1});
    prefs.copyTitle = true;
    series.copySelection();
    EXPECT_TRUE(document.pasteboard.texts.empty());
}

TEST_F(DataSeriesTest, anEmptyTextStillGoesToTheClipboard)
{
    table.selection = {1};
    series.copySelection();
    EXPECT_EQ(document.pasteboard.texts, std::vector<QString>{QString()});
}

TEST_F(DataSeriesTest, everyTextOfTheSeriesIsWritten)
{
    for (const char *key :
         {"AxisChanged", "NextSeriesUsed", "SeriesIsFull", "actionDataAppend", "actionDataDelete"})
        EXPECT_NE(texts::localized(key), QString::fromLatin1(key));
}
