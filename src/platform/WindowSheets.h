#pragma once

#include "platform/Sheets.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <deque>
#include <functional>

class QDialog;

/// The sheets of one window: window-modal boxes, first in, first out, one at a time. File
/// panels and other dialogs of the window wait in the same queue.
class WindowSheets final : public QObject, public Sheets
{
    Q_OBJECT

public:
    /// When `window` is deleted, what is shown and what waits is dropped without an answer.
    explicit WindowSheets(QWidget *window, QObject *parent = nullptr);
    ~WindowSheets() override;

    void present(const Sheet &sheet, std::function<void(SheetAnswer)> ended) override;

    /// Makes the dialog as a child of the window when its turn comes; the queue deletes it.
    using MakeDialog = std::function<QDialog *(QWidget *window)>;
    /// Runs after the dialog was closed and before the next one opens; `result` is the
    /// dialog's QDialog::DialogCode.
    using DialogEnded = std::function<void(QDialog &dialog, int result)>;

    /// Queues any dialog of the window.
    void presentDialog(MakeDialog make, DialogEnded ended);

    /// Whether a sheet is up, or its end handler is running.
    [[nodiscard]] bool isShowing() const { return m_isShowing; }

private:
    struct Waiting
    {
        MakeDialog make;
        DialogEnded ended;
    };

    void showNext();
    void end(QDialog &dialog, int result, const DialogEnded &ended);
    void dropAll();

    QPointer<QWidget> m_window;
    QPointer<QDialog> m_dialog;
    std::deque<Waiting> m_waiting;
    bool m_isShowing = false;
};
