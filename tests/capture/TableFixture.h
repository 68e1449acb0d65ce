#pragma once

#include "capture/DataTableView.h"

#include <QHeaderView>
#include <QString>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

/// A data source that holds nothing but the lengths of the series.
class CountedSource final : public TableSource
{
public:
    [[nodiscard]] bool isValidSeries(int series) const override
    {
        return series >= 0 && series < 10 && counts.at(static_cast<std::size_t>(series)) > 0;
    }
    [[nodiscard]] IndexSet validSeries() const override { return validSeriesBetween(0, 9); }
    [[nodiscard]] IndexSet validSeriesBetween(int first, int last) const override
    {
        IndexSet valid;
        for (int series = std::min(first, last); series <= std::max(first, last); ++series) {
            if (isValidSeries(series))
                valid.insert(series);
        }
        return valid;
    }
    [[nodiscard]] IndexSet validSeriesWithin(const IndexSet &series) const override
    {
        IndexSet valid = validSeries();
        std::erase_if(valid, [&series](int i) { return !series.contains(i); });
        return valid;
    }
    [[nodiscard]] int numberOfRowsInTableView() const override
    {
        return *std::max_element(counts.begin(), counts.end());
    }
    [[nodiscard]] QString tableView(int objectValueForTableColumn, int row) const override
    {
        const int series = objectValueForTableColumn;
        ++asked;
        if (row >= counts.at(static_cast<std::size_t>(series)))
            return {};
        return QStringLiteral("s%1r%2").arg(series).arg(row);
    }

    std::array<int, 10> counts{};
    mutable int asked = 0;
};

/// Every series is drawn as a green square.
class GreenPrefs final : public CapturePrefs
{
public:
    [[nodiscard]] bool copyWithTitle() const override { return false; }
    [[nodiscard]] bool saveWithTitle() const override { return false; }
    [[nodiscard]] PlotStyle plotPrefsForSeries(int /*series*/) const override
    {
        return {.color = {0, 1, 0, 1}, .size = 7, .thickness = 1.5F, .shape = 0};
    }
    [[nodiscard]] DeviceColor guideColor() const override { return {}; }
    [[nodiscard]] float guideThick() const override { return 1; }
    [[nodiscard]] float axisThick() const override { return 1; }
};

/// A table that is shown whole: series 4 and 8 (indexes 3 and 7) are empty, the others hold points.
class DataTableViewShown : public ::testing::Test
{
protected:
    DataTableViewShown()
    {
        source.counts = {5, 3, 1, 0, 2, 4, 6, 0, 1, 2};
        table.setDataSource(source, prefs);
        for (int column = 0; column < 10; ++column)
            table.horizontalHeader()->resizeSection(column, 60);
        table.resize(760, 300);
        table.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&table));
    }

    /// The middle of a cell of the first row; column 10 is beside all columns.
    QPoint cell(int column) const
    {
        return {column * 60 + 30, table.verticalHeader()->defaultSectionSize() / 2};
    }
    void click(int column, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, modifiers, cell(column));
    }
    void clickHeader(int column, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(table.horizontalHeader()->viewport(), Qt::LeftButton, modifiers,
                          QPoint(column * 60 + 30, table.horizontalHeader()->height() / 2));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&table, key, modifiers);
    }
    IndexSet selected() const { return table.selectedColumnIndexes(); }

    CountedSource source;
    GreenPrefs prefs;
    DataTableView table;
};
