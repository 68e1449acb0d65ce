#pragma once

#include "geometry/FloatGeometry.h"
#include "imageview/Picture.h"

#include <optional>

namespace subimage {

/// The part of `picture` that lies under `area` when the picture is turned by `rotation` degrees
/// counter-clockwise (0, 90, 180 or 270; others count as 0), upright as it is seen then.
///
/// `area` is in picture coordinates of the turned picture and is cut to it; nothing is left of an
/// area without width or height. The part has the size of the area, and its pixels are the
/// picture's own, never mixed: where the area's edges run through pixels, those that it covers
/// best. Nothing without memory.
[[nodiscard]] std::optional<Picture> cut(const Picture &picture, float rotation, FloatRect area);

} // namespace subimage
