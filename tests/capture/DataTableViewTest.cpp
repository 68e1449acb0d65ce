#include "capture/DataTableView.h"

#include "TableFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

namespace {

using DataTableViewBody = DataTableViewShown;
using DataTableViewHeader = DataTableViewShown;
using DataTableViewKeyboard = DataTableViewShown;
using DataTableViewSelection = DataTableViewShown;
using DataTableViewLook = DataTableViewShown;

} // namespace

// --- Clicks into the body

TEST_F(DataTableViewBody, clickSelectsTheSeries)
{
    EXPECT_EQ(table.lastClickedCol(), -1);
    click(2);
    EXPECT_EQ(selected(), (IndexSet{2}));
    EXPECT_EQ(table.lastClickedCol(), 2);
}

TEST_F(DataTableViewBody, clickReplacesTheSelection)
{
    click(2);
    click(5);
    EXPECT_EQ(selected(), (IndexSet{5}));
}

TEST_F(DataTableViewBody, clickBelowTheRowsSelectsTheSeriesToo)
{
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      QPoint(cell(2).x(), table.viewport()->height() - 4));
    EXPECT_EQ(selected(), (IndexSet{2}));
}

TEST_F(DataTableViewBody, clickOnAnEmptySeriesClearsAndIsTheAnchor)
{
    click(2);
    click(3);
    EXPECT_EQ(selected(), IndexSet());
    EXPECT_EQ(table.lastClickedCol(), 3);
    click(5, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (IndexSet{4, 5}));
}

TEST_F(DataTableViewBody, clickOnAnEmptySeriesWithAModifierIsIgnored)
{
    click(2);
    click(3, Qt::ShiftModifier);
    click(7, Qt::ControlModifier);
    EXPECT_EQ(selected(), (IndexSet{2}));
    EXPECT_EQ(table.lastClickedCol(), 2);
}

TEST_F(DataTableViewBody, commandClickAdds)
{
    click(2);
    click(5, Qt::ControlModifier);
    EXPECT_EQ(selected(), (IndexSet{2, 5}));
    EXPECT_EQ(table.lastClickedCol(), 5);
}

TEST_F(DataTableViewBody, commandClickNeverTakesAway)
{
    click(2);
    click(2, Qt::ControlModifier);
    EXPECT_EQ(selected(), (IndexSet{2}));
}

TEST_F(DataTableViewBody, shiftClickAddsTheSeriesThatHoldPoints)
{
    click(9);
    click(2, Qt::ControlModifier);
    source.counts[7] = 1;
    source.counts[3] = 2;
    source.counts[4] = 0;
    click(7, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (IndexSet{2, 3, 5, 6, 7, 9}));
}

TEST_F(DataTableViewBody, shiftClickGoesDownwardsToo)
{
    click(6);
    click(2, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (IndexSet{2, 4, 5, 6}));
}

TEST_F(DataTableViewBody, shiftClickMovesTheAnchor)
{
    click(0);
    click(2, Qt::ShiftModifier);
    EXPECT_EQ(table.lastClickedCol(), 2);
    table.deselectAll();
    click(5, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (IndexSet{2, 4, 5}));
}

TEST_F(DataTableViewBody, shiftClickWithoutAnAnchorReplaces)
{
    table.selectColumnIndexes({0, 1}, false);
    click(5, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (IndexSet{5}));
    EXPECT_EQ(table.lastClickedCol(), 5);
}

TEST_F(DataTableViewBody, shiftWinsOverCommand)
{
    click(4);
    click(6, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(selected(), (IndexSet{4, 5, 6}));
}

TEST_F(DataTableViewBody, shiftAndCommandWithoutAnAnchorReplace)
{
    table.selectColumnIndexes({0, 1}, false);
    click(5, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(selected(), (IndexSet{5}));
}

TEST_F(DataTableViewBody, clickBesideAllColumnsClearsAndDropsTheAnchor)
{
    click(2);
    click(10);
    EXPECT_EQ(selected(), IndexSet());
    EXPECT_EQ(table.lastClickedCol(), -1);
}

TEST_F(DataTableViewBody, clickBesideAllColumnsWithAModifierIsIgnored)
{
    click(2);
    click(10, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (IndexSet{2}));
    EXPECT_EQ(table.lastClickedCol(), 2);
}

TEST_F(DataTableViewBody, secondPressOfADoubleClickCountsAsAPress)
{
    click(2);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, cell(5));
    EXPECT_EQ(selected(), (IndexSet{5}));
}

TEST_F(DataTableViewBody, dragSelectsNothingMore)
{
    QTest::mousePress(table.viewport(), Qt::LeftButton, {}, cell(4));
    QMouseEvent move(QEvent::MouseMove, cell(6), table.viewport()->mapToGlobal(cell(6)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(table.viewport(), &move);
    QTest::mouseRelease(table.viewport(), Qt::LeftButton, {}, cell(6));
    EXPECT_EQ(selected(), (IndexSet{4}));
    EXPECT_FALSE(table.selectionModel()->hasSelection());
}

TEST_F(DataTableViewBody, otherButtonsSelectNothing)
{
    click(2);
    QTest::mouseClick(table.viewport(), Qt::RightButton, {}, cell(5));
    EXPECT_EQ(selected(), (IndexSet{2}));
    EXPECT_EQ(table.lastClickedCol(), 2);
}

TEST_F(DataTableViewBody, cellsAndRowsAreNeverSelected)
{
    click(2);
    click(10);
    QTest::mouseClick(table.verticalHeader()->viewport(), Qt::LeftButton, {}, QPoint(4, 4));
    EXPECT_FALSE(table.selectionModel()->hasSelection());
}

// --- Clicks on the titles

TEST_F(DataTableViewHeader, clickSelectsTheSeries)
{
    clickHeader(2);
    EXPECT_EQ(selected(), (IndexSet{2}));
    EXPECT_EQ(table.lastClickedCol(), 2);
}

TEST_F(DataTableViewHeader, clickOnAnEmptySeriesClears)
{
    click(2);
    clickHeader(3);
    EXPECT_EQ(selected(), IndexSet());
    EXPECT_FALSE(table.selectionModel()->hasSelection());
}

TEST_F(DataTableViewHeader, clickOnAnEmptySeriesWithAModifierIsIgnored)
{
    click(2);
    clickHeader(3, Qt::ControlModifier);
    clickHeader(7, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (IndexSet{2}));
}

TEST_F(DataTableViewHeader, modifiersActAsInTheBody)
{
    clickHeader(1);
    clickHeader(4, Qt::ControlModifier);
    EXPECT_EQ(selected(), (IndexSet{1, 4}));
    clickHeader(6, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (IndexSet{1, 4, 5, 6}));
}

TEST_F(DataTableViewHeader, clickBesideAllTitlesClears)
{
    click(2);
    clickHeader(10);
    EXPECT_EQ(selected(), IndexSet());
    EXPECT_EQ(table.lastClickedCol(), -1);
}

TEST_F(DataTableViewHeader, dragOfAnEdgeResizesAndSelectsNothing)
{
    QWidget *titles = table.horizontalHeader()->viewport();
    const int y = titles->height() / 2;
    QTest::mousePress(titles, Qt::LeftButton, {}, QPoint(119, y));
    QMouseEvent move(QEvent::MouseMove, QPoint(149, y), titles->mapToGlobal(QPoint(149, y)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(titles, &move);
    QTest::mouseRelease(titles, Qt::LeftButton, {}, QPoint(149, y));
    EXPECT_EQ(table.columnWidth(1), 90);
    EXPECT_EQ(selected(), IndexSet());
}

TEST_F(DataTableViewHeader, columnsCannotBeMoved)
{
    QWidget *titles = table.horizontalHeader()->viewport();
    const int y = titles->height() / 2;
    QTest::mousePress(titles, Qt::LeftButton, {}, QPoint(90, y));
    for (const int x : {150, 220, 330}) {
        QMouseEvent move(QEvent::MouseMove, QPoint(x, y), titles->mapToGlobal(QPoint(x, y)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(titles, &move);
    }
    QTest::mouseRelease(titles, Qt::LeftButton, {}, QPoint(330, y));
    EXPECT_FALSE(table.horizontalHeader()->sectionsMoved());
    EXPECT_EQ(selected(), (IndexSet{1}));
}

// --- Select all, and what the program does

TEST_F(DataTableViewSelection, allIsAllThatHoldPoints)
{
    click(2);
    table.selectAll();
    EXPECT_EQ(selected(), (IndexSet{0, 1, 2, 4, 5, 6, 8, 9}));
    EXPECT_EQ(table.lastClickedCol(), -1);
}

TEST_F(DataTableViewSelection, allOfNothingClears)
{
    click(2);
    source.counts.fill(0);
    table.noteNumberOfRowsChanged();
    table.selectAll();
    EXPECT_EQ(selected(), IndexSet());
    EXPECT_EQ(table.lastClickedCol(), -1);
}

TEST_F(DataTableViewSelection, cornerButtonSelectsAll)
{
    auto *corner = table.findChild<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_NE(corner, nullptr);
    QTest::mouseClick(corner, Qt::LeftButton);
    EXPECT_EQ(selected().size(), 8U);
    EXPECT_FALSE(corner->toolTip().isEmpty());
}

TEST_F(DataTableViewSelection, isRestrictedToSeriesThatHoldPoints)
{
    table.selectColumnIndexes({2, 3, 7, 8, 99, -4}, false);
    EXPECT_EQ(selected(), (IndexSet{2, 8}));
}

TEST_F(DataTableViewSelection, ofEmptySeriesOnlyClears)
{
    click(2);
    table.selectColumnIndexes({3}, false);
    EXPECT_EQ(selected(), IndexSet());
}

TEST_F(DataTableViewSelection, extendedByEmptySeriesStays)
{
    click(2);
    table.selectColumnIndexes({3, 7}, true);
    EXPECT_EQ(selected(), (IndexSet{2}));
}

TEST_F(DataTableViewSelection, extendedKeepsWhatWasSelected)
{
    click(2);
    table.selectColumnIndexes({3, 4}, true);
    EXPECT_EQ(selected(), (IndexSet{2, 4}));
}

TEST_F(DataTableViewSelection, survivesNewRows)
{
    click(2);
    source.counts[2] = 20;
    table.noteNumberOfRowsChanged();
    EXPECT_EQ(selected(), (IndexSet{2}));
}

TEST_F(DataTableViewSelection, survivesReloading)
{
    click(2);
    table.reloadData();
    EXPECT_EQ(selected(), (IndexSet{2}));
}

TEST_F(DataTableViewSelection, isNotPrunedWhenASeriesLosesItsPoints)
{
    click(2);
    source.counts[2] = 0;
    table.noteNumberOfRowsChanged();
    EXPECT_EQ(selected(), (IndexSet{2}));
    source.counts.fill(0);
    table.noteNumberOfRowsChanged();
    EXPECT_EQ(selected(), (IndexSet{2}));
}

TEST_F(DataTableViewSelection, tellsOfEachChangeOnce)
{
    QSignalSpy changes(&table, &DataTableView::selectedColumnsChanged);
    click(2);
    EXPECT_EQ(changes.count(), 1);
    click(2);
    EXPECT_EQ(changes.count(), 1);
    click(5, Qt::ControlModifier);
    EXPECT_EQ(changes.count(), 2);
    table.deselectAll();
    EXPECT_EQ(changes.count(), 3);
    table.deselectAll();
    EXPECT_EQ(changes.count(), 3);
}

TEST_F(DataTableViewSelection, isSpoken)
{
    EXPECT_EQ(table.accessibleDescription(), "No series is selected.");
    table.selectColumnIndexes({1, 4}, false);
    EXPECT_EQ(table.accessibleDescription(), "Selected series: 2, 5");
}

TEST_F(DataTableViewSelection, withoutDataSourceIsEmpty)
{
    DataTableView lonely;
    lonely.selectColumnIndexes({1}, false);
    lonely.selectAll();
    QTest::keyClick(&lonely, Qt::Key_Right);
    EXPECT_EQ(lonely.selectedColumnIndexes(), IndexSet());
}

// --- The keyboard

TEST_F(DataTableViewKeyboard, commandASelectsAll)
{
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(selected(), (IndexSet{0, 1, 2, 4, 5, 6, 8, 9}));
}

TEST_F(DataTableViewKeyboard, rightArrowGoesToTheNextSeriesThatHoldsPoints)
{
    press(Qt::Key_Right);
    EXPECT_EQ(selected(), (IndexSet{0}));
    click(2);
    press(Qt::Key_Right);
    EXPECT_EQ(selected(), (IndexSet{4}));
    EXPECT_EQ(table.currentColumn(), 4);
}

TEST_F(DataTableViewKeyboard, leftArrowGoesBack)
{
    press(Qt::Key_Left);
    EXPECT_EQ(selected(), (IndexSet{9}));
    click(4);
    press(Qt::Key_Left);
    EXPECT_EQ(selected(), (IndexSet{2}));
}

TEST_F(DataTableViewKeyboard, arrowsStopAtTheLastSeries)
{
    click(9);
    press(Qt::Key_Right);
    EXPECT_EQ(selected(), (IndexSet{9}));
    click(0);
    press(Qt::Key_Left);
    EXPECT_EQ(selected(), (IndexSet{0}));
}

TEST_F(DataTableViewKeyboard, shiftArrowExtends)
{
    click(2);
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (IndexSet{2, 4, 5}));
}

TEST_F(DataTableViewKeyboard, commandArrowGoesWithoutSelecting)
{
    click(2);
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(selected(), (IndexSet{2}));
    EXPECT_EQ(table.currentColumn(), 4);
}

TEST_F(DataTableViewKeyboard, spaceSelectsWhereItStands)
{
    click(2);
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(selected(), (IndexSet{2, 4}));
    press(Qt::Key_Space);
    EXPECT_EQ(selected(), (IndexSet{4}));
}

TEST_F(DataTableViewKeyboard, spaceWithoutAColumnDoesNothing)
{
    press(Qt::Key_Space);
    EXPECT_EQ(selected(), IndexSet());
}

TEST_F(DataTableViewKeyboard, onlyEmptySeriesLeaveTheArrowsIdle)
{
    source.counts.fill(0);
    press(Qt::Key_Right);
    EXPECT_EQ(table.currentColumn(), -1);
    EXPECT_EQ(selected(), IndexSet());
}

TEST_F(DataTableViewKeyboard, upAndDownScroll)
{
    source.counts[0] = 500;
    table.noteNumberOfRowsChanged();
    press(Qt::Key_End);
    const QScrollBar *bar = table.verticalScrollBar();
    EXPECT_EQ(bar->value(), bar->maximum());
    press(Qt::Key_Up);
    EXPECT_LT(bar->value(), bar->maximum());
    press(Qt::Key_Home);
    EXPECT_EQ(bar->value(), 0);
    press(Qt::Key_Down);
    EXPECT_GT(bar->value(), 0);
    press(Qt::Key_PageDown);
    const int page = bar->value();
    EXPECT_GT(page, 50);
    press(Qt::Key_PageUp);
    EXPECT_LT(bar->value(), page);
    EXPECT_EQ(selected(), IndexSet());
}

TEST_F(DataTableViewKeyboard, otherKeysAreLeftToTheWindow)
{
    QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier, "c");
    QApplication::sendEvent(&table, &copy);
    EXPECT_FALSE(copy.isAccepted());
}

TEST_F(DataTableViewKeyboard, tabLeavesTheTable) { EXPECT_FALSE(table.tabKeyNavigation()); }

// --- How it looks

TEST_F(DataTableViewLook, selectedColumnsArePaintedAsSelected)
{
    QPalette palette = table.palette();
    palette.setColor(QPalette::Highlight, Qt::magenta);
    palette.setColor(QPalette::Base, Qt::white);
    table.setPalette(palette);
    click(5);
    const QImage canvas = table.viewport()->grab().toImage();
    const int y = cell(5).y();
    EXPECT_EQ(canvas.pixelColor(5 * 60 + 54, y), QColor(Qt::magenta));
    EXPECT_EQ(canvas.pixelColor(4 * 60 + 54, y), QColor(Qt::white));
}

TEST_F(DataTableViewLook, titlesOfSelectedColumnsStandOut)
{
    const QImage before = table.horizontalHeader()->grab().toImage();
    table.selectColumnIndexes({5}, false);
    const QImage after = table.horizontalHeader()->grab().toImage();
    const QPoint selectedTitle(5 * 60 + 50, before.height() / 2);
    const QPoint otherTitle(4 * 60 + 50, before.height() / 2);
    EXPECT_NE(before.pixelColor(selectedTitle), after.pixelColor(selectedTitle));
    EXPECT_EQ(before.pixelColor(otherTitle), after.pixelColor(otherTitle));
}

TEST_F(DataTableViewLook, emptyTableSaysWhatToDo)
{
    source.counts.fill(0);
    table.noteNumberOfRowsChanged();
    QImage blank = table.viewport()->grab().toImage();
    const QImage said = blank;
    blank.fill(table.palette().color(QPalette::Base));
    EXPECT_NE(said, blank);
}

TEST_F(DataTableViewLook, cellsHaveTheMenuFontAtSize10)
{
    EXPECT_EQ(table.font().family(), QApplication::font("QMenu").family());
    EXPECT_EQ(table.font().pointSizeF(), 10);
}

TEST_F(DataTableViewLook, scrollsAColumnIntoView)
{
    table.resize(200, 200);
    table.scrollColumnToVisible(9);
    const QScrollBar *bar = table.horizontalScrollBar();
    EXPECT_EQ(bar->value(), 600 - table.viewport()->width());
    table.scrollColumnToVisible(9);
    EXPECT_EQ(bar->value(), 600 - table.viewport()->width());
    table.scrollColumnToVisible(2);
    EXPECT_EQ(bar->value(), 120);
    table.scrollColumnToVisible(10);
    table.scrollColumnToVisible(-1);
    EXPECT_EQ(bar->value(), 120);
}

TEST_F(DataTableViewLook, scrollsNoFartherThanItsWidthOnTheScreenAsksFor)
{
    table.hide();
    table.resize(100, 200);
    table.scrollColumnToVisible(1);
    table.resize(200, 200);
    table.show();
    EXPECT_EQ(table.horizontalScrollBar()->value(), 0);
    table.hide();
    table.scrollColumnToVisible(9);
    table.show();
    EXPECT_EQ(table.horizontalScrollBar()->value(), 600 - table.viewport()->width());
}

TEST_F(DataTableViewLook, tellsAValueThatIsCutOffAsATip)
{
    table.horizontalHeader()->resizeSection(0, 12);
    const QPoint place(6, table.verticalHeader()->defaultSectionSize() / 2);
    QHelpEvent asked(QEvent::ToolTip, place, table.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(table.viewport(), &asked);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("s0r0"));
    QToolTip::hideText();
}

TEST_F(DataTableViewLook, leavesTheTipOfTheTableWhereValuesAreWhole)
{
    table.setToolTip(QStringLiteral("One column per series."));
    QHelpEvent asked(QEvent::ToolTip, cell(1), table.viewport()->mapToGlobal(cell(1)));
    QCoreApplication::sendEvent(table.viewport(), &asked);
    EXPECT_NE(QToolTip::text(), QStringLiteral("s1r0"));
    QToolTip::hideText();
}

TEST_F(DataTableViewLook, readsOnlyTheCellsThatAreSeen)
{
    source.counts[0] = 100000;
    source.asked = 0;
    table.noteNumberOfRowsChanged();
    table.verticalScrollBar()->setValue(table.verticalScrollBar()->maximum());
    table.viewport()->grab();
    EXPECT_GT(source.asked, 0);
    EXPECT_LT(source.asked, 5000);
}

TEST_F(DataTableViewLook, reachesTheLastOfManyRows)
{
    source.counts[0] = 100000;
    table.noteNumberOfRowsChanged();
    press(Qt::Key_End);
    EXPECT_EQ(table.rowAt(table.viewport()->height() - 4), 99999);
}
