#pragma once

#include "geometry/FloatGeometry.h"

#include <QPoint>
#include <Qt>

/// What the program asks of the desktop around it; handed in, so that tests can answer.
class Desktop
{
public:
    virtual ~Desktop() = default;

    /// The full size (points) of the screen that shows the document's window, else of the primary
    /// one.
    [[nodiscard]] virtual FloatSize mainScreenSize() const = 0;

    /// The pointer in global, y-down desktop pixels, outside the event stream.
    [[nodiscard]] virtual QPoint pointerPosition() const = 0;

    /// The modifier keys held now.
    [[nodiscard]] virtual Qt::KeyboardModifiers modifiers() const = 0;
};
