#include "geometry/ZKPoint.h"

#include "archiving/SequentialCoder.h"
#include "geometry/GeneralFormat.h"
#include "geometry/ZKVector.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

/// A double result stored into a coordinate.
float narrowed(double value) { return static_cast<float>(value); }

} // namespace

ZKPoint ZKPoint::pointWithVector(const ZKVector &vector)
{
    return pointWithX(narrowed(vector.X()), narrowed(vector.Y()));
}

float ZKPoint::length() const { return std::sqrt(m_point.x * m_point.x + m_point.y * m_point.y); }

float ZKPoint::distanceFrom(const ZKPoint &point) const { return subPoint(point).length(); }

ZKPoint &ZKPoint::addScalarSelf(double scalar)
{
    m_point = {narrowed(double{m_point.x} + scalar), narrowed(double{m_point.y} + scalar)};
    return *this;
}

ZKPoint &ZKPoint::subScalarSelf(double scalar)
{
    m_point = {narrowed(double{m_point.x} - scalar), narrowed(double{m_point.y} - scalar)};
    return *this;
}

ZKPoint &ZKPoint::mulScalarSelf(double scalar)
{
    m_point = {narrowed(double{m_point.x} * scalar), narrowed(double{m_point.y} * scalar)};
    return *this;
}

ZKPoint &ZKPoint::divScalarSelf(double scalar)
{
    m_point = {narrowed(double{m_point.x} / scalar), narrowed(double{m_point.y} / scalar)};
    return *this;
}

ZKPoint ZKPoint::addPoint(const ZKPoint &point) const
{
    return ZKPoint(addPoint(m_point, point.m_point));
}

ZKPoint ZKPoint::subPoint(const ZKPoint &point) const
{
    return ZKPoint(subPoint(point.m_point, m_point));
}

ZKPoint &ZKPoint::addPointSelf(const ZKPoint &point)
{
    m_point = addPoint(m_point, point.m_point);
    return *this;
}

ZKPoint &ZKPoint::subPointSelf(const ZKPoint &point)
{
    m_point = subPoint(point.m_point, m_point);
    return *this;
}

float ZKPoint::mulPoint(const ZKPoint &point) const
{
    return m_point.x * point.m_point.y - m_point.y * point.m_point.x;
}

float ZKPoint::product(const ZKPoint &point) const
{
    return m_point.x * point.m_point.x + m_point.y * point.m_point.y;
}

ZKPoint &ZKPoint::normalizeSelf()
{
    const float ownLength = length();
    if (ownLength != 0.0F)
        m_point = dividePoint(m_point, ownLength);
    return *this;
}

float ZKPoint::angle(const ZKPoint &point) const
{
    const float result = std::acos(product(point) / length() / point.length());
    return mulPoint(point) < 0.0F ? -result : result;
}

float ZKPoint::angleDeg(const ZKPoint &point) const
{
    return narrowed(double{angle(point)} / std::numbers::pi * 180);
}

bool ZKPoint::isParallelTo(const ZKPoint &point, bool allowAntipara) const
{
    if (mulPoint(point) != 0.0F)
        return false;
    if (allowAntipara)
        return true;
    const float xProduct = m_point.x * point.m_point.x;
    if (xProduct > 0.0F)
        return true;
    if (xProduct < 0.0F)
        return false;
    return m_point.y * point.m_point.y >= 0.0F;
}

bool ZKPoint::isPerpendicularTo(const ZKPoint &point) const { return product(point) == 0.0F; }

ZKPoint ZKPoint::lowerLeft(const ZKPoint &point) const
{
    return pointWithX(std::min(m_point.x, point.m_point.x), std::min(m_point.y, point.m_point.y));
}

ZKPoint &ZKPoint::lowerLeftSelf(const ZKPoint &point)
{
    *this = lowerLeft(point);
    return *this;
}

ZKPoint ZKPoint::upperRight(const ZKPoint &point) const
{
    return pointWithX(std::max(m_point.x, point.m_point.x), std::max(m_point.y, point.m_point.y));
}

ZKPoint &ZKPoint::upperRightSelf(const ZKPoint &point)
{
    *this = upperRight(point);
    return *this;
}

bool ZKPoint::isBetween(const ZKPoint &a, const ZKPoint &b, float within) const
{
    const ZKPoint lowest = a.lowerLeft(b);
    const ZKPoint highest = a.upperRight(b);
    if (X() < lowest.X() - within || X() > highest.X() + within || Y() < lowest.Y() - within ||
        Y() > highest.Y() + within)
        return false;
    const float dx = b.X() - a.X();
    const float dy = b.Y() - a.Y();
    if (dx == 0.0F && dy == 0.0F)
        return true;
    const float distance = std::fabs(dx) >= std::fabs(dy) ? (dy / dx) * (X() - a.X()) + a.Y() - Y()
                                                          : (dx / dy) * (Y() - a.Y()) + a.X() - X();
    return std::fabs(distance) <= within;
}

std::string ZKPoint::makeLogStringWith(std::string_view prefix) const
{
    return std::string(prefix) + "( " + generalformat::general(double{m_point.x}) + ", " +
           generalformat::general(double{m_point.y}) + " )";
}

void ZKPoint::encodeWithCoder(SequentialEncoder &coder) const
{
    coder.encodePoint({m_point.x, m_point.y});
}

std::optional<ZKPoint> ZKPoint::initWithCoder(SequentialDecoder &coder)
{
    const ArchivedPoint point = coder.decodePoint();
    if (coder.failed())
        return std::nullopt;
    return pointWithX(point.x, point.y);
}
