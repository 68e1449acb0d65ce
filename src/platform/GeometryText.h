#pragma once

#include "geometry/FloatGeometry.h"

#include <string>
#include <string_view>

/// The text forms of points, sizes and rectangles that documents hold: numbers as "%g",
/// "{x, y}" for a point, "{width, height}" for a size, "{{x, y}, {width, height}}".
namespace geometrytext {

[[nodiscard]] std::string stringFromPoint(FloatPoint point);
[[nodiscard]] std::string stringFromSize(FloatSize size);
[[nodiscard]] std::string stringFromRect(FloatRect rect);

/// The readers take any decimal number in the C locale and blanks anywhere between the parts;
/// text that is no such form, or a number beyond the range of a float, gives zeros throughout.
[[nodiscard]] FloatPoint pointFromString(std::string_view text);
[[nodiscard]] FloatSize sizeFromString(std::string_view text);
[[nodiscard]] FloatRect rectFromString(std::string_view text);

} // namespace geometrytext
