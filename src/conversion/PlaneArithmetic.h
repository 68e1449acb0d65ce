#pragma once

#include "geometry/ZKLine.h"
#include "geometry/ZKVector.h"

#include <optional>

/// The steps of vectors, matrices and lines for two plain numbers: the same operations in the same
/// order, so the same bits, without objects that may have any dimension. Converting a point is done
/// for every hover tick and for every drawn point, which is why it is worth it.
namespace planearithmetic {

struct PlaneVector
{
    double x = 0;
    double y = 0;

    [[nodiscard]] bool isZero() const { return x == 0.0 && y == 0.0; }
};

struct PlaneLine
{
    PlaneVector origin;
    PlaneVector direction;
};

/// `vector` must have two components, as the vectors of a plane's converter do.
[[nodiscard]] inline PlaneVector planeVector(const ZKVector &vector)
{
    const double *components = vector.buffer();
    return {components[0], components[1]};
}

[[nodiscard]] inline PlaneLine planeLine(const ZKLine &line)
{
    return {planeVector(line.origin()), planeVector(line.direction())};
}

[[nodiscard]] inline PlaneVector difference(PlaneVector a, PlaneVector b)
{
    return {a.x - b.x, a.y - b.y};
}

/// `vector` times `factor`, plus `origin`.
[[nodiscard]] inline PlaneVector pointAlong(PlaneVector origin, PlaneVector vector, double factor)
{
    return {vector.x * factor + origin.x, vector.y * factor + origin.y};
}

/// As ZKVector::product and ZKMatrix::mulVector sum: from 0.0, which decides the sign of a zero.
[[nodiscard]] inline double product(PlaneVector a, PlaneVector b)
{
    return 0.0 + a.x * b.x + a.y * b.y;
}

/// ZKLine::crossPointWith, `line` being the receiver: nothing when the determinant is exactly 0.0.
[[nodiscard]] inline std::optional<PlaneVector> crossPoint(const PlaneLine &line,
                                                           const PlaneLine &other)
{
    const PlaneVector d1 = line.direction;
    const PlaneVector d2 = other.direction;
    const double determinant = d1.x * d2.y - d2.x * d1.y;
    if (determinant == 0.0)
        return std::nullopt;
    const PlaneVector between = difference(other.origin, line.origin);
    const double along = (between.x * d2.y - d2.x * between.y) / determinant;
    return pointAlong(line.origin, d1, along);
}

} // namespace planearithmetic
