// Dragging columns of the table away, and that it leaves selecting as it is.
#include "capture/DataTableView.h"

#include "TableFixture.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class DataTableDrag : public DataTableViewShown
{
protected:
    void pressAt(int column, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mousePress(table.viewport(), Qt::LeftButton, modifiers, cell(column));
    }
    void moveBy(QPoint way, int column)
    {
        QTest::mouseMove(table.viewport(), cell(column) + way);
        QCoreApplication::processEvents(); // a drag begins after the event that starts it
    }
    void release(int column, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseRelease(table.viewport(), Qt::LeftButton, modifiers, cell(column));
    }

    const QPoint far{0, QApplication::startDragDistance() + 20};
    QSignalSpy dragged{&table, &DataTableView::selectionDragged};
};

} // namespace

TEST_F(DataTableDrag, aPressAndAMoveDragTheColumnUnderThePointer)
{
    pressAt(2);
    EXPECT_EQ(selected(), (IndexSet{2}));
    moveBy(far, 2);
    EXPECT_EQ(dragged.count(), 1);
    EXPECT_EQ(selected(), (IndexSet{2}));
}

TEST_F(DataTableDrag, oneDragIsOneDrag)
{
    pressAt(2);
    moveBy(far, 2);
    moveBy(2 * far, 2);
    EXPECT_EQ(dragged.count(), 1);
}

TEST_F(DataTableDrag, severalSelectedColumnsAreDraggedTogether)
{
    click(2);
    click(5, Qt::ControlModifier);
    pressAt(2);
    EXPECT_EQ(selected(), (IndexSet{2, 5}));
    moveBy(far, 2);
    EXPECT_EQ(dragged.count(), 1);
    release(2);
    EXPECT_EQ(selected(), (IndexSet{2, 5}));
}

TEST_F(DataTableDrag, aClickOnOneOfSeveralSelectedColumnsStillSelectsItAlone)
{
    click(2);
    click(5, Qt::ControlModifier);
    click(2);
    EXPECT_EQ(selected(), (IndexSet{2}));
    EXPECT_EQ(table.lastClickedCol(), 2);
    EXPECT_EQ(table.currentColumn(), 2);
    EXPECT_EQ(dragged.count(), 0);
}

TEST_F(DataTableDrag, aHandThatTremblesSelectsAllTheSame)
{
    click(2);
    click(5, Qt::ControlModifier);
    pressAt(5);
    moveBy({1, 1}, 5);
    release(5);
    EXPECT_EQ(selected(), (IndexSet{5}));
    EXPECT_EQ(dragged.count(), 0);
}

TEST_F(DataTableDrag, addedColumnsAreDraggedWithTheOthers)
{
    click(2);
    pressAt(5, Qt::ControlModifier);
    moveBy(far, 5);
    EXPECT_EQ(dragged.count(), 1);
    EXPECT_EQ(selected(), (IndexSet{2, 5}));
}

TEST_F(DataTableDrag, anEmptySeriesCannotBeDragged)
{
    pressAt(3);
    moveBy(far, 3);
    EXPECT_EQ(dragged.count(), 0);
}

TEST_F(DataTableDrag, besideAllColumnsNothingIsDragged)
{
    pressAt(10);
    moveBy(far, 10);
    EXPECT_EQ(dragged.count(), 0);
}

TEST_F(DataTableDrag, aMoveWithoutAPressDragsNothing)
{
    click(2);
    moveBy(far, 2);
    EXPECT_EQ(dragged.count(), 0);
}

TEST_F(DataTableDrag, beginsAfterTheEventThatStartsItSoThatTheTableMayGoMeanwhile)
{
    pressAt(2);
    const QPointF there = cell(2) + far;
    QMouseEvent move(QEvent::MouseMove, there, table.viewport()->mapToGlobal(there), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(table.viewport(), &move);
    EXPECT_EQ(dragged.count(), 0);
    EXPECT_TRUE(dragged.wait());
}
