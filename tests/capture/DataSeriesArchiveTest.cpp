#include "archiving/ArchivedCopy.h"
#include "capture/DataSeries.h"

#include "SeriesFixture.h"

#include <gtest/gtest.h>

#include <cstdint>

using DataSeriesArchive = SeriesFixture;

namespace {

ArchiveValue archivedPoint(double x, double y)
{
    return ArchiveValue{std::shared_ptr<const Archivable>(
        std::make_shared<ArchivedCopy<ZKVector>>(vectorOf(x, y)))};
}

ArchiveValue archivedConverter(const SeriesConverter &converter)
{
    return ArchiveValue{std::shared_ptr<const Archivable>(converter)};
}

ArchiveValue number(int value) { return ArchiveValue{std::int64_t{value}}; }

const Archivable *objectIn(const ArchiveValue &value)
{
    return std::get<std::shared_ptr<const Archivable>>(value.value).get();
}

} // namespace

TEST_F(DataSeriesArchive, theKeysStandInTheirOrder)
{
    const ArchiveDictionary data = series.dataForSave();
    std::vector<std::string> keys;
    for (const auto &entry : data.entries())
        keys.push_back(entry.first);
    EXPECT_EQ(keys, (std::vector<std::string>{"Current Series", "Data Series", "Converter Series",
                                              "Marker Series", "Auto Sort"}));
}

TEST_F(DataSeriesArchive, everyListHasTenEntries)
{
    const ArchiveDictionary data = series.dataForSave();
    for (const char *key : {"Data Series", "Converter Series", "Marker Series"}) {
        ASSERT_NE(data.arrayForKey(key), nullptr);
        EXPECT_EQ(data.arrayForKey(key)->size(), 10U);
    }
}

TEST_F(DataSeriesArchive, pointsAreVectorsAndConvertersAreSharedObjects)
{
    fill({2, 3});
    const ArchiveDictionary data = series.dataForSave();
    const auto &points = std::get<ArchiveArray>(data.arrayForKey("Data Series")->at(2).value);
    ASSERT_EQ(points.size(), 1U);
    EXPECT_EQ(objectIn(points[0])->className(), "ZKVector");
    const ArchiveArray &converters = *data.arrayForKey("Converter Series");
    EXPECT_EQ(objectIn(converters[2]), axes.get());
    EXPECT_EQ(objectIn(converters[3]), axes.get());
    EXPECT_EQ(objectIn(converters[0])->className(), "ZKConvCoordinate");
}

TEST_F(DataSeriesArchive, whatWasSavedIsLoaded)
{
    choose(3);
    click(0.1F, 2);
    click(-1, 5);
    series.setDrawLines();
    sortCheck.setChecked(true);
    const ArchiveDictionary unsorted = series.dataForSave();
    choose(0);
    table.selection = {3};
    series.deleteSelection();
    series.setDrawMarkersAndLines();
    sortCheck.setChecked(false);

    ASSERT_TRUE(series.loadFromData(&unsorted));
    EXPECT_EQ(series.currentSeries(), 3);
    EXPECT_EQ(seriesPopup.currentIndex(), 3);
    EXPECT_EQ(pairs(3), (Pairs{{0.10000000149011612, 2}, {-1, 5}}));
    EXPECT_EQ(series.converterOf(3), axes);
    EXPECT_EQ(series.markerDrawOf(3), 2);
    EXPECT_EQ(series.markerDrawOf(0), 0);
    EXPECT_EQ(markerDrawPopup.currentIndex(), 2);
    EXPECT_FALSE(series.autoSortByX());
}

TEST_F(DataSeriesArchive, withoutDictionaryNothingIsLoaded)
{
    click(1, 2);
    calls.clear();
    EXPECT_FALSE(series.loadFromData(nullptr));
    EXPECT_EQ(pairs(0), (Pairs{{1, 2}}));
    EXPECT_TRUE(calls.empty());
}

TEST_F(DataSeriesArchive, loadingTellsOfTheSeriesThenOfThePointsOnce)
{
    choose(6);
    const ArchiveDictionary data = series.dataForSave();
    choose(0);
    calls.clear();
    series.loadFromData(&data);
    EXPECT_EQ(
        calls,
        (CallLog{"preview.setPreview", "preview.setNeedsDisplay", "table.scrollColumnToVisible 6",
                 "guide.seriesChanged", "info.updateDataInfo", "table.noteNumberOfRowsChanged",
                 "guide.setAutoXValue", "view.setNeedsDisplay", "info.updateDataInfo"}));
}

TEST_F(DataSeriesArchive, loadingSetsTheSortCheckButDoesNotSort)
{
    click(2, 0);
    click(1, 0);
    ArchiveDictionary data = series.dataForSave();
    data.set("Auto Sort", ArchiveValue{true});
    series.loadFromData(&data);
    EXPECT_TRUE(series.autoSortByX());
    EXPECT_TRUE(sortCheck.isChecked());
    EXPECT_EQ(pairs(0), (Pairs{{2, 0}, {1, 0}}));
}

TEST_F(DataSeriesArchive, theSavedSortStateIsABoolean)
{
    series.simulateToggleSort();
    const ArchiveDictionary data = series.dataForSave();
    EXPECT_TRUE(std::get<bool>(data.find("Auto Sort")->value));
}

TEST_F(DataSeriesArchive, anEmptyDictionaryGivesTenEmptySeries)
{
    fill({0, 5});
    const ArchiveDictionary data;
    EXPECT_TRUE(series.loadFromData(&data));
    EXPECT_TRUE(series.validSeries().empty());
    EXPECT_EQ(series.currentSeries(), 0);
    EXPECT_EQ(series.converterOf(5)->converterType(), convertertype::base);
}

TEST_F(DataSeriesArchive, shortListsAreFilledUpWithDefaults)
{
    ArchiveDictionary data;
    data.set("Current Series", number(1));
    data.set("Data Series",
             ArchiveValue{ArchiveArray{ArchiveValue{ArchiveArray{archivedPoint(1, 2)}}}});
    data.set("Converter Series", ArchiveValue{ArchiveArray{archivedConverter(axes)}});
    data.set("Marker Series", ArchiveValue{ArchiveArray{number(2)}});
    ASSERT_TRUE(series.loadFromData(&data));
    EXPECT_EQ(pairs(0), (Pairs{{1, 2}}));
    EXPECT_EQ(series.converterOf(0), axes);
    EXPECT_EQ(series.markerDrawOf(0), 2);
    EXPECT_TRUE(series.points(9).empty());
    EXPECT_EQ(series.converterOf(9)->converterType(), convertertype::base);
    EXPECT_EQ(series.markerDrawOf(9), 0);
    EXPECT_TRUE(click(5, 5));
}

TEST_F(DataSeriesArchive, longListsAreCutToTen)
{
    ArchiveArray lists;
    ArchiveArray converters;
    ArchiveArray markers;
    for (int i = 0; i < 12; ++i) {
        lists.push_back(ArchiveValue{ArchiveArray{archivedPoint(i, i)}});
        converters.push_back(archivedConverter(axes));
        markers.push_back(number(1));
    }
    ArchiveDictionary data;
    data.set("Data Series", ArchiveValue{lists});
    data.set("Converter Series", ArchiveValue{converters});
    data.set("Marker Series", ArchiveValue{markers});
    ASSERT_TRUE(series.loadFromData(&data));
    EXPECT_EQ(series.validSeries().size(), 10U);
    EXPECT_EQ(series.dataForSave().arrayForKey("Data Series")->size(), 10U);
}

TEST_F(DataSeriesArchive, entriesThatAreNoPointsOrConvertersAreLeftOut)
{
    ArchiveDictionary data;
    data.set("Data Series",
             ArchiveValue{ArchiveArray{ArchiveValue{ArchiveArray{archivedConverter(axes),
                                                                 archivedPoint(1, 2), number(3)}},
                                       number(7)}});
    data.set("Converter Series", ArchiveValue{ArchiveArray{archivedPoint(0, 0), number(1)}});
    ASSERT_TRUE(series.loadFromData(&data));
    EXPECT_EQ(pairs(0), (Pairs{{1, 2}}));
    EXPECT_TRUE(series.points(1).empty());
    EXPECT_EQ(series.converterOf(0)->converterType(), convertertype::base);
}

TEST_F(DataSeriesArchive, aStoredSeriesOutsideThePopupKeepsTheSelection)
{
    for (const int stored : {-1, 10, 99}) {
        choose(4);
        ArchiveDictionary data = series.dataForSave();
        data.set("Current Series", number(stored));
        ASSERT_TRUE(series.loadFromData(&data));
        EXPECT_EQ(seriesPopup.currentIndex(), 4);
        EXPECT_EQ(series.currentSeries(), 4);
    }
}

TEST_F(DataSeriesArchive, aStoredDrawModeOutsideThePopupIsReadBackFromIt)
{
    series.setDrawMarkersAndLines();
    ArchiveDictionary data = series.dataForSave();
    for (const int mode : {7, 3, -1}) {
        data.set("Marker Series", ArchiveValue{ArchiveArray{number(mode)}});
        ASSERT_TRUE(series.loadFromData(&data));
        EXPECT_EQ(markerDrawPopup.currentIndex(), 1) << mode;
        EXPECT_EQ(series.markerDrawOf(0), 1) << mode;
        EXPECT_EQ(preview.mode, 1) << mode;
    }
}

TEST_F(DataSeriesArchive, aSnapshotDoesNotFollowLaterClicks)
{
    click(1, 2);
    const ArchiveDictionary data = series.dataForSave();
    click(3, 4);
    series.loadFromData(&data);
    EXPECT_EQ(pairs(0), (Pairs{{1, 2}}));
}
