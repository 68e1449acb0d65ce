#pragma once

#include "axes/Anchors.h"
#include "geometry/FloatGeometry.h"
#include "geometry/ZKLine.h"
#include "geometry/ZKVector.h"

#include <array>
#include <optional>

/// One drag of an anchor, a side, a handle or the whole area, from the press to the release.
///
/// It keeps the anchors and the lines between them as they were at the press; every move starts
/// from these, never from the move before.
class AnchorDrag
{
public:
    /// `part` is the code of what was hit at `press` (view coordinates); `scale` holds for the
    /// whole drag.
    AnchorDrag(int axisType, int part, const Anchors &start, FloatPoint press, float scale);

    /// The view points per picture point at the press.
    [[nodiscard]] float scale() const { return m_scale; }

    /// The anchors with the pointer at `mouse` (view coordinates). `current` are the anchors as
    /// they stand; one whose two lines do not cross keeps its place of that moment.
    [[nodiscard]] Anchors moved(FloatPoint mouse, const Anchors &current) const;

private:
    using OptionalLine = std::optional<ZKLine>;

    static constexpr int firstSidePart = 6;

    void moveParallelAxes(FloatPoint d, Anchors &a) const;
    void moveQuadrangle(FloatPoint d, Anchors &a) const;
    void movePolarAxes(FloatPoint mouse, FloatPoint d, Anchors &a) const;

    void moveAll(FloatPoint d, Anchors &a) const;
    void moveOriginCorner(FloatPoint d, Anchors &a) const;
    void moveFarCorner(FloatPoint d, Anchors &a) const;
    /// Moves the side of code `part` parallel to itself, its ends on the neighbouring sides.
    void slideSide(int part, FloatPoint d, Anchors &a) const;
    /// Turns the side about the vanishing point of itself and its opposite side.
    void pivotSide(int part, FloatPoint d, Anchors &a) const;

    [[nodiscard]] ZKVector fromCentre(FloatPoint mouse, FloatPoint centre) const;
    void turnRadius(FloatPoint mouse, Anchors &a) const;
    void resizeRadius(FloatPoint mouse, Anchors &a) const;

    int m_axisType;
    int m_part;
    Anchors m_start;
    FloatPoint m_press;
    float m_scale;
    std::array<OptionalLine, 4> m_lines; ///< at the press: 1-2, 2-3, 3-4, 4-1
    ZKVector m_startRadius;              ///< from the centre to the radius end, picture points
    ZKVector m_startMouse;               ///< from the centre to the press, picture points
};
