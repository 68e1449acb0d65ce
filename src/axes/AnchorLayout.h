#pragma once

#include "axes/Anchors.h"
#include "axes/AxisArea.h"
#include "geometry/FloatGeometry.h"
#include "geometry/ZKLineSegment.h"

#include <optional>

/// Where the anchors, handles and lines of the axes stand in the view, in view coordinates.
struct AnchorLayout
{
    FloatRect anchor1Rect;
    FloatRect anchor2Rect;
    FloatRect anchor3Rect; ///< polar: the handle 90 degrees clockwise of the radius
    FloatRect anchor4Rect; ///< polar: the handle 90 degrees counter-clockwise of it

    FloatRect anchor12Rect; ///< middle of the side; polar: rotation handle beyond the radius end
    FloatRect anchor23Rect; ///< middle of the side; polar: rotation handle on the opposite side
    FloatRect anchor34Rect; ///< middle of the side; polar: size handle 45 degrees clockwise
    FloatRect anchor41Rect; ///< middle of the side; polar: size handle 45 degrees counter-clockwise

    std::optional<ZKLineSegment> axisLineSegment1; ///< bottom, 1 to 2; polar: the radius
    std::optional<ZKLineSegment> axisLineSegment2; ///< top, 4 to 3; polar: the diameter across it
    std::optional<ZKLineSegment> axisLineSegment3; ///< right, 2 to 3; polar: none
    std::optional<ZKLineSegment> axisLineSegment4; ///< left, 1 to 4; polar: none

    std::optional<AxisArea> axisArea; ///< none before the first layout
};

namespace anchorlayout {

/// What the view gives to a layout.
struct ViewMeasures
{
    float scale = 1;           ///< view points per picture point
    FloatSize scaledImageSize; ///< lines are cut at this picture's edges
    float anchorSize = 0;      ///< side of every square, view points
};

/// The layout of `anchors` for axes of `axisType`; any type but polar is laid out as a quadrangle.
[[nodiscard]] AnchorLayout make(int axisType, const Anchors &anchors, const ViewMeasures &view);

/// What a press at `point` would take hold of: 0 nothing, 1 the area; with four corners 2 to 5 the
/// anchors 1 to 4 and 6 to 9 the sides 1-2, 2-3, 3-4, 4-1; with polar axes 10 centre, 11 radius
/// end, 12 and 13 the handles across the radius, 14 and 15 the rotation, 16 and 17 the size
/// handles.
[[nodiscard]] int partOfHit(int axisType, const AnchorLayout &layout, FloatPoint point);

/// The middle of the part of code `part`; for the area of four corners the middle of these.
/// Nothing for what is no part of such axes.
[[nodiscard]] std::optional<FloatPoint> placeOfPart(int axisType, const AnchorLayout &layout,
                                                    int part);

/// The part that follows (`direction` 1) or precedes (-1) `part` from the anchors over the other
/// handles to the whole; the first or the last one beside what is no part. The disc of polar axes
/// is left out: its centre moves it too.
[[nodiscard]] int partBeside(int axisType, int part, int direction);

} // namespace anchorlayout
