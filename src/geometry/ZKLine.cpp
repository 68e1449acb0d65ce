#include "geometry/ZKLine.h"

#include "archiving/SequentialCoder.h"

namespace {

/// The line through `origin` along component `axis`, if the dimension has it.
std::optional<ZKLine> lineAlongAxis(const ZKVector &origin, int axis)
{
    std::optional<ZKVector> direction = ZKVector::vectorWithDimension(origin.dimension());
    if (!direction || axis >= origin.dimension())
        return std::nullopt;
    direction->setComponent(1.0, axis);
    return ZKLine::lineWithOrigin(origin, *direction);
}

} // namespace

std::optional<ZKLine> ZKLine::lineParaXaxisWithOrigin(const ZKVector &origin)
{
    return lineAlongAxis(origin, 0);
}

std::optional<ZKLine> ZKLine::lineParaYaxisWithOrigin(const ZKVector &origin)
{
    return lineAlongAxis(origin, 1);
}

std::optional<ZKLine> ZKLine::lineParaZaxisWithOrigin(const ZKVector &origin)
{
    return lineAlongAxis(origin, 2);
}

void ZKLine::setOrigin(const ZKVector &origin, const ZKVector &direction)
{
    m_origin = origin;
    m_direction = direction;
}

bool ZKLine::isParallelToLine(const ZKLine &line) const
{
    return isParallelToVector(line.m_direction);
}

bool ZKLine::isParallelToLine(const ZKLine &line, double within) const
{
    return isParallelToVector(line.m_direction, within);
}

bool ZKLine::isParallelToVector(const ZKVector &vector) const
{
    return m_direction.isParallelTo(vector, true);
}

bool ZKLine::isParallelToVector(const ZKVector &vector, double within) const
{
    return m_direction.isParallelTo(vector, true, within);
}

bool ZKLine::isPerpendicularToLine(const ZKLine &line) const
{
    return isPerpendicularToVector(line.m_direction);
}

bool ZKLine::isPerpendicularToLine(const ZKLine &line, double within) const
{
    return isPerpendicularToVector(line.m_direction, within);
}

bool ZKLine::isPerpendicularToVector(const ZKVector &vector) const
{
    return m_direction.isPerpendicularTo(vector);
}

bool ZKLine::isPerpendicularToVector(const ZKVector &vector, double within) const
{
    return m_direction.isPerpendicularTo(vector, within);
}

std::optional<ZKVector> ZKLine::footOfPerpFrom(const ZKVector &point) const
{
    if (point.dimension() != dimension())
        return std::nullopt;
    const double length = m_direction.length();
    const double t = point.subVector(m_origin).product(m_direction) / length / length;
    return m_direction.mulScalar(t).addVectorSelf(m_origin);
}

void ZKLine::encodeWithCoder(SequentialEncoder &coder) const
{
    m_origin.encodeWithCoder(coder);
    m_direction.encodeWithCoder(coder);
}

std::optional<ZKLine> ZKLine::initWithCoder(SequentialDecoder &coder)
{
    const std::optional<ZKVector> origin = ZKVector::initWithCoder(coder);
    const std::optional<ZKVector> direction = ZKVector::initWithCoder(coder);
    std::optional<ZKLine> result =
        origin && direction ? lineWithOrigin(*origin, *direction) : std::nullopt;
    if (!result)
        coder.fail();
    return result;
}
