#include "platform/UndoManager.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMetaObject>

#include <utility>

namespace {

/// Whether `event` is where a new deed of the user begins. Windows are asked, not widgets:
/// what a widget sets off while its window hands an event on, such as a field that sends its
/// action because the click took its focus, belongs to that same event.
bool beginsUserEvent(const QObject *watched, const QEvent *event)
{
    switch (event->type()) {
    case QEvent::Shortcut:
        return true;
    case QEvent::Drop:
        return watched->isWindowType();
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::ContextMenu:
        return watched->isWindowType() && event->spontaneous();
    default:
        return false;
    }
}

} // namespace

UndoManager::UndoManager(QObject *parent)
    : QObject(parent)
{
    if (QCoreApplication *const application = QCoreApplication::instance())
        application->installEventFilter(this);
}

UndoManager::~UndoManager() = default;

bool UndoManager::canUndo() const { return !m_openGroup.actions.empty() || !m_undoGroups.empty(); }

bool UndoManager::canRedo() const { return !m_redoGroups.empty(); }

bool UndoManager::isUndoing() const { return m_running == Running::Undo; }

bool UndoManager::isRedoing() const { return m_running == Running::Redo; }

QString UndoManager::undoActionName() const
{
    if (!m_openGroup.actions.empty())
        return m_openGroup.name;
    return m_undoGroups.empty() ? QString() : m_undoGroups.back().name;
}

QString UndoManager::redoActionName() const
{
    return m_redoGroups.empty() ? QString() : m_redoGroups.back().name;
}

QStringList UndoManager::undoActionNames() const
{
    QStringList names = namesFromLast(m_undoGroups);
    if (!m_openGroup.actions.empty())
        names.prepend(m_openGroup.name);
    return names;
}

QStringList UndoManager::redoActionNames() const { return namesFromLast(m_redoGroups); }

QStringList UndoManager::namesFromLast(const std::vector<Group> &groups)
{
    QStringList names;
    for (auto group = groups.rbegin(); group != groups.rend(); ++group)
        names += group->name;
    return names;
}

void UndoManager::registerUndo(Target target, std::function<void()> inverse)
{
    if (m_running != Running::Nothing) {
        m_inverseGroup.actions.push_back({target, std::move(inverse)});
        return;
    }
    openGroup();
    m_openGroup.actions.push_back({target, std::move(inverse)});
    m_redoGroups.clear();
    Q_EMIT historyChanged();
}

void UndoManager::setActionName(const QString &name)
{
    if (m_running != Running::Nothing)
        return;
    openGroup();
    m_openGroup.name = name;
    Q_EMIT historyChanged();
}

void UndoManager::removeAllActionsWithTarget(Target target)
{
    removeActions(target, m_undoGroups);
    removeActions(target, m_redoGroups);
    const auto isOfTarget = [target](const Action &action) { return action.target == target; };
    std::erase_if(m_runningGroup.actions, isOfTarget);
    std::erase_if(m_inverseGroup.actions, isOfTarget);
    const bool openGroupLost = std::erase_if(m_openGroup.actions, isOfTarget) > 0;
    if (openGroupLost && m_openGroup.actions.empty()) {
        m_openGroup = {};
        m_groupIsOpen = false;
    }
    Q_EMIT historyChanged();
}

void UndoManager::removeActions(Target target, std::vector<Group> &groups)
{
    std::erase_if(groups, [target](Group &group) {
        std::erase_if(group.actions,
                      [target](const Action &action) { return action.target == target; });
        return group.actions.empty();
    });
}

void UndoManager::closeGroup()
{
    if (!m_groupIsOpen)
        return;
    m_groupIsOpen = false;
    Group closed = std::exchange(m_openGroup, {});
    if (closed.actions.empty())
        return;
    m_undoGroups.push_back(std::move(closed));
    Q_EMIT changeCounted(ChangeKind::Done);
    Q_EMIT historyChanged();
}

void UndoManager::undo() { run(m_undoGroups, m_redoGroups, Running::Undo, ChangeKind::Undone); }

void UndoManager::redo() { run(m_redoGroups, m_undoGroups, Running::Redo, ChangeKind::Redone); }

void UndoManager::run(std::vector<Group> &from, std::vector<Group> &to, Running what,
                      ChangeKind kind)
{
    if (m_running != Running::Nothing)
        return;
    closeGroup();
    if (from.empty())
        return;
    m_runningGroup = std::move(from.back());
    from.pop_back();
    m_inverseGroup = {m_runningGroup.name, {}};
    m_running = what;
    while (!m_runningGroup.actions.empty()) {
        const Action action = std::move(m_runningGroup.actions.back());
        m_runningGroup.actions.pop_back();
        action.inverse();
    }
    m_running = Running::Nothing;
    m_runningGroup = {};
    Group inverse = std::exchange(m_inverseGroup, {});
    if (!inverse.actions.empty())
        to.push_back(std::move(inverse));
    Q_EMIT changeCounted(kind);
    Q_EMIT historyChanged();
}

bool UndoManager::eventFilter(QObject *watched, QEvent *event)
{
    if (m_groupIsOpen && beginsUserEvent(watched, event))
        closeGroup();
    return QObject::eventFilter(watched, event);
}

void UndoManager::openGroup()
{
    if (m_groupIsOpen)
        return;
    m_groupIsOpen = true;
    ++m_groupNumber;
    closeGroupLater();
}

void UndoManager::closeGroupLater()
{
    // A queued call to this object dies with it.
    QMetaObject::invokeMethod(
        this,
        [this, number = m_groupNumber] {
            if (number == m_groupNumber)
                closeGroup();
        },
        Qt::QueuedConnection);
}
