#include "platform/SystemClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

void SystemClipboard::setText(const QString &text) { QGuiApplication::clipboard()->setText(text); }
