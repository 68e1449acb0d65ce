#include "geometry/ZKLineSegment.h"

#include "geometry/ZKPoint.h"

#include <utility>

namespace {

using CrossPoint = std::optional<ZKVector>;

/// Where a line meets the edges of a rectangle.
struct EdgeCrossings
{
    CrossPoint left;
    CrossPoint right;
    CrossPoint bottom;
    CrossPoint top;
};

CrossPoint crossingOfEdge(FloatPoint from, FloatPoint to, const ZKLine &line)
{
    const auto edge = ZKLineSegment::lineWithNSPointA(from, to);
    return edge ? edge->crossPointWith(line) : std::nullopt;
}

EdgeCrossings crossingsOf(const ZKLine &line, FloatRect rect)
{
    const float leftX = rect.origin.x;
    const float bottomY = rect.origin.y;
    const float rightX = rect.origin.x + rect.size.width;
    const float topY = rect.origin.y + rect.size.height;
    return {crossingOfEdge({leftX, bottomY}, {leftX, topY}, line),
            crossingOfEdge({rightX, bottomY}, {rightX, topY}, line),
            crossingOfEdge({leftX, bottomY}, {rightX, bottomY}, line),
            crossingOfEdge({leftX, topY}, {rightX, topY}, line)};
}

/// The two ends in their fixed order of preference. A line through a corner meets two edges in one
/// point and may get it as both ends.
std::pair<CrossPoint, CrossPoint> endsFrom(const EdgeCrossings &edges)
{
    if (edges.left) {
        const CrossPoint &beside = edges.bottom ? edges.bottom : edges.top;
        return {edges.left, edges.right ? edges.right : beside};
    }
    if (edges.right)
        return {edges.right, edges.bottom ? edges.bottom : edges.top};
    return {edges.bottom, edges.top};
}

} // namespace

std::optional<ZKLineSegment> ZKLineSegment::lineWithOrigin(const ZKVector &origin,
                                                           const ZKVector &direction)
{
    if (!isLine(origin, direction))
        return std::nullopt;
    return ZKLineSegment(origin, direction);
}

std::optional<ZKLineSegment> ZKLineSegment::lineWithPointA(const ZKVector &a, const ZKVector &b)
{
    std::optional<ZKLineSegment> result = lineWithOrigin(a, b.subVector(a));
    if (result)
        result->setEndPoint1(a, b);
    return result;
}

std::optional<ZKLineSegment> ZKLineSegment::lineWithNSPointA(FloatPoint a, FloatPoint b)
{
    return lineWithPointA(ZKVector::vectorWithNSPoint(a), ZKVector::vectorWithNSPoint(b));
}

std::optional<ZKLineSegment> ZKLineSegment::lineWithNSPointA(FloatPoint a, FloatPoint b,
                                                             FloatRect trimmedBy)
{
    std::optional<ZKLineSegment> result = lineWithNSPointA(a, b);
    const std::optional<ZKLine> line = ZKLine::lineWithNSPointA(a, b);
    if (!result || !line)
        return std::nullopt;
    const auto [end1, end2] = endsFrom(crossingsOf(*line, trimmedBy));
    if (!end1 || !end2)
        return std::nullopt;
    result->setEndPoint1(*end1, *end2);
    return result;
}

std::optional<ZKLineSegment> ZKLineSegment::lineWithNSPoint(FloatPoint point, FloatPoint direction,
                                                            FloatRect trimmedBy)
{
    return lineWithNSPointA(point, ZKPoint::addPoint(point, direction), trimmedBy);
}

void ZKLineSegment::setEndPoint1(const ZKVector &endPoint1, const ZKVector &endPoint2)
{
    for (int i = 0; i < dimension(); ++i) {
        const double first = endPoint1.componentAt(i);
        const double second = endPoint2.componentAt(i);
        const bool isRising = second > first;
        m_minValues[static_cast<std::size_t>(i)] = isRising ? first : second;
        m_maxValues[static_cast<std::size_t>(i)] = isRising ? second : first;
    }
    m_endPoint1 = endPoint1;
    m_endPoint2 = endPoint2;
}

FloatPoint ZKLineSegment::getEndNSPoint1() const
{
    return m_endPoint1 ? m_endPoint1->vectorToNSPoint() : FloatPoint{};
}

FloatPoint ZKLineSegment::getEndNSPoint2() const
{
    return m_endPoint2 ? m_endPoint2->vectorToNSPoint() : FloatPoint{};
}

bool ZKLineSegment::includesPoint(const ZKVector &point) const
{
    if (point.dimension() != dimension() || !m_endPoint1 || !m_endPoint2)
        return false;
    for (int i = 0; i < dimension(); ++i) {
        const auto index = static_cast<std::size_t>(i);
        const double component = point.componentAt(i);
        const bool isInside = component >= m_minValues[index] && component <= m_maxValues[index];
        if (!isInside)
            return false;
    }
    return true;
}

std::optional<ZKVector> ZKLineSegment::crossPointWith(const ZKLine &line) const
{
    std::optional<ZKVector> crossing = ZKLine::crossPointWith(line);
    if (!crossing || !includesPoint(*crossing))
        return std::nullopt;
    return crossing;
}
