#pragma once

#include "platform/Desktop.h"

/// A desktop that answers what the test has set.
class FakeDesktop final : public Desktop
{
public:
    [[nodiscard]] FloatSize mainScreenSize() const override { return screenSize; }
    [[nodiscard]] QPoint pointerPosition() const override { return pointer; }
    [[nodiscard]] Qt::KeyboardModifiers modifiers() const override { return heldModifiers; }

    FloatSize screenSize{1280, 1024};
    QPoint pointer;
    Qt::KeyboardModifiers heldModifiers = Qt::NoModifier;
};
