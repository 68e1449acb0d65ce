#pragma once

#include <QFrame>

class QLabel;
class QProgressBar;
class QPushButton;

/// The panel over the picture that shows how far the reading of a large file has come. It
/// blocks nothing, and offers to stop.
class ReadingProgress : public QFrame
{
    Q_OBJECT

public:
    /// Keeps itself in the middle of `host`, which becomes its parent.
    explicit ReadingProgress(QWidget &host);

    void showFor(const QString &fileName);
    void setPercent(int percent);
    /// For work of which nobody knows how far it has come.
    void showBusyFor(const QString &fileName);

Q_SIGNALS:
    void cancelled();
    /// The panel has come or gone.
    void visibilityChanged(bool visible);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void appear();
    void moveToMiddle();
    void takeFocusIfNobodyHasIt();

    QLabel *m_label;
    QProgressBar *m_bar;
    QPushButton *m_cancelButton;
};
