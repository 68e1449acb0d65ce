#pragma once

#include "geometry/FloatGeometry.h"

#include <QList>
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

/// The text form of a frame (y down) has its origin at the bottom left of the primary screen.
[[nodiscard]] FloatRect toBottomLeft(const QRect &frame, const QRect &primaryScreen);
[[nodiscard]] QRect fromBottomLeft(const FloatRect &frame, const QRect &primaryScreen);

/// A stored frame as it fits the desktop of today: raised to `minimum` and brought onto the screen
/// that has most of it, else onto the first one. A frame that sticks out by less than a half stays.
[[nodiscard]] QRect restored(const QRect &frame, QSize minimum, const QList<QRect> &screens);

} // namespace windowframe
