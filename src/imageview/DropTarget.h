#pragma once

#include <Qt>

class QMimeData;

/// What something that takes drops answers while one comes.
class DropTarget
{
public:
    virtual ~DropTarget() = default;

    /// `draggingEntered:` says what a drop would do: copy, or nothing for a refused drag.
    virtual Qt::DropAction draggingEntered(const QMimeData *pasteboard) = 0;
    /// `draggingExited:` follows when the drag leaves or is given up, a refused one as well.
    virtual void draggingExited() = 0;
    /// `performDragOperation:` takes what was dropped, or says false.
    virtual bool performDragOperation(const QMimeData *pasteboard) = 0;
    /// `concludeDragOperation:` comes last of all.
    virtual void concludeDragOperation() = 0;
};
