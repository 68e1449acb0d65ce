#pragma once

#include "geometry/FloatGeometry.h"

class QPainter;

/// The cross that stands for the pointer while the keyboard moves it.
namespace keyboardcross {

/// How far its arms reach, in view points.
inline constexpr double reach = 11;

/// Draws it about `centre`. It is dark with a bright border, to be seen on any picture; its middle
/// is left free.
void draw(QPainter &painter, FloatPoint centre);

} // namespace keyboardcross
