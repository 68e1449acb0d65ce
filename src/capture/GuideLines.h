#pragma once

#include "capture/CaptureSurroundings.h"
#include "geometry/FloatGeometry.h"
#include "geometry/ZKLineSegment.h"

#include <optional>

class QPainter;

/// Where a guide stands: a point in view coordinates and the axis vectors there, in picture
/// coordinates at zoom 1. With polar axes `basis1` runs from the pole to the point and `basis2` is
/// the pole.
struct GuideFrame
{
    FloatPoint origin;
    FloatPoint basis1;
    FloatPoint basis2;
};

/// The lines through the cursor along the axes: two straight lines, or with polar axes the radial
/// line and the circle of constant radius. All in view coordinates.
class GuideLines
{
public:
    GuideLines() = default;

    /// The two lines of parallel and quadrangle axes, as far as they lie in `trimmedBy`.
    [[nodiscard]] static GuideLines straight(const GuideFrame &frame, FloatRect trimmedBy);
    /// The radial line, as far as it lies in `trimmedBy`, and the whole circle.
    [[nodiscard]] static GuideLines polar(const GuideFrame &frame, float scale,
                                          FloatRect trimmedBy);

    [[nodiscard]] const std::optional<ZKLineSegment> &guide1() const { return m_guide1; }
    [[nodiscard]] const std::optional<ZKLineSegment> &guide2() const { return m_guide2; }
    /// The square around the circle.
    [[nodiscard]] const std::optional<FloatRect> &guide3() const { return m_guide3; }

    /// Strokes the lines in the guide's colour and thickness, the circle in the axes' thickness.
    void draw(QPainter &painter, const CapturePrefs &prefs) const;

private:
    std::optional<ZKLineSegment> m_guide1;
    std::optional<ZKLineSegment> m_guide2;
    std::optional<FloatRect> m_guide3;
};
