#include "axes/AnchorLayout.h"

#include "geometry/ZKPoint.h"
#include "geometry/ZKRect.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace {

constexpr double squareRootOfTwo = 1.4142135623730951;

// How far beyond the circle the rotation handles stand, in radii.
constexpr double rotationHandleDistance = 1.2;

FloatRect squareAround(FloatPoint centre, float side)
{
    const float half = side * 0.5F;
    return {{centre.x - half, centre.y - half}, {side, side}};
}

FloatPoint midpoint(FloatPoint a, FloatPoint b)
{
    return ZKPoint::multiplyPoint(ZKPoint::addPoint(a, b), 0.5F);
}

FloatPoint middleOf(const FloatRect &rect)
{
    return {rect.origin.x + rect.size.width / 2, rect.origin.y + rect.size.height / 2};
}

/// The squares and dots in the order of their part codes.
std::array<const FloatRect *, 8> handlesOf(const AnchorLayout &layout)
{
    return {&layout.anchor1Rect,  &layout.anchor2Rect,  &layout.anchor3Rect,  &layout.anchor4Rect,
            &layout.anchor12Rect, &layout.anchor23Rect, &layout.anchor34Rect, &layout.anchor41Rect};
}

int firstHandlePart(int axisType) { return axisType == axistype::polar ? 10 : 2; }

FloatPoint narrowed(double x, double y) { return {static_cast<float>(x), static_cast<float>(y)}; }

void layOutCircle(AnchorLayout &layout, FloatPoint p1, FloatPoint p2, float side,
                  const FloatRect &picture)
{
    const FloatPoint r = ZKPoint::subPoint(p1, p2);
    const FloatPoint clockwise{p1.x + r.y, p1.y - r.x};
    const FloatPoint counterClockwise{p1.x - r.y, p1.y + r.x};
    layout.anchor3Rect = squareAround(clockwise, side);
    layout.anchor4Rect = squareAround(counterClockwise, side);

    layout.anchor12Rect = squareAround(
        narrowed(p1.x + rotationHandleDistance * r.x, p1.y + rotationHandleDistance * r.y), side);
    layout.anchor23Rect = squareAround(
        narrowed(p1.x - rotationHandleDistance * r.x, p1.y - rotationHandleDistance * r.y), side);
    layout.anchor34Rect = squareAround(
        narrowed(p1.x + (r.x + r.y) / squareRootOfTwo, p1.y + (r.y - r.x) / squareRootOfTwo), side);
    layout.anchor41Rect = squareAround(
        narrowed(p1.x + (r.x - r.y) / squareRootOfTwo, p1.y + (r.x + r.y) / squareRootOfTwo), side);

    layout.axisLineSegment1 = ZKLineSegment::lineWithNSPointA(p1, p2, picture);
    layout.axisLineSegment2 = ZKLineSegment::lineWithNSPointA(clockwise, counterClockwise);
    layout.axisArea = AxisArea::circle(p1, std::sqrt(r.x * r.x + r.y * r.y));
}

void layOutQuadrangle(AnchorLayout &layout, const AxisArea::Corners &p, float side,
                      const FloatRect &picture)
{
    const auto [p1, p2, p3, p4] = p;
    layout.anchor3Rect = squareAround(p3, side);
    layout.anchor4Rect = squareAround(p4, side);

    layout.anchor12Rect = squareAround(midpoint(p1, p2), side);
    layout.anchor23Rect = squareAround(midpoint(p2, p3), side);
    layout.anchor34Rect = squareAround(midpoint(p3, p4), side);
    layout.anchor41Rect = squareAround(midpoint(p4, p1), side);

    layout.axisLineSegment1 = ZKLineSegment::lineWithNSPointA(p1, p2, picture);
    layout.axisLineSegment2 = ZKLineSegment::lineWithNSPointA(p4, p3, picture);
    layout.axisLineSegment3 = ZKLineSegment::lineWithNSPointA(p2, p3, picture);
    layout.axisLineSegment4 = ZKLineSegment::lineWithNSPointA(p1, p4, picture);
    layout.axisArea = AxisArea::quadrangle(p);
}

} // namespace

AnchorLayout anchorlayout::make(int axisType, const Anchors &anchors, const ViewMeasures &view)
{
    AnchorLayout layout;
    const FloatRect picture = ZKRect::rectOfSize(view.scaledImageSize);
    const FloatPoint p1 = ZKPoint::multiplyPoint(anchors.anchor1, view.scale);
    const FloatPoint p2 = ZKPoint::multiplyPoint(anchors.anchor2, view.scale);
    layout.anchor1Rect = squareAround(p1, view.anchorSize);
    layout.anchor2Rect = squareAround(p2, view.anchorSize);

    if (axisType == axistype::polar) {
        layOutCircle(layout, p1, p2, view.anchorSize, picture);
    } else {
        const FloatPoint p3 = ZKPoint::multiplyPoint(anchors.anchor3, view.scale);
        const FloatPoint p4 = ZKPoint::multiplyPoint(anchors.anchor4, view.scale);
        layOutQuadrangle(layout, {p1, p2, p3, p4}, view.anchorSize, picture);
    }
    return layout;
}

int anchorlayout::partOfHit(int axisType, const AnchorLayout &layout, FloatPoint point)
{
    // The order decides where handles overlap: corners win over sides, lower numbers over higher.
    int code = firstHandlePart(axisType);
    for (const FloatRect *rect : handlesOf(layout)) {
        if (rect->contains(point))
            return code;
        ++code;
    }
    return layout.axisArea && layout.axisArea->contains(point) ? 1 : 0;
}

std::optional<FloatPoint> anchorlayout::placeOfPart(int axisType, const AnchorLayout &layout,
                                                    int part)
{
    const auto handles = handlesOf(layout);
    const int index = part - firstHandlePart(axisType);
    if (index >= 0 && index < static_cast<int>(handles.size()))
        return middleOf(*handles.at(static_cast<std::size_t>(index)));
    if (part == 1 && axisType != axistype::polar)
        return midpoint(midpoint(middleOf(layout.anchor1Rect), middleOf(layout.anchor3Rect)),
                        midpoint(middleOf(layout.anchor2Rect), middleOf(layout.anchor4Rect)));
    return std::nullopt;
}

int anchorlayout::partBeside(int axisType, int part, int direction)
{
    const int first = firstHandlePart(axisType);
    const int last = first + 7;
    const bool hasArea = axisType != axistype::polar;
    const int end = hasArea ? 1 : last;
    if (part == 1 && hasArea)
        return direction > 0 ? first : last;
    if (part < first || part > last)
        return direction > 0 ? first : end;
    const int beside = part + direction;
    if (beside < first)
        return end;
    if (beside > last)
        return hasArea ? 1 : first;
    return beside;
}
