#include "geometry/ZKPlane.h"

#include "archiving/SequentialCoder.h"

std::optional<ZKPlane> ZKPlane::planeWithOrigin(const ZKVector &origin, const ZKVector &normalTo)
{
    if (origin.dimension() != normalTo.dimension() || origin.dimension() < 2 || normalTo.isZero())
        return std::nullopt;
    return ZKPlane(origin, normalTo);
}

std::optional<ZKPlane> ZKPlane::planeWithPointA(const ZKVector &a, const ZKVector &b,
                                                const ZKVector &c)
{
    if (a.dimension() != 3 || b.dimension() != 3 || c.dimension() != 3)
        return std::nullopt;
    const std::optional<ZKVector> normal = b.subVector(a).mulVector(c.subVector(a));
    return normal ? planeWithOrigin(a, *normal) : std::nullopt;
}

void ZKPlane::setOrigin(const ZKVector &origin, const ZKVector &normal)
{
    m_origin = origin;
    m_normal = normal;
}

bool ZKPlane::isParallelToPlane(const ZKPlane &plane) const
{
    return m_normal.isParallelTo(plane.m_normal, true);
}

bool ZKPlane::isParallelToPlane(const ZKPlane &plane, double within) const
{
    return m_normal.isParallelTo(plane.m_normal, true, within);
}

bool ZKPlane::isParallelToLine(const ZKLine &line) const
{
    return isParallelToVector(line.direction());
}

bool ZKPlane::isParallelToLine(const ZKLine &line, double within) const
{
    return isParallelToVector(line.direction(), within);
}

bool ZKPlane::isParallelToVector(const ZKVector &vector) const
{
    return m_normal.isPerpendicularTo(vector);
}

bool ZKPlane::isParallelToVector(const ZKVector &vector, double within) const
{
    return m_normal.isPerpendicularTo(vector, within);
}

bool ZKPlane::isPerpendicularToPlane(const ZKPlane &plane) const
{
    return m_normal.isPerpendicularTo(plane.m_normal);
}

bool ZKPlane::isPerpendicularToPlane(const ZKPlane &plane, double within) const
{
    return m_normal.isPerpendicularTo(plane.m_normal, within);
}

bool ZKPlane::isPerpendicularToLine(const ZKLine &line) const
{
    return isPerpendicularToVector(line.direction());
}

bool ZKPlane::isPerpendicularToLine(const ZKLine &line, double within) const
{
    return isPerpendicularToVector(line.direction(), within);
}

bool ZKPlane::isPerpendicularToVector(const ZKVector &vector) const
{
    return m_normal.isParallelTo(vector, true);
}

bool ZKPlane::isPerpendicularToVector(const ZKVector &vector, double within) const
{
    return m_normal.isParallelTo(vector, true, within);
}

std::optional<ZKVector> ZKPlane::crossPointWith(const ZKLine &line) const
{
    if (line.dimension() != dimension())
        return std::nullopt;
    const double numerator = line.origin().subVector(m_origin).product(m_normal);
    const double denominator = m_normal.product(line.direction());
    if (denominator == 0.0)
        return std::nullopt;
    return line.direction().mulScalar(-numerator / denominator).addVectorSelf(line.origin());
}

std::optional<ZKVector> ZKPlane::footOfPerpFrom(const ZKVector &point) const
{
    const std::optional<ZKLine> perpendicular = ZKLine::lineWithOrigin(point, m_normal);
    return perpendicular ? crossPointWith(*perpendicular) : std::nullopt;
}

void ZKPlane::encodeWithCoder(SequentialEncoder &coder) const
{
    m_origin.encodeWithCoder(coder);
    m_normal.encodeWithCoder(coder);
}

std::optional<ZKPlane> ZKPlane::initWithCoder(SequentialDecoder &coder)
{
    const std::optional<ZKVector> origin = ZKVector::initWithCoder(coder);
    const std::optional<ZKVector> normal = ZKVector::initWithCoder(coder);
    std::optional<ZKPlane> result =
        origin && normal ? planeWithOrigin(*origin, *normal) : std::nullopt;
    if (!result)
        coder.fail();
    return result;
}
