#include "platform/SystemTableDrag.h"

#include "platform/TableContent.h"

#include <QDrag>
#include <QWidget>

void SystemTableDrag::drag(QWidget &from, const QString &text)
{
    auto *const drag = new QDrag(&from); // deletes itself afterwards
    drag->setMimeData(tablecontent::fromText(text).release());
    drag->exec(Qt::CopyAction);
}
