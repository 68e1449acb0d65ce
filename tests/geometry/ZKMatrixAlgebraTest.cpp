#include "geometry/ZKMatrix.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

ZKMatrix matrixOf(const std::vector<std::vector<double>> &rows)
{
    return *ZKMatrix::matrixWithNumberArray(rows);
}

ZKVector xy(double x, double y) { return ZKVector::vectorWithX(x, y); }

ZKVector xyz(double x, double y, double z) { return ZKVector::vectorWithX(x, y, z); }

/// Graph units per pixel of a plot area of `width` x 300 pixels.
ZKMatrix unitsPerPixel(double unitsX, double unitsY, double width)
{
    return ZKMatrix::matrixWithA11(unitsX / width, 0, 0, unitsY / 300);
}

} // namespace

TEST(ZKMatrixArithmetic, sumsAndDifferencesGoElementByElement)
{
    const ZKMatrix a = matrixOf({{1, 2, 3}, {4, 5, 6}});
    const ZKMatrix b = matrixOf({{10, 20, 30}, {40, 50, 60}});
    EXPECT_EQ(a.addMatrix(b), matrixOf({{11, 22, 33}, {44, 55, 66}}));
    EXPECT_EQ(b.subMatrix(a), matrixOf({{9, 18, 27}, {36, 45, 54}}));
}

TEST(ZKMatrixArithmetic, anotherShapeChangesNothing)
{
    const ZKMatrix a = matrixOf({{1, 2, 3}, {4, 5, 6}});
    EXPECT_EQ(a.addMatrix(matrixOf({{1, 2}, {3, 4}, {5, 6}})), a);
    EXPECT_EQ(a.subMatrix(matrixOf({{1, 2}, {3, 4}})), a);
    EXPECT_EQ(a.addMatrix(matrixOf({{1, 2, 3}})), a);
}

TEST(ZKMatrixArithmetic, scalarsReachEveryElement)
{
    const ZKMatrix a = matrixOf({{1, 2}, {3, 4}});
    EXPECT_EQ(a.addScalar(1), matrixOf({{2, 3}, {4, 5}}));
    EXPECT_EQ(a.subScalar(1), matrixOf({{0, 1}, {2, 3}}));
    EXPECT_EQ(a.mulScalar(2), matrixOf({{2, 4}, {6, 8}}));
    EXPECT_EQ(a.divScalar(2), matrixOf({{0.5, 1}, {1.5, 2}}));
    EXPECT_EQ(a, matrixOf({{1, 2}, {3, 4}}));
}

TEST(ZKMatrixArithmetic, divisionByZeroIsNotGuarded)
{
    const ZKMatrix quotient = matrixOf({{1, 0}, {-1, 2}}).divScalar(0.0);
    EXPECT_EQ(quotient.getElementAtRow(0, 0), INFINITY);
    EXPECT_TRUE(std::isnan(quotient.getElementAtRow(0, 1)));
    EXPECT_EQ(quotient.getElementAtRow(1, 0), -INFINITY);
}

TEST(ZKMatrixArithmetic, selfFormsChangeAndReturnTheReceiver)
{
    ZKMatrix matrix = matrixOf({{1, 2}, {3, 4}});
    EXPECT_EQ(&matrix.addMatrixSelf(matrixOf({{1, 1}, {1, 1}})), &matrix);
    EXPECT_EQ(matrix, matrixOf({{2, 3}, {4, 5}}));
    EXPECT_EQ(&matrix.subMatrixSelf(matrixOf({{2, 2}, {2, 2}})), &matrix);
    EXPECT_EQ(&matrix.addScalarSelf(3).subScalarSelf(1).mulScalarSelf(4).divScalarSelf(2), &matrix);
    EXPECT_EQ(matrix, matrixOf({{4, 6}, {8, 10}}));
}

TEST(ZKMatrixProduct, multipliesRowsByColumns)
{
    const ZKMatrix a = matrixOf({{1, 2, 3}, {4, 5, 6}});
    const ZKMatrix b = matrixOf({{1, 2}, {3, 4}, {5, 6}});
    EXPECT_EQ(a.mulMatrix(b), matrixOf({{22, 28}, {49, 64}}));
    EXPECT_EQ(b.mulMatrix(a), matrixOf({{9, 12, 15}, {19, 26, 33}, {29, 40, 51}}));
    EXPECT_FALSE(a.mulMatrix(a));
}

TEST(ZKMatrixProduct, multipliesAVector)
{
    EXPECT_EQ(matrixOf({{1, 2}, {3, 4}}).mulVector(xy(5, 6)), xy(17, 39));
    EXPECT_EQ(matrixOf({{1, 2, 3}, {4, 5, 6}}).mulVector(xyz(1, 2, 3)), xy(14, 32));
    EXPECT_EQ(matrixOf({{1, 2}, {3, 4}, {5, 6}}).mulVector(xy(1, 2)), xyz(5, 11, 17));
    EXPECT_FALSE(matrixOf({{1, 2}, {3, 4}}).mulVector(xyz(1, 2, 3)));
    EXPECT_FALSE(matrixOf({{1, 2, 3}, {4, 5, 6}}).mulVector(xy(1, 2)));
}

TEST(ZKMatrixProduct, transposeExchangesRowsAndColumns)
{
    EXPECT_EQ(matrixOf({{1, 2, 3}, {4, 5, 6}}).transpose(), matrixOf({{1, 4}, {2, 5}, {3, 6}}));
}

TEST(ZKMatrixRows, aRowIsMultipliedAndDivided)
{
    ZKMatrix matrix = matrixOf({{1, 2}, {3, 4}});
    EXPECT_EQ(&matrix.mulScalarSelf(10, 1), &matrix);
    EXPECT_EQ(matrix, matrixOf({{1, 2}, {30, 40}}));
    EXPECT_EQ(&matrix.divScalarSelf(2, 0), &matrix);
    EXPECT_EQ(matrix, matrixOf({{0.5, 1}, {30, 40}}));
}

TEST(ZKMatrixRows, aRowOutsideIsIgnored)
{
    ZKMatrix matrix = matrixOf({{1, 2}, {3, 4}});
    for (const int row : {-1, 2}) {
        matrix.mulScalarSelf(10, row);
        matrix.divScalarSelf(10, row);
    }
    EXPECT_EQ(matrix, matrixOf({{1, 2}, {3, 4}}));
}

TEST(ZKMatrixRows, addRawAddsAMultipleOfTheRow)
{
    ZKMatrix matrix = matrixOf({{1, 2}, {3, 4}});
    EXPECT_TRUE(matrix.addRaw(0, -2, 1));
    EXPECT_EQ(matrix, matrixOf({{1, 2}, {1, 0}}));
    EXPECT_TRUE(matrix.addRaw(0, 2, 0));
    EXPECT_EQ(matrix, matrixOf({{3, 6}, {1, 0}}));
}

TEST(ZKMatrixRows, addRawTimesZeroIsTrueBeforeTheRowsAreLookedAt)
{
    ZKMatrix matrix = matrixOf({{1, 2}, {3, 4}});
    EXPECT_TRUE(matrix.addRaw(-1, 0.0, 99));
    EXPECT_FALSE(matrix.addRaw(-1, 1, 0));
    EXPECT_FALSE(matrix.addRaw(0, 1, -1));
    EXPECT_FALSE(matrix.addRaw(2, 1, 0));
    EXPECT_FALSE(matrix.addRaw(0, 1, 2));
    EXPECT_EQ(matrix, matrixOf({{1, 2}, {3, 4}}));
}

TEST(ZKMatrixRows, rowsAreExchanged)
{
    ZKMatrix matrix = matrixOf({{1, 2}, {3, 4}});
    EXPECT_TRUE(matrix.exchangeRow(0, 1));
    EXPECT_EQ(matrix, matrixOf({{3, 4}, {1, 2}}));
    EXPECT_TRUE(matrix.exchangeRow(1, 1));
    EXPECT_FALSE(matrix.exchangeRow(0, 2));
    EXPECT_FALSE(matrix.exchangeRow(-1, 0));
    EXPECT_EQ(matrix, matrixOf({{3, 4}, {1, 2}}));
}

TEST(ZKMatrixMeasures, sumAndTrace)
{
    EXPECT_EQ(matrixOf({{1, 2, 3}, {4, 5, 6}}).sum(), 21.0);
    EXPECT_EQ(matrixOf({{1, 2, 3}, {4, 5, 6}}).trace(), 6.0);
    EXPECT_EQ(matrixOf({{1, 2}, {3, 4}, {5, 6}}).trace(), 5.0);
}

TEST(ZKMatrixDeterminant, ofSmallMatrices)
{
    EXPECT_EQ(matrixOf({{-7}}).determinant(), -7.0);
    EXPECT_EQ(matrixOf({{1, 2}, {3, 4}}).determinant(), -2.0);
    EXPECT_DOUBLE_EQ(matrixOf({{2, 1, 1}, {1, 3, 2}, {1, 0, 0}}).determinant(), -1.0);
}

TEST(ZKMatrixDeterminant, isZeroWhenNotSquare)
{
    EXPECT_EQ(matrixOf({{1, 2, 3}, {4, 5, 6}}).determinant(), 0.0);
    EXPECT_EQ(matrixOf({{1, 2}, {3, 4}, {5, 6}}).determinant(), 0.0);
}

TEST(ZKMatrixDeterminant, changesItsSignWithAnExchange)
{
    EXPECT_EQ(matrixOf({{0, 1, 0}, {1, 0, 0}, {0, 0, 1}}).determinant(), -1.0);
    EXPECT_EQ(matrixOf({{0, 1, 0}, {0, 0, 1}, {1, 0, 0}}).determinant(), 1.0);
    EXPECT_EQ(matrixOf({{0, 0, 2}, {0, 3, 0}, {4, 0, 0}}).determinant(), -24.0);
}

TEST(ZKMatrixDeterminant, isZeroForAZeroColumn)
{
    EXPECT_EQ(matrixOf({{0, 1, 2}, {0, 3, 4}, {0, 5, 6}}).determinant(), 0.0);
    EXPECT_EQ(matrixOf({{1, 2, 3}, {2, 4, 7}, {3, 6, 5}}).determinant(), 0.0);
}

TEST(ZKMatrixDeterminant, exchangesOnlyForAnExactlyZeroPivot)
{
    // The exact value is 4e-20; dividing by the tiny pivot loses what stands beside it.
    EXPECT_EQ(matrixOf({{1e-20, 1, 0}, {1, 5, 1}, {1, 1, 1}}).determinant(), 0.0);
}

TEST(ZKMatrixDeterminant, ofLargeMatrices)
{
    EXPECT_EQ(ZKMatrix::matrixDiagonalWithRows(5, 5)->mulScalar(2).determinant(), 32.0);
}

TEST(ZKMatrixInvert, givesTheInverse)
{
    EXPECT_EQ(matrixOf({{2, 0}, {0, 4}}).invert(), matrixOf({{0.5, 0}, {0, 0.25}}));
    EXPECT_EQ(matrixOf({{1, 2}, {3, 4}}).invert(), matrixOf({{-2, 1}, {1.5, -0.5}}));
    EXPECT_EQ(matrixOf({{4}}).invert(), matrixOf({{0.25}}));
    EXPECT_EQ(matrixOf({{0, 2, 0}, {4, 0, 0}, {0, 0, 8}}).invert(),
              matrixOf({{0, 0.25, 0}, {0.5, 0, 0}, {0, 0, 0.125}}));
}

TEST(ZKMatrixInvert, yieldsNothingForASingularMatrix)
{
    EXPECT_FALSE(matrixOf({{1, 2}, {2, 4}}).invert());
    EXPECT_FALSE(matrixOf({{0}}).invert());
}

TEST(ZKMatrixInvert, yieldsNothingWhenNotSquare)
{
    EXPECT_FALSE(matrixOf({{1, 2, 3}, {4, 5, 6}}).invert());
}

TEST(ZKMatrixInvert, hasNoThreshold)
{
    const auto inverse = matrixOf({{1e-200, 0}, {0, 1e-100}}).invert();
    ASSERT_TRUE(inverse);
    EXPECT_DOUBLE_EQ(inverse->getElementAtRow(0, 0), 1e200);
}

TEST(ZKMatrixSolve, givesTheSolution)
{
    EXPECT_EQ(matrixOf({{1, 1, 3}, {1, -1, 1}}).solveEquation(), xy(2, 1));
    EXPECT_EQ(matrixOf({{2, 0, 0, 4}, {0, 4, 0, 4}, {0, 0, 8, 4}}).solveEquation(), xyz(2, 1, 0.5));
    EXPECT_EQ(matrixOf({{4, 2}}).solveEquation(), ZKVector::vectorWithNumberArray({0.5}));
}

TEST(ZKMatrixSolve, dividesTheDeterminants)
{
    // 1 / 49 is not exact, so a product with a reciprocal would differ.
    EXPECT_EQ(matrixOf({{7, 0, 5}, {0, 7, 5}}).solveEquation()->X(), 35.0 / 49.0);
}

TEST(ZKMatrixSolve, twoEquationsWithoutTheMatrix)
{
    EXPECT_EQ(ZKMatrix::solveEquationWithA11(0.3, 1.7, 3, 1.1, -1, 0.1),
              matrixOf({{0.3, 1.7, 3}, {1.1, -1, 0.1}}).solveEquation());
    EXPECT_FALSE(ZKMatrix::solveEquationWithA11(1, 2, 3, 2, 4, 5));
}

TEST(ZKMatrixSolve, needsOneColumnMoreThanRows)
{
    EXPECT_FALSE(matrixOf({{1, 2}, {3, 4}}).solveEquation());
    EXPECT_FALSE(matrixOf({{1, 2, 3, 4}, {5, 6, 7, 9}}).solveEquation());
}

TEST(ZKMatrixSolve, aSingularSystemYieldsNothing)
{
    EXPECT_FALSE(matrixOf({{1, 2, 3}, {2, 4, 6}}).solveEquation());
    EXPECT_FALSE(matrixOf({{1, 2, 0, 3}, {2, 4, 0, 6}, {1, 1, 0, 1}}).solveEquation());
}

TEST(ZKMatrixSolve, aNearlySingularSystemIsSolved)
{
    EXPECT_TRUE(matrixOf({{1, 1, 1}, {1, 1 + 1e-15, 1}}).solveEquation());
}

TEST(ZKMatrixTests, zeroIsExact)
{
    EXPECT_TRUE(matrixOf({{0, -0.0}}).isZero());
    EXPECT_FALSE(matrixOf({{0, 1e-300}}).isZero());
}

TEST(ZKMatrixTests, zeroWithinHasNoAbsoluteValue)
{
    EXPECT_TRUE(matrixOf({{-5}}).isZeroWithin(0.1));
    EXPECT_TRUE(matrixOf({{0.09, -5}}).isZeroWithin(0.1));
    EXPECT_FALSE(matrixOf({{0.1}}).isZeroWithin(0.1));
}

TEST(ZKMatrixTests, equalIsExact)
{
    EXPECT_TRUE(matrixOf({{1, 2}}).isEqualTo(matrixOf({{1, 2}})));
    EXPECT_FALSE(matrixOf({{1, 2}}).isEqualTo(matrixOf({{1, std::nextafter(2.0, 3.0)}})));
    EXPECT_FALSE(matrixOf({{1, 2}}).isEqualTo(matrixOf({{1}, {2}})));
    EXPECT_FALSE(matrixOf({{1, 2}}).isEqualTo(matrixOf({{1}})));
    EXPECT_FALSE(matrixOf({{NAN}}).isEqualTo(matrixOf({{NAN}})));
}

TEST(ZKMatrixTests, equalWithinNeedsTheSameShape)
{
    EXPECT_FALSE(matrixOf({{1, 2}}).isEqualTo(matrixOf({{1}, {2}}), 100));
}

TEST(ZKMatrixTests, equalWithinIsInclusive)
{
    // Mean determinant 1.25 (1 and 1.5); the only difference is 0.5.
    const ZKMatrix a = matrixOf({{1, 0}, {0, 1}});
    const ZKMatrix b = matrixOf({{1.5, 0}, {0, 1}});
    EXPECT_TRUE(a.isEqualTo(b, 0.5 / 1.25));
    EXPECT_FALSE(a.isEqualTo(b, std::nextafter(0.5 / 1.25, 0.0)));
    EXPECT_TRUE(a.isEqualTo(a, 0));
}

TEST(ZKMatrixTests, equalWithinTakesTheQuotientWithoutItsSign)
{
    const ZKMatrix a = matrixOf({{0, 1}, {1, 0}});
    const ZKMatrix b = matrixOf({{0, 1}, {1.5, 0}});
    EXPECT_TRUE(a.isEqualTo(b, 0.5));
    EXPECT_FALSE(a.isEqualTo(b, 0.3));
    EXPECT_FALSE(b.isEqualTo(a, 0.3));
}

TEST(ZKMatrixTests, equalWithinOfMatricesThatAreNotSquareIsAbsolute)
{
    const ZKMatrix a = matrixOf({{1000, 2, 3}, {4, 5, 6}});
    EXPECT_TRUE(a.isEqualTo(matrixOf({{1000.5, 2, 3}, {4, 5, 6}}), 0.5));
    EXPECT_FALSE(a.isEqualTo(matrixOf({{1000.75, 2, 3}, {4, 5, 6}}), 0.5));
}

TEST(ZKMatrixTests, equalWithinIsAbsoluteWhenTheDeterminantsCancel)
{
    const ZKMatrix a = matrixOf({{10, 0}, {0, 1}});
    const ZKMatrix b = matrixOf({{10, 0}, {0, -1}});
    EXPECT_TRUE(a.isEqualTo(b, 2));
    EXPECT_FALSE(a.isEqualTo(b, 1.9));
}

TEST(ZKMatrixTests, equalWithinTakesNotANumberForEqual)
{
    EXPECT_TRUE(matrixOf({{NAN, 1, 2}}).isEqualTo(matrixOf({{5, 1, 2}}), 0.1));
}

TEST(ZKMatrixTests, equalWithinDependsOnTheUnits)
{
    constexpr double tolerance = 0.0002;
    EXPECT_FALSE(unitsPerPixel(10, 3, 400).isEqualTo(unitsPerPixel(10, 3, 400.001), tolerance));
    EXPECT_TRUE(
        unitsPerPixel(1e4, 3e3, 400).isEqualTo(unitsPerPixel(1e4, 3e3, 400.001), tolerance));
}
