#pragma once

#include "axes/Anchors.h"
#include "geometry/FloatGeometry.h"

namespace anchorplacement {

/// The picture on which anchors are placed: its size before it is turned, and its rotation in
/// degrees.
struct Picture
{
    FloatSize size;
    float rotation = 0;
};

/// Whether both sides are greater than zero, so that there is something to place anchors on.
[[nodiscard]] bool hasPositiveSize(FloatSize size);

/// The size of the picture as it is displayed: with its sides exchanged unless it is upright or
/// upside down.
[[nodiscard]] FloatSize displayedSize(const Picture &picture);

/// The default places, on whole points: a fifth of the picture inside its edges; for polar axes the
/// centre and a radius to the right of three tenths of the shorter side. Anchors that the kind of
/// axes does not use keep their places in `current`.
[[nodiscard]] Anchors defaultPlacement(int axisType, const Picture &picture,
                                       const Anchors &current);

/// The four corners of the picture, on whole points.
[[nodiscard]] Anchors wholePlacement(const Picture &picture);

} // namespace anchorplacement
