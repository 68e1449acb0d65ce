#include "geometry/ZKVector.h"

#include "archiving/SequentialCoder.h"
#include "geometry/GeneralFormat.h"
#include "geometry/ZKPlane.h"
#include "geometry/ZKPoint.h"

#include <new>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kAxisTolerance = 1e-5;

/// Whether `b`, brought to the length of `a`, is `a` by the given comparison; turned round as well
/// if that is allowed.
template <class Equal>
bool areParallel(const ZKVector &a, const ZKVector &b, bool allowAntipara, Equal areEqual)
{
    if (a.dimension() != b.dimension())
        return false;
    const double ownLength = a.length();
    const double otherLength = b.length();
    if (ownLength == 0.0)
        return otherLength == 0.0;
    if (otherLength == 0.0)
        return false;
    ZKVector scaled = b.mulScalar(ownLength / otherLength);
    if (areEqual(a, scaled))
        return true;
    return allowAntipara && areEqual(a, scaled.mulScalarSelf(-1.0));
}

template <class Equal>
bool areAntiParallel(const ZKVector &a, const ZKVector &b, Equal areEqual)
{
    const double ownLength = a.length();
    const double otherLength = b.length();
    if (ownLength == 0.0 || otherLength == 0.0 || a.dimension() != b.dimension())
        return false;
    return areEqual(a, b.mulScalar(-ownLength / otherLength));
}

/// The comparisons of the two templates above.
bool areExactlyEqual(const ZKVector &a, const ZKVector &b) { return a.isEqualTo(b); }

auto equalWithin(double tolerance)
{
    return [tolerance](const ZKVector &a, const ZKVector &b) { return a.isEqualTo(b, tolerance); };
}

} // namespace

std::optional<ZKVector> ZKVector::vectorOnHeap(std::size_t dimension)
{
    try {
        return ZKVector(dimension);
    } catch (const std::bad_alloc &) {
        return std::nullopt;
    }
}

ZKVector ZKVector::vectorWithZKPoint(const ZKPoint &point)
{
    return vectorWithNSPoint(point.point());
}

std::optional<ZKVector> ZKVector::vectorWithNumberArray(const std::vector<double> &numbers)
{
    if (numbers.empty())
        return std::nullopt;
    ZKVector result(numbers.size());
    std::copy(numbers.begin(), numbers.end(), result.buffer());
    return result;
}

void ZKVector::setX(double x, double y)
{
    setComponent(x, 0);
    setComponent(y, 1);
}

void ZKVector::setX(double x, double y, double z)
{
    setX(x, y);
    setComponent(z, 2);
}

void ZKVector::copyVector(const ZKVector &vector)
{
    const std::size_t count = commonDimension(vector);
    for (std::size_t i = 0; i < count; ++i)
        m_components[i] = vector.m_components[i];
}

std::optional<ZKPoint> ZKVector::vectorToZKPoint() const
{
    if (dimension() < 2)
        return std::nullopt;
    return ZKPoint::pointWithNSPoint(vectorToNSPoint());
}

std::vector<double> ZKVector::makeNumberArray() const
{
    return {m_components.begin(), m_components.end()};
}

std::string ZKVector::stringValue() const
{
    std::string text = "[" + std::to_string(dimension()) + "]( ";
    for (int i = 0; i < dimension(); ++i) {
        text += generalformat::general(componentAt(i));
        text += i + 1 < dimension() ? ", " : " )";
    }
    return text;
}

std::string ZKVector::makeLogStringWith(std::string_view prefix) const
{
    return std::string(prefix) + stringValue();
}

ComparisonResult ZKVector::compare(const ZKVector &vector) const
{
    const std::size_t count = commonDimension(vector);
    for (std::size_t i = 0; i < count; ++i) {
        if (vector.m_components[i] > m_components[i])
            return ComparisonResult::Ascending;
        if (m_components[i] > vector.m_components[i])
            return ComparisonResult::Descending;
    }
    return ComparisonResult::Same;
}

std::optional<ZKVector> ZKVector::mulVector(const ZKVector &vector) const
{
    if (dimension() != vector.dimension())
        return std::nullopt;
    if (dimension() == 2)
        return vectorWithX(0.0, 0.0, X() * vector.Y() - Y() * vector.X());
    if (dimension() == 3) {
        return vectorWithX(Y() * vector.Z() - Z() * vector.Y(), Z() * vector.X() - X() * vector.Z(),
                           X() * vector.Y() - Y() * vector.X());
    }
    return std::nullopt;
}

ZKVector &ZKVector::mulVectorSelf(const ZKVector &vector)
{
    const std::optional<ZKVector> cross = mulVector(vector);
    if (cross && dimension() == 3)
        copyVector(*cross);
    return *this;
}

double ZKVector::angle(const ZKVector &vector) const
{
    const double ownLength = length();
    const double otherLength = vector.length();
    if (ownLength == 0.0 || otherLength == 0.0 || dimension() != vector.dimension())
        return 0.0;
    const double x = product(vector) / ownLength / otherLength;
    double result = 0.0;
    if (x >= 1.0)
        result = 0.0;
    else if (x <= -1.0)
        result = kPi;
    else
        result = std::acos(x);
    if (dimension() == 2 && result != 0.0 && mulVector2(vector) < 0.0)
        result = -result;
    return result;
}

double ZKVector::angleDeg(const ZKVector &vector) const { return angle(vector) / kPi * 180; }

double ZKVector::angle(const ZKVector &vector, const ZKVector &axis) const
{
    const double result = angle(vector);
    if (result == 0.0)
        return result;
    const std::optional<ZKVector> cross = mulVector(vector);
    const bool alongAxis = cross && cross->isParallelTo(axis, false, kAxisTolerance);
    return alongAxis ? result : -result;
}

ZKVector ZKVector::stretchTo(double newLength) const
{
    return mulScalar(std::fabs(newLength / length()));
}

ZKVector ZKVector::stretchBy(double difference) const
{
    const double ownLength = length();
    return mulScalar(std::fabs((ownLength + difference) / ownLength));
}

std::optional<ZKVector> ZKVector::rotateCCW(double angle) const
{
    if (dimension() != 2)
        return std::nullopt;
    const double s = std::sin(angle);
    const double k = std::cos(angle);
    return vectorWithX(X() * k - Y() * s, X() * s + Y() * k);
}

std::optional<ZKVector> ZKVector::rotateCW(double angle) const { return rotateCCW(-angle); }

std::optional<ZKVector> ZKVector::rotateDegCCW(double degrees) const
{
    return rotateCCW(kPi * degrees / 180);
}

std::optional<ZKVector> ZKVector::rotateDegCW(double degrees) const
{
    return rotateCCW(-kPi * degrees / 180);
}

std::optional<ZKVector> ZKVector::rotate(double angle, const std::optional<ZKVector> &axis) const
{
    if (dimension() == 2 && !axis)
        return rotateCCW(angle);
    if (!axis || axis->dimension() != dimension() || axis->isZero())
        return std::nullopt;

    const auto plane = ZKPlane::planeWithOrigin(ZKVector(m_components.size()), *axis);
    std::optional<ZKVector> inPlane = plane ? plane->footOfPerpFrom(*this) : std::nullopt;
    std::optional<ZKVector> across = inPlane ? axis->mulVector(*inPlane) : std::nullopt;
    if (!across)
        return std::nullopt;
    ZKVector result = subVector(*inPlane);
    const double radius = inPlane->length();
    inPlane->normalizeSelf();
    across->normalizeSelf();
    result.addVectorSelf(inPlane->mulScalar(radius * std::cos(angle)));
    result.addVectorSelf(across->mulScalar(radius * std::sin(angle)));
    return result;
}

std::optional<ZKVector> ZKVector::rotateDeg(double degrees,
                                            const std::optional<ZKVector> &axis) const
{
    return rotate(degrees * kPi / 180, axis);
}

double ZKVector::scaledTolerance(const ZKVector &vector, double tolerance) const
{
    const double scaled = (length() + vector.length()) * 0.5 * tolerance;
    return scaled > 0.0 ? scaled : tolerance;
}

bool ZKVector::isZeroWithin(double tolerance) const
{
    return std::all_of(m_components.begin(), m_components.end(),
                       [tolerance](double component) { return std::fabs(component) < tolerance; });
}

bool ZKVector::isEqualTo(const ZKVector &vector) const
{
    return std::equal(m_components.begin(), m_components.end(), vector.m_components.begin(),
                      vector.m_components.end());
}

bool ZKVector::isEqualTo(const ZKVector &vector, double within) const
{
    const double threshold = scaledTolerance(vector, within);
    return std::equal(m_components.begin(), m_components.end(), vector.m_components.begin(),
                      vector.m_components.end(),
                      [threshold](double a, double b) { return std::fabs(a - b) < threshold; });
}

bool ZKVector::isParallelTo(const ZKVector &vector, bool allowAntipara) const
{
    return areParallel(*this, vector, allowAntipara, areExactlyEqual);
}

bool ZKVector::isParallelTo(const ZKVector &vector, bool allowAntipara, double within) const
{
    return areParallel(*this, vector, allowAntipara, equalWithin(within));
}

bool ZKVector::isAntiParallelTo(const ZKVector &vector) const
{
    return areAntiParallel(*this, vector, areExactlyEqual);
}

bool ZKVector::isAntiParallelTo(const ZKVector &vector, double within) const
{
    return areAntiParallel(*this, vector, equalWithin(within));
}

bool ZKVector::isPerpendicularTo(const ZKVector &vector) const
{
    return dimension() == vector.dimension() && product(vector) == 0.0;
}

bool ZKVector::isPerpendicularTo(const ZKVector &vector, double within) const
{
    return dimension() == vector.dimension() &&
           std::fabs(product(vector)) < scaledTolerance(vector, within);
}

void ZKVector::encodeWithCoder(SequentialEncoder &coder) const
{
    coder.encodeInt(dimension());
    for (const double component : m_components)
        coder.encodeDouble(component);
}

std::optional<ZKVector> ZKVector::initWithCoder(SequentialDecoder &coder)
{
    const std::int32_t dimension = coder.decodeInt();
    if (coder.failed() || dimension <= 0 ||
        static_cast<std::size_t>(dimension) > coder.remaining()) {
        coder.fail();
        return std::nullopt;
    }
    ZKVector result(static_cast<std::size_t>(dimension));
    for (double &component : result.m_components)
        component = coder.decodeDouble();
    if (coder.failed())
        return std::nullopt;
    return result;
}
