#include "geometry/InlineDoubles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <numeric>

namespace {

using Doubles = InlineDoubles<2>;

Doubles counting(std::size_t count)
{
    Doubles doubles(count);
    std::iota(doubles.begin(), doubles.end(), 1.0);
    return doubles;
}

bool isInPlace(const Doubles &doubles)
{
    const auto *begin = reinterpret_cast<const std::byte *>(&doubles);
    const auto *data = reinterpret_cast<const std::byte *>(doubles.data());
    return !std::less<>()(data, begin) && std::less<>()(data, begin + sizeof(Doubles));
}

class InlineDoublesTest : public testing::TestWithParam<std::size_t>
{};

} // namespace

TEST_P(InlineDoublesTest, startsWithZeros)
{
    const Doubles doubles(GetParam());
    EXPECT_EQ(doubles.size(), GetParam());
    EXPECT_TRUE(std::all_of(doubles.begin(), doubles.end(), [](double d) { return d == 0.0; }));
}

TEST_P(InlineDoublesTest, aCopyIsIndependent)
{
    Doubles original = counting(GetParam());
    const Doubles copy(original);
    original[0] = 99.0;
    EXPECT_EQ(copy.size(), GetParam());
    EXPECT_EQ(copy[0], 1.0);
    EXPECT_EQ(copy[GetParam() - 1], static_cast<double>(GetParam()));
}

TEST_P(InlineDoublesTest, movesItsValues)
{
    Doubles original = counting(GetParam());
    const Doubles moved(std::move(original));
    EXPECT_EQ(moved.size(), GetParam());
    EXPECT_EQ(moved[GetParam() - 1], static_cast<double>(GetParam()));
}

TEST_P(InlineDoublesTest, isAssignedOverEverySize)
{
    for (const std::size_t size : {1U, 2U, 3U, 7U}) {
        Doubles copyTarget(size);
        const Doubles source = counting(GetParam());
        copyTarget = source;
        EXPECT_TRUE(std::equal(copyTarget.begin(), copyTarget.end(), source.begin(), source.end()));
        Doubles moveTarget(size);
        moveTarget = counting(GetParam());
        EXPECT_TRUE(std::equal(moveTarget.begin(), moveTarget.end(), source.begin(), source.end()));
    }
}

TEST_P(InlineDoublesTest, assignedToItselfStaysAsItIs)
{
    Doubles doubles = counting(GetParam());
    Doubles &same = doubles;
    doubles = same;
    EXPECT_EQ(doubles[GetParam() - 1], static_cast<double>(GetParam()));
    doubles = std::move(same);
    EXPECT_EQ(doubles[GetParam() - 1], static_cast<double>(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(InlineDoubles, InlineDoublesTest, testing::Values(1U, 2U, 3U, 7U));

TEST(InlineDoubles, aSmallNumberLivesInPlace)
{
    EXPECT_TRUE(isInPlace(Doubles(1)));
    EXPECT_TRUE(isInPlace(Doubles(2)));
    EXPECT_FALSE(isInPlace(Doubles(3)));
}

TEST(InlineDoubles, aSourceMovedFromTheHeapCanStillBeRead)
{
    Doubles source = counting(7);
    const Doubles moved(std::move(source));
    EXPECT_EQ(moved.size(), 7U);
    source = counting(1);
    EXPECT_EQ(source.size(), 1U);
    EXPECT_EQ(source[0], 1.0);
}
