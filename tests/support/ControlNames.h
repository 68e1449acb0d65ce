#pragma once

#include <QAccessible>
#include <QAccessibleInterface>
#include <QStringList>
#include <QWidget>

/// What a screen reader calls the controls of a window.
namespace controlnames {

/// The controls that take the keyboard and have no name.
inline QStringList unnamed(const QWidget &window)
{
    QStringList found;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        // What gives its focus to another, or is a part of another control, is no control.
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() != nullptr ||
            widget->objectName().startsWith(QStringLiteral("qt_")) ||
            widget->inherits("QComboBoxListView"))
            continue;
        const QAccessibleInterface *const control = QAccessible::queryAccessibleInterface(widget);
        if (control == nullptr || control->text(QAccessible::Name).trimmed().isEmpty())
            found += QString::fromLatin1(widget->metaObject()->className()) + u' ' +
                     widget->objectName();
    }
    return found;
}

} // namespace controlnames
