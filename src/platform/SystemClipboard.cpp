#include "platform/SystemClipboard.h"

#include "platform/TableContent.h"

#include <QClipboard>
#include <QGuiApplication>

void SystemClipboard::setText(const QString &text) { QGuiApplication::clipboard()->setText(text); }

void SystemClipboard::setTable(const QString &text)
{
    QGuiApplication::clipboard()->setMimeData(tablecontent::fromText(text).release());
}
