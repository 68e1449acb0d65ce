#include "axes/AxisArea.h"

#include <cstddef>

namespace {

/// Above zero when `p` lies left of the way from `a` to `b`, below zero right of it.
double sideOfEdge(FloatPoint a, FloatPoint b, FloatPoint p)
{
    return (double{b.x} - a.x) * (double{p.y} - a.y) - (double{p.x} - a.x) * (double{b.y} - a.y);
}

/// How often the closed path winds around `p`, counter-clockwise counted positive.
int windingNumber(const AxisArea::Corners &corners, FloatPoint p)
{
    int winding = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const FloatPoint a = corners.at(i);
        const FloatPoint b = corners.at((i + 1) % corners.size());
        if (a.y <= p.y && b.y > p.y && sideOfEdge(a, b, p) > 0)
            ++winding;
        else if (b.y <= p.y && a.y > p.y && sideOfEdge(a, b, p) < 0)
            --winding;
    }
    return winding;
}

bool isInCircle(const AxisArea::Circle &circle, FloatPoint p)
{
    const double dx = double{p.x} - circle.centre.x;
    const double dy = double{p.y} - circle.centre.y;
    return dx * dx + dy * dy < double{circle.radius} * circle.radius;
}

} // namespace

bool AxisArea::contains(FloatPoint p) const
{
    if (const Circle *disc = circle())
        return isInCircle(*disc, p);
    return windingNumber(*corners(), p) != 0;
}
