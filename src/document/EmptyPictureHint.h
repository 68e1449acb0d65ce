#pragma once

#include <QWidget>

/// What an empty window shows in place of a picture: what to do next, and the button for it.
class EmptyPictureHint : public QWidget
{
    Q_OBJECT

public:
    /// Lies over `area` and follows its size.
    explicit EmptyPictureHint(QWidget *area);

Q_SIGNALS:
    void openRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
