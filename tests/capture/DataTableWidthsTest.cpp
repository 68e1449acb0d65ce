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
