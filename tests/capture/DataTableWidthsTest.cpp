#include "capture/DataTableView.h"

#include "TableFixture.h"

#include <vector>

namespace {

using DataTableViewWidths = DataTableViewShown;

ArchiveDictionary widths(const std::vector<ArchiveValue> &values)
{
    ArchiveDictionary saved;
    saved.set("Column Widths", ArchiveValue{ArchiveArray(values)});
    return saved;
}

constexpr int ofEmptyColumns = 30;
constexpr int rows = 100'000;

/// A table of which only the top can be seen, with texts that grow longer from row to row.
class DataTableViewTexts : public ::testing::Test
{
protected:
    DataTableViewTexts()
    {
        table.setWidthOfEmptyColumns(ofEmptyColumns);
        table.setDataSource(source, prefs);
        table.resize(400, 300);
        table.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&table));
    }

    void setRows(int count)
    {
        source.counts[0] = count;
        table.noteNumberOfRowsChanged();
    }
    bool fits(const QString &text, int column) const
    {
        return table.columnWidth(column) > table.fontMetrics().horizontalAdvance(text);
    }

    CountedSource source;
    GreenPrefs prefs;
    DataTableView table;
};

ArchiveValue number(int value) { return ArchiveValue{std::int64_t{value}}; }

} // namespace

TEST_F(DataTableViewWidths, areSavedAsIntegersInColumnOrder)
{
    table.setColumnWidth(1, 57);
    const ArchiveDictionary saved = table.dataForSave();
    ASSERT_EQ(saved.entries().size(), 1U);
    const ArchiveArray *list = saved.arrayForKey("Column Widths");
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->size(), 10U);
    EXPECT_EQ(std::get<std::int64_t>((*list)[0].value), 60);
    EXPECT_EQ(std::get<std::int64_t>((*list)[1].value), 57);
}

TEST_F(DataTableViewWidths, loseTheirFraction)
{
    const ArchiveDictionary saved = widths(std::vector<ArchiveValue>(10, ArchiveValue{57.9}));
    EXPECT_TRUE(table.loadFromData(&saved));
    EXPECT_EQ(table.columnWidth(0), 57);
    const ArchiveDictionary again = table.dataForSave();
    EXPECT_EQ(std::get<std::int64_t>(again.arrayForKey("Column Widths")->front().value), 57);
}

TEST_F(DataTableViewWidths, comeBack)
{
    table.setColumnWidth(3, 77);
    table.setColumnWidth(9, 140);
    const ArchiveDictionary saved = table.dataForSave();
    table.setColumnWidth(3, 50);
    table.setColumnWidth(9, 50);
    EXPECT_TRUE(table.loadFromData(&saved));
    EXPECT_EQ(table.columnWidth(3), 77);
    EXPECT_EQ(table.columnWidth(9), 140);
    EXPECT_EQ(table.columnWidth(0), 60);
}

TEST_F(DataTableViewWidths, beyondAShortListAreTheMinimum)
{
    const ArchiveDictionary saved = widths({number(90), number(80)});
    EXPECT_TRUE(table.loadFromData(&saved));
    EXPECT_EQ(table.columnWidth(0), 90);
    EXPECT_EQ(table.columnWidth(1), 80);
    EXPECT_EQ(table.columnWidth(2), table.horizontalHeader()->minimumSectionSize());
    EXPECT_EQ(table.columnWidth(9), table.horizontalHeader()->minimumSectionSize());
}

TEST_F(DataTableViewWidths, ofNoUseAreBroughtIntoRange)
{
    const ArchiveDictionary saved =
        widths({number(0), number(-5), ArchiveValue{1e30}, ArchiveValue{std::string("wide")}});
    EXPECT_TRUE(table.loadFromData(&saved));
    const QHeaderView *header = table.horizontalHeader();
    EXPECT_EQ(table.columnWidth(0), header->minimumSectionSize());
    EXPECT_EQ(table.columnWidth(1), header->minimumSectionSize());
    EXPECT_EQ(table.columnWidth(2), header->maximumSectionSize());
    EXPECT_EQ(table.columnWidth(3), header->minimumSectionSize());
}

TEST_F(DataTableViewWidths, moreThanTenAreIgnored)
{
    const ArchiveDictionary saved = widths(std::vector<ArchiveValue>(14, number(70)));
    EXPECT_TRUE(table.loadFromData(&saved));
    EXPECT_EQ(table.columnWidth(9), 70);
}

TEST_F(DataTableViewWidths, withoutAListAreTheMinimum)
{
    const ArchiveDictionary saved;
    EXPECT_TRUE(table.loadFromData(&saved));
    EXPECT_EQ(table.columnWidth(0), table.horizontalHeader()->minimumSectionSize());
}

TEST_F(DataTableViewWidths, stayWithoutADictionary)
{
    EXPECT_FALSE(table.loadFromData(nullptr));
    EXPECT_EQ(table.columnWidth(0), 60);
}

TEST_F(DataTableViewTexts, widenTheirColumn)
{
    setRows(3);
    EXPECT_TRUE(fits("s0r2", 0));
    EXPECT_EQ(table.columnWidth(1), ofEmptyColumns);
}

TEST_F(DataTableViewTexts, widenTheirColumnAsTheyComeIntoView)
{
    setRows(rows);
    const int before = table.columnWidth(0);
    QTest::keyClick(&table, Qt::Key_End);
    EXPECT_GT(table.columnWidth(0), before);
    EXPECT_TRUE(fits("s0r99999", 0));
    QTest::keyClick(&table, Qt::Key_Home);
    EXPECT_TRUE(fits("s0r99999", 0));
}

TEST_F(DataTableViewTexts, areMeasuredOnlyWhereTheyAreSeen)
{
    setRows(rows);
    source.asked = 0;
    table.noteNumberOfRowsChanged();
    const int seen = table.viewport()->height() / table.rowHeight(0) + 2;
    EXPECT_LE(source.asked, 10 * seen);
}

TEST_F(DataTableViewTexts, leaveAWidthThatWasChosen)
{
    table.setColumnWidth(0, 26);
    setRows(3);
    EXPECT_EQ(table.columnWidth(0), 26);
}

TEST_F(DataTableViewTexts, leaveTheWidthsOfADocument)
{
    const ArchiveDictionary saved = widths({number(26), number(26)});
    EXPECT_TRUE(table.loadFromData(&saved));
    setRows(3);
    EXPECT_EQ(table.columnWidth(0), 26);
}

TEST_F(DataTableViewTexts, widenColumnsOfADocumentThatNobodyWidened)
{
    const ArchiveDictionary saved = widths({number(ofEmptyColumns), number(26)});
    EXPECT_TRUE(table.loadFromData(&saved));
    EXPECT_EQ(table.columnWidth(0), ofEmptyColumns);
    setRows(3);
    EXPECT_TRUE(fits("s0r2", 0));
}

TEST_F(DataTableViewTexts, doubleClickOnTheEdgeLeavesTheWidthToThemAgain)
{
    setRows(3);
    table.setColumnWidth(0, 200);
    const QPoint edge(199, table.horizontalHeader()->height() / 2);
    QTest::mouseDClick(table.horizontalHeader()->viewport(), Qt::LeftButton, {}, edge);
    EXPECT_LT(table.columnWidth(0), 100);
    EXPECT_TRUE(fits("s0r2", 0));
    setRows(rows);
    QTest::keyClick(&table, Qt::Key_End);
    EXPECT_TRUE(fits("s0r99999", 0));
}
