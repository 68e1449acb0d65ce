#pragma once

#include "geometry/FloatGeometry.h"

/// The rectangle that the mouse drags on the picture, in view points, and the scales that it asks
/// for.
namespace zoomarea {

/// The rectangle from `start` to `start` plus `delta`, whichever way that is, as far as it lies in
/// a picture of the size `picture`; the zero rectangle where it does not. A rectangle without
/// width or height keeps its place.
[[nodiscard]] FloatRect dragged(FloatPoint start, FloatSize delta, FloatSize picture);

/// How many times the scale has to grow until `area` fills the clip: the smaller ratio of their
/// sides. Infinite for an area without size, NaN only if the clip has none either.
[[nodiscard]] float factorToFill(FloatSize area, FloatSize clip);

/// What the scale has to be multiplied by until the clip's part of the picture fits into `area`:
/// the larger ratio of their sides.
[[nodiscard]] float factorToShrinkInto(FloatSize area, FloatSize clip);

} // namespace zoomarea
