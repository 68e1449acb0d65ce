#pragma once

#include "axes/Anchors.h"
#include "geometry/FloatGeometry.h"
#include "geometry/ZKLine.h"
#include "geometry/ZKVector.h"

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

    void moveAll(FloatPoint d, Anchors &a) const;
    void moveParallelAxes(FloatPoint d, Anchors &a) const;
    void moveQuadrangle(FloatPoint d, Anchors &a) const;
    void movePolarAxes(FloatPoint mouse, FloatPoint d, Anchors &a) const;

    void moveOriginCorner(FloatPoint d, Anchors &a) const;
    void moveFarCorner(FloatPoint d, Anchors &a) const;
    void slideSide(int side, FloatPoint d, Anchors &a) const;
    void pivotSide(int side, FloatPoint d, Anchors &a) const;

    void turnRadius(FloatPoint mouse, bool opposite, Anchors &a) const;
    void resizeRadius(FloatPoint mouse, Anchors &a) const;

    int m_axisType;
    int m_part;
    Anchors m_start;
    FloatPoint m_press;
    float m_scale;
    OptionalLine m_line12;
    OptionalLine m_line23;
    OptionalLine m_line34;
    OptionalLine m_line41;
    ZKVector m_startRadius; ///< R0, from the centre to the radius end, picture points
    ZKVector m_startMouse;  ///< S, from the centre to the press, picture points
};
