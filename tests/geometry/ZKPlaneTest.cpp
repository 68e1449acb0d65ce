#include "geometry/ZKPlane.h"

#include "archiving/ArchivedCopy.h"

#include <gtest/gtest.h>

namespace {

ZKVector xy(double x, double y) { return ZKVector::vectorWithX(x, y); }

ZKVector xyz(double x, double y, double z) { return ZKVector::vectorWithX(x, y, z); }

ZKPlane planeOf(const ZKVector &origin, const ZKVector &normal)
{
    return *ZKPlane::planeWithOrigin(origin, normal);
}

ZKLine lineOf(const ZKVector &origin, const ZKVector &direction)
{
    return *ZKLine::lineWithOrigin(origin, direction);
}

ZKPlane floorPlane() { return planeOf(xyz(0, 0, 1), xyz(0, 0, 2)); }

} // namespace

TEST(ZKPlane, keepsOriginAndNormalAsGiven)
{
    EXPECT_EQ(floorPlane().origin(), xyz(0, 0, 1));
    EXPECT_EQ(floorPlane().normal(), xyz(0, 0, 2));
    EXPECT_EQ(floorPlane().dimension(), 3);
}

TEST(ZKPlane, badVectorsYieldNothing)
{
    EXPECT_FALSE(ZKPlane::planeWithOrigin(xy(0, 0), xyz(0, 0, 1)));
    EXPECT_FALSE(ZKPlane::planeWithOrigin(xyz(0, 0, 0), xyz(0, 0, 0)));
    EXPECT_FALSE(ZKPlane::planeWithOrigin(*ZKVector::vectorWithDimension(1),
                                          *ZKVector::vectorWithNumberArray({1})));
}

TEST(ZKPlane, throughThreePointsHasTheirCrossProductForNormal)
{
    const auto plane = ZKPlane::planeWithPointA(xyz(1, 1, 1), xyz(3, 1, 1), xyz(1, 4, 1));
    ASSERT_TRUE(plane);
    EXPECT_EQ(plane->origin(), xyz(1, 1, 1));
    EXPECT_EQ(plane->normal(), xyz(0, 0, 6));
}

TEST(ZKPlane, throughPointsOfThePlaneIsNothing)
{
    EXPECT_FALSE(ZKPlane::planeWithPointA(xy(0, 0), xy(1, 0), xy(0, 1)));
    EXPECT_FALSE(ZKPlane::planeWithPointA(xyz(0, 0, 0), xyz(1, 0, 0), xy(0, 1)));
    EXPECT_FALSE(ZKPlane::planeWithPointA(xyz(0, 0, 0), xy(1, 0), xyz(0, 1, 0)));
    EXPECT_FALSE(ZKPlane::planeWithPointA(xy(0, 0), xyz(1, 0, 0), xyz(0, 1, 0)));
}

TEST(ZKPlane, throughPointsOnOneLineIsNothing)
{
    EXPECT_FALSE(ZKPlane::planeWithPointA(xyz(0, 0, 0), xyz(1, 1, 1), xyz(2, 2, 2)));
}

TEST(ZKPlane, setOriginStoresCopies)
{
    ZKPlane plane = floorPlane();
    plane.setOrigin(xyz(1, 2, 3), xyz(4, 5, 6));
    EXPECT_EQ(plane.origin(), xyz(1, 2, 3));
    EXPECT_EQ(plane.normal(), xyz(4, 5, 6));
}

TEST(ZKPlane, planesAreParallelByTheirNormals)
{
    EXPECT_TRUE(floorPlane().isParallelToPlane(planeOf(xyz(5, 5, 5), xyz(0, 0, -1))));
    EXPECT_FALSE(floorPlane().isParallelToPlane(planeOf(xyz(5, 5, 5), xyz(0, 0.001, 1))));
    EXPECT_TRUE(floorPlane().isParallelToPlane(planeOf(xyz(5, 5, 5), xyz(0, 0.001, 1)), 0.01));
    EXPECT_FALSE(floorPlane().isParallelToPlane(planeOf(xyz(5, 5, 5), xyz(0, 1, 1)), 0.01));
}

TEST(ZKPlane, aLineIsParallelAcrossTheNormal)
{
    EXPECT_TRUE(floorPlane().isParallelToLine(lineOf(xyz(0, 0, 9), xyz(1, 2, 0))));
    EXPECT_FALSE(floorPlane().isParallelToLine(lineOf(xyz(0, 0, 9), xyz(1, 2, 0.001))));
    EXPECT_TRUE(floorPlane().isParallelToLine(lineOf(xyz(0, 0, 9), xyz(1, 2, 0.001)), 0.01));
    EXPECT_FALSE(floorPlane().isParallelToLine(lineOf(xyz(0, 0, 9), xyz(0, 0, 1)), 0.01));
    EXPECT_TRUE(floorPlane().isParallelToVector(xyz(1, 2, 0)));
    EXPECT_FALSE(floorPlane().isParallelToVector(xyz(1, 2, 0.001)));
    EXPECT_TRUE(floorPlane().isParallelToVector(xyz(1, 2, 0.001), 0.01));
    EXPECT_FALSE(floorPlane().isParallelToVector(xyz(0, 0, 1), 0.01));
}

TEST(ZKPlane, planesArePerpendicularByTheirNormals)
{
    EXPECT_TRUE(floorPlane().isPerpendicularToPlane(planeOf(xyz(5, 5, 5), xyz(1, 2, 0))));
    EXPECT_FALSE(floorPlane().isPerpendicularToPlane(planeOf(xyz(5, 5, 5), xyz(1, 2, 0.001))));
    EXPECT_TRUE(floorPlane().isPerpendicularToPlane(planeOf(xyz(5, 5, 5), xyz(1, 2, 0.001)), 0.01));
    EXPECT_FALSE(floorPlane().isPerpendicularToPlane(planeOf(xyz(5, 5, 5), xyz(0, 0, 1)), 0.01));
}

TEST(ZKPlane, aLineIsPerpendicularAlongTheNormal)
{
    EXPECT_TRUE(floorPlane().isPerpendicularToLine(lineOf(xyz(1, 1, 1), xyz(0, 0, -5))));
    EXPECT_FALSE(floorPlane().isPerpendicularToLine(lineOf(xyz(1, 1, 1), xyz(0, 0.001, 1))));
    EXPECT_TRUE(floorPlane().isPerpendicularToLine(lineOf(xyz(1, 1, 1), xyz(0, 0.001, 1)), 0.01));
    EXPECT_FALSE(floorPlane().isPerpendicularToLine(lineOf(xyz(1, 1, 1), xyz(1, 0, 0)), 0.01));
    EXPECT_TRUE(floorPlane().isPerpendicularToVector(xyz(0, 0, -5)));
    EXPECT_FALSE(floorPlane().isPerpendicularToVector(xyz(0, 0.001, 1)));
    EXPECT_TRUE(floorPlane().isPerpendicularToVector(xyz(0, 0.001, 1), 0.01));
    EXPECT_FALSE(floorPlane().isPerpendicularToVector(xyz(1, 0, 0), 0.01));
}

TEST(ZKPlane, isMetByALine)
{
    EXPECT_EQ(floorPlane().crossPointWith(lineOf(xyz(1, 2, 5), xyz(0.5, 0, -1))), xyz(3, 2, 1));
    EXPECT_EQ(planeOf(xy(3, 0), xy(4, 0)).crossPointWith(lineOf(xy(1, 1), xy(1, 1))), xy(3, 3));
}

TEST(ZKPlane, isNotMetByAParallelLine)
{
    EXPECT_FALSE(floorPlane().crossPointWith(lineOf(xyz(1, 2, 5), xyz(1, 1, 0))));
    EXPECT_FALSE(floorPlane().crossPointWith(lineOf(xyz(0, 0, 1), xyz(1, 1, 0))));
}

TEST(ZKPlane, isNotMetByALineOfAnotherDimension)
{
    EXPECT_FALSE(floorPlane().crossPointWith(lineOf(xy(1, 2), xy(1, 1))));
}

TEST(ZKPlane, footIsTheNearestPoint)
{
    EXPECT_EQ(floorPlane().footOfPerpFrom(xyz(3, 4, 9)), xyz(3, 4, 1));
    EXPECT_FALSE(floorPlane().footOfPerpFrom(xy(3, 4)));
}

TEST(ZKPlaneArchive, hasBothVectorsInline)
{
    SequentialEncoder coder;
    planeOf(xy(1, 2), xy(3, 4)).encodeWithCoder(coder);
    EXPECT_EQ(coder.items(),
              (std::vector<ArchivedItem>{std::int32_t{2}, 1.0, 2.0, std::int32_t{2}, 3.0, 4.0}));
    EXPECT_EQ(ArchivedCopy<ZKPlane>(floorPlane()).className(), "ZKPlane");
}

TEST(ZKPlaneArchive, readsItselfBack)
{
    SequentialEncoder coder;
    floorPlane().encodeWithCoder(coder);
    SequentialDecoder decoder(coder.items());
    const auto plane = ZKPlane::initWithCoder(decoder);
    ASSERT_TRUE(plane);
    EXPECT_EQ(plane->origin(), xyz(0, 0, 1));
    EXPECT_EQ(plane->normal(), xyz(0, 0, 2));
}

TEST(ZKPlaneArchive, cutAnywhereYieldsNothing)
{
    SequentialEncoder coder;
    floorPlane().encodeWithCoder(coder);
    for (std::size_t size = 0; size < coder.items().size(); ++size) {
        SequentialDecoder decoder(std::span(coder.items()).first(size));
        EXPECT_FALSE(ZKPlane::initWithCoder(decoder)) << size;
        EXPECT_TRUE(decoder.failed()) << size;
    }
}

TEST(ZKPlaneArchive, aZeroNormalYieldsNothing)
{
    SequentialEncoder coder;
    xyz(1, 2, 3).encodeWithCoder(coder);
    xyz(0, 0, 0).encodeWithCoder(coder);
    SequentialDecoder decoder(coder.items());
    EXPECT_FALSE(ZKPlane::initWithCoder(decoder));
    EXPECT_TRUE(decoder.failed());
}
