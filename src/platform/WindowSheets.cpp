#include "platform/WindowSheets.h"

#include <QDialog>
#include <QFont>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace {

void makeTitleBold(QMessageBox &box)
{
    auto *const title = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    if (!title)
        return;
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);
}

QMessageBox::Icon iconOf(const Sheet &sheet)
{
    if (sheet.isInformation)
        return QMessageBox::Information;
    return sheet.alternateButton.isEmpty() ? QMessageBox::Warning : QMessageBox::Question;
}

QDialog *makeBox(const Sheet &sheet, QWidget *window)
{
    auto *const box = new QMessageBox(window);
    const bool isQuestion = !sheet.alternateButton.isEmpty();
    box->setIcon(iconOf(sheet));
    box->setTextFormat(Qt::PlainText);
    box->setText(sheet.message);
    box->setInformativeText(sheet.informativeText);
    makeTitleBold(*box);
    QPushButton *const normal = box->addButton(sheet.defaultButton, QMessageBox::AcceptRole);
    box->setDefaultButton(normal);
    box->setEscapeButton(normal);
    if (isQuestion)
        box->setEscapeButton(box->addButton(sheet.alternateButton, QMessageBox::RejectRole));
    if (!sheet.otherButton.isEmpty())
        box->addButton(sheet.otherButton, QMessageBox::DestructiveRole);
    return box;
}

/// Escape and closing press a button too, but closing tells so only after the box has ended.
SheetAnswer answerOf(const QDialog &dialog)
{
    const auto &box = static_cast<const QMessageBox &>(dialog);
    const QAbstractButton *const pressed =
        box.clickedButton() ? box.clickedButton() : box.escapeButton();
    if (pressed == box.defaultButton())
        return SheetAnswer::Default;
    return pressed == box.escapeButton() ? SheetAnswer::Alternate : SheetAnswer::Other;
}

} // namespace

WindowSheets::WindowSheets(QWidget *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
{
    connect(window, &QObject::destroyed, this, &WindowSheets::dropAll);
}

WindowSheets::~WindowSheets()
{
    if (!m_dialog)
        return;
    m_dialog->disconnect(this);
    m_dialog->hide();
    m_dialog->deleteLater();
}

void WindowSheets::present(const Sheet &sheet, std::function<void(SheetAnswer)> ended)
{
    presentDialog([sheet](QWidget *window) { return makeBox(sheet, window); },
                  [ended = std::move(ended)](const QDialog &dialog, int) {
                      if (ended)
                          ended(answerOf(dialog));
                  });
}

void WindowSheets::presentDialog(MakeDialog make, DialogEnded ended)
{
    if (!m_window)
        return;
    m_waiting.push_back({std::move(make), std::move(ended)});
    if (!m_isShowing)
        showNext();
}

void WindowSheets::showNext()
{
    if (m_waiting.empty())
        return;
    const Waiting next = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_isShowing = true;
    QDialog *const dialog = next.make(m_window);
    m_dialog = dialog;
    connect(dialog, &QDialog::finished, this,
            [this, dialog, ended = next.ended](int result) { end(*dialog, result, ended); });
    dialog->open();
}

void WindowSheets::end(QDialog &dialog, int result, const DialogEnded &ended)
{
    // The end handler may close the document and with it this queue and the dialog.
    const QPointer<WindowSheets> self(this);
    dialog.deleteLater();
    m_dialog = nullptr;
    const DialogEnded handler = ended;
    handler(dialog, result);
    if (!self)
        return;
    m_isShowing = false;
    showNext();
}

void WindowSheets::dropAll()
{
    m_waiting.clear();
    m_dialog = nullptr;
    m_isShowing = false;
}
