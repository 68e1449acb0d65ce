#pragma once

#include "geometry/FloatGeometry.h"

#include <QRect>

/// Where a document's window stands and how large it is.
namespace windowframe {

/// The space that the window's frame and controls take beside and above the picture, in points:
/// constants of the design, not measured.
inline constexpr float marginWidth = 37.0F;
inline constexpr float marginHeight = 207.0F;

/// `windowWillUseStandardFrame:defaultFrame:`: the size of a window (frame included, drawer not)
/// that shows the whole picture view, raised to the window's minimum size.
[[nodiscard]] FloatSize standardSize(FloatSize pictureView, FloatSize minimum);

/// The frame of `size` whose bottom left corner is that of `frame` (y down), brought onto `screen`:
/// no larger than it, and its title bar not above its top.
[[nodiscard]] QRect placed(const QRect &frame, QSize size, const QRect &screen);

} // namespace windowframe
