#pragma once

#include <QPointF>
#include <Qt>

#include <optional>

/// The keys that move the pointer, or an anchor, on the picture.
namespace picturekeys {

/// The way of an arrow key in picture pixels, y upwards: 1, with Shift 10, with Alt 0.1. Nothing
/// for other keys and for the modifiers that choose what the mouse does.
[[nodiscard]] std::optional<QPointF> wayOf(int key, Qt::KeyboardModifiers modifierFlags);

/// Which way a key goes through what can be chosen: 1 for the next, -1 for the one before, 0 for
/// other keys.
[[nodiscard]] int directionOf(int key, Qt::KeyboardModifiers modifierFlags);

} // namespace picturekeys
