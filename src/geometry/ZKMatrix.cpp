#include "geometry/ZKMatrix.h"

#include "archiving/SequentialCoder.h"
#include "geometry/GeneralFormat.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

namespace {

int countOf(std::size_t size)
{
    return static_cast<int>(std::min(size, std::size_t{std::numeric_limits<int>::max()}));
}

/// What the span and the array with gaps have in common: a vector, or null for a gap.
const ZKVector *vectorIn(const ZKVector &entry) { return &entry; }

const ZKVector *vectorIn(const std::optional<ZKVector> &entry) { return entry ? &*entry : nullptr; }

/// The dimension of the first vector, 0 when there is none.
template <class Vectors>
int firstDimension(const Vectors &vectors)
{
    const ZKVector *first = vectors.empty() ? nullptr : vectorIn(vectors[0]);
    return first == nullptr ? 0 : first->dimension();
}

/// Calls `set` with each vector and its index, gaps left out.
template <class Vectors, class Set>
void forEachVector(const Vectors &vectors, int limit, Set set)
{
    const int count = std::min(countOf(vectors.size()), limit);
    for (int i = 0; i < count; ++i) {
        if (const ZKVector *vector = vectorIn(vectors[static_cast<std::size_t>(i)]))
            set(*vector, i);
    }
}

template <class Vectors>
std::optional<ZKMatrix> matrixFromRows(const Vectors &vectors)
{
    auto result = ZKMatrix::matrixWithRows(countOf(vectors.size()), firstDimension(vectors));
    if (result)
        result->setRowVectors(vectors);
    return result;
}

template <class Vectors>
std::optional<ZKMatrix> matrixFromColumns(const Vectors &vectors)
{
    auto result = ZKMatrix::matrixWithRows(firstDimension(vectors), countOf(vectors.size()));
    if (result)
        result->setColumnVectors(vectors);
    return result;
}

} // namespace

std::optional<ZKMatrix> ZKMatrix::matrixOnHeap(int rows, int cols)
{
    try {
        return ZKMatrix(rows, cols);
    } catch (const std::bad_alloc &) {
        return std::nullopt;
    }
}

std::optional<ZKMatrix> ZKMatrix::matrixDiagonalWithRows(int rows, int cols)
{
    std::optional<ZKMatrix> result = matrixWithRows(rows, cols);
    if (!result)
        return std::nullopt;
    for (int i = 0; i < std::min(rows, cols); ++i)
        result->at(i, i) = 1.0;
    return result;
}

ZKMatrix ZKMatrix::matrixWithA11(double a11, double a12, double a13, double a21, double a22,
                                 double a23, double a31, double a32, double a33)
{
    ZKMatrix result(3, 3);
    result.setElementsA11(a11, a12, a13, a21, a22, a23, a31, a32, a33);
    return result;
}

ZKMatrix ZKMatrix::matrixWithRowPoint1(FloatPoint point1, FloatPoint point2)
{
    ZKMatrix result(2, 2);
    result.setRowVector(ZKVector::vectorWithNSPoint(point1), 0);
    result.setRowVector(ZKVector::vectorWithNSPoint(point2), 1);
    return result;
}

ZKMatrix ZKMatrix::matrixWithColumnPoint1(FloatPoint point1, FloatPoint point2)
{
    ZKMatrix result(2, 2);
    result.setColumnVector(ZKVector::vectorWithNSPoint(point1), 0);
    result.setColumnVector(ZKVector::vectorWithNSPoint(point2), 1);
    return result;
}

std::optional<ZKMatrix> ZKMatrix::matrixWithRowVectors(std::span<const ZKVector> vectors)
{
    return matrixFromRows(vectors);
}

std::optional<ZKMatrix>
ZKMatrix::matrixWithRowVectors(const std::vector<std::optional<ZKVector>> &vectors)
{
    return matrixFromRows(vectors);
}

std::optional<ZKMatrix> ZKMatrix::matrixWithColumnVectors(std::span<const ZKVector> vectors)
{
    return matrixFromColumns(vectors);
}

std::optional<ZKMatrix>
ZKMatrix::matrixWithColumnVectors(const std::vector<std::optional<ZKVector>> &vectors)
{
    return matrixFromColumns(vectors);
}

std::optional<ZKMatrix>
ZKMatrix::matrixWithNumberArray(const std::vector<std::vector<double>> &numbers)
{
    std::vector<std::optional<ZKVector>> rowVectors;
    rowVectors.reserve(numbers.size());
    for (const std::vector<double> &row : numbers)
        rowVectors.push_back(ZKVector::vectorWithNumberArray(row));
    return matrixWithRowVectors(rowVectors);
}

void ZKMatrix::setElementsA11(double a11, double a12, double a13, double a21, double a22,
                              double a23, double a31, double a32, double a33)
{
    if (m_rows != 3 || m_cols != 3)
        return;
    const std::array<double, 9> elements = {a11, a12, a13, a21, a22, a23, a31, a32, a33};
    std::copy(elements.begin(), elements.end(), buffer());
}

void ZKMatrix::getElementsA11(double &a11, double &a12, double &a13, double &a21, double &a22,
                              double &a23, double &a31, double &a32, double &a33) const
{
    if (m_rows != 3 || m_cols != 3)
        return;
    a11 = at(0, 0);
    a12 = at(0, 1);
    a13 = at(0, 2);
    a21 = at(1, 0);
    a22 = at(1, 1);
    a23 = at(1, 2);
    a31 = at(2, 0);
    a32 = at(2, 1);
    a33 = at(2, 2);
}

void ZKMatrix::fillAllElementsWith(double value)
{
    std::fill(m_matrix.begin(), m_matrix.end(), value);
}

void ZKMatrix::copyMatrix(const ZKMatrix &matrix)
{
    const int commonRows = std::min(m_rows, matrix.m_rows);
    const int commonCols = std::min(m_cols, matrix.m_cols);
    for (int i = 0; i < commonRows; ++i) {
        for (int j = 0; j < commonCols; ++j)
            at(i, j) = matrix.at(i, j);
    }
}

std::optional<ZKMatrix> ZKMatrix::subMatrixFromRow(int fromRow, int col, int rows, int cols) const
{
    if (!hasRow(fromRow) || !hasColumn(col))
        return std::nullopt;
    std::optional<ZKMatrix> result =
        matrixWithRows(std::min(rows, m_rows - fromRow), std::min(cols, m_cols - col));
    if (!result)
        return std::nullopt;
    for (int i = 0; i < result->m_rows; ++i) {
        for (int j = 0; j < result->m_cols; ++j)
            result->at(i, j) = at(fromRow + i, col + j);
    }
    return result;
}

void ZKMatrix::setRowVectors(std::span<const ZKVector> vectors)
{
    forEachVector(vectors, m_rows, [this](const ZKVector &row, int i) { setRowVector(row, i); });
}

void ZKMatrix::setRowVectors(const std::vector<std::optional<ZKVector>> &vectors)
{
    forEachVector(vectors, m_rows, [this](const ZKVector &row, int i) { setRowVector(row, i); });
}

void ZKMatrix::setColumnVectors(std::span<const ZKVector> vectors)
{
    forEachVector(vectors, m_cols, [this](const ZKVector &col, int i) { setColumnVector(col, i); });
}

void ZKMatrix::setColumnVectors(const std::vector<std::optional<ZKVector>> &vectors)
{
    forEachVector(vectors, m_cols, [this](const ZKVector &col, int i) { setColumnVector(col, i); });
}

std::optional<ZKVector> ZKMatrix::getRowVectorAt(int row) const
{
    if (!hasRow(row))
        return std::nullopt;
    std::optional<ZKVector> result = ZKVector::vectorWithDimension(m_cols);
    for (int j = 0; result && j < m_cols; ++j)
        result->setComponent(at(row, j), j);
    return result;
}

std::optional<ZKVector> ZKMatrix::getColumnVectorAt(int col) const
{
    if (!hasColumn(col))
        return std::nullopt;
    std::optional<ZKVector> result = ZKVector::vectorWithDimension(m_rows);
    for (int i = 0; result && i < m_rows; ++i)
        result->setComponent(at(i, col), i);
    return result;
}

std::vector<ZKVector> ZKMatrix::getRowVectors() const
{
    std::vector<ZKVector> result;
    for (int i = 0; i < m_rows; ++i) {
        if (auto row = getRowVectorAt(i))
            result.push_back(std::move(*row));
    }
    return result;
}

std::vector<ZKVector> ZKMatrix::getColumnVectors() const
{
    std::vector<ZKVector> result;
    for (int j = 0; j < m_cols; ++j) {
        if (auto column = getColumnVectorAt(j))
            result.push_back(std::move(*column));
    }
    return result;
}

std::vector<std::vector<double>> ZKMatrix::makeNumberArray() const
{
    std::vector<std::vector<double>> result;
    for (const ZKVector &row : getRowVectors())
        result.push_back(row.makeNumberArray());
    return result;
}

std::string ZKMatrix::stringValue() const
{
    std::string text = "[ " + std::to_string(m_rows) + " x " + std::to_string(m_cols) + " ] (\n";
    for (int i = 0; i < m_rows; ++i) {
        for (int j = 0; j < m_cols; ++j) {
            text += generalformat::general(at(i, j));
            if (j + 1 < m_cols)
                text += ", ";
        }
        text += i + 1 < m_rows ? "\n" : " )\n";
    }
    return text;
}

std::string ZKMatrix::makeLogStringWith(std::string_view prefix) const
{
    return std::string(prefix) + stringValue();
}

ZKMatrix ZKMatrix::addMatrix(const ZKMatrix &matrix) const
{
    ZKMatrix result(*this);
    result.addMatrixSelf(matrix);
    return result;
}

ZKMatrix ZKMatrix::subMatrix(const ZKMatrix &matrix) const
{
    ZKMatrix result(*this);
    result.subMatrixSelf(matrix);
    return result;
}

ZKMatrix ZKMatrix::addScalar(double scalar) const
{
    ZKMatrix result(*this);
    result.addScalarSelf(scalar);
    return result;
}

ZKMatrix ZKMatrix::subScalar(double scalar) const
{
    ZKMatrix result(*this);
    result.subScalarSelf(scalar);
    return result;
}

ZKMatrix ZKMatrix::mulScalar(double scalar) const
{
    ZKMatrix result(*this);
    result.mulScalarSelf(scalar);
    return result;
}

ZKMatrix ZKMatrix::divScalar(double scalar) const
{
    ZKMatrix result(*this);
    result.divScalarSelf(scalar);
    return result;
}

ZKMatrix &ZKMatrix::addMatrixSelf(const ZKMatrix &matrix)
{
    if (!hasShapeOf(matrix))
        return *this;
    std::transform(m_matrix.begin(), m_matrix.end(), matrix.m_matrix.begin(), m_matrix.begin(),
                   [](double a, double b) { return a + b; });
    return *this;
}

ZKMatrix &ZKMatrix::subMatrixSelf(const ZKMatrix &matrix)
{
    if (!hasShapeOf(matrix))
        return *this;
    std::transform(m_matrix.begin(), m_matrix.end(), matrix.m_matrix.begin(), m_matrix.begin(),
                   [](double a, double b) { return a - b; });
    return *this;
}

ZKMatrix &ZKMatrix::addScalarSelf(double scalar)
{
    for (double &element : m_matrix)
        element += scalar;
    return *this;
}

ZKMatrix &ZKMatrix::subScalarSelf(double scalar)
{
    for (double &element : m_matrix)
        element -= scalar;
    return *this;
}

ZKMatrix &ZKMatrix::mulScalarSelf(double scalar)
{
    for (double &element : m_matrix)
        element *= scalar;
    return *this;
}

ZKMatrix &ZKMatrix::divScalarSelf(double scalar)
{
    for (double &element : m_matrix)
        element /= scalar;
    return *this;
}

std::optional<ZKMatrix> ZKMatrix::mulMatrix(const ZKMatrix &matrix) const
{
    if (m_cols != matrix.m_rows)
        return std::nullopt;
    std::optional<ZKMatrix> result = matrixWithRows(m_rows, matrix.m_cols);
    if (!result)
        return std::nullopt;
    for (int i = 0; i < result->m_rows; ++i) {
        for (int j = 0; j < result->m_cols; ++j) {
            double sum = 0.0;
            for (int k = 0; k < m_cols; ++k)
                sum += at(i, k) * matrix.at(k, j);
            result->at(i, j) = sum;
        }
    }
    return result;
}

ZKMatrix ZKMatrix::transpose() const
{
    ZKMatrix result(m_cols, m_rows);
    for (int i = 0; i < m_rows; ++i) {
        for (int j = 0; j < m_cols; ++j)
            result.at(j, i) = at(i, j);
    }
    return result;
}

std::optional<ZKMatrix> ZKMatrix::invert() const
{
    const double ownDeterminant = determinant();
    if (ownDeterminant == 0.0)
        return std::nullopt;
    ZKMatrix result(m_rows, m_cols);
    for (int j = 0; j < m_cols; ++j) {
        for (int i = 0; i < m_rows; ++i) {
            ZKMatrix work(*this);
            for (int row = 0; row < m_rows; ++row)
                work.at(row, i) = row == j ? 1.0 : 0.0;
            result.at(i, j) = work.determinant() / ownDeterminant;
        }
    }
    return result;
}

ZKMatrix &ZKMatrix::mulScalarSelf(double scalar, int atRow)
{
    if (!hasRow(atRow))
        return *this;
    for (int j = 0; j < m_cols; ++j)
        at(atRow, j) *= scalar;
    return *this;
}

ZKMatrix &ZKMatrix::divScalarSelf(double scalar, int atRow)
{
    if (!hasRow(atRow))
        return *this;
    for (int j = 0; j < m_cols; ++j)
        at(atRow, j) /= scalar;
    return *this;
}

bool ZKMatrix::addRaw(int raw, double times, int toRow)
{
    if (times == 0.0)
        return true;
    if (!hasRow(raw) || !hasRow(toRow))
        return false;
    for (int j = 0; j < m_cols; ++j)
        at(toRow, j) += times * at(raw, j);
    return true;
}

bool ZKMatrix::exchangeRow(int row1, int row2)
{
    if (!hasRow(row1) || !hasRow(row2))
        return false;
    for (int j = 0; j < m_cols; ++j)
        std::swap(at(row1, j), at(row2, j));
    return true;
}

double ZKMatrix::sum() const
{
    double result = 0.0;
    for (const double element : m_matrix)
        result += element;
    return result;
}

double ZKMatrix::trace() const
{
    double result = 0.0;
    for (int i = 0; i < std::min(m_rows, m_cols); ++i)
        result += at(i, i);
    return result;
}

int ZKMatrix::pivotRowFrom(int row) const
{
    int pivotRow = row;
    while (pivotRow < m_rows && at(pivotRow, row) == 0.0)
        ++pivotRow;
    return pivotRow;
}

double ZKMatrix::determinantByElimination() const
{
    ZKMatrix work(*this);
    double result = 1.0;
    for (int k = 0; k < m_rows; ++k) {
        const int pivotRow = work.pivotRowFrom(k);
        if (pivotRow == m_rows)
            return 0.0;
        if (pivotRow != k) {
            work.exchangeRow(k, pivotRow);
            result = -result;
        }
        const double pivot = work.at(k, k);
        work.divScalarSelf(pivot, k);
        result *= pivot;
        for (int i = k + 1; i < m_rows; ++i)
            work.addRaw(k, -work.at(i, k), i);
    }
    return result;
}

std::optional<ZKVector> ZKMatrix::solveByDeterminants() const
{
    if (m_cols != m_rows + 1)
        return std::nullopt;
    const std::optional<ZKMatrix> system = subMatrixFromRow(0, 0, m_rows, m_rows);
    const std::optional<ZKVector> rightSide = getColumnVectorAt(m_rows);
    std::optional<ZKVector> result = ZKVector::vectorWithDimension(m_rows);
    if (!system || !rightSide || !result)
        return std::nullopt;
    const double systemDeterminant = system->determinant();
    if (systemDeterminant == 0.0)
        return std::nullopt;
    for (int i = 0; i < m_rows; ++i) {
        ZKMatrix work(*system);
        work.setColumnVector(*rightSide, i);
        result->setComponent(work.determinant() / systemDeterminant, i);
    }
    return result;
}

bool ZKMatrix::isZero() const
{
    return std::all_of(m_matrix.begin(), m_matrix.end(),
                       [](double element) { return element == 0.0; });
}

bool ZKMatrix::isZeroWithin(double tolerance) const
{
    return std::all_of(m_matrix.begin(), m_matrix.end(),
                       [tolerance](double element) { return element < tolerance; });
}

bool ZKMatrix::isEqualTo(const ZKMatrix &matrix) const
{
    return hasShapeOf(matrix) &&
           std::equal(m_matrix.begin(), m_matrix.end(), matrix.m_matrix.begin());
}

bool ZKMatrix::isEqualTo(const ZKMatrix &matrix, double within) const
{
    if (!hasShapeOf(matrix))
        return false;
    double scale = (matrix.determinant() + determinant()) * 0.5;
    if (scale == 0.0)
        scale = 1.0;
    const auto differ = [scale, within](double a, double b) {
        return std::fabs((a - b) / scale) > within;
    };
    return std::mismatch(m_matrix.begin(), m_matrix.end(), matrix.m_matrix.begin(),
                         [&differ](double a, double b) { return !differ(a, b); })
               .first == m_matrix.end();
}

void ZKMatrix::encodeWithCoder(SequentialEncoder &coder) const
{
    coder.encodeInt(m_rows);
    coder.encodeInt(m_cols);
    coder.encodeInt(m_matSize);
    for (const double element : m_matrix)
        coder.encodeDouble(element);
}

std::optional<ZKMatrix> ZKMatrix::initWithCoder(SequentialDecoder &coder)
{
    const std::int32_t rows = coder.decodeInt();
    const std::int32_t cols = coder.decodeInt();
    const std::int32_t matSize = coder.decodeInt();
    const bool isShape = rows > 0 && cols > 0 && std::int64_t{rows} * cols == matSize;
    if (coder.failed() || !isShape || static_cast<std::size_t>(matSize) > coder.remaining()) {
        coder.fail();
        return std::nullopt;
    }
    ZKMatrix result(rows, cols);
    for (double &element : result.m_matrix)
        element = coder.decodeDouble();
    if (coder.failed())
        return std::nullopt;
    return result;
}
