#include "geometry/ZKVector.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

ZKVector xy(double x, double y) { return ZKVector::vectorWithX(x, y); }

ZKVector xyz(double x, double y, double z) { return ZKVector::vectorWithX(x, y, z); }

const double kNan = std::nan("");

} // namespace

TEST(ZKVectorCompare, theFirstDifferenceDecides)
{
    EXPECT_EQ(xy(1, 2).compare(xy(1, 3)), ComparisonResult::Ascending);
    EXPECT_EQ(xy(2, 0).compare(xy(1, 9)), ComparisonResult::Descending);
    EXPECT_EQ(xy(1, 2).compare(xy(1, 2)), ComparisonResult::Same);
}

TEST(ZKVectorCompare, theDimensionsTakeNoPart)
{
    EXPECT_EQ(xy(1, 2).compare(xyz(1, 2, 5)), ComparisonResult::Same);
    EXPECT_EQ(xyz(1, 2, 5).compare(xy(1, 2)), ComparisonResult::Same);
}

TEST(ZKVectorCompare, notANumberDoesNotDiffer)
{
    EXPECT_EQ(xy(kNan, 2).compare(xy(1, 3)), ComparisonResult::Ascending);
    EXPECT_EQ(xy(1, 2).compare(xy(kNan, 2)), ComparisonResult::Same);
}

TEST(ZKVectorZero, isExact)
{
    EXPECT_TRUE(xy(0, -0.0).isZero());
    EXPECT_FALSE(xy(0, 1e-300).isZero());
    EXPECT_FALSE(xy(0, kNan).isZero());
}

TEST(ZKVectorZero, withinIsStrictAndAbsolute)
{
    EXPECT_TRUE(xy(0.9, -0.9).isZeroWithin(1));
    EXPECT_FALSE(xy(1, 0).isZeroWithin(1));
    EXPECT_FALSE(xy(0, -5).isZeroWithin(1));
    EXPECT_FALSE(xy(0, kNan).isZeroWithin(1));
}

TEST(ZKVectorEqual, isExact)
{
    EXPECT_TRUE(xy(1, 2).isEqualTo(xy(1, 2)));
    EXPECT_FALSE(xy(1, 2).isEqualTo(xy(1, std::nextafter(2.0, 3.0))));
    EXPECT_FALSE(xy(1, 2).isEqualTo(xyz(1, 2, 0)));
    EXPECT_FALSE(xyz(1, 2, 0).isEqualTo(xy(1, 2)));
    EXPECT_FALSE(xy(1, kNan).isEqualTo(xy(1, kNan)));
}

TEST(ZKVectorEqual, withinIsStrict)
{
    // Mean length 3, so t = 1 allows less than 3.
    EXPECT_FALSE(xy(3, 0).isEqualTo(xy(0, 3), 1));
    EXPECT_TRUE(xy(3, 0).isEqualTo(xy(0, 3), 1.0001));
}

TEST(ZKVectorEqual, withinIsRelativeToTheMeanLength)
{
    EXPECT_TRUE(xy(1000, 0).isEqualTo(xy(1000, 0.1), 0.0002));
    EXPECT_FALSE(xy(1, 0).isEqualTo(xy(1, 0.1), 0.0002));
    EXPECT_FALSE(xy(1e-6, 0).isEqualTo(xy(2e-6, 0), 0.0002));
}

TEST(ZKVectorEqual, withinMeasuresSmallComponentsByTheWholeLength)
{
    EXPECT_TRUE(xy(1000, 0.001).isEqualTo(xy(1000, 0.1), 0.0002));
}

TEST(ZKVectorEqual, zeroVectorsTakeTheToleranceItself)
{
    EXPECT_TRUE(xy(0, 0).isEqualTo(xy(0, 0), 1e-9));
    EXPECT_FALSE(xy(0, 0).isEqualTo(xy(0, 0), 0));
}

TEST(ZKVectorEqual, equalVectorsAreNotEqualWithinNothing)
{
    EXPECT_FALSE(xy(1, 2).isEqualTo(xy(1, 2), 0));
    EXPECT_FALSE(xy(1, 2).isEqualTo(xy(1, 2), -1));
}

TEST(ZKVectorEqual, withinNeedsTheSameDimension)
{
    EXPECT_FALSE(xy(1, 2).isEqualTo(xyz(1, 2, 0), 100));
    EXPECT_FALSE(xyz(1, 2, 0).isEqualTo(xy(1, 2), 100));
}

TEST(ZKVectorEqual, notANumberIsNeverWithin)
{
    EXPECT_FALSE(xy(1, kNan).isEqualTo(xy(1, kNan), 100));
}

TEST(ZKVectorParallel, scalesTheOtherToTheSameLength)
{
    EXPECT_TRUE(xy(1, 2).isParallelTo(xy(2, 4), false));
    EXPECT_FALSE(xy(1, 2).isParallelTo(xy(2, 4.1), true));
}

TEST(ZKVectorParallel, antiparallelCountsOnlyWhenAllowed)
{
    EXPECT_FALSE(xy(1, 0).isParallelTo(xy(-2, 0), false));
    EXPECT_TRUE(xy(1, 0).isParallelTo(xy(-2, 0), true));
    EXPECT_FALSE(xy(1, 0).isParallelTo(xy(-2, 0), false, 0.01));
    EXPECT_TRUE(xy(1, 0).isParallelTo(xy(-2, 0.001), true, 0.01));
}

TEST(ZKVectorParallel, twoZeroVectorsAreParallel)
{
    EXPECT_TRUE(xy(0, 0).isParallelTo(xy(0, 0), false));
    EXPECT_TRUE(xy(0, 0).isParallelTo(xy(0, 0), false, 0));
}

TEST(ZKVectorParallel, aZeroAndAnotherVectorAreNot)
{
    EXPECT_FALSE(xy(0, 0).isParallelTo(xy(1, 0), true));
    EXPECT_FALSE(xy(1, 0).isParallelTo(xy(0, 0), true));
    EXPECT_FALSE(xy(0, 0).isParallelTo(xy(1, 0), true, 100));
    EXPECT_FALSE(xy(1, 0).isParallelTo(xy(0, 0), true, 100));
}

TEST(ZKVectorParallel, needsTheSameDimension)
{
    EXPECT_FALSE(xy(0, 0).isParallelTo(xyz(0, 0, 0), true));
    EXPECT_FALSE(xy(1, 0).isParallelTo(xyz(1, 0, 0), true, 100));
}

TEST(ZKVectorParallel, withinIsTheScaledTolerance)
{
    // b is scaled to length 100, so a tolerance of 0.01 allows a deviation of 1.
    EXPECT_TRUE(xy(100, 0).isParallelTo(xy(1, 0.009), false, 0.01));
    EXPECT_FALSE(xy(100, 0).isParallelTo(xy(1, 0.011), false, 0.01));
}

TEST(ZKVectorAntiParallel, needsTheOppositeDirection)
{
    EXPECT_TRUE(xy(1, 0).isAntiParallelTo(xy(-2, 0)));
    EXPECT_FALSE(xy(1, 0).isAntiParallelTo(xy(2, 0)));
    EXPECT_TRUE(xy(1, 0).isAntiParallelTo(xy(-2, 0.001), 0.01));
    EXPECT_FALSE(xy(1, 0).isAntiParallelTo(xy(2, 0.001), 0.01));
}

TEST(ZKVectorAntiParallel, zeroVectorsNeverAre)
{
    EXPECT_FALSE(xy(0, 0).isAntiParallelTo(xy(0, 0)));
    EXPECT_FALSE(xy(0, 0).isAntiParallelTo(xy(1, 0)));
    EXPECT_FALSE(xy(1, 0).isAntiParallelTo(xy(0, 0)));
    EXPECT_FALSE(xy(0, 0).isAntiParallelTo(xy(0, 0), 100));
}

TEST(ZKVectorAntiParallel, needsTheSameDimension)
{
    EXPECT_FALSE(xy(1, 0).isAntiParallelTo(xyz(-1, 0, 0)));
    EXPECT_FALSE(xy(1, 0).isAntiParallelTo(xyz(-1, 0, 0), 100));
}

TEST(ZKVectorPerpendicular, needsAnExactlyZeroProduct)
{
    EXPECT_TRUE(xy(1, 2).isPerpendicularTo(xy(-2, 1)));
    EXPECT_FALSE(xy(1, 2).isPerpendicularTo(xy(-2, 1.0000001)));
    EXPECT_TRUE(xy(0, 0).isPerpendicularTo(xy(1, 2)));
    EXPECT_FALSE(xy(1, 0).isPerpendicularTo(xyz(0, 1, 0)));
}

TEST(ZKVectorPerpendicular, withinIsStrictAndScaled)
{
    // Lengths 3 and 1, mean 2: a product of 3 against 2 t.
    EXPECT_FALSE(xy(3, 0).isPerpendicularTo(xy(1, 0), 1.5));
    EXPECT_TRUE(xy(3, 0).isPerpendicularTo(xy(1, 0), 1.51));
    EXPECT_TRUE(xy(3, 0).isPerpendicularTo(xy(-1, 0), 1.51));
    EXPECT_FALSE(xy(3, 0).isPerpendicularTo(xyz(0, 1, 0), 100));
}
