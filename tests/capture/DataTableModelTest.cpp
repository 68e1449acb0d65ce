#include "capture/DataTableModel.h"

#include "TableFixture.h"

#include <QAbstractItemModelTester>
#include <QPixmap>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

struct ModelOfSource
{
    ModelOfSource()
    {
        source.counts[2] = 3;
        model.setSource(source);
    }

    CountedSource source;
    DataTableModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST(DataTableModel, hasTenColumnsAndTheRowsOfTheLongestSeries)
{
    ModelOfSource of;
    of.source.counts[7] = 5;
    of.model.noteNumberOfRowsChanged();
    EXPECT_EQ(of.model.columnCount(), 10);
    EXPECT_EQ(of.model.rowCount(), 5);
}

TEST(DataTableModel, withoutSourceHasNoRows)
{
    const DataTableModel model;
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.columnCount(), 10);
}

TEST(DataTableModel, cellsShowTheTextOfTheSource)
{
    ModelOfSource of;
    EXPECT_EQ(of.model.index(1, 2).data().toString(), "s2r1");
    EXPECT_EQ(of.model.index(1, 3).data().toString(), "");
}

TEST(DataTableModel, newRowsAreInsertedAtTheEnd)
{
    ModelOfSource of;
    QSignalSpy inserted(&of.model, &QAbstractItemModel::rowsInserted);
    of.source.counts[2] = 5;
    of.model.noteNumberOfRowsChanged();
    ASSERT_EQ(inserted.count(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 3);
    EXPECT_EQ(inserted[0][2].toInt(), 4);
}

TEST(DataTableModel, goneRowsAreRemovedAtTheEnd)
{
    ModelOfSource of;
    QSignalSpy removed(&of.model, &QAbstractItemModel::rowsRemoved);
    of.source.counts[2] = 1;
    of.model.noteNumberOfRowsChanged();
    ASSERT_EQ(removed.count(), 1);
    EXPECT_EQ(removed[0][1].toInt(), 1);
    EXPECT_EQ(removed[0][2].toInt(), 2);
}

TEST(DataTableModel, anUnchangedNumberOfRowsStillReadsTheCellsAnew)
{
    ModelOfSource of;
    QSignalSpy changed(&of.model, &QAbstractItemModel::dataChanged);
    of.model.noteNumberOfRowsChanged();
    EXPECT_EQ(changed.count(), 1);
}

TEST(DataTableModel, reloadReadsTheCellsAnewAndLeavesTheRows)
{
    ModelOfSource of;
    QSignalSpy changed(&of.model, &QAbstractItemModel::dataChanged);
    of.source.counts[2] = 9;
    of.model.reloadData();
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(of.model.rowCount(), 3);
}

TEST(DataTableModel, columnsAreTitledByTheNumberOfTheSeries)
{
    const DataTableModel model;
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "1");
    EXPECT_EQ(model.headerData(9, Qt::Horizontal, Qt::DisplayRole).toString(), "10");
    EXPECT_EQ(model.headerData(4, Qt::Vertical, Qt::DisplayRole).toString(), "5");
}

TEST(DataTableModel, titlesShowTheMarkerOfTheSeries)
{
    ModelOfSource of;
    const GreenPrefs prefs;
    EXPECT_FALSE(of.model.headerData(0, Qt::Horizontal, Qt::DecorationRole).isValid());
    QSignalSpy changed(&of.model, &QAbstractItemModel::headerDataChanged);
    of.model.setPrefs(prefs);
    EXPECT_EQ(changed.count(), 1);
    const auto swatch = of.model.headerData(0, Qt::Horizontal, Qt::DecorationRole).value<QPixmap>();
    EXPECT_EQ(swatch.toImage().pixelColor(swatch.rect().center()), QColor(Qt::green));
}

TEST(DataTableModel, titlesAreSpokenInWords)
{
    const DataTableModel model;
    EXPECT_EQ(model.headerData(2, Qt::Horizontal, Qt::AccessibleTextRole).toString(), "Series 3");
    EXPECT_TRUE(
        model.headerData(2, Qt::Horizontal, Qt::ToolTipRole).toString().startsWith("Series 3"));
}
