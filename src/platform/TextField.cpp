#include "platform/TextField.h"

#include "platform/NumberText.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace {

/// A popup, the menu bar or another window takes the keyboard for a while and gives it back:
/// the user has not left the field.
bool leavesField(Qt::FocusReason reason)
{
    return reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason &&
           reason != Qt::ActiveWindowFocusReason;
}

} // namespace

TextField::TextField(QWidget *parent)
    : QLineEdit(parent)
{
    connect(this, &QLineEdit::textEdited, this, [this] { m_editedByUser = true; });
}

double TextField::doubleValue() const { return numbertext::doubleValue(text()); }

int TextField::integerValue() const { return numbertext::integerValue(text()); }

void TextField::setDoubleValue(double value)
{
    setStringValue(QString::fromStdString(numbertext::general(value)));
}

void TextField::setStringValue(const QString &text)
{
    setText(text);
    m_editedByUser = false;
}

void TextField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (leavesField(event->reason()))
        takeTypedText();
}

void TextField::takeTypedText()
{
    if (m_editedByUser)
        commit();
}

void TextField::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        commit();
    QLineEdit::keyPressEvent(event);
}

void TextField::commit()
{
    if (m_editedByUser)
        showWhatIsRead();
    m_editedByUser = false;
    Q_EMIT committed();
}

void TextField::showWhatIsRead()
{
    const QString read = numbertext::readPart(text());
    if (read != text())
        setText(read);
}
