#include "imageview/PictureKeys.h"

namespace {

constexpr double coarseStep = 10;
constexpr double fineStep = 0.1;

/// The arrow keys of the number pad are as good as the others.
Qt::KeyboardModifiers withoutPad(Qt::KeyboardModifiers modifierFlags)
{
    return modifierFlags & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
}

std::optional<double> stepFor(Qt::KeyboardModifiers modifierFlags)
{
    if (modifierFlags == Qt::NoModifier)
        return 1;
    if (modifierFlags == Qt::ShiftModifier)
        return coarseStep;
    if (modifierFlags == Qt::AltModifier)
        return fineStep;
    return std::nullopt;
}

} // namespace

std::optional<QPointF> picturekeys::wayOf(int key, Qt::KeyboardModifiers modifierFlags)
{
    const std::optional<double> step = stepFor(withoutPad(modifierFlags));
    if (!step)
        return std::nullopt;
    switch (key) {
    case Qt::Key_Left:
        return QPointF(-*step, 0);
    case Qt::Key_Right:
        return QPointF(*step, 0);
    case Qt::Key_Up:
        return QPointF(0, *step);
    case Qt::Key_Down:
        return QPointF(0, -*step);
    default:
        return std::nullopt;
    }
}

int picturekeys::directionOf(int key, Qt::KeyboardModifiers modifierFlags)
{
    if (withoutPad(modifierFlags) != Qt::NoModifier)
        return 0;
    if (key == Qt::Key_PageDown)
        return 1;
    return key == Qt::Key_PageUp ? -1 : 0;
}
