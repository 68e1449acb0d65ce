#pragma once

#include <QWidget>

class QLabel;
class QString;
class QToolButton;

/// The corner of the status bar that says what a long save is doing. The window goes on working
/// meanwhile, so it covers nothing, and takes no keys but Escape.
class SavingProgress : public QWidget
{
    Q_OBJECT

public:
    explicit SavingProgress(QWidget *parent = nullptr);

    /// The picture is being encoded; this can be cancelled.
    void showPreparing(const QString &fileName);
    /// The file is being written, which has to come to its end.
    void showWriting(const QString &fileName);

Q_SIGNALS:
    void cancelled();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    /// Escape cancels, where nobody else in the window has used it.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showStep(const char *textKey, const QString &fileName);

    QLabel *m_label;
    QToolButton *m_cancelButton;
};
