#include "axes/AnchorDrag.h"

#include "geometry/ZKPoint.h"

#include <cstddef>

namespace {

/// A side of the figure: its ends in the order of the anchors, and the lines (0 for 1-2 to 3 for
/// 4-1) of itself and of the neighbours on which its ends slide.
struct Side
{
    FloatPoint Anchors::*first;
    FloatPoint Anchors::*second;
    std::size_t line;
    std::size_t lineAtFirst;
    std::size_t lineAtSecond;
};

constexpr std::array<Side, 4> sides{{
    {&Anchors::anchor1, &Anchors::anchor2, 0, 3, 1},
    {&Anchors::anchor2, &Anchors::anchor3, 1, 0, 2},
    {&Anchors::anchor3, &Anchors::anchor4, 2, 1, 3},
    {&Anchors::anchor4, &Anchors::anchor1, 3, 2, 0},
}};

/// Nothing where `line` is nothing: anchors that coincide have no line between them.
std::optional<ZKLine> parallelThrough(FloatPoint point, const std::optional<ZKLine> &line)
{
    if (!line)
        return std::nullopt;
    return ZKLine::lineWithOrigin(ZKVector::vectorWithNSPoint(point), line->direction());
}

std::optional<ZKVector> crossPoint(const std::optional<ZKLine> &a, const std::optional<ZKLine> &b)
{
    if (!a || !b)
        return std::nullopt;
    return a->crossPointWith(*b);
}

/// Puts `anchor` where the lines cross; it keeps its place where they do not.
void moveToCrossing(FloatPoint &anchor, const std::optional<ZKLine> &a,
                    const std::optional<ZKLine> &b)
{
    if (const std::optional<ZKVector> crossing = crossPoint(a, b))
        anchor = crossing->vectorToNSPoint();
}

FloatPoint displaced(FloatPoint point, const ZKVector &by)
{
    return ZKVector::vectorWithNSPoint(point).addVector(by).vectorToNSPoint();
}

} // namespace

AnchorDrag::AnchorDrag(int axisType, int part, const Anchors &start, FloatPoint press, float scale)
    : m_axisType(axisType)
    , m_part(part)
    , m_start(start)
    , m_press(press)
    , m_scale(scale)
    , m_lines{ZKLine::lineWithNSPointA(start.anchor1, start.anchor2),
              ZKLine::lineWithNSPointA(start.anchor2, start.anchor3),
              ZKLine::lineWithNSPointA(start.anchor3, start.anchor4),
              ZKLine::lineWithNSPointA(start.anchor4, start.anchor1)}
    , m_startRadius(ZKVector::vectorWithNSPoint(start.anchor2)
                        .subVector(ZKVector::vectorWithNSPoint(start.anchor1)))
    , m_startMouse(fromCentre(press, start.anchor1))
{}

Anchors AnchorDrag::moved(FloatPoint mouse, const Anchors &current) const
{
    const FloatPoint d = ZKPoint::dividePoint(ZKPoint::subPoint(m_press, mouse), m_scale);
    Anchors a = current;
    switch (m_axisType) {
    case axistype::parallel:
        moveParallelAxes(d, a);
        break;
    case axistype::quadrangle:
        moveQuadrangle(d, a);
        break;
    case axistype::polar:
        movePolarAxes(mouse, d, a);
        break;
    default:
        break;
    }
    return a;
}

void AnchorDrag::moveParallelAxes(FloatPoint d, Anchors &a) const
{
    switch (m_part) {
    case 1:
        moveAll(d, a);
        break;
    case 2:
        moveOriginCorner(d, a);
        break;
    case 3:
        a.anchor2 = ZKPoint::addPoint(m_start.anchor2, d);
        a.anchor3 = ZKPoint::addPoint(m_start.anchor3, d);
        break;
    case 4:
        moveFarCorner(d, a);
        break;
    case 5:
        a.anchor3 = ZKPoint::addPoint(m_start.anchor3, d);
        a.anchor4 = ZKPoint::addPoint(m_start.anchor4, d);
        break;
    case 6:
    case 7:
    case 8:
    case 9:
        slideSide(m_part, d, a);
        break;
    default:
        break;
    }
}

void AnchorDrag::moveQuadrangle(FloatPoint d, Anchors &a) const
{
    switch (m_part) {
    case 1:
        moveAll(d, a);
        break;
    case 2:
        a.anchor1 = ZKPoint::addPoint(m_start.anchor1, d);
        break;
    case 3:
        a.anchor2 = ZKPoint::addPoint(m_start.anchor2, d);
        break;
    case 4:
        a.anchor3 = ZKPoint::addPoint(m_start.anchor3, d);
        break;
    case 5:
        a.anchor4 = ZKPoint::addPoint(m_start.anchor4, d);
        break;
    case 6:
    case 7:
    case 8:
    case 9:
        pivotSide(m_part, d, a);
        break;
    default:
        break;
    }
}

void AnchorDrag::movePolarAxes(FloatPoint mouse, FloatPoint d, Anchors &a) const
{
    switch (m_part) {
    case 1:
    case 10:
        a.anchor1 = ZKPoint::addPoint(m_start.anchor1, d);
        a.anchor2 = ZKPoint::addPoint(m_start.anchor2, d);
        break;
    case 11:
        a.anchor2 = ZKPoint::addPoint(m_start.anchor2, d);
        break;
    case 12:
        a.anchor2 = {m_start.anchor2.x - d.y, m_start.anchor2.y + d.x};
        break;
    case 13:
        a.anchor2 = {m_start.anchor2.x + d.y, m_start.anchor2.y - d.x};
        break;
    case 14:
    case 15:
        turnRadius(mouse, a);
        break;
    case 16:
    case 17:
        resizeRadius(mouse, a);
        break;
    default:
        break;
    }
}

void AnchorDrag::moveAll(FloatPoint d, Anchors &a) const
{
    a.anchor1 = ZKPoint::addPoint(m_start.anchor1, d);
    a.anchor2 = ZKPoint::addPoint(m_start.anchor2, d);
    a.anchor3 = ZKPoint::addPoint(m_start.anchor3, d);
    a.anchor4 = ZKPoint::addPoint(m_start.anchor4, d);
}

void AnchorDrag::moveOriginCorner(FloatPoint d, Anchors &a) const
{
    a.anchor1 = ZKPoint::addPoint(m_start.anchor1, d);
    moveToCrossing(a.anchor2, parallelThrough(a.anchor1, m_lines[0]), m_lines[1]);
    moveToCrossing(a.anchor4, parallelThrough(a.anchor1, m_lines[3]), m_lines[2]);
}

void AnchorDrag::moveFarCorner(FloatPoint d, Anchors &a) const
{
    a.anchor3 = ZKPoint::addPoint(m_start.anchor3, d);
    moveToCrossing(a.anchor2, parallelThrough(a.anchor3, m_lines[1]), m_lines[0]);
    moveToCrossing(a.anchor4, parallelThrough(a.anchor3, m_lines[2]), m_lines[3]);
}

void AnchorDrag::slideSide(int part, FloatPoint d, Anchors &a) const
{
    const Side &side = sides.at(static_cast<std::size_t>(part - firstSidePart));
    a.*side.first = ZKPoint::addPoint(m_start.*side.first, d);
    const OptionalLine moved = parallelThrough(a.*side.first, m_lines.at(side.line));
    moveToCrossing(a.*side.first, moved, m_lines.at(side.lineAtFirst));
    moveToCrossing(a.*side.second, moved, m_lines.at(side.lineAtSecond));
}

void AnchorDrag::pivotSide(int part, FloatPoint d, Anchors &a) const
{
    const Side &side = sides.at(static_cast<std::size_t>(part - firstSidePart));
    const std::size_t pair = side.line % 2; // bottom and top, or right and left
    const std::optional<ZKVector> vanishingPoint =
        crossPoint(m_lines.at(pair), m_lines.at(pair + 2));
    if (!vanishingPoint) {
        slideSide(part, d, a);
        return;
    }
    const FloatPoint ends = ZKPoint::addPoint(m_start.*side.first, m_start.*side.second);
    const FloatPoint middle = ZKPoint::addPoint(ZKPoint::multiplyPoint(ends, 0.5F), d);
    const OptionalLine turned =
        ZKLine::lineWithPointA(*vanishingPoint, ZKVector::vectorWithNSPoint(middle));
    moveToCrossing(a.*side.first, turned, m_lines.at(side.lineAtFirst));
    moveToCrossing(a.*side.second, turned, m_lines.at(side.lineAtSecond));
}

ZKVector AnchorDrag::fromCentre(FloatPoint mouse, FloatPoint centre) const
{
    return ZKVector::vectorWithNSPoint(mouse).divScalar(m_scale).subVector(
        ZKVector::vectorWithNSPoint(centre));
}

// The radius turns by the change of the pointer's angle about the centre. Both rotation handles
// come here: seen from the opposite one both vectors are negated, which leaves the angle the same.
void AnchorDrag::turnRadius(FloatPoint mouse, Anchors &a) const
{
    const double clockwise = fromCentre(mouse, a.anchor1).angle(m_startMouse);
    if (const std::optional<ZKVector> turned = m_startRadius.rotateCW(clockwise))
        a.anchor2 = displaced(a.anchor1, *turned);
}

// The radius grows by the change of the pointer's distance from the centre.
void AnchorDrag::resizeRadius(FloatPoint mouse, Anchors &a) const
{
    const double growth = fromCentre(mouse, a.anchor1).length() - m_startMouse.length();
    a.anchor2 = displaced(a.anchor1, m_startRadius.stretchBy(growth));
}
