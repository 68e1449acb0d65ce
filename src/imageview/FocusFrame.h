#pragma once

#include <QWidget>

/// A line around the edge of a widget that says: what you type goes here.
class FocusFrame : public QWidget
{
    Q_OBJECT

public:
    static constexpr int thickness = 2;

    /// Hidden at first; lies over `framed` and follows its size.
    explicit FocusFrame(QWidget *framed);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow();
};
