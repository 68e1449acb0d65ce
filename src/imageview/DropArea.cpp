#include "imageview/DropArea.h"

#include "imageview/DropTarget.h"

#include <QAbstractScrollArea>
#include <QDropEvent>
#include <QWindow>

DropArea::DropArea(QAbstractScrollArea &area, DropTarget &target)
    : QObject(&area)
    , m_area(area)
    , m_target(target)
{
    area.setAcceptDrops(true); // and its viewport with it
    area.installEventFilter(this);
    area.viewport()->installEventFilter(this);
}

bool DropArea::eventFilter(QObject *watched, QEvent *event)
{
    if (watched->isWindowType()) {
        windowEvent(*event);
        return false;
    }
    switch (event->type()) {
    case QEvent::DragEnter:
        entered(*static_cast<QDragEnterEvent *>(event));
        return true;
    case QEvent::DragMove:
        moved(*static_cast<QDragMoveEvent *>(event));
        return true;
    case QEvent::DragLeave:
        left();
        return true;
    case QEvent::Drop:
        dropped(*static_cast<QDropEvent *>(event));
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void DropArea::entered(QDragEnterEvent &event)
{
    const bool canCopy = event.possibleActions().testFlag(Qt::CopyAction);
    m_accepted = m_target.draggingEntered(event.mimeData()) == Qt::CopyAction && canCopy;
    if (m_accepted) {
        event.setDropAction(Qt::CopyAction);
        event.accept();
        return;
    }
    if (!canCopy)
        m_target.draggingExited();
    event.ignore();
    watchRefusedDrag();
}

void DropArea::moved(QDragMoveEvent &event) const
{
    if (!m_accepted) {
        event.ignore();
        return;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

void DropArea::left()
{
    m_accepted = false;
    m_target.draggingExited();
}

void DropArea::dropped(QDropEvent &event)
{
    m_accepted = false;
    if (m_target.performDragOperation(event.mimeData())) {
        event.setDropAction(Qt::CopyAction);
        event.accept();
    } else {
        event.ignore();
    }
    m_target.concludeDragOperation();
}

// Widgets that refuse a drag hear no more of it; the window sees where it goes.
void DropArea::watchRefusedDrag()
{
    m_watchedWindow = m_area.window()->windowHandle();
    if (m_watchedWindow != nullptr)
        m_watchedWindow->installEventFilter(this);
}

void DropArea::windowEvent(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::DragMove: {
        const QPoint inWindow = static_cast<const QDragMoveEvent &>(event).position().toPoint();
        if (m_area.rect().contains(m_area.mapFrom(m_area.window(), inWindow)))
            return;
        break;
    }
    case QEvent::DragEnter:
    case QEvent::DragLeave:
    case QEvent::Drop:
        break;
    default:
        return;
    }
    m_watchedWindow->removeEventFilter(this);
    left();
}
