#include "app/CommandKeys.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace {

const QAction *actionIn(const QList<QAction *> &actions, const QString &name)
{
    for (const QAction *action : actions) {
        if (action->objectName() == name)
            return action;
        if (action->menu() == nullptr)
            continue;
        if (const QAction *inside = actionIn(action->menu()->actions(), name))
            return inside;
    }
    return nullptr;
}

} // namespace

namespace commandkeys {

QString ofCommand(const QString &name, const QWidgetList &windows)
{
    for (const QWidget *window : windows) {
        const auto *main = qobject_cast<const QMainWindow *>(window);
        const auto *menuBar = main == nullptr ? nullptr : main->findChild<QMenuBar *>();
        if (menuBar == nullptr)
            continue;
        if (const QAction *action = actionIn(menuBar->actions(), name))
            return QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText)
                .replace(QStringLiteral("; "), QStringLiteral(", "));
    }
    return {};
}

} // namespace commandkeys
