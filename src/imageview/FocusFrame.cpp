#include "imageview/FocusFrame.h"

#include <QEvent>
#include <QPainter>

FocusFrame::FocusFrame(QWidget *framed)
    : QWidget(framed)
{
    setObjectName(QStringLiteral("focusFrame"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    framed->installEventFilter(this);
    hide();
    follow();
}

// Only the edge is covered, so that what is inside scrolls without being painted anew.
void FocusFrame::follow()
{
    const QRect edge = parentWidget()->rect();
    setGeometry(edge);
    setMask(QRegion(edge).subtracted(edge.adjusted(thickness, thickness, -thickness, -thickness)));
    raise();
}

bool FocusFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        follow();
    return QWidget::eventFilter(watched, event);
}

void FocusFrame::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Highlight));
}
