#pragma once

#include <QString>

class QWidget;
class StateFile;

/// Where a window stands and how large it is, kept from session to session.
namespace windowplacement {

/// Gives `window`, which is not shown yet, the place and size kept under `key`; nothing happens
/// where none is kept. The window comes to stand on a screen that exists, and not exactly over
/// another one. On desktops that place windows themselves only the size is given.
/// Returns whether one was kept.
bool restore(QWidget &window, const StateFile &state, const QString &key);

/// Keeps the place and size of `window`, which is shown, or was until now.
void remember(const QWidget &window, StateFile &state, const QString &key);

} // namespace windowplacement
