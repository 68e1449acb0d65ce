#pragma once

#include "platform/ChangeKind.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// The undo history of one document.
///
/// Whoever starts a change registers its inverse. Everything registered while one
/// user event is handled forms one group; undo runs the inverses of the last group
/// in reverse order, and what they register becomes the redo group of the same name.
///
/// A group is closed by closeGroup(), undo() and redo(), before the next input event that
/// reaches one of the program's windows, and at the end of the event loop's pass at the latest.
class UndoManager : public QObject
{
    Q_OBJECT

public:
    /// The identity of the object that an action will change.
    using Target = const void *;

    explicit UndoManager(QObject *parent = nullptr);
    ~UndoManager() override;

    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    [[nodiscard]] bool isUndoing() const;
    [[nodiscard]] bool isRedoing() const;

    /// The name of the group that undo (redo) would run next; empty without one.
    [[nodiscard]] QString undoActionName() const;
    [[nodiscard]] QString redoActionName() const;

    /// The names of all groups that undo (redo) would run, the next one first.
    [[nodiscard]] QStringList undoActionNames() const;
    [[nodiscard]] QStringList redoActionNames() const;

    /// Registers the inverse of a change to `target`: on the undo history, or on the
    /// redo history while undo runs. A new change outside undo and redo drops the redo history.
    void registerUndo(Target target, std::function<void()> inverse);

    /// Names the group of the current event; the redo of that group bears the name too. While
    /// undo or redo runs the name stays that of the group that is run.
    void setActionName(const QString &name);

    /// Drops the actions of `target`, and only those, from both histories, from the open group
    /// and from what a running undo has still to run. A group that loses its last action is
    /// dropped.
    void removeAllActionsWithTarget(Target target);

    /// Ends the group of the current event now. Without actions nothing is kept.
    void closeGroup();

    /// Runs the last undo (redo) group; an open group is closed first. Nothing to do: nothing
    /// happens.
    void undo();
    void redo();

Q_SIGNALS:
    /// The document's change count is to move: Done when a group closes, Undone after an
    /// undo, Redone after a redo.
    void changeCounted(ChangeKind kind);

    /// What can be undone or redone, or its name, may have changed.
    void historyChanged();

private:
    struct Action
    {
        Target target;
        std::function<void()> inverse;
    };
    struct Group
    {
        QString name;
        std::vector<Action> actions;
    };
    enum class Running { Nothing, Undo, Redo };

    bool eventFilter(QObject *watched, QEvent *event) override;
    void openGroup();
    void closeGroupLater();
    void run(std::vector<Group> &from, std::vector<Group> &to, Running what, ChangeKind kind);

    static QStringList namesFromLast(const std::vector<Group> &groups);
    static void removeActions(Target target, std::vector<Group> &groups);

    std::vector<Group> m_undoGroups;
    std::vector<Group> m_redoGroups;
    Group m_openGroup;
    bool m_groupIsOpen = false;
    int m_groupNumber = 0; ///< tells a group's own deferred closing from an older one's

    Running m_running = Running::Nothing;
    Group m_runningGroup; ///< what undo or redo has still to run
    Group m_inverseGroup; ///< what the running actions have registered
};
