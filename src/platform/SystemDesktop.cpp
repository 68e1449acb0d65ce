#include "platform/SystemDesktop.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

SystemDesktop::SystemDesktop(QWidget *window)
    : m_window(window)
{}

FloatSize SystemDesktop::mainScreenSize() const
{
    const QScreen *screen = m_window ? m_window->screen() : nullptr;
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return {};
    const QSize size = screen->geometry().size();
    return {static_cast<float>(size.width()), static_cast<float>(size.height())};
}

QPoint SystemDesktop::pointerPosition() const { return QCursor::pos(); }

Qt::KeyboardModifiers SystemDesktop::modifiers() const
{
    // Where the desktop cannot be asked, Qt answers with what the last event said.
    return QGuiApplication::queryKeyboardModifiers();
}
