#pragma once

#include <QString>
#include <QWidgetList>

/// The keys of menu commands, for the help.
namespace commandkeys {

/// The keys of the command called `name` (its action's object name) in the menus of `windows`, as
/// the user's system writes them, several separated by commas; empty if it has none.
[[nodiscard]] QString ofCommand(const QString &name, const QWidgetList &windows);

} // namespace commandkeys
