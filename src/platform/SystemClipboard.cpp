#include "platform/SystemClipboard.h"

#include "platform/TableAsHtml.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

void SystemClipboard::setText(const QString &text) { QGuiApplication::clipboard()->setText(text); }

void SystemClipboard::setTable(const QString &text)
{
    auto *const content = new QMimeData; // the clipboard takes it over
    content->setText(text);
    content->setHtml(tableashtml::fromText(text));
    QGuiApplication::clipboard()->setMimeData(content);
}
