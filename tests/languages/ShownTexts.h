#pragma once

#include <QStringList>

class QMenu;
class QMenuBar;
class QWidget;

/// What a user can see and not see of the texts of a window.
namespace showntexts {

/// The visible texts of `root` and what lies in it that have less room than they need.
[[nodiscard]] QStringList cutOff(const QWidget &root);

/// Keys (after Alt) that stand for two things among the titles of `menus` (may be null) and the
/// visible controls of `page`.
[[nodiscard]] QStringList keysOfTwo(const QMenuBar *menus, const QWidget &page);

/// Keys that stand for two entries of a menu.
[[nodiscard]] QStringList keysOfTwo(const QMenu &menu);

/// The entries of a menu that no key stands for.
[[nodiscard]] QStringList withoutKey(const QMenu &menu);

/// The texts of `root` that are keys of a catalogue instead of what stands under them.
[[nodiscard]] QStringList bareKeys(const QWidget &root, const QStringList &keys);

} // namespace showntexts
