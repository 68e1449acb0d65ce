#pragma once

#include "platform/Desktop.h"

#include <QPointer>
#include <QWidget>

/// The real desktop around one window.
class SystemDesktop final : public Desktop
{
public:
    /// `window` may be null or go away; the primary screen counts then.
    explicit SystemDesktop(QWidget *window);

    [[nodiscard]] FloatSize mainScreenSize() const override;
    [[nodiscard]] QPoint pointerPosition() const override;
    [[nodiscard]] Qt::KeyboardModifiers modifiers() const override;

private:
    QPointer<QWidget> m_window;
};
