#include "imageview/MouseDownMode.h"

int mousedownmode::modeFor(Qt::KeyboardModifiers modifierFlags, bool inAxisSettingMode)
{
    const bool command = modifierFlags.testFlag(Qt::ControlModifier);
    const bool option = modifierFlags.testFlag(Qt::AltModifier);
    const bool control = modifierFlags.testFlag(Qt::MetaModifier);
    const bool shift = modifierFlags.testFlag(Qt::ShiftModifier);
    if (!command)
        return inAxisSettingMode ? DragAnchorMode : DigitizeMode;
    if (option)
        return shift ? ZoomOutMode : ZoomInMode;
    if (inAxisSettingMode && control)
        return shift ? MeasureMode : TrimMode;
    return HandMode;
}
