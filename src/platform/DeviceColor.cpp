#include "platform/DeviceColor.h"

namespace {

float withinUnit(float component)
{
    if (!(component > 0.0F))
        return 0.0F;
    return component < 1.0F ? component : 1.0F;
}

} // namespace

QColor DeviceColor::screenColor() const
{
    return QColor::fromRgbF(withinUnit(red), withinUnit(green), withinUnit(blue),
                            withinUnit(alpha));
}
