#pragma once

#include <QWidget>

class QHBoxLayout;
class QMenu;

/// What an empty window shows in place of a picture: what to do next, and the buttons for it.
class EmptyPictureHint : public QWidget
{
    Q_OBJECT

public:
    /// Lies over `area` and follows its size.
    explicit EmptyPictureHint(QWidget *area);

    /// Adds a button that offers `examples`, a menu that outlives this.
    void offer(QMenu &examples);

Q_SIGNALS:
    void openRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QHBoxLayout *m_buttons;
};
