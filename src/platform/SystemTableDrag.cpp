#include "platform/SystemTableDrag.h"

#include "platform/TableContent.h"

#include <QCoreApplication>
#include <QDrag>

void SystemTableDrag::drag(const QString &text)
{
    // The window may close while this goes on; the drag, which deletes itself, outlives it.
    auto *const drag = new QDrag(QCoreApplication::instance());
    drag->setMimeData(tablecontent::fromText(text).release());
    drag->exec(Qt::CopyAction);
}
