#pragma once

#include "geometry/FloatGeometry.h"

#include <vector>

class ZKConvCoordinate;

/// The lines of round graph values that a converter implies, in picture coordinates: straight ones
/// for parallel and quadrangle axes; circles and rays for polar axes.
namespace axisgrid {

struct Point
{
    double x = 0;
    double y = 0;
};

/// A straight piece inside the picture.
struct Segment
{
    Point start;
    Point end;
    bool isMajor = true;
};

/// A circle that reaches into the picture.
struct Circle
{
    Point centre;
    double radius = 0;
    bool isMajor = true;
};

struct Grid
{
    std::vector<Segment> segments;
    std::vector<Circle> circles;

    [[nodiscard]] bool isEmpty() const { return segments.empty() && circles.empty(); }
};

/// The grid over a picture of size `picture`, with neighbouring lines about `apart` pixels from
/// each other or farther. Empty for a converter that converts nothing or has no room in between.
[[nodiscard]] Grid gridOf(const ZKConvCoordinate &converter, FloatSize picture, double apart);

} // namespace axisgrid
