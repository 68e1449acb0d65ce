#include "document/WindowFrame.h"

#include <algorithm>

namespace {

// Far beyond every desktop, and safe to calculate with.
constexpr float furthest = 1'000'000;

int pixels(float length)
{
    return static_cast<int>(std::max(-furthest, std::min(length, furthest)));
}

/// Whether a frame that sticks out of the screen stands as somebody may have put it: not larger
/// than the screen, with its title bar below the top and most of its width and height in view.
bool isStillAtHand(const QRect &frame, const QRect &screen)
{
    const QRect shown = frame.intersected(screen);
    return frame.width() <= screen.width() && frame.height() <= screen.height() &&
           frame.top() >= screen.top() && 2 * shown.width() > frame.width() &&
           2 * shown.height() > frame.height();
}

} // namespace

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

FloatRect toBottomLeft(const QRect &frame, const QRect &primaryScreen)
{
    return {{static_cast<float>(frame.left()),
             static_cast<float>(primaryScreen.bottom() - frame.bottom())},
            {static_cast<float>(frame.width()), static_cast<float>(frame.height())}};
}

QRect fromBottomLeft(const FloatRect &frame, const QRect &primaryScreen)
{
    const QSize size(pixels(frame.size.width), pixels(frame.size.height));
    const int top = primaryScreen.bottom() + 1 - pixels(frame.origin.y) - size.height();
    return {QPoint(pixels(frame.origin.x), top), size};
}

QRect restored(const QRect &frame, QSize minimum, const QList<QRect> &screens)
{
    const QRect raised(frame.topLeft(), frame.size().expandedTo(minimum));
    const auto shownOn = [&raised](const QRect &screen) {
        const QRect shown = raised.intersected(screen);
        return qint64{shown.width()} * shown.height();
    };
    const auto best = std::max_element(
        screens.begin(), screens.end(),
        [&shownOn](const QRect &a, const QRect &b) { return shownOn(a) < shownOn(b); });
    if (best == screens.end() || isStillAtHand(raised, *best))
        return raised;
    return placed(raised, raised.size(), *best);
}

} // namespace windowframe
