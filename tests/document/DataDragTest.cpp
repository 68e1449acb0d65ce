#include "capture/DataSeries.h"
#include "capture/DataTableView.h"
#include "document/TestDocument.h"

#include <QApplication>
#include <QHeaderView>

#include <gtest/gtest.h>

namespace {

/// A document with two points in the first series, whose table is open.
class DataDrag : public testing::Test
{
protected:
    DataDrag()
    {
        test.command("wholePosition");
        test.digitize();
        test.click(100, 100);
        test.click(200, 150);
        if (!test.ui().dataTableDrawer->isOpen())
            test.document->showHideDataTable();
    }

    [[nodiscard]] DataTableView &table() const { return *test.ui().dataTableView; }

    void dragColumn(int column)
    {
        const QPoint start(table().columnViewportPosition(column) + 10, 5);
        QTest::mousePress(table().viewport(), Qt::LeftButton, Qt::NoModifier, start);
        QTest::mouseMove(table().viewport(),
                         start + QPoint(0, QApplication::startDragDistance() + 10));
        QCoreApplication::processEvents(); // a drag begins after the event that starts it
        test.endEvent();
    }

    TestDocument test;
};

} // namespace

TEST_F(DataDrag, takesAlongWhatACopyPutsOnTheClipboard)
{
    dragColumn(0);
    ASSERT_EQ(test.services.fakeTableDrag.texts.size(), 1);
    test.command("copy");
    EXPECT_EQ(test.services.fakeTableDrag.texts.first(), test.services.fakeClipboard.text());
    EXPECT_EQ(test.services.fakeTableDrag.texts.first().count(u'\n'),
              test.services.prefs().copyWithTitle() ? 3 : 2);
}

TEST_F(DataDrag, leavesTheDataAlone)
{
    test.markSaved();
    dragColumn(0);
    EXPECT_EQ(test.document->dataSeries().validSeries(), IndexSet{0});
    EXPECT_FALSE(test.document->isDocumentEdited());
}

TEST_F(DataDrag, needsData)
{
    dragColumn(1);
    EXPECT_TRUE(test.services.fakeTableDrag.texts.isEmpty());
}
