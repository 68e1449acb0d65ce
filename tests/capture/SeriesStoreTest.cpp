#include "capture/SeriesStore.h"

#include "SeriesFixture.h"

#include <gtest/gtest.h>

namespace {

SeriesStore storeWithPointsIn(const IndexSet &series)
{
    SeriesStore store;
    for (const int i : series)
        store.append(i, vectorOf(i, i));
    return store;
}

} // namespace

TEST(SeriesStore, newStoreHasTenEmptySeriesWithoutAxes)
{
    const SeriesStore store;
    EXPECT_EQ(SeriesStore::seriesCount, 10);
    for (int i = 0; i < SeriesStore::seriesCount; ++i) {
        EXPECT_TRUE(store.points(i).empty());
        EXPECT_EQ(store.converterOf(i)->converterType(), convertertype::base);
        EXPECT_EQ(store.markerDrawOf(i), 0);
    }
}

TEST(SeriesStore, aSeriesIsValidWhileItHoldsAPoint)
{
    SeriesStore store = storeWithPointsIn({4});
    EXPECT_TRUE(store.isValidSeries(4));
    store.clear(4);
    EXPECT_FALSE(store.isValidSeries(4));
}

TEST(SeriesStore, indexesOutsideTheTenAreNotValid)
{
    const SeriesStore store = storeWithPointsIn({0, 9});
    EXPECT_FALSE(store.isValidSeries(-1));
    EXPECT_FALSE(store.isValidSeries(10));
}

TEST(SeriesStore, validSeriesBetweenIsTheSameInEitherOrder)
{
    const SeriesStore store = storeWithPointsIn({1, 2, 5, 7, 8});
    EXPECT_EQ(store.validSeriesBetween(2, 7), (IndexSet{2, 5, 7}));
    EXPECT_EQ(store.validSeriesBetween(7, 2), (IndexSet{2, 5, 7}));
}

TEST(SeriesStore, validSeriesBetweenStaysWithinTheTen)
{
    const SeriesStore store = storeWithPointsIn({0, 9});
    EXPECT_EQ(store.validSeriesBetween(-5, 50), (IndexSet{0, 9}));
}

TEST(SeriesStore, validSeriesWithinDropsEmptyAndForeignIndexes)
{
    const SeriesStore store = storeWithPointsIn({1, 3});
    EXPECT_EQ(store.validSeriesWithin({-1, 1, 2, 3, 10}), (IndexSet{1, 3}));
}

TEST(SeriesStore, maxRowsIsTheLengthOfTheLongestSeries)
{
    SeriesStore store = storeWithPointsIn({2, 6});
    store.append(6, vectorOf(0, 0));
    EXPECT_EQ(store.maxRows(), 2);
    EXPECT_EQ(SeriesStore().maxRows(), 0);
}

TEST(SeriesStore, theEmptySeriesIsSearchedUpwardsFirst)
{
    const SeriesStore store = storeWithPointsIn({3, 4});
    EXPECT_EQ(store.emptySeriesNextTo(3), 5);
}

TEST(SeriesStore, theSearchForAnEmptySeriesGoesDownwardsFromTheCurrentOne)
{
    const SeriesStore store = storeWithPointsIn({2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_EQ(store.emptySeriesNextTo(3), 1);
}

TEST(SeriesStore, thereIsNoEmptySeriesWhenAllAreInUse)
{
    const SeriesStore store = storeWithPointsIn({0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_FALSE(store.emptySeriesNextTo(4).has_value());
}

TEST(SeriesStore, sortAllSortsEverySeries)
{
    SeriesStore store;
    for (const int i : {0, 9}) {
        store.append(i, vectorOf(2, 0));
        store.append(i, vectorOf(1, 0));
    }
    store.sortAll();
    EXPECT_EQ(pairsOf(store.points(0)), (Pairs{{1, 0}, {2, 0}}));
    EXPECT_EQ(pairsOf(store.points(9)), (Pairs{{1, 0}, {2, 0}}));
}
