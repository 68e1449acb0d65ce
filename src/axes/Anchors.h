#pragma once

#include "geometry/FloatGeometry.h"

/// The kinds of axes by their code, which is the index in the axis-type pop-up. The code itself
/// travels as an int, since a document may carry any number.
namespace axistype {

inline constexpr int parallel = 0;
inline constexpr int quadrangle = 1;
inline constexpr int polar = 2;

} // namespace axistype

/// The four anchors in picture coordinates, counter-clockwise from the bottom left corner. Polar
/// axes use the first as centre and the second as end of the radius.
struct Anchors
{
    FloatPoint anchor1;
    FloatPoint anchor2;
    FloatPoint anchor3;
    FloatPoint anchor4;

    friend bool operator==(const Anchors &, const Anchors &) = default;
};
