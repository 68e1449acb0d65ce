#include "capture/PointList.h"

#include "SeriesFixture.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <set>

namespace {

PointList listOf(const Pairs &pairs)
{
    std::vector<ZKVector> points;
    for (const auto &[x, y] : pairs)
        points.push_back(vectorOf(x, y));
    return PointList(points);
}

Pairs pairsIn(const PointList &list) { return pairsOf(list.points()); }

} // namespace

TEST(PointList, newListIsEmpty)
{
    const PointList list;
    EXPECT_TRUE(list.isEmpty());
    EXPECT_TRUE(list.points().empty());
}

TEST(PointList, appendKeepsTheOrderOfArrival)
{
    PointList list;
    list.append(vectorOf(2, 0));
    list.append(vectorOf(1, 0));
    EXPECT_EQ(pairsIn(list), (Pairs{{2, 0}, {1, 0}}));
    EXPECT_EQ(list.size(), 2U);
}

TEST(PointList, aCopyIsNotTouchedByAppending)
{
    PointList list = listOf({{1, 1}});
    const PointList copy = list;
    list.append(vectorOf(2, 2));
    EXPECT_EQ(copy.size(), 1U);
    EXPECT_EQ(pairsIn(copy), (Pairs{{1, 1}}));
}

TEST(PointList, readingACopyDoesNotTouchTheOriginal)
{
    PointList list = listOf({{1, 1}});
    const PointList copy = list;
    list.append(vectorOf(2, 2));
    EXPECT_EQ(copy.points().size(), 1U);
    EXPECT_EQ(pairsIn(list), (Pairs{{1, 1}, {2, 2}}));
}

TEST(PointList, aCopyMayBeChangedAfterTheOriginalMovedOn)
{
    PointList list = listOf({{1, 1}});
    PointList copy = list;
    list.append(vectorOf(2, 2));
    copy.append(vectorOf(3, 3));
    EXPECT_EQ(pairsIn(copy), (Pairs{{1, 1}, {3, 3}}));
    EXPECT_EQ(pairsIn(list), (Pairs{{1, 1}, {2, 2}}));
}

TEST(PointList, aCopyOfASortedListKeepsTheOldOrder)
{
    PointList list = listOf({{3, 0}, {1, 0}, {2, 0}});
    const PointList copy = list;
    list.sort();
    EXPECT_EQ(pairsIn(copy), (Pairs{{3, 0}, {1, 0}, {2, 0}}));
    EXPECT_EQ(pairsIn(list), (Pairs{{1, 0}, {2, 0}, {3, 0}}));
}

TEST(PointList, aCopyOfAClearedListKeepsThePoints)
{
    PointList list = listOf({{1, 0}, {2, 0}});
    const PointList copy = list;
    list.clear();
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(pairsIn(copy), (Pairs{{1, 0}, {2, 0}}));
}

TEST(PointList, assigningACopyBackRestoresTheList)
{
    PointList list = listOf({{1, 0}});
    const PointList before = list;
    list.append(vectorOf(2, 0));
    const PointList after = list;
    list = before;
    EXPECT_EQ(pairsIn(list), (Pairs{{1, 0}}));
    list = after;
    EXPECT_EQ(pairsIn(list), (Pairs{{1, 0}, {2, 0}}));
}

TEST(PointList, sortsByXThenY)
{
    PointList list = listOf({{2, 1}, {1, 9}, {2, 0}, {1, 3}});
    list.sort();
    EXPECT_EQ(pairsIn(list), (Pairs{{1, 3}, {1, 9}, {2, 0}, {2, 1}}));
}

TEST(PointList, sortKeepsTheOrderOfEqualPoints)
{
    PointList list = listOf({{1, 0}, {0.0, 5}, {-0.0, 5}});
    list.sort();
    ASSERT_EQ(list.size(), 3U);
    EXPECT_FALSE(std::signbit(list.points()[0].X()));
    EXPECT_TRUE(std::signbit(list.points()[1].X()));
}

TEST(PointList, sortWithNaNKeepsEveryPoint)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    std::mt19937 random(7);
    std::uniform_int_distribution<int> values(0, 99);
    PointList list;
    std::multiset<double> numbers;
    std::size_t nans = 0;
    for (int i = 0; i < 1000; ++i) {
        const bool isNaN = i % 3 == 0;
        const double x = isNaN ? nan : values(random);
        list.append(vectorOf(x, nan));
        if (isNaN)
            ++nans;
        else
            numbers.insert(x);
    }
    list.sort();
    std::multiset<double> sortedNumbers;
    std::size_t sortedNaNs = 0;
    for (const ZKVector &point : list.points()) {
        if (std::isnan(point.X()))
            ++sortedNaNs;
        else
            sortedNumbers.insert(point.X());
    }
    EXPECT_EQ(sortedNaNs, nans);
    EXPECT_EQ(sortedNumbers, numbers);
}

TEST(PointList, aNaNAmongFewPointsStaysBetweenSortedNeighbours)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    PointList list = listOf({{2, 0}, {1, 0}, {nan, 0}});
    list.sort();
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(list.points()[0].X(), 1);
    EXPECT_EQ(list.points()[1].X(), 2);
    EXPECT_TRUE(std::isnan(list.points()[2].X()));
}

TEST(PointList, sortsAnyNumberOfPoints)
{
    std::mt19937 random(11);
    std::uniform_int_distribution<int> values(0, 20);
    for (int count = 0; count < 70; ++count) {
        Pairs pairs;
        for (int i = 0; i < count; ++i)
            pairs.emplace_back(values(random), values(random));
        PointList list = listOf(pairs);
        list.sort();
        std::sort(pairs.begin(), pairs.end());
        ASSERT_EQ(pairsIn(list), pairs) << count << " points";
    }
}

TEST(PointList, appendSortedPutsThePointBehindEqualOnes)
{
    PointList list = listOf({{-1, 0}, {0.0, 0}, {1, 0}});
    list.appendSorted(vectorOf(-0.0, 0));
    ASSERT_EQ(list.size(), 4U);
    EXPECT_FALSE(std::signbit(list.points()[1].X()));
    EXPECT_TRUE(std::signbit(list.points()[2].X()));
}

TEST(PointList, appendSortedSortsAListThatIsNotInOrder)
{
    PointList list = listOf({{3, 0}, {1, 0}});
    list.appendSorted(vectorOf(2, 0));
    EXPECT_EQ(pairsIn(list), (Pairs{{1, 0}, {2, 0}, {3, 0}}));
}

TEST(PointList, appendSortedGivesWhatAppendAndSortGive)
{
    std::mt19937 random(3);
    std::uniform_int_distribution<int> values(0, 30);
    PointList inserted;
    PointList sorted;
    for (int i = 0; i < 300; ++i) {
        const ZKVector point = vectorOf(values(random), values(random));
        inserted.appendSorted(point);
        sorted.append(point);
        sorted.sort();
        ASSERT_EQ(pairsIn(inserted), pairsIn(sorted));
    }
}

TEST(PointList, everyCopyOfALongRandomHistoryStaysAsItWas)
{
    std::mt19937 random(42);
    std::uniform_int_distribution<int> values(0, 9);
    PointList list;
    std::vector<std::pair<PointList, Pairs>> history;
    for (int step = 0; step < 2000; ++step) {
        history.emplace_back(list, pairsIn(list));
        const int choice = values(random);
        if (choice < 6)
            list.append(vectorOf(values(random), values(random)));
        else if (choice < 8)
            list.appendSorted(vectorOf(values(random), values(random)));
        else if (choice == 8)
            list = history[random() % history.size()].first;
        else if (values(random) == 0)
            list.clear();
        else
            list.sort();
    }
    for (int step = 0; step < 2000; ++step) {
        const auto &[copy, pairs] = history[random() % history.size()];
        ASSERT_EQ(copy.size(), pairs.size());
        ASSERT_EQ(pairsIn(copy), pairs);
    }
}

TEST(PointList, keepingACopyPerPointDoesNotCopyThePoints)
{
    PointList list;
    std::vector<PointList> copies;
    std::set<const ZKVector *> places;
    for (int i = 0; i < 10000; ++i) {
        copies.push_back(list);
        list.append(vectorOf(i, 0));
        places.insert(list.points().data());
    }
    EXPECT_LT(places.size(), 32U);
    EXPECT_EQ(copies[5000].points().size(), 5000U);
}

TEST(PointList, keepingACopyPerSortedPointDoesNotCopyThePoints)
{
    std::mt19937 random(5);
    PointList list;
    std::vector<PointList> copies;
    std::set<const ZKVector *> places;
    for (int i = 0; i < 2000; ++i) {
        copies.push_back(list);
        list.appendSorted(vectorOf(static_cast<double>(random()), 0));
        places.insert(list.points().data());
    }
    EXPECT_LT(places.size(), 32U);
    EXPECT_EQ(copies[1000].points().size(), 1000U);
}

TEST(PointList, aLongHistoryIsTakenApartWithoutOverflowingTheStack)
{
    PointList list;
    std::vector<PointList> copies;
    for (int i = 0; i < 200000; ++i) {
        copies.push_back(list);
        list.append(vectorOf(i, 0));
    }
    while (copies.size() > 1)
        copies.pop_back();
    list = PointList();
    EXPECT_TRUE(copies.front().points().empty());
    copies.clear();
}
