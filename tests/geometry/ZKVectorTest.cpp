#include "geometry/ZKVector.h"

#include "archiving/ArchivedCopy.h"
#include "geometry/ZKPoint.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

namespace {

using Numbers = std::vector<double>;

ZKVector vectorOf(const Numbers &numbers) { return *ZKVector::vectorWithNumberArray(numbers); }

ZKVector xy(double x, double y) { return ZKVector::vectorWithX(x, y); }

ZKVector xyz(double x, double y, double z) { return ZKVector::vectorWithX(x, y, z); }

} // namespace

TEST(ZKVector, aNewVectorIsZero)
{
    EXPECT_EQ(ZKVector::vectorWithDimension(1)->makeNumberArray(), (Numbers{0}));
    EXPECT_EQ(ZKVector::vectorWithDimension(6)->makeNumberArray(), (Numbers{0, 0, 0, 0, 0, 0}));
}

TEST(ZKVector, dimensionBelowOneYieldsNothing)
{
    EXPECT_FALSE(ZKVector::vectorWithDimension(0));
    EXPECT_FALSE(ZKVector::vectorWithDimension(-3));
}

TEST(ZKVector, factoriesSetTheComponents)
{
    EXPECT_EQ(xy(1, 2).makeNumberArray(), (Numbers{1, 2}));
    EXPECT_EQ(xyz(1, 2, 3).makeNumberArray(), (Numbers{1, 2, 3}));
    EXPECT_EQ(ZKVector::vectorWithVector(xyz(1, 2, 3)), xyz(1, 2, 3));
}

TEST(ZKVector, floatPairsWiden)
{
    EXPECT_EQ(ZKVector::vectorWithNSPoint({0.1F, 2}), xy(0.10000000149011612, 2));
    EXPECT_EQ(ZKVector::vectorWithNSSize({3, 0.1F}), xy(3, 0.10000000149011612));
    EXPECT_EQ(ZKVector::vectorWithZKPoint(ZKPoint::pointWithX(0.1F, 2)),
              xy(0.10000000149011612, 2));
}

TEST(ZKVector, anEmptyNumberArrayYieldsNothing)
{
    EXPECT_FALSE(ZKVector::vectorWithNumberArray({}));
}

TEST(ZKVector, aNumberArrayGivesTheDimension)
{
    const ZKVector vector = vectorOf({1, 2, 3, 4, 5});
    EXPECT_EQ(vector.dimension(), 5);
    EXPECT_EQ(vector.componentAt(4), 5.0);
}

TEST(ZKVector, componentOutsideIsZero)
{
    EXPECT_EQ(xy(1, 2).componentAt(-1), 0.0);
    EXPECT_EQ(xy(1, 2).componentAt(2), 0.0);
    EXPECT_EQ(xy(1, 2).componentAt(1), 2.0);
}

TEST(ZKVector, missingYAndZAreZero)
{
    EXPECT_EQ(vectorOf({7}).X(), 7.0);
    EXPECT_EQ(vectorOf({7}).Y(), 0.0);
    EXPECT_EQ(xy(7, 8).Y(), 8.0);
    EXPECT_EQ(xy(7, 8).Z(), 0.0);
    EXPECT_EQ(xyz(7, 8, 9).Z(), 9.0);
}

TEST(ZKVector, settingAComponentOutsideIsIgnored)
{
    ZKVector vector = xy(1, 2);
    vector.setComponent(5, -1);
    vector.setComponent(5, 2);
    EXPECT_EQ(vector, xy(1, 2));
    vector.setComponent(5, 1);
    EXPECT_EQ(vector, xy(1, 5));
}

TEST(ZKVector, setXSetsWhatTheVectorHolds)
{
    ZKVector one = vectorOf({0});
    one.setX(1, 2);
    EXPECT_EQ(one, vectorOf({1}));
    one.setX(3, 4, 5);
    EXPECT_EQ(one, vectorOf({3}));
    ZKVector two = xy(0, 0);
    two.setX(3, 4, 5);
    EXPECT_EQ(two, xy(3, 4));
    ZKVector four = vectorOf({0, 0, 0, 9});
    four.setX(3, 4, 5);
    EXPECT_EQ(four, vectorOf({3, 4, 5, 9}));
    four.setX(1, 2);
    EXPECT_EQ(four, vectorOf({1, 2, 5, 9}));
}

TEST(ZKVector, clearAndFillReachEveryComponent)
{
    ZKVector vector = vectorOf({1, 2, 3, 4, 5});
    vector.fillAllComponentsWith(7);
    EXPECT_EQ(vector, vectorOf({7, 7, 7, 7, 7}));
    vector.clearAllComponents();
    EXPECT_TRUE(vector.isZero());
}

TEST(ZKVector, copyVectorKeepsDimensionAndRest)
{
    ZKVector vector = xyz(1, 2, 3);
    vector.copyVector(xy(8, 9));
    EXPECT_EQ(vector, xyz(8, 9, 3));
    ZKVector small = xy(1, 2);
    small.copyVector(xyz(7, 8, 9));
    EXPECT_EQ(small, xy(7, 8));
}

TEST(ZKVector, theBufferIsTheVector)
{
    ZKVector vector = xy(1, 2);
    vector.buffer()[1] = 5;
    EXPECT_EQ(vector, xy(1, 5));
}

TEST(ZKVector, turnsIntoFloatPairs)
{
    EXPECT_EQ(xy(0.1, 2).vectorToNSPoint(), (FloatPoint{0.1F, 2}));
    EXPECT_EQ(xyz(1, 2, 3).vectorToNSSize(), (FloatSize{1, 2}));
    EXPECT_EQ(xy(0.1, 2).vectorToZKPoint(), ZKPoint::pointWithX(0.1F, 2));
}

TEST(ZKVector, oneDimensionIsNoPoint)
{
    EXPECT_EQ(vectorOf({7}).vectorToNSPoint(), (FloatPoint{0, 0}));
    EXPECT_EQ(vectorOf({7}).vectorToNSSize(), (FloatSize{0, 0}));
    EXPECT_FALSE(vectorOf({7}).vectorToZKPoint());
}

TEST(ZKVector, stringValueNamesTheDimension)
{
    EXPECT_EQ(xy(1.5, 2).stringValue(), "[2]( 1.5, 2 )");
    EXPECT_EQ(vectorOf({-0.0}).stringValue(), "[1]( -0 )");
    EXPECT_EQ(xyz(123456.5, 1e-7, INFINITY).stringValue(), "[3]( 123456, 1e-07, inf )");
}

TEST(ZKVector, logStringHasThePrefixFirst)
{
    EXPECT_EQ(xy(1.5, 2).makeLogStringWith("origin "), "origin [2]( 1.5, 2 )");
}

TEST(ZKVector, sumsReachTheCommonComponents)
{
    EXPECT_EQ(xyz(1, 2, 3).addVector(xy(10, 20)), xyz(11, 22, 3));
    EXPECT_EQ(xy(1, 2).addVector(xyz(10, 20, 30)), xy(11, 22));
    EXPECT_EQ(xyz(1, 2, 3).subVector(xy(10, 20)), xyz(-9, -18, 3));
    EXPECT_EQ(xy(1, 2).subVector(xy(10, 20)), xy(-9, -18));
}

TEST(ZKVector, scalarsReachEveryComponent)
{
    EXPECT_EQ(xyz(1, 2, 3).addScalar(1), xyz(2, 3, 4));
    EXPECT_EQ(xyz(1, 2, 3).subScalar(1), xyz(0, 1, 2));
    EXPECT_EQ(xyz(1, 2, 3).mulScalar(-2), xyz(-2, -4, -6));
    EXPECT_EQ(xyz(1, 2, 3).divScalar(2), xyz(0.5, 1, 1.5));
    EXPECT_EQ(xy(1, 2).addScalar(1), xy(2, 3));
    EXPECT_EQ(xy(1, 2).subScalar(1), xy(0, 1));
    EXPECT_EQ(xy(1, 2).mulScalar(-2), xy(-2, -4));
    EXPECT_EQ(xy(1, 2).divScalar(2), xy(0.5, 1));
}

TEST(ZKVector, divisionDividesAndDoesNotMultiplyByTheReciprocal)
{
    EXPECT_NE(5.0 / 49.0, 5.0 * (1.0 / 49.0));
    EXPECT_EQ(xy(5, 0).divScalar(49).X(), 5.0 / 49.0);
    EXPECT_EQ(xyz(5, 0, 0).divScalar(49).X(), 5.0 / 49.0);
}

TEST(ZKVector, divisionByExactlyZeroChangesNothing)
{
    ZKVector vector = xy(1, 2);
    EXPECT_EQ(vector.divScalarSelf(0.0), xy(1, 2));
    EXPECT_EQ(vector.divScalarSelf(-0.0), xy(1, 2));
    EXPECT_EQ(vector.divScalar(0.0), xy(1, 2));
    EXPECT_TRUE(std::isinf(vector.divScalar(1e-320).X()));
}

TEST(ZKVector, copyingFormsLeaveTheReceiverAlone)
{
    const ZKVector vector = xy(3, 4);
    const ZKVector other = xy(1, 1);
    std::set<double> lengths;
    for (const ZKVector &result :
         {vector.addVector(other), vector.subVector(other), vector.addScalar(1),
          vector.subScalar(9), vector.mulScalar(2), vector.divScalar(2), vector.normalize(),
          vector.stretchTo(9), vector.stretchBy(9)})
        lengths.insert(result.length());
    EXPECT_EQ(vector, xy(3, 4));
    EXPECT_EQ(lengths.count(5.0), 0U);
}

TEST(ZKVector, selfFormsChangeAndReturnTheReceiver)
{
    ZKVector vector = xyz(1, 2, 3);
    EXPECT_EQ(&vector.addVectorSelf(xyz(1, 1, 1)), &vector);
    EXPECT_EQ(vector, xyz(2, 3, 4));
    EXPECT_EQ(&vector.subVectorSelf(xy(1, 1)), &vector);
    EXPECT_EQ(vector, xyz(1, 2, 4));
    EXPECT_EQ(&vector.addScalarSelf(1).subScalarSelf(2).mulScalarSelf(4).divScalarSelf(2), &vector);
    EXPECT_EQ(vector, xyz(0, 2, 6));
    EXPECT_EQ(&vector.normalizeSelf(), &vector);
    EXPECT_EQ(&vector.mulVectorSelf(vector), &vector);
}

TEST(ZKVector, aVectorMayBeAddedToItself)
{
    ZKVector vector = xy(1, 2);
    vector.addVectorSelf(vector);
    EXPECT_EQ(vector, xy(2, 4));
    vector.subVectorSelf(vector);
    EXPECT_TRUE(vector.isZero());
}

TEST(ZKVector, normalizeGivesLengthOne)
{
    EXPECT_EQ(xy(3, 4).normalize(), xy(0.6, 0.8));
    EXPECT_EQ(xyz(0, 3, 4).normalize(), xyz(0, 0.6, 0.8));
}

TEST(ZKVector, normalizeLeavesAZeroVectorZero)
{
    EXPECT_EQ(xy(0, 0).normalize(), xy(0, 0));
    ZKVector vector = xyz(0, 0, 0);
    EXPECT_EQ(vector.normalizeSelf(), xyz(0, 0, 0));
}

TEST(ZKVector, aLargeVectorCopiesAndMoves)
{
    ZKVector vector = vectorOf({1, 2, 3, 4, 5, 6});
    const ZKVector copy = vector;
    const ZKVector moved = std::move(vector);
    EXPECT_EQ(copy, vectorOf({1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(moved, copy);
    EXPECT_EQ(copy.addVector(moved).mulScalar(2), vectorOf({4, 8, 12, 16, 20, 24}));
}

TEST(ZKVectorArchive, hasTheDimensionThenTheComponents)
{
    SequentialEncoder coder;
    xy(1.5, -2).encodeWithCoder(coder);
    EXPECT_EQ(coder.items(), (std::vector<ArchivedItem>{std::int32_t{2}, 1.5, -2.0}));
    EXPECT_EQ(ArchivedCopy<ZKVector>(xy(1, 2)).className(), "ZKVector");
}

TEST(ZKVectorArchive, readsItselfBack)
{
    for (const Numbers &numbers : {Numbers{0.1}, Numbers{1, -0.0}, Numbers{1, 2, 3, 4, 5, 6}}) {
        SequentialEncoder coder;
        vectorOf(numbers).encodeWithCoder(coder);
        SequentialDecoder decoder(coder.items());
        EXPECT_EQ(ZKVector::initWithCoder(decoder), vectorOf(numbers));
        EXPECT_EQ(decoder.remaining(), 0U);
    }
}

TEST(ZKVectorArchive, cutAnywhereYieldsNothing)
{
    SequentialEncoder coder;
    xyz(1, 2, 3).encodeWithCoder(coder);
    for (std::size_t size = 0; size < coder.items().size(); ++size) {
        SequentialDecoder decoder(std::span(coder.items()).first(size));
        EXPECT_FALSE(ZKVector::initWithCoder(decoder)) << size;
        EXPECT_TRUE(decoder.failed()) << size;
    }
}

TEST(ZKVectorArchive, aDimensionThatCannotBeYieldsNothing)
{
    for (const std::int32_t dimension : {0, -1, std::numeric_limits<std::int32_t>::max()}) {
        const std::vector<ArchivedItem> items = {dimension, 1.0, 2.0};
        SequentialDecoder decoder(items);
        EXPECT_FALSE(ZKVector::initWithCoder(decoder)) << dimension;
        EXPECT_TRUE(decoder.failed()) << dimension;
    }
}

TEST(ZKVectorArchive, componentsOfAnotherTypeYieldNothing)
{
    const std::vector<ArchivedItem> items = {std::int32_t{2}, 1.0, std::int32_t{2}};
    SequentialDecoder decoder(items);
    EXPECT_FALSE(ZKVector::initWithCoder(decoder));
    EXPECT_TRUE(decoder.failed());
}

TEST(ZKVectorArchive, leavesWhatFollowsToTheNextReader)
{
    SequentialEncoder coder;
    xy(1, 2).encodeWithCoder(coder);
    coder.encodeDouble(9);
    SequentialDecoder decoder(coder.items());
    EXPECT_TRUE(ZKVector::initWithCoder(decoder));
    EXPECT_EQ(decoder.decodeDouble(), 9.0);
}
