#include "document/WindowFrame.h"

#include <algorithm>

namespace windowframe {

FloatSize standardSize(FloatSize pictureView, FloatSize minimum)
{
    return {std::max(pictureView.width + marginWidth, minimum.width),
            std::max(pictureView.height + marginHeight, minimum.height)};
}

QRect placed(const QRect &frame, QSize size, const QRect &screen)
{
    const QSize fitting = size.boundedTo(screen.size());
    QRect result(QPoint(frame.left(), frame.bottom() + 1 - fitting.height()), fitting);
    if (result.right() > screen.right())
        result.moveRight(screen.right());
    if (result.left() < screen.left())
        result.moveLeft(screen.left());
    if (result.bottom() > screen.bottom())
        result.moveBottom(screen.bottom());
    if (result.top() < screen.top())
        result.moveTop(screen.top());
    return result;
}

} // namespace windowframe
