#include "capture/DataSeries.h"

#include "SeriesFixture.h"
#include "platform/Texts.h"

#include <gtest/gtest.h>

#include <random>

using DataSeriesUndo = SeriesFixture;

TEST_F(DataSeriesUndo, aClickNamesItsAction)
{
    click(1, 2);
    EXPECT_EQ(document.undo.undoActionName(), texts::localized("actionDataAppend"));
}

TEST_F(DataSeriesUndo, undoTakesThePointBackAndRedoAddsItAgain)
{
    click(1, 2);
    click(3, 4);
    document.undo.undo();
    EXPECT_EQ(pairs(0), (Pairs{{1, 2}}));
    document.undo.redo();
    EXPECT_EQ(pairs(0), (Pairs{{1, 2}, {3, 4}}));
}

TEST_F(DataSeriesUndo, undoRestoresTheSeriesOfThePointAndSelectsIt)
{
    choose(2);
    click(1, 2);
    choose(5);
    document.undo.undo();
    EXPECT_EQ(series.currentSeries(), 2);
    EXPECT_EQ(seriesPopup.currentIndex(), 2);
    EXPECT_FALSE(series.isValidSeries(2));
}

TEST_F(DataSeriesUndo, theRedoRecordIsTakenOfTheReselectedSeries)
{
    choose(2);
    click(1, 2);
    choose(5);
    click(8, 8);
    document.undo.undo();
    choose(7);
    document.undo.undo();
    choose(0);
    document.undo.redo();
    EXPECT_EQ(series.currentSeries(), 2);
    EXPECT_EQ(pairs(2), (Pairs{{1, 2}}));
    EXPECT_FALSE(series.isValidSeries(0));
    EXPECT_FALSE(series.isValidSeries(5));
    document.undo.redo();
    EXPECT_EQ(pairs(5), (Pairs{{8, 8}}));
}

TEST_F(DataSeriesUndo, undoTellsOfTheSeriesThenOfThePoints)
{
    choose(2);
    click(1, 2);
    choose(5);
    calls.clear();
    document.undo.undo();
    EXPECT_EQ(
        calls,
        (CallLog{"preview.setPreview", "preview.setNeedsDisplay", "table.scrollColumnToVisible 2",
                 "guide.seriesChanged", "info.updateDataInfo", "table.noteNumberOfRowsChanged",
                 "guide.setAutoXValue", "view.setNeedsDisplay", "info.updateDataInfo"}));
}

TEST_F(DataSeriesUndo, undoKeepsTheConverterOfTheTakenBackPoint)
{
    const SeriesConverter others = parallelAxes(20);
    click(1, 2, others);
    document.undo.undo();
    EXPECT_FALSE(series.isValidSeries(0));
    EXPECT_EQ(series.converterOf(0), others);
}

TEST_F(DataSeriesUndo, undoOfAPointThatMovedToAnotherSeriesStaysThere)
{
    click(1, 2);
    click(3, 4, parallelAxes(20));
    document.undo.undo();
    EXPECT_EQ(series.currentSeries(), 1);
    EXPECT_FALSE(series.isValidSeries(1));
    EXPECT_EQ(pairs(0), (Pairs{{1, 2}}));
}

TEST_F(DataSeriesUndo, undoRestoresTheOrderFromBeforeSorting)
{
    click(3, 0);
    click(1, 0);
    click(2, 0);
    series.simulateToggleSort();
    EXPECT_EQ(pairs(0), (Pairs{{1, 0}, {2, 0}, {3, 0}}));
    document.undo.undo();
    EXPECT_EQ(pairs(0), (Pairs{{3, 0}, {1, 0}}));
}

TEST_F(DataSeriesUndo, redoRestoresTheSortedOrder)
{
    click(3, 0);
    click(1, 0);
    series.simulateToggleSort();
    document.undo.undo();
    document.undo.redo();
    EXPECT_EQ(pairs(0), (Pairs{{1, 0}, {3, 0}}));
}

TEST_F(DataSeriesUndo, undoOfASortedClickRemovesThatPointNotTheLast)
{
    series.simulateToggleSort();
    click(5, 0);
    click(1, 0);
    document.undo.undo();
    EXPECT_EQ(pairs(0), (Pairs{{5, 0}}));
}

TEST_F(DataSeriesUndo, deletingEmptiesTheSelectedSeriesOnly)
{
    fill({1, 4, 6});
    choose(4);
    series.setDrawLines();
    table.selection = {1, 4};
    calls.clear();
    series.deleteSelection();
    EXPECT_EQ(series.validSeries(), IndexSet{6});
    EXPECT_EQ(series.markerDrawOf(4), 2);
    EXPECT_EQ(series.converterOf(4), axes);
    EXPECT_EQ(calls,
              (CallLog{"table.deselectAll", "table.noteNumberOfRowsChanged", "guide.setAutoXValue",
                       "view.setNeedsDisplay", "info.updateDataInfo"}));
}

TEST_F(DataSeriesUndo, deletingWithoutSelectionDoesNothing)
{
    fill({1});
    document.undo.removeAllActionsWithTarget(&series);
    calls.clear();
    series.deleteSelection();
    endEvent();
    EXPECT_TRUE(series.isValidSeries(1));
    EXPECT_TRUE(calls.empty());
    EXPECT_FALSE(document.undo.canUndo());
}

TEST_F(DataSeriesUndo, undoOfADeletionRestoresEachSeriesAndRedoDeletesThemAgain)
{
    fill({1, 4, 6});
    table.selection = {1, 6};
    series.deleteSelection();
    endEvent();
    document.undo.undo();
    EXPECT_EQ(pairs(1), (Pairs{{1, 1}}));
    EXPECT_EQ(pairs(6), (Pairs{{6, 6}}));
    document.undo.redo();
    EXPECT_EQ(series.validSeries(), IndexSet{4});
    document.undo.undo();
    EXPECT_EQ(series.validSeries(), (IndexSet{1, 4, 6}));
}

TEST_F(DataSeriesUndo, undoOfADeletionKeepsTheCurrentSeries)
{
    fill({1, 4});
    table.selection = {1};
    series.deleteSelection();
    endEvent();
    choose(8);
    calls.clear();
    document.undo.undo();
    EXPECT_EQ(series.currentSeries(), 8);
    EXPECT_EQ(calls, (CallLog{"table.noteNumberOfRowsChanged", "guide.setAutoXValue",
                              "view.setNeedsDisplay", "info.updateDataInfo"}));
}

TEST_F(DataSeriesUndo, aDeletionNamesItsActionForUndoAndRedo)
{
    fill({1});
    table.selection = {1};
    series.deleteSelection();
    endEvent();
    EXPECT_EQ(document.undo.undoActionName(), texts::localized("actionDataDelete"));
    document.undo.undo();
    EXPECT_EQ(document.undo.redoActionName(), texts::localized("actionDataDelete"));
    EXPECT_EQ(document.undo.undoActionName(), texts::localized("actionDataAppend"));
}

TEST_F(DataSeriesUndo, recordsOfSeveralSeriesAreInAscendingOrder)
{
    fill({2, 7});
    const DataSeries::SeriesSetRecord record = series.copyOfDataArraysOfSeries({7, 2});
    EXPECT_EQ(record.seriesIndexes, (IndexSet{2, 7}));
    ASSERT_EQ(record.dataSeries.size(), 2U);
    EXPECT_EQ(pairsOf(record.dataSeries[0].points()), (Pairs{{2, 2}}));
    EXPECT_EQ(pairsOf(record.dataSeries[1].points()), (Pairs{{7, 7}}));
}

TEST_F(DataSeriesUndo, theRecordOfTheCurrentSeriesIsASnapshot)
{
    choose(3);
    click(1, 2);
    const DataSeries::SeriesRecord record = series.copyOfCurrentDataArray();
    click(3, 4);
    EXPECT_EQ(record.series, 3);
    EXPECT_EQ(pairsOf(record.dataArray.points()), (Pairs{{1, 2}}));
}

TEST_F(DataSeriesUndo, aClickTakenBackLeavesTheDocumentModified)
{
    click(1, 2);
    EXPECT_EQ(document.changeCount, 1);
    document.undo.undo();
    EXPECT_EQ(document.changeCount, 1);
}

TEST_F(DataSeriesUndo, aDeletionTakenBackLeavesTheDocumentUnmodified)
{
    fill({1});
    document.updateChangeCount(ChangeKind::Cleared);
    table.selection = {1};
    series.deleteSelection();
    endEvent();
    EXPECT_EQ(document.changeCount, 1);
    document.undo.undo();
    EXPECT_EQ(document.changeCount, 0);
    document.undo.redo();
    EXPECT_EQ(document.changeCount, 1);
}

TEST_F(DataSeriesUndo, droppingTheActionsOfTheSeriesLeavesNothingToUndo)
{
    click(1, 2);
    document.undo.removeAllActionsWithTarget(&series);
    EXPECT_FALSE(document.undo.canUndo());
    EXPECT_EQ(pairs(0), (Pairs{{1, 2}}));
}

TEST_F(DataSeriesUndo, tenThousandClicksGoBackToNothingAndForthAgain)
{
    constexpr int count = 10000;
    for (int i = 0; i < count; ++i)
        click(static_cast<float>(i), 0);
    for (int i = 0; i < count; ++i)
        document.undo.undo();
    EXPECT_FALSE(series.isValidSeries(0));
    EXPECT_FALSE(document.undo.canUndo());
    for (int i = 0; i < count; ++i)
        document.undo.redo();
    EXPECT_EQ(series.currentIndex(), count);
    EXPECT_EQ(series.points(0).back().X(), count - 1);
}

TEST_F(DataSeriesUndo, aRandomSessionGoesToTheBottomAndToTheTop)
{
    std::mt19937 random(99);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    const auto state = [this] {
        std::vector<Pairs> all;
        for (int i = 0; i < 10; ++i)
            all.push_back(pairs(i));
        return all;
    };
    series.simulateToggleSort();
    std::vector<std::vector<Pairs>> states{state()};
    while (states.size() < 400) {
        choose(below(10));
        if (below(8) == 0) {
            table.selection = {below(10), below(10)};
            series.deleteSelection();
            endEvent();
        } else {
            click(static_cast<float>(below(50)), static_cast<float>(below(50)));
        }
        states.push_back(state());
    }
    for (std::size_t i = states.size() - 1; i > 0; --i) {
        document.undo.undo();
        ASSERT_EQ(state(), states[i - 1]);
    }
    for (std::size_t i = 1; i < states.size(); ++i) {
        document.undo.redo();
        ASSERT_EQ(state(), states[i]);
    }
}
