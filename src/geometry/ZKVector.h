#pragma once

#include "geometry/ComparisonResult.h"
#include "geometry/FloatGeometry.h"
#include "geometry/InlineDoubles.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class SequentialDecoder;
class SequentialEncoder;
class ZKPoint;

/// A vector of doubles of any dimension from 1 upwards, in practice 2 (picture or graph plane)
/// and 3. Operations whose name ends in `Self` change the receiver and return it; all others leave
/// it alone. Nothing raises an error: bad input gives nothing, 0.0, false or no change.
///
/// The `within` tests turn the caller's tolerance t into T, the mean length of the two vectors
/// times t; only when T is not above zero it is t itself. A difference passes strictly below T.
class ZKVector
{
public:
    static constexpr std::string_view kClassName = "ZKVector";

    /// A zero vector; nothing for a dimension below 1, or without memory for it.
    [[nodiscard]] static std::optional<ZKVector> vectorWithDimension(int dimension);
    /// `vectorWithX:andY:`
    [[nodiscard]] static ZKVector vectorWithX(double x, double y);
    /// `vectorWithX:andY:andZ:`
    [[nodiscard]] static ZKVector vectorWithX(double x, double y, double z);
    [[nodiscard]] static ZKVector vectorWithVector(const ZKVector &vector) { return vector; }
    [[nodiscard]] static ZKVector vectorWithZKPoint(const ZKPoint &point);
    [[nodiscard]] static ZKVector vectorWithNSPoint(FloatPoint point);
    [[nodiscard]] static ZKVector vectorWithNSSize(FloatSize size);
    /// Nothing for an empty array.
    [[nodiscard]] static std::optional<ZKVector>
    vectorWithNumberArray(const std::vector<double> &numbers);

    [[nodiscard]] int dimension() const { return static_cast<int>(m_components.size()); }
    [[nodiscard]] double *buffer() { return m_components.data(); }
    [[nodiscard]] const double *buffer() const { return m_components.data(); }

    /// 0.0 for an index outside the vector.
    [[nodiscard]] double componentAt(int index) const;
    [[nodiscard]] double X() const { return m_components[0]; }
    /// 0.0 when the dimension is below 2.
    [[nodiscard]] double Y() const { return m_components.size() > 1 ? m_components[1] : 0.0; }
    /// 0.0 when the dimension is below 3.
    [[nodiscard]] double Z() const { return m_components.size() > 2 ? m_components[2] : 0.0; }

    /// `setComponent:at:` ignores an index outside the vector.
    void setComponent(double component, int at);
    /// `setX:andY:` sets as many of the two as the vector has.
    void setX(double x, double y);
    /// `setX:andY:andZ:` sets as many of the three as the vector has.
    void setX(double x, double y, double z);
    void clearAllComponents() { fillAllComponentsWith(0.0); }
    void fillAllComponentsWith(double value);
    /// Copies the components that both vectors have; the rest stay, as does the dimension.
    void copyVector(const ZKVector &vector);

    /// (X, Y) narrowed to float; (0, 0) when the dimension is below 2.
    [[nodiscard]] FloatPoint vectorToNSPoint() const;
    [[nodiscard]] FloatSize vectorToNSSize() const;
    /// Nothing when the dimension is below 2.
    [[nodiscard]] std::optional<ZKPoint> vectorToZKPoint() const;
    [[nodiscard]] std::vector<double> makeNumberArray() const;
    /// For example "[2]( 1.5, 2 )".
    [[nodiscard]] std::string stringValue() const;
    [[nodiscard]] std::string makeLogStringWith(std::string_view prefix) const;

    /// Decided by the first of the common components that differs; the dimensions take no part.
    [[nodiscard]] ComparisonResult compare(const ZKVector &vector) const;

    [[nodiscard]] ZKVector addVector(const ZKVector &vector) const;
    [[nodiscard]] ZKVector subVector(const ZKVector &vector) const;
    [[nodiscard]] ZKVector addScalar(double scalar) const;
    [[nodiscard]] ZKVector subScalar(double scalar) const;
    [[nodiscard]] ZKVector mulScalar(double scalar) const;
    [[nodiscard]] ZKVector divScalar(double scalar) const;
    [[nodiscard]] ZKVector normalize() const;

    ZKVector &addVectorSelf(const ZKVector &vector);
    ZKVector &subVectorSelf(const ZKVector &vector);
    ZKVector &addScalarSelf(double scalar);
    ZKVector &subScalarSelf(double scalar);
    ZKVector &mulScalarSelf(double scalar);
    /// Leaves the vector as it is when the scalar is exactly 0.0.
    ZKVector &divScalarSelf(double scalar);
    /// A zero vector stays zero.
    ZKVector &normalizeSelf();

    /// The cross product, always 3-D; nothing unless both are 2-D or both are 3-D.
    [[nodiscard]] std::optional<ZKVector> mulVector(const ZKVector &vector) const;
    /// Takes the cross product over only when that exists and the receiver is 3-D.
    ZKVector &mulVectorSelf(const ZKVector &vector);
    /// The 2-D cross product, 0.0 unless both are 2-D.
    [[nodiscard]] double mulVector2(const ZKVector &vector) const;
    /// The dot product of the common components.
    [[nodiscard]] double product(const ZKVector &vector) const;
    [[nodiscard]] double selfProduct() const;
    [[nodiscard]] double length() const { return std::sqrt(selfProduct()); }

    /// Radians from the receiver to `vector`, through the arc cosine: in 2-D positive
    /// counter-clockwise, -pi ... pi; otherwise unsigned. 0.0 for a zero vector or unequal
    /// dimensions.
    [[nodiscard]] double angle(const ZKVector &vector) const;
    [[nodiscard]] double angleDeg(const ZKVector &vector) const;
    /// `angle:withAxis:` is the angle (signed already in 2-D), negated unless the cross product
    /// points along `axis`.
    [[nodiscard]] double angle(const ZKVector &vector, const ZKVector &axis) const;

    /// Keeps the direction even for a negative length.
    [[nodiscard]] ZKVector stretchTo(double newLength) const;
    [[nodiscard]] ZKVector stretchBy(double difference) const;

    /// Radians; nothing unless the vector is 2-D.
    [[nodiscard]] std::optional<ZKVector> rotateCCW(double angle) const;
    [[nodiscard]] std::optional<ZKVector> rotateCW(double angle) const;
    [[nodiscard]] std::optional<ZKVector> rotateDegCCW(double degrees) const;
    [[nodiscard]] std::optional<ZKVector> rotateDegCW(double degrees) const;
    /// `rotate:withAxis:` turns by radians about an axis of the same dimension; a 2-D vector needs
    /// none. Nothing for a zero or unsuitable axis and for dimensions that have no cross product.
    [[nodiscard]] std::optional<ZKVector> rotate(double angle,
                                                 const std::optional<ZKVector> &axis) const;
    /// `rotateDeg:withAxis:`
    [[nodiscard]] std::optional<ZKVector> rotateDeg(double degrees,
                                                    const std::optional<ZKVector> &axis) const;

    [[nodiscard]] bool isZero() const;
    [[nodiscard]] bool isZeroWithin(double tolerance) const;
    [[nodiscard]] bool isEqualTo(const ZKVector &vector) const;
    /// `isEqualTo:within:`
    [[nodiscard]] bool isEqualTo(const ZKVector &vector, double within) const;
    /// `isParallelTo:allowAntipara:` Two zero vectors are parallel.
    [[nodiscard]] bool isParallelTo(const ZKVector &vector, bool allowAntipara) const;
    /// `isParallelTo:allowAntipara:within:`
    [[nodiscard]] bool isParallelTo(const ZKVector &vector, bool allowAntipara,
                                    double within) const;
    /// Zero vectors are never antiparallel.
    [[nodiscard]] bool isAntiParallelTo(const ZKVector &vector) const;
    /// `isAntiParallelTo:within:`
    [[nodiscard]] bool isAntiParallelTo(const ZKVector &vector, double within) const;
    [[nodiscard]] bool isPerpendicularTo(const ZKVector &vector) const;
    /// `isPerpendicularTo:within:`
    [[nodiscard]] bool isPerpendicularTo(const ZKVector &vector, double within) const;

    /// Writes the dimension ("i"), then each component ("d").
    void encodeWithCoder(SequentialEncoder &coder) const;
    /// Nothing, and a failed coder, when what it holds is no vector.
    [[nodiscard]] static std::optional<ZKVector> initWithCoder(SequentialDecoder &coder);

    friend bool operator==(const ZKVector &a, const ZKVector &b) { return a.isEqualTo(b); }

private:
    static constexpr std::size_t kInPlace = 4;

    explicit ZKVector(std::size_t dimension)
        : m_components(dimension)
    {}

    [[nodiscard]] static std::optional<ZKVector> vectorOnHeap(std::size_t dimension);
    [[nodiscard]] std::size_t commonDimension(const ZKVector &vector) const
    {
        return std::min(m_components.size(), vector.m_components.size());
    }
    /// A new vector of `operation` applied to each component. Two dimensions, the daily work, go
    /// without a copy and a loop.
    template <class Operation>
    [[nodiscard]] ZKVector mapped(Operation operation) const;
    /// As above, with the components of both vectors; what the other lacks stays as it is.
    template <class Operation>
    [[nodiscard]] ZKVector combined(const ZKVector &vector, Operation operation) const;
    [[nodiscard]] double scaledTolerance(const ZKVector &vector, double tolerance) const;

    InlineDoubles<kInPlace> m_components;
};

inline std::optional<ZKVector> ZKVector::vectorWithDimension(int dimension)
{
    if (dimension <= 0)
        return std::nullopt;
    const auto count = static_cast<std::size_t>(dimension);
    if (count > kInPlace)
        return vectorOnHeap(count);
    return ZKVector(count);
}

inline ZKVector ZKVector::vectorWithX(double x, double y)
{
    ZKVector result(2);
    double *components = result.buffer();
    components[0] = x;
    components[1] = y;
    return result;
}

inline ZKVector ZKVector::vectorWithX(double x, double y, double z)
{
    ZKVector result(3);
    double *components = result.buffer();
    components[0] = x;
    components[1] = y;
    components[2] = z;
    return result;
}

inline ZKVector ZKVector::vectorWithNSPoint(FloatPoint point)
{
    return vectorWithX(static_cast<double>(point.x), static_cast<double>(point.y));
}

inline ZKVector ZKVector::vectorWithNSSize(FloatSize size)
{
    return vectorWithX(static_cast<double>(size.width), static_cast<double>(size.height));
}

inline double ZKVector::componentAt(int index) const
{
    if (index < 0 || index >= dimension())
        return 0.0;
    return m_components[static_cast<std::size_t>(index)];
}

inline void ZKVector::setComponent(double component, int at)
{
    if (at >= 0 && at < dimension())
        m_components[static_cast<std::size_t>(at)] = component;
}

inline void ZKVector::fillAllComponentsWith(double value)
{
    for (double &component : m_components)
        component = value;
}

inline FloatPoint ZKVector::vectorToNSPoint() const
{
    if (dimension() < 2)
        return {};
    return {static_cast<float>(X()), static_cast<float>(Y())};
}

inline FloatSize ZKVector::vectorToNSSize() const
{
    const FloatPoint point = vectorToNSPoint();
    return {point.x, point.y};
}

inline ZKVector &ZKVector::addVectorSelf(const ZKVector &vector)
{
    double *a = buffer();
    const double *b = vector.buffer();
    const std::size_t count = commonDimension(vector);
    for (std::size_t i = 0; i < count; ++i)
        a[i] += b[i];
    return *this;
}

inline ZKVector &ZKVector::subVectorSelf(const ZKVector &vector)
{
    double *a = buffer();
    const double *b = vector.buffer();
    const std::size_t count = commonDimension(vector);
    for (std::size_t i = 0; i < count; ++i)
        a[i] -= b[i];
    return *this;
}

inline ZKVector &ZKVector::addScalarSelf(double scalar)
{
    for (double &component : m_components)
        component += scalar;
    return *this;
}

inline ZKVector &ZKVector::subScalarSelf(double scalar)
{
    for (double &component : m_components)
        component -= scalar;
    return *this;
}

inline ZKVector &ZKVector::mulScalarSelf(double scalar)
{
    for (double &component : m_components)
        component *= scalar;
    return *this;
}

inline ZKVector &ZKVector::divScalarSelf(double scalar)
{
    if (scalar == 0.0)
        return *this;
    for (double &component : m_components)
        component /= scalar;
    return *this;
}

inline ZKVector &ZKVector::normalizeSelf()
{
    const double ownLength = length();
    if (ownLength > 0.0)
        divScalarSelf(ownLength);
    return *this;
}

template <class Operation>
ZKVector ZKVector::mapped(Operation operation) const
{
    if (dimension() == 2)
        return vectorWithX(operation(m_components[0]), operation(m_components[1]));
    ZKVector result(*this);
    for (double &component : result.m_components)
        component = operation(component);
    return result;
}

template <class Operation>
ZKVector ZKVector::combined(const ZKVector &vector, Operation operation) const
{
    if (dimension() == 2 && vector.dimension() == 2) {
        return vectorWithX(operation(m_components[0], vector.m_components[0]),
                           operation(m_components[1], vector.m_components[1]));
    }
    ZKVector result(*this);
    const std::size_t count = commonDimension(vector);
    for (std::size_t i = 0; i < count; ++i)
        result.m_components[i] = operation(m_components[i], vector.m_components[i]);
    return result;
}

inline ZKVector ZKVector::addVector(const ZKVector &vector) const
{
    return combined(vector, [](double a, double b) { return a + b; });
}

inline ZKVector ZKVector::subVector(const ZKVector &vector) const
{
    return combined(vector, [](double a, double b) { return a - b; });
}

inline ZKVector ZKVector::addScalar(double scalar) const
{
    return mapped([scalar](double a) { return a + scalar; });
}

inline ZKVector ZKVector::subScalar(double scalar) const
{
    return mapped([scalar](double a) { return a - scalar; });
}

inline ZKVector ZKVector::mulScalar(double scalar) const
{
    return mapped([scalar](double a) { return a * scalar; });
}

inline ZKVector ZKVector::divScalar(double scalar) const
{
    if (scalar == 0.0)
        return *this;
    return mapped([scalar](double a) { return a / scalar; });
}

inline ZKVector ZKVector::normalize() const
{
    const double ownLength = length();
    return ownLength > 0.0 ? divScalar(ownLength) : *this;
}

inline double ZKVector::mulVector2(const ZKVector &vector) const
{
    if (dimension() != 2 || vector.dimension() != 2)
        return 0.0;
    return X() * vector.Y() - Y() * vector.X();
}

inline double ZKVector::product(const ZKVector &vector) const
{
    const std::size_t count = commonDimension(vector);
    const double *a = buffer();
    const double *b = vector.buffer();
    double sum = 0.0;
    for (std::size_t i = 0; i < count; ++i)
        sum += a[i] * b[i];
    return sum;
}

inline double ZKVector::selfProduct() const
{
    double sum = 0.0;
    for (const double component : m_components)
        sum += component * component;
    return sum;
}

inline bool ZKVector::isZero() const
{
    for (const double component : m_components) {
        if (component != 0.0)
            return false;
    }
    return true;
}
