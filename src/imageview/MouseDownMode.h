#pragma once

#include <Qt>

/// What a press of the mouse on the picture does.
enum MouseDownMode : int {
    DigitizeMode = 0,   ///< adds a data point
    DragAnchorMode = 1, ///< a drag moves an anchor or the axes
    HandMode = 2,       ///< a drag scrolls the picture
    ZoomInMode = 3,     ///< a click or a dragged rectangle
    ZoomOutMode = 4,    ///< a click or a dragged rectangle
    TrimMode = 5,       ///< drags the rectangle to trim the picture to
    MeasureMode = 6,    ///< drags a rectangle that changes nothing
};

namespace mousedownmode {

/// The mode that the held keys choose. Command is Ctrl, Option is Alt and Control is Meta (on
/// macOS they are the real ones).
[[nodiscard]] int modeFor(Qt::KeyboardModifiers modifierFlags, bool inAxisSettingMode);

} // namespace mousedownmode
