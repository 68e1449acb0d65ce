#include "platform/SystemPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>

SystemPasteboard::SystemPasteboard()
{
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &Pasteboard::changed);
}

const QMimeData *SystemPasteboard::content() const
{
    return QGuiApplication::clipboard()->mimeData();
}
