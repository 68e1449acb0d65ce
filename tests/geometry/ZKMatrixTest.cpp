#include "geometry/ZKMatrix.h"

#include "archiving/ArchivedCopy.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace {

using Rows = std::vector<std::vector<double>>;

ZKMatrix matrixOf(const Rows &rows) { return *ZKMatrix::matrixWithNumberArray(rows); }

ZKMatrix counting3() { return ZKMatrix::matrixWithA11(1, 2, 3, 4, 5, 6, 7, 8, 9); }

ZKVector xy(double x, double y) { return ZKVector::vectorWithX(x, y); }

ZKVector xyz(double x, double y, double z) { return ZKVector::vectorWithX(x, y, z); }

} // namespace

TEST(ZKMatrix, aNewMatrixIsZero)
{
    const auto matrix = ZKMatrix::matrixWithRows(2, 3);
    ASSERT_TRUE(matrix);
    EXPECT_EQ(matrix->rows(), 2);
    EXPECT_EQ(matrix->cols(), 3);
    EXPECT_EQ(matrix->totalSize(), 6);
    EXPECT_TRUE(matrix->isZero());
}

TEST(ZKMatrix, countsBelowOneYieldNothing)
{
    EXPECT_FALSE(ZKMatrix::matrixWithRows(0, 2));
    EXPECT_FALSE(ZKMatrix::matrixWithRows(2, 0));
    EXPECT_FALSE(ZKMatrix::matrixWithRows(-1, -1));
    EXPECT_FALSE(ZKMatrix::matrixDiagonalWithRows(0, 1));
}

TEST(ZKMatrix, moreElementsThanCanBeCountedYieldNothing)
{
    EXPECT_FALSE(ZKMatrix::matrixWithRows(65536, 65536));
    EXPECT_FALSE(ZKMatrix::matrixWithRows(std::numeric_limits<int>::max(), 2));
}

TEST(ZKMatrix, diagonalHasOnesAsFarAsItReaches)
{
    EXPECT_EQ(ZKMatrix::matrixDiagonalWithRows(2, 3), matrixOf({{1, 0, 0}, {0, 1, 0}}));
    EXPECT_EQ(ZKMatrix::matrixDiagonalWithRows(3, 2), matrixOf({{1, 0}, {0, 1}, {0, 0}}));
}

TEST(ZKMatrix, elementFactoriesGoRowByRow)
{
    EXPECT_EQ(ZKMatrix::matrixWithA11(1, 2, 3, 4), matrixOf({{1, 2}, {3, 4}}));
    EXPECT_EQ(counting3(), matrixOf({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}));
    EXPECT_EQ(ZKMatrix::matrixWithMatrix(counting3()), counting3());
}

TEST(ZKMatrix, pointsAreRowsOrColumns)
{
    EXPECT_EQ(ZKMatrix::matrixWithRowPoint1({0.1F, 2}, {3, 4}),
              matrixOf({{0.10000000149011612, 2}, {3, 4}}));
    EXPECT_EQ(ZKMatrix::matrixWithColumnPoint1({0.1F, 2}, {3, 4}),
              matrixOf({{0.10000000149011612, 3}, {2, 4}}));
}

TEST(ZKMatrix, theFirstVectorGivesTheOtherCount)
{
    const std::array<ZKVector, 2> vectors = {xyz(1, 2, 3), xy(4, 5)};
    EXPECT_EQ(ZKMatrix::matrixWithRowVectors(vectors), matrixOf({{1, 2, 3}, {4, 5, 0}}));
    EXPECT_EQ(ZKMatrix::matrixWithColumnVectors(vectors), matrixOf({{1, 4}, {2, 5}, {3, 0}}));
}

TEST(ZKMatrix, vectorsLongerThanTheFirstAreCut)
{
    EXPECT_EQ(ZKMatrix::matrixWithRowVectors({xy(1, 2), xyz(3, 4, 5)}), matrixOf({{1, 2}, {3, 4}}));
}

TEST(ZKMatrix, missingVectorsLeaveZeros)
{
    EXPECT_EQ(ZKMatrix::matrixWithRowVectors({xy(1, 2), std::nullopt, xy(3, 4)}),
              matrixOf({{1, 2}, {0, 0}, {3, 4}}));
    EXPECT_EQ(ZKMatrix::matrixWithColumnVectors({xy(1, 2), std::nullopt}),
              matrixOf({{1, 0}, {2, 0}}));
}

TEST(ZKMatrix, noFirstVectorYieldsNothing)
{
    EXPECT_FALSE(ZKMatrix::matrixWithRowVectors(std::span<const ZKVector>()));
    EXPECT_FALSE(ZKMatrix::matrixWithColumnVectors(std::span<const ZKVector>()));
    const std::vector<std::optional<ZKVector>> vectors = {std::nullopt, xy(1, 2)};
    EXPECT_FALSE(ZKMatrix::matrixWithRowVectors(vectors));
    EXPECT_FALSE(ZKMatrix::matrixWithColumnVectors(vectors));
}

TEST(ZKMatrix, numberArraysAreRows)
{
    EXPECT_EQ(matrixOf({{1, 2, 3}, {4}, {}}), matrixOf({{1, 2, 3}, {4, 0, 0}, {0, 0, 0}}));
    EXPECT_FALSE(ZKMatrix::matrixWithNumberArray({}));
    EXPECT_FALSE(ZKMatrix::matrixWithNumberArray({{}, {1, 2}}));
}

TEST(ZKMatrix, anElementOutsideReadsAsZero)
{
    const ZKMatrix matrix = counting3();
    EXPECT_EQ(matrix.getElementAtRow(1, 2), 6.0);
    EXPECT_EQ(matrix.getElementAtRow(-1, 0), 0.0);
    EXPECT_EQ(matrix.getElementAtRow(0, -1), 0.0);
    EXPECT_EQ(matrix.getElementAtRow(3, 0), 0.0);
    EXPECT_EQ(matrix.getElementAtRow(0, 3), 0.0);
}

TEST(ZKMatrix, anElementOutsideIsNotSet)
{
    ZKMatrix matrix = counting3();
    matrix.setElement(99, -1, 0);
    matrix.setElement(99, 0, -1);
    matrix.setElement(99, 3, 0);
    matrix.setElement(99, 0, 3);
    EXPECT_EQ(matrix, counting3());
    matrix.setElement(99, 1, 2);
    EXPECT_EQ(matrix.getElementAtRow(1, 2), 99.0);
}

TEST(ZKMatrix, fourElementsAtOnceNeedTwoByTwo)
{
    ZKMatrix matrix = matrixOf({{0, 0}, {0, 0}});
    matrix.setElementsA11(1, 2, 3, 4);
    EXPECT_EQ(matrix, matrixOf({{1, 2}, {3, 4}}));
    double a11 = 0;
    double a12 = 0;
    double a21 = 0;
    double a22 = 0;
    matrix.getElementsA11(a11, a12, a21, a22);
    EXPECT_EQ(ZKMatrix::matrixWithA11(a11, a12, a21, a22), matrix);

    ZKMatrix other = counting3();
    other.setElementsA11(0, 0, 0, 0);
    EXPECT_EQ(other, counting3());
    other.getElementsA11(a11, a12, a21, a22);
    EXPECT_EQ(ZKMatrix::matrixWithA11(a11, a12, a21, a22), matrix);
}

TEST(ZKMatrix, nineElementsAtOnceNeedThreeByThree)
{
    ZKMatrix matrix = *ZKMatrix::matrixWithRows(3, 3);
    matrix.setElementsA11(1, 2, 3, 4, 5, 6, 7, 8, 9);
    EXPECT_EQ(matrix, counting3());
    std::array<double, 9> a = {};
    matrix.getElementsA11(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
    EXPECT_EQ(a, (std::array<double, 9>{1, 2, 3, 4, 5, 6, 7, 8, 9}));

    ZKMatrix other = matrixOf({{1, 2}, {3, 4}});
    other.setElementsA11(0, 0, 0, 0, 0, 0, 0, 0, 0);
    EXPECT_EQ(other, matrixOf({{1, 2}, {3, 4}}));
    other.getElementsA11(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
    EXPECT_EQ(a[8], 9.0);
}

TEST(ZKMatrix, clearAndFillReachEveryElement)
{
    ZKMatrix matrix = *ZKMatrix::matrixWithRows(4, 4);
    matrix.fillAllElementsWith(2);
    EXPECT_EQ(matrix.sum(), 32.0);
    matrix.clearAllElements();
    EXPECT_TRUE(matrix.isZero());
}

TEST(ZKMatrix, copyMatrixCopiesTheCommonBlock)
{
    ZKMatrix large = counting3();
    large.copyMatrix(matrixOf({{10, 20, 30, 40}, {50, 60, 70, 80}}));
    EXPECT_EQ(large, matrixOf({{10, 20, 30}, {50, 60, 70}, {7, 8, 9}}));
    ZKMatrix small = matrixOf({{0, 0}, {0, 0}});
    small.copyMatrix(counting3());
    EXPECT_EQ(small, matrixOf({{1, 2}, {4, 5}}));
}

TEST(ZKMatrix, aSubMatrixIsCutToWhatFits)
{
    EXPECT_EQ(counting3().subMatrixFromRow(1, 1, 5, 5), matrixOf({{5, 6}, {8, 9}}));
    EXPECT_EQ(counting3().subMatrixFromRow(0, 2, 2, 1), matrixOf({{3}, {6}}));
    EXPECT_EQ(counting3().subMatrixFromRow(2, 0, std::numeric_limits<int>::max(), 2),
              matrixOf({{7, 8}}));
}

TEST(ZKMatrix, aSubMatrixMustStartInside)
{
    EXPECT_FALSE(counting3().subMatrixFromRow(3, 0, 1, 1));
    EXPECT_FALSE(counting3().subMatrixFromRow(0, 3, 1, 1));
    EXPECT_FALSE(counting3().subMatrixFromRow(-1, 0, 1, 1));
    EXPECT_FALSE(counting3().subMatrixFromRow(0, -1, 1, 1));
    EXPECT_FALSE(counting3().subMatrixFromRow(0, 0, 0, 1));
}

TEST(ZKMatrix, aRowVectorIsCopiedAsFarAsItFits)
{
    ZKMatrix matrix = counting3();
    matrix.setRowVector(xy(10, 20), 1);
    matrix.setRowVector(*ZKVector::vectorWithNumberArray({1, 2, 3, 4}), 2);
    EXPECT_EQ(matrix, matrixOf({{1, 2, 3}, {10, 20, 6}, {1, 2, 3}}));
}

TEST(ZKMatrix, aColumnVectorIsCopiedAsFarAsItFits)
{
    ZKMatrix matrix = counting3();
    matrix.setColumnVector(xy(10, 20), 1);
    matrix.setColumnVector(*ZKVector::vectorWithNumberArray({1, 2, 3, 4}), 2);
    EXPECT_EQ(matrix, matrixOf({{1, 10, 1}, {4, 20, 2}, {7, 8, 3}}));
}

TEST(ZKMatrix, rowsAndColumnsOutsideAreIgnored)
{
    ZKMatrix matrix = counting3();
    for (const int index : {-1, 3}) {
        matrix.setRowVector(xyz(0, 0, 0), index);
        matrix.setColumnVector(xyz(0, 0, 0), index);
        EXPECT_FALSE(matrix.getRowVectorAt(index));
        EXPECT_FALSE(matrix.getColumnVectorAt(index));
    }
    EXPECT_EQ(matrix, counting3());
}

TEST(ZKMatrix, rowsAndColumnsAreVectors)
{
    const ZKMatrix matrix = matrixOf({{1, 2, 3}, {4, 5, 6}});
    EXPECT_EQ(matrix.getRowVectorAt(1), xyz(4, 5, 6));
    EXPECT_EQ(matrix.getColumnVectorAt(1), xy(2, 5));
    EXPECT_EQ(matrix.getRowVectors(), (std::vector<ZKVector>{xyz(1, 2, 3), xyz(4, 5, 6)}));
    EXPECT_EQ(matrix.getColumnVectors(), (std::vector<ZKVector>{xy(1, 4), xy(2, 5), xy(3, 6)}));
}

TEST(ZKMatrix, moreVectorsThanPlacesAreLeftOut)
{
    ZKMatrix rows = matrixOf({{1, 2}, {3, 4}});
    rows.setRowVectors({xy(5, 6), std::nullopt, xy(7, 8)});
    EXPECT_EQ(rows, matrixOf({{5, 6}, {3, 4}}));
    ZKMatrix columns = matrixOf({{1, 2}, {3, 4}});
    columns.setColumnVectors(counting3().getColumnVectors());
    EXPECT_EQ(columns, matrixOf({{1, 2}, {4, 5}}));
}

TEST(ZKMatrix, makeNumberArrayGivesTheRows)
{
    EXPECT_EQ(matrixOf({{1, 2, 3}, {4, 5, 6}}).makeNumberArray(), (Rows{{1, 2, 3}, {4, 5, 6}}));
}

TEST(ZKMatrix, stringValueHasOneLinePerRow)
{
    EXPECT_EQ(ZKMatrix::matrixDiagonalWithRows(2, 2)->stringValue(), "[ 2 x 2 ] (\n1, 0\n0, 1 )\n");
    EXPECT_EQ(matrixOf({{1.5}}).stringValue(), "[ 1 x 1 ] (\n1.5 )\n");
    EXPECT_EQ(matrixOf({{-0.0, 123456.5}}).makeLogStringWith("m = "),
              "m = [ 1 x 2 ] (\n-0, 123456 )\n");
}

TEST(ZKMatrixArchive, hasTheThreeCountsThenTheElements)
{
    SequentialEncoder coder;
    matrixOf({{1, 2, 3}, {4, 5, 6}}).encodeWithCoder(coder);
    const std::vector<ArchivedItem> expected = {
        std::int32_t{2}, std::int32_t{3}, std::int32_t{6}, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0};
    EXPECT_EQ(coder.items(), expected);
    EXPECT_EQ(ArchivedCopy<ZKMatrix>(counting3()).className(), "ZKMatrix");
}

TEST(ZKMatrixArchive, readsItselfBack)
{
    for (const ZKMatrix &matrix : {matrixOf({{0.1}}), matrixOf({{1, 2, 3}, {4, 5, 6}}),
                                   *ZKMatrix::matrixDiagonalWithRows(5, 4)}) {
        SequentialEncoder coder;
        matrix.encodeWithCoder(coder);
        SequentialDecoder decoder(coder.items());
        EXPECT_EQ(ZKMatrix::initWithCoder(decoder), matrix);
        EXPECT_EQ(decoder.remaining(), 0U);
    }
}

TEST(ZKMatrixArchive, cutAnywhereYieldsNothing)
{
    SequentialEncoder coder;
    counting3().encodeWithCoder(coder);
    for (std::size_t size = 0; size < coder.items().size(); ++size) {
        SequentialDecoder decoder(std::span(coder.items()).first(size));
        EXPECT_FALSE(ZKMatrix::initWithCoder(decoder)) << size;
        EXPECT_TRUE(decoder.failed()) << size;
    }
}

TEST(ZKMatrixArchive, countsThatCannotBeYieldNothing)
{
    struct Counts
    {
        std::int32_t rows;
        std::int32_t cols;
        std::int32_t matSize;
    };
    for (const auto &[rows, cols, matSize] :
         {Counts{2, 2, 3}, Counts{0, 2, 0}, Counts{-2, -2, 4}, Counts{2, 1, 1},
          Counts{65536, 65536, 0}, Counts{40000, 50000, 2000000000}, Counts{0, 0, 0}}) {
        const std::vector<ArchivedItem> items = {rows, cols, matSize, 1.0, 2.0, 3.0, 4.0};
        SequentialDecoder decoder(items);
        EXPECT_FALSE(ZKMatrix::initWithCoder(decoder)) << rows << " x " << cols;
        EXPECT_TRUE(decoder.failed()) << rows << " x " << cols;
    }
}

TEST(ZKMatrixArchive, elementsOfAnotherTypeYieldNothing)
{
    const std::vector<ArchivedItem> items = {std::int32_t{1}, std::int32_t{1}, std::int32_t{1},
                                             std::int8_t{1}};
    SequentialDecoder decoder(items);
    EXPECT_FALSE(ZKMatrix::initWithCoder(decoder));
    EXPECT_TRUE(decoder.failed());
}
