#pragma once

#include <QColor>

/// A colour as four stored components, 0 to 1; these are the truth, and a screen colour is
/// made of them only for drawing.
struct DeviceColor
{
    float red = 0;
    float green = 0;
    float blue = 0;
    float alpha = 1;

    /// The screen colour; components outside 0 … 1 are brought to the nearest end,
    /// one that is no number to 0.
    [[nodiscard]] QColor screenColor() const;

    /// The same red, green and blue with another alpha.
    [[nodiscard]] DeviceColor withAlpha(float newAlpha) const
    {
        return {red, green, blue, newAlpha};
    }

    friend bool operator==(const DeviceColor &, const DeviceColor &) = default;
};
