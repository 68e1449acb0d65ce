#pragma once

#include "geometry/FloatGeometry.h"
#include "geometry/InlineDoubles.h"
#include "geometry/ZKVector.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class SequentialDecoder;
class SequentialEncoder;

/// A dense matrix of doubles, row-major, rows and columns counted from 0 (the names A11, A12 ...
/// count from 1). Operations whose name ends in `Self` change the receiver and return it. Nothing
/// raises an error: shapes that do not fit and singular systems give nothing or no change.
class ZKMatrix
{
public:
    static constexpr std::string_view kClassName = "ZKMatrix";

    /// `matrixWithRows:andCols:` makes a zero matrix; nothing for a count below 1, or without
    /// memory for it.
    [[nodiscard]] static std::optional<ZKMatrix> matrixWithRows(int rows, int cols);
    /// `matrixDiagonalWithRows:andCols:` is a zero matrix with ones on the diagonal.
    [[nodiscard]] static std::optional<ZKMatrix> matrixDiagonalWithRows(int rows, int cols);
    /// `matrixWithA11:A12:A21:A22:`
    [[nodiscard]] static ZKMatrix matrixWithA11(double a11, double a12, double a21, double a22);
    /// `matrixWithA11:A12:A13:A21:A22:A23:A31:A32:A33:`
    [[nodiscard]] static ZKMatrix matrixWithA11(double a11, double a12, double a13, double a21,
                                                double a22, double a23, double a31, double a32,
                                                double a33);
    [[nodiscard]] static ZKMatrix matrixWithMatrix(const ZKMatrix &matrix) { return matrix; }
    /// `matrixWithRowPoint1:andPoint2:`
    [[nodiscard]] static ZKMatrix matrixWithRowPoint1(FloatPoint point1, FloatPoint point2);
    /// `matrixWithColumnPoint1:andPoint2:`
    [[nodiscard]] static ZKMatrix matrixWithColumnPoint1(FloatPoint point1, FloatPoint point2);
    /// The first vector gives the other count; an empty array, or none in its first place, gives
    /// nothing. Missing vectors further on leave zeros.
    [[nodiscard]] static std::optional<ZKMatrix>
    matrixWithRowVectors(std::span<const ZKVector> vectors);
    [[nodiscard]] static std::optional<ZKMatrix>
    matrixWithRowVectors(const std::vector<std::optional<ZKVector>> &vectors);
    [[nodiscard]] static std::optional<ZKMatrix>
    matrixWithColumnVectors(std::span<const ZKVector> vectors);
    [[nodiscard]] static std::optional<ZKMatrix>
    matrixWithColumnVectors(const std::vector<std::optional<ZKVector>> &vectors);
    /// Each inner array is a row, the first one says how long rows are; nothing when there is no
    /// row or the first is empty.
    [[nodiscard]] static std::optional<ZKMatrix>
    matrixWithNumberArray(const std::vector<std::vector<double>> &numbers);

    [[nodiscard]] int rows() const { return m_rows; }
    [[nodiscard]] int cols() const { return m_cols; }
    [[nodiscard]] int totalSize() const { return m_matSize; }
    [[nodiscard]] double *buffer() { return m_matrix.data(); }
    [[nodiscard]] const double *buffer() const { return m_matrix.data(); }

    /// `getElementAtRow:andCol:` gives 0.0 for an index outside the matrix.
    [[nodiscard]] double getElementAtRow(int row, int col) const;
    /// `setElement:atRow:andCol:` ignores an index outside the matrix.
    void setElement(double element, int atRow, int col);
    /// `setElementsA11:A12:A21:A22:` works on a 2 x 2 matrix only.
    void setElementsA11(double a11, double a12, double a21, double a22);
    /// `getElementsA11:A12:A21:A22:` leaves the results alone unless the matrix is 2 x 2.
    void getElementsA11(double &a11, double &a12, double &a21, double &a22) const;
    /// `setElementsA11:A12:A13:A21:A22:A23:A31:A32:A33:` works on a 3 x 3 matrix only.
    void setElementsA11(double a11, double a12, double a13, double a21, double a22, double a23,
                        double a31, double a32, double a33);
    /// `getElementsA11:A12:A13:A21:A22:A23:A31:A32:A33:` leaves the results alone unless the matrix
    /// is 3 x 3.
    void getElementsA11(double &a11, double &a12, double &a13, double &a21, double &a22,
                        double &a23, double &a31, double &a32, double &a33) const;
    void clearAllElements() { fillAllElementsWith(0.0); }
    void fillAllElementsWith(double value);
    /// Copies the top left block that both matrices have.
    void copyMatrix(const ZKMatrix &matrix);
    /// `subMatrixFromRow:andCol:withRows:andCols:` is cut to what fits; nothing when the block
    /// starts outside the matrix or is empty.
    [[nodiscard]] std::optional<ZKMatrix> subMatrixFromRow(int fromRow, int col, int rows,
                                                           int cols) const;

    /// `setRowVector:at:` copies as many components as fit; a row outside is ignored.
    void setRowVector(const ZKVector &vector, int at);
    /// `setColumnVector:at:` copies as many components as fit; a column outside is ignored.
    void setColumnVector(const ZKVector &vector, int at);
    [[nodiscard]] std::optional<ZKVector> getRowVectorAt(int row) const;
    [[nodiscard]] std::optional<ZKVector> getColumnVectorAt(int col) const;
    void setRowVectors(std::span<const ZKVector> vectors);
    void setRowVectors(const std::vector<std::optional<ZKVector>> &vectors);
    void setColumnVectors(std::span<const ZKVector> vectors);
    void setColumnVectors(const std::vector<std::optional<ZKVector>> &vectors);
    [[nodiscard]] std::vector<ZKVector> getRowVectors() const;
    [[nodiscard]] std::vector<ZKVector> getColumnVectors() const;

    [[nodiscard]] std::vector<std::vector<double>> makeNumberArray() const;
    /// For example "[ 2 x 2 ] (\n1, 0\n0, 1 )\n".
    [[nodiscard]] std::string stringValue() const;
    [[nodiscard]] std::string makeLogStringWith(std::string_view prefix) const;

    [[nodiscard]] ZKMatrix addMatrix(const ZKMatrix &matrix) const;
    [[nodiscard]] ZKMatrix subMatrix(const ZKMatrix &matrix) const;
    [[nodiscard]] ZKMatrix addScalar(double scalar) const;
    [[nodiscard]] ZKMatrix subScalar(double scalar) const;
    [[nodiscard]] ZKMatrix mulScalar(double scalar) const;
    [[nodiscard]] ZKMatrix divScalar(double scalar) const;

    /// Leaves the receiver as it is when the shapes differ.
    ZKMatrix &addMatrixSelf(const ZKMatrix &matrix);
    ZKMatrix &subMatrixSelf(const ZKMatrix &matrix);
    ZKMatrix &addScalarSelf(double scalar);
    ZKMatrix &subScalarSelf(double scalar);
    ZKMatrix &mulScalarSelf(double scalar);
    /// Divides by 0.0 too, unlike a vector.
    ZKMatrix &divScalarSelf(double scalar);

    [[nodiscard]] std::optional<ZKMatrix> mulMatrix(const ZKMatrix &matrix) const;
    [[nodiscard]] std::optional<ZKVector> mulVector(const ZKVector &vector) const;
    [[nodiscard]] ZKMatrix transpose() const;
    /// Nothing when the determinant is exactly 0.0, so for every matrix that is not square; there
    /// is no threshold.
    [[nodiscard]] std::optional<ZKMatrix> invert() const;

    /// `mulScalarSelf:atRow:` ignores a row outside.
    ZKMatrix &mulScalarSelf(double scalar, int atRow);
    /// `divScalarSelf:atRow:` ignores a row outside.
    ZKMatrix &divScalarSelf(double scalar, int atRow);
    /// `addRaw:times:toRow:` adds `times` the row `raw` to the row `toRow`; true at once when
    /// `times` is exactly 0.0, else false for a row outside.
    bool addRaw(int raw, double times, int toRow);
    /// `exchangeRow:andRow:` is false for a row outside.
    bool exchangeRow(int row1, int row2);

    [[nodiscard]] double sum() const;
    [[nodiscard]] double trace() const;
    /// By elimination, exchanging rows only for a pivot of exactly 0.0; 0.0 when not square.
    [[nodiscard]] double determinant() const;
    /// The solution of the linear system whose augmented matrix this is, by determinants; nothing
    /// unless cols is rows + 1 and the system's determinant is not exactly 0.0.
    [[nodiscard]] std::optional<ZKVector> solveEquation() const;
    /// What `solveEquation` gives for the augmented matrix of two equations,
    /// a11 x + a12 y = b1 and a21 x + a22 y = b2, without making the matrix.
    [[nodiscard]] static std::optional<ZKVector>
    solveEquationWithA11(double a11, double a12, double b1, double a21, double a22, double b2);
    [[nodiscard]] bool isZero() const;
    /// Every element below the tolerance, without an absolute value: a negative element passes.
    [[nodiscard]] bool isZeroWithin(double tolerance) const;
    [[nodiscard]] bool isEqualTo(const ZKMatrix &matrix) const;
    /// `isEqualTo:within:` divides differences by the mean determinant (1.0 if that is 0.0); a
    /// quotient of exactly the tolerance is equal.
    [[nodiscard]] bool isEqualTo(const ZKMatrix &matrix, double within) const;

    /// Writes rows, columns and element count ("i"), then the elements row by row ("d").
    void encodeWithCoder(SequentialEncoder &coder) const;
    /// Nothing, and a failed coder, when what it holds is no matrix.
    [[nodiscard]] static std::optional<ZKMatrix> initWithCoder(SequentialDecoder &coder);

    friend bool operator==(const ZKMatrix &a, const ZKMatrix &b) { return a.isEqualTo(b); }

private:
    static constexpr std::size_t kInPlace = 12;

    ZKMatrix(int rows, int cols)
        : m_matrix(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols))
    {
        setRows(rows, cols);
    }

    /// `setRows:andCols:` sets the counts of a matrix that is being made; its elements must be as
    /// many.
    void setRows(int rows, int cols)
    {
        m_rows = rows;
        m_cols = cols;
        m_matSize = rows * cols;
    }
    [[nodiscard]] bool hasRow(int row) const { return row >= 0 && row < m_rows; }
    [[nodiscard]] bool hasColumn(int col) const { return col >= 0 && col < m_cols; }
    [[nodiscard]] bool hasShapeOf(const ZKMatrix &matrix) const
    {
        return m_rows == matrix.m_rows && m_cols == matrix.m_cols;
    }
    [[nodiscard]] double &at(int row, int col) { return buffer()[offsetOf(row) + col]; }
    [[nodiscard]] double at(int row, int col) const { return buffer()[offsetOf(row) + col]; }
    [[nodiscard]] std::ptrdiff_t offsetOf(int row) const
    {
        return static_cast<std::ptrdiff_t>(row) * m_cols;
    }
    [[nodiscard]] static double determinant2(double a11, double a12, double a21, double a22)
    {
        return a11 * a22 - a12 * a21;
    }
    [[nodiscard]] static std::optional<ZKMatrix> matrixOnHeap(int rows, int cols);
    /// The first row from `row` downwards whose element in column `row` is not exactly 0.0; the
    /// number of rows when there is none.
    [[nodiscard]] int pivotRowFrom(int row) const;
    [[nodiscard]] double determinantByElimination() const;
    [[nodiscard]] std::optional<ZKVector> solveByDeterminants() const;

    int m_rows = 0;
    int m_cols = 0;
    int m_matSize = 0;
    InlineDoubles<kInPlace> m_matrix;
};

inline std::optional<ZKMatrix> ZKMatrix::matrixWithRows(int rows, int cols)
{
    if (rows <= 0 || cols <= 0 || rows > std::numeric_limits<int>::max() / cols)
        return std::nullopt;
    if (static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols) > kInPlace)
        return matrixOnHeap(rows, cols);
    return ZKMatrix(rows, cols);
}

inline ZKMatrix ZKMatrix::matrixWithA11(double a11, double a12, double a21, double a22)
{
    ZKMatrix result(2, 2);
    result.setElementsA11(a11, a12, a21, a22);
    return result;
}

inline double ZKMatrix::getElementAtRow(int row, int col) const
{
    return hasRow(row) && hasColumn(col) ? at(row, col) : 0.0;
}

inline void ZKMatrix::setElement(double element, int atRow, int col)
{
    if (hasRow(atRow) && hasColumn(col))
        at(atRow, col) = element;
}

inline void ZKMatrix::setElementsA11(double a11, double a12, double a21, double a22)
{
    if (m_rows != 2 || m_cols != 2)
        return;
    double *elements = buffer();
    elements[0] = a11;
    elements[1] = a12;
    elements[2] = a21;
    elements[3] = a22;
}

inline void ZKMatrix::getElementsA11(double &a11, double &a12, double &a21, double &a22) const
{
    if (m_rows != 2 || m_cols != 2)
        return;
    const double *elements = buffer();
    a11 = elements[0];
    a12 = elements[1];
    a21 = elements[2];
    a22 = elements[3];
}

inline void ZKMatrix::setRowVector(const ZKVector &vector, int at)
{
    if (!hasRow(at))
        return;
    const int count = std::min(m_cols, vector.dimension());
    const double *components = vector.buffer();
    double *row = buffer() + offsetOf(at);
    for (int j = 0; j < count; ++j)
        row[j] = components[j];
}

inline void ZKMatrix::setColumnVector(const ZKVector &vector, int at)
{
    if (!hasColumn(at))
        return;
    const int count = std::min(m_rows, vector.dimension());
    const double *components = vector.buffer();
    double *column = buffer() + at;
    for (int i = 0; i < count; ++i)
        column[offsetOf(i)] = components[i];
}

inline std::optional<ZKVector> ZKMatrix::mulVector(const ZKVector &vector) const
{
    if (vector.dimension() != m_cols)
        return std::nullopt;
    const double *a = buffer();
    const double *v = vector.buffer();
    if (m_rows == 2 && m_cols == 2)
        return ZKVector::vectorWithX(0.0 + a[0] * v[0] + a[1] * v[1],
                                     0.0 + a[2] * v[0] + a[3] * v[1]);
    std::optional<ZKVector> result = ZKVector::vectorWithDimension(m_rows);
    for (int i = 0; result && i < m_rows; ++i) {
        double sum = 0.0;
        for (int j = 0; j < m_cols; ++j)
            sum += at(i, j) * v[j];
        result->setComponent(sum, i);
    }
    return result;
}

inline double ZKMatrix::determinant() const
{
    if (m_rows != m_cols)
        return 0.0;
    const double *a = buffer();
    if (m_rows == 1)
        return a[0];
    if (m_rows == 2)
        return determinant2(a[0], a[1], a[2], a[3]);
    return determinantByElimination();
}

inline std::optional<ZKVector> ZKMatrix::solveEquationWithA11(double a11, double a12, double b1,
                                                              double a21, double a22, double b2)
{
    const double systemDeterminant = determinant2(a11, a12, a21, a22);
    if (systemDeterminant == 0.0)
        return std::nullopt;
    return ZKVector::vectorWithX(determinant2(b1, a12, b2, a22) / systemDeterminant,
                                 determinant2(a11, b1, a21, b2) / systemDeterminant);
}

inline std::optional<ZKVector> ZKMatrix::solveEquation() const
{
    if (m_rows != 2 || m_cols != 3)
        return solveByDeterminants();
    const double *a = buffer();
    return solveEquationWithA11(a[0], a[1], a[2], a[3], a[4], a[5]);
}
