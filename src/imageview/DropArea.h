#pragma once

#include <QObject>
#include <QPointer>

class DropTarget;
class QAbstractScrollArea;
class QDragEnterEvent;
class QDragMoveEvent;
class QDropEvent;
class QWindow;

/// Makes the whole of a scroll area, with all that lies in and on it, one place to drop things.
class DropArea : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of `area`; `target` lives as long as it.
    DropArea(QAbstractScrollArea &area, DropTarget &target);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void entered(QDragEnterEvent &event);
    void moved(QDragMoveEvent &event) const;
    void left();
    void dropped(QDropEvent &event);
    void watchRefusedDrag();
    void windowEvent(const QEvent &event);

    QAbstractScrollArea &m_area;
    DropTarget &m_target;
    bool m_accepted = false;
    QPointer<QWindow> m_watchedWindow;
};
