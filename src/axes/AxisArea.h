#pragma once

#include "geometry/FloatGeometry.h"

#include <array>
#include <variant>

/// The area that the axes enclose, in view coordinates.
class AxisArea
{
public:
    using Corners = std::array<FloatPoint, 4>;

    struct Circle
    {
        FloatPoint centre;
        float radius = 0;
    };

    /// The closed path through the corners in their order; it may cross itself.
    [[nodiscard]] static AxisArea quadrangle(const Corners &corners) { return AxisArea(corners); }
    [[nodiscard]] static AxisArea circle(FloatPoint centre, float radius)
    {
        return AxisArea(Circle{centre, radius});
    }

    /// The corners or the circle; null when the area is of the other kind.
    [[nodiscard]] const Corners *corners() const { return std::get_if<Corners>(&m_shape); }
    [[nodiscard]] const Circle *circle() const { return std::get_if<Circle>(&m_shape); }

    /// Whether `p` lies inside. A path that crosses itself contains what it winds around (both
    /// halves of a bow tie); its edges are half-open as those of rectangles are. A circle's edge
    /// is outside.
    [[nodiscard]] bool contains(FloatPoint p) const;

private:
    explicit AxisArea(const Corners &corners)
        : m_shape(corners)
    {}
    explicit AxisArea(Circle circle)
        : m_shape(circle)
    {}

    std::variant<Corners, Circle> m_shape;
};
