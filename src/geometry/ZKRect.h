#pragma once

#include "geometry/FloatGeometry.h"

/// Operations on plain rectangles, in single precision.
class ZKRect
{
public:
    ZKRect() = delete;

    /// At the origin (0, 0).
    [[nodiscard]] static FloatRect rectOfSize(FloatSize size) { return {{}, size}; }
    /// `rectOfOrigin:andSize:`
    [[nodiscard]] static FloatRect rectOfOrigin(FloatPoint origin, FloatSize size)
    {
        return {origin, size};
    }
    /// `mutiplyRect:by:` multiplies all four numbers.
    [[nodiscard]] static FloatRect mutiplyRect(FloatRect rect, float by);
    /// `divideRect:by:` divides all four numbers.
    [[nodiscard]] static FloatRect divideRect(FloatRect rect, float by);
    /// The same rectangle with a size that is not negative.
    [[nodiscard]] static FloatRect normalizeRect(FloatRect rect);
    [[nodiscard]] static FloatPoint centerOfRect(FloatRect rect);
};
