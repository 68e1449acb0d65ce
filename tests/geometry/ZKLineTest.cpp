#include "geometry/ZKLine.h"

#include "archiving/ArchivedCopy.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

ZKVector xy(double x, double y) { return ZKVector::vectorWithX(x, y); }

ZKVector xyz(double x, double y, double z) { return ZKVector::vectorWithX(x, y, z); }

ZKVector one(double x) { return *ZKVector::vectorWithNumberArray({x}); }

ZKLine lineOf(const ZKVector &origin, const ZKVector &direction)
{
    return *ZKLine::lineWithOrigin(origin, direction);
}

} // namespace

TEST(ZKLine, keepsOriginAndDirectionAsGiven)
{
    const ZKLine line = lineOf(xy(1, 2), xy(30, 40));
    EXPECT_EQ(line.origin(), xy(1, 2));
    EXPECT_EQ(line.direction(), xy(30, 40));
    EXPECT_EQ(line.dimension(), 2);
}

TEST(ZKLine, badVectorsYieldNothing)
{
    EXPECT_FALSE(ZKLine::lineWithOrigin(xy(0, 0), xyz(1, 0, 0)));
    EXPECT_FALSE(ZKLine::lineWithOrigin(one(0), one(1)));
    EXPECT_FALSE(ZKLine::lineWithOrigin(xy(1, 2), xy(0, -0.0)));
}

TEST(ZKLine, throughTwoPointsRunsFromAToB)
{
    const auto line = ZKLine::lineWithPointA(xyz(1, 2, 3), xyz(5, 7, 9));
    ASSERT_TRUE(line);
    EXPECT_EQ(line->origin(), xyz(1, 2, 3));
    EXPECT_EQ(line->direction(), xyz(4, 5, 6));
}

TEST(ZKLine, throughFloatPointsSubtractsInDouble)
{
    const auto line = ZKLine::lineWithNSPointA({0.1F, 0}, {16777216.0F, 1});
    ASSERT_TRUE(line);
    EXPECT_EQ(line->origin(), xy(0.10000000149011612, 0));
    EXPECT_EQ(line->direction(), xy(16777216.0 - 0.10000000149011612, 1));
}

TEST(ZKLine, throughOnePointTwiceYieldsNothing)
{
    EXPECT_FALSE(ZKLine::lineWithPointA(xy(1, 2), xy(1, 2)));
    EXPECT_FALSE(ZKLine::lineWithNSPointA({1, 2}, {1, 2}));
}

TEST(ZKLine, throughPointsOfUnequalDimensionsYieldsNothing)
{
    EXPECT_FALSE(ZKLine::lineWithPointA(xy(1, 2), xyz(4, 5, 6)));
    EXPECT_FALSE(ZKLine::lineWithPointA(xyz(4, 5, 6), xy(1, 2)));
}

TEST(ZKLine, alongTheAxes)
{
    EXPECT_EQ(ZKLine::lineParaXaxisWithOrigin(xy(3, 4))->direction(), xy(1, 0));
    EXPECT_EQ(ZKLine::lineParaYaxisWithOrigin(xy(3, 4))->direction(), xy(0, 1));
    EXPECT_EQ(ZKLine::lineParaXaxisWithOrigin(xyz(3, 4, 5))->direction(), xyz(1, 0, 0));
    EXPECT_EQ(ZKLine::lineParaZaxisWithOrigin(xyz(3, 4, 5))->direction(), xyz(0, 0, 1));
    EXPECT_EQ(ZKLine::lineParaZaxisWithOrigin(xyz(3, 4, 5))->origin(), xyz(3, 4, 5));
}

TEST(ZKLine, alongAnAxisThatTheOriginLacksYieldsNothing)
{
    EXPECT_FALSE(ZKLine::lineParaXaxisWithOrigin(one(1)));
    EXPECT_FALSE(ZKLine::lineParaYaxisWithOrigin(one(1)));
    EXPECT_FALSE(ZKLine::lineParaZaxisWithOrigin(xy(1, 2)));
}

TEST(ZKLine, setOriginStoresCopies)
{
    ZKLine line = lineOf(xy(0, 0), xy(1, 0));
    ZKVector origin = xy(1, 2);
    line.setOrigin(origin, xy(3, 4));
    origin.clearAllComponents();
    EXPECT_EQ(line.origin(), xy(1, 2));
    EXPECT_EQ(line.direction(), xy(3, 4));
}

TEST(ZKLine, parallelInEitherDirection)
{
    const ZKLine line = lineOf(xy(0, 0), xy(1, 2));
    EXPECT_TRUE(line.isParallelToLine(lineOf(xy(5, 5), xy(-2, -4))));
    EXPECT_FALSE(line.isParallelToLine(lineOf(xy(5, 5), xy(-2, -4.01))));
    EXPECT_TRUE(line.isParallelToLine(lineOf(xy(5, 5), xy(-2, -4.01)), 0.01));
    EXPECT_FALSE(line.isParallelToLine(lineOf(xy(5, 5), xy(-2, 4)), 0.01));
    EXPECT_TRUE(line.isParallelToVector(xy(2, 4)));
    EXPECT_FALSE(line.isParallelToVector(xy(2, 4.01)));
    EXPECT_TRUE(line.isParallelToVector(xy(2, 4.01), 0.01));
    EXPECT_FALSE(line.isParallelToVector(xy(2, -4), 0.01));
}

TEST(ZKLine, perpendicularDirections)
{
    const ZKLine line = lineOf(xy(0, 0), xy(1, 2));
    EXPECT_TRUE(line.isPerpendicularToLine(lineOf(xy(5, 5), xy(-2, 1))));
    EXPECT_FALSE(line.isPerpendicularToLine(lineOf(xy(5, 5), xy(-2, 1.01))));
    EXPECT_TRUE(line.isPerpendicularToLine(lineOf(xy(5, 5), xy(-2, 1.01)), 0.01));
    EXPECT_FALSE(line.isPerpendicularToLine(lineOf(xy(5, 5), xy(1, 2)), 0.01));
    EXPECT_TRUE(line.isPerpendicularToVector(xy(-2, 1)));
    EXPECT_FALSE(line.isPerpendicularToVector(xy(-2, 1.01)));
    EXPECT_TRUE(line.isPerpendicularToVector(xy(-2, 1.01), 0.01));
    EXPECT_FALSE(line.isPerpendicularToVector(xy(1, 2), 0.01));
}

TEST(ZKLineCrossing, ofTheAxisLines)
{
    const auto horizontal = ZKLine::lineParaXaxisWithOrigin(xy(0, 1));
    const auto vertical = ZKLine::lineParaYaxisWithOrigin(xy(2, 0));
    EXPECT_EQ(horizontal->crossPointWith(*vertical), xy(2, 1));
    EXPECT_EQ(vertical->crossPointWith(*horizontal), xy(2, 1));
}

TEST(ZKLineCrossing, worksForDirectionsOfAnyLength)
{
    const ZKLine a = lineOf(xy(0, 0), xy(8, 8));
    EXPECT_EQ(a.crossPointWith(lineOf(xy(4, 0), xy(0, -0.5))), xy(4, 4));
    EXPECT_EQ(lineOf(xy(4, 0), xy(0, -0.5)).crossPointWith(a), xy(4, 4));
}

TEST(ZKLineCrossing, liesOnTheReceiverByItsOwnArithmetic)
{
    const ZKLine receiver = lineOf(xy(0.1, 0.7), xy(0, 3));
    const auto crossing = receiver.crossPointWith(lineOf(xy(5, 11), xy(0.3, 0.7)));
    ASSERT_TRUE(crossing);
    EXPECT_EQ(crossing->X(), 0.1);
}

TEST(ZKLineCrossing, isTheSolutionOfTheLinearSystem)
{
    const ZKLine a = lineOf(xy(0.3, 1.7), xy(2.1, 0.9));
    const ZKLine b = lineOf(xy(5.3, -0.2), xy(-0.7, 3.3));
    const auto solution = ZKMatrix::matrixWithColumnVectors(
                              {a.direction(), b.direction(), b.origin().subVector(a.origin())})
                              ->solveEquation();
    ASSERT_TRUE(solution);
    EXPECT_EQ(a.crossPointWith(b), a.origin().addVector(a.direction().mulScalar(solution->X())));
}

TEST(ZKLineCrossing, ofParallelLinesIsNothing)
{
    const ZKLine line = lineOf(xy(0, 0), xy(1, 2));
    EXPECT_FALSE(line.crossPointWith(lineOf(xy(5, 5), xy(-2, -4))));
    EXPECT_FALSE(line.crossPointWith(line));
}

TEST(ZKLineCrossing, ofNearlyParallelLinesExists)
{
    EXPECT_TRUE(lineOf(xy(0, 0), xy(1, 0)).crossPointWith(lineOf(xy(0, 1), xy(1, 1e-12))));
}

TEST(ZKLineCrossing, isForThePlaneOnly)
{
    const ZKLine space = lineOf(xyz(0, 0, 0), xyz(1, 0, 0));
    EXPECT_FALSE(space.crossPointWith(lineOf(xyz(0, 0, 0), xyz(0, 1, 0))));
    EXPECT_FALSE(space.crossPointWith(lineOf(xy(0, 0), xy(0, 1))));
    EXPECT_FALSE(lineOf(xy(0, 0), xy(0, 1)).crossPointWith(space));
}

TEST(ZKLineFoot, isTheSameForDirectionsOfAnyLength)
{
    EXPECT_EQ(lineOf(xy(0, 0), xy(2, 0)).footOfPerpFrom(xy(3, 4)), xy(3, 0));
    EXPECT_EQ(lineOf(xy(0, 0), xy(1, 0)).footOfPerpFrom(xy(3, 4)), xy(3, 0));
    EXPECT_EQ(lineOf(xy(0, 0), xy(-0.5, 0)).footOfPerpFrom(xy(3, 4)), xy(3, 0));
}

TEST(ZKLineFoot, startsFromTheOrigin)
{
    EXPECT_EQ(lineOf(xy(10, 1), xy(0, 4)).footOfPerpFrom(xy(3, 5)), xy(10, 5));
    EXPECT_EQ(lineOf(xyz(1, 1, 1), xyz(0, 0, 2)).footOfPerpFrom(xyz(5, 6, 7)), xyz(1, 1, 7));
}

TEST(ZKLineFoot, needsTheSameDimension)
{
    EXPECT_FALSE(lineOf(xy(0, 0), xy(1, 0)).footOfPerpFrom(xyz(1, 2, 3)));
}

TEST(ZKLineArchive, hasBothVectorsInline)
{
    SequentialEncoder coder;
    lineOf(xy(1, 2), xy(3, 4)).encodeWithCoder(coder);
    EXPECT_EQ(coder.items(),
              (std::vector<ArchivedItem>{std::int32_t{2}, 1.0, 2.0, std::int32_t{2}, 3.0, 4.0}));
    EXPECT_EQ(ArchivedCopy<ZKLine>(lineOf(xy(1, 2), xy(3, 4))).className(), "ZKLine");
}

TEST(ZKLineArchive, readsItselfBack)
{
    SequentialEncoder coder;
    lineOf(xyz(1, 2, 3), xyz(0, 0, 0.5)).encodeWithCoder(coder);
    SequentialDecoder decoder(coder.items());
    const auto line = ZKLine::initWithCoder(decoder);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->origin(), xyz(1, 2, 3));
    EXPECT_EQ(line->direction(), xyz(0, 0, 0.5));
}

TEST(ZKLineArchive, cutAnywhereYieldsNothing)
{
    SequentialEncoder coder;
    lineOf(xy(1, 2), xy(3, 4)).encodeWithCoder(coder);
    for (std::size_t size = 0; size < coder.items().size(); ++size) {
        SequentialDecoder decoder(std::span(coder.items()).first(size));
        EXPECT_FALSE(ZKLine::initWithCoder(decoder)) << size;
        EXPECT_TRUE(decoder.failed()) << size;
    }
}

TEST(ZKLineArchive, vectorsThatMakeNoLineYieldNothing)
{
    for (const auto &[origin, direction] :
         {std::pair(xy(1, 2), xy(0, 0)), std::pair(xy(1, 2), xyz(1, 2, 3)),
          std::pair(one(1), one(2))}) {
        SequentialEncoder coder;
        origin.encodeWithCoder(coder);
        direction.encodeWithCoder(coder);
        SequentialDecoder decoder(coder.items());
        EXPECT_FALSE(ZKLine::initWithCoder(decoder));
        EXPECT_TRUE(decoder.failed());
    }
}
