#pragma once

#include "axes/Anchors.h"

/// Lengths between anchors, in picture points, and the direction of the first axis.
namespace anchormeasures {

/// From anchor 1 to anchor 2: the X axis, or the radius of polar axes.
[[nodiscard]] double bottomLength(const Anchors &anchors);
/// From anchor 1 to anchor 4.
[[nodiscard]] double leftLength(const Anchors &anchors);
/// The angle from the X direction to the line from anchor 1 to anchor 2: signed degrees, positive
/// counter-clockwise.
[[nodiscard]] double inclination(const Anchors &anchors);

} // namespace anchormeasures
