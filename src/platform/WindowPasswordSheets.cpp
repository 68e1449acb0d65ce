#include "platform/WindowPasswordSheets.h"

#include "platform/Texts.h"
#include "platform/WindowSheets.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace {

const char *const fieldName = "passwordField";

QLabel *makeLabel(const QString &text, bool bold, QWidget *parent)
{
    auto *const label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setBold(bold);
    label->setFont(font);
    return label;
}

QDialogButtonBox *makeButtons(QDialog *dialog)
{
    auto *const buttons = new QDialogButtonBox(dialog);
    QPushButton *const open = buttons->addButton(texts::localized("platform.password.open"),
                                                 QDialogButtonBox::AcceptRole);
    open->setDefault(true);
    buttons->addButton(texts::localized("Cancel"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    return buttons;
}

QDialog *makeDialog(const PasswordSheet &sheet, QWidget *window)
{
    auto *const dialog = new QDialog(window);
    dialog->setObjectName(QStringLiteral("passwordSheet"));
    dialog->setWindowTitle(sheet.message);
    dialog->setMinimumWidth(380);
    auto *const field = new QLineEdit(dialog);
    field->setObjectName(QString::fromLatin1(fieldName));
    field->setEchoMode(QLineEdit::Password);
    auto *const row = new QFormLayout;
    row->addRow(texts::localized("platform.password.field"), field);
    auto *const layout = new QVBoxLayout(dialog);
    layout->setSpacing(10);
    layout->addWidget(makeLabel(sheet.message, true, dialog));
    layout->addWidget(makeLabel(sheet.informativeText, false, dialog));
    layout->addLayout(row);
    layout->addWidget(makeButtons(dialog));
    field->setFocus();
    return dialog;
}

} // namespace

WindowPasswordSheets::WindowPasswordSheets(WindowSheets &sheets)
    : m_sheets(sheets)
{}

void WindowPasswordSheets::askForPassword(const PasswordSheet &sheet,
                                          std::function<void(const std::optional<QString> &)> ended)
{
    m_sheets.presentDialog(
        [sheet](QWidget *window) { return makeDialog(sheet, window); },
        [ended = std::move(ended)](const QDialog &dialog, int result) {
            if (result == QDialog::Accepted)
                ended(dialog.findChild<QLineEdit *>(QString::fromLatin1(fieldName))->text());
            else
                ended({});
        });
}
