#include "geometry/ZKLineSegment.h"
#include "geometry/ZKMatrix.h"
#include "geometry/ZKPlane.h"
#include "geometry/ZKVector.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

std::size_t allocations = 0;

template <class Work>
std::size_t allocationsOf(Work work)
{
    const std::size_t before = allocations;
    work();
    return allocations - before;
}

void *allocate(std::size_t size)
{
    ++allocations;
    void *memory = std::malloc(size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

} // namespace

void *operator new(std::size_t size) { return allocate(size); }

void *operator new[](std::size_t size) { return allocate(size); }

void operator delete(void *memory) noexcept { std::free(memory); }

void operator delete[](void *memory) noexcept { std::free(memory); }

void operator delete(void *memory, std::size_t) noexcept { std::free(memory); }

void operator delete[](void *memory, std::size_t) noexcept { std::free(memory); }

TEST(Allocation, aLargeVectorIsNoticed)
{
    EXPECT_EQ(allocationsOf([] { EXPECT_TRUE(ZKVector::vectorWithDimension(5)); }), 1U);
}

TEST(Allocation, vectorsUpToFourComponentsTakeNone)
{
    EXPECT_EQ(allocationsOf([] {
                  const auto vector = ZKVector::vectorWithDimension(4);
                  const ZKVector sum = vector->addVector(ZKVector::vectorWithX(1, 2, 3));
                  EXPECT_EQ(sum.normalize().mulScalar(2.0).dimension(), 4);
              }),
              0U);
}

TEST(Allocation, matricesUpToTwelveElementsTakeNone)
{
    EXPECT_EQ(allocationsOf([] {
                  const auto matrix = ZKMatrix::matrixDiagonalWithRows(3, 3);
                  EXPECT_TRUE(matrix->invert());
                  EXPECT_TRUE(matrix->mulVector(ZKVector::vectorWithX(1, 2, 3)));
                  EXPECT_TRUE(ZKMatrix::matrixDiagonalWithRows(3, 4)->solveEquation());
              }),
              0U);
}

TEST(Allocation, crossingAndTrimmingInThePlaneTakeNone)
{
    EXPECT_EQ(allocationsOf([] {
                  const auto a = ZKLine::lineWithNSPointA({0, 0}, {2, 1});
                  const auto b = ZKLine::lineWithNSPointA({0, 1}, {2, 0});
                  EXPECT_TRUE(a->crossPointWith(*b));
                  EXPECT_TRUE(ZKLineSegment::lineWithNSPointA({4, 5}, {5, 6}, {{0, 0}, {10, 10}}));
                  EXPECT_TRUE(a->footOfPerpFrom(ZKVector::vectorWithX(3, 4)));
              }),
              0U);
}

TEST(Allocation, rotationInSpaceTakesNone)
{
    EXPECT_EQ(allocationsOf([] {
                  const ZKVector axis = ZKVector::vectorWithX(0, 0, 1);
                  EXPECT_TRUE(ZKVector::vectorWithX(1, 0, 0).rotate(1.0, axis));
              }),
              0U);
}
