#pragma once

#include "axes/AnchorLayout.h"
#include "platform/DeviceColor.h"

class QPainter;

namespace axispainter {

struct Style
{
    DeviceColor color;
    float thickness = 0; ///< line width, view points
};

/// Draws the axes: squares, dots, solid squares, lines, and last a faint shading of the area. The
/// painter's coordinates are view coordinates with y upwards; its state is left as it was.
void draw(QPainter &painter, int axisType, const AnchorLayout &layout, const Style &style);

} // namespace axispainter
