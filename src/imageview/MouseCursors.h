#pragma once

#include <QCursor>

#include <map>

/// The cursors of the modes for which the desktop has none, drawn from our own pictures as sharp
/// as the screen is.
class MouseCursors
{
public:
    /// The cursor of ZoomInMode to MeasureMode, on a screen with `pixelRatio` pixels per point.
    [[nodiscard]] const QCursor &cursorOfMode(int mode, qreal pixelRatio);

private:
    std::map<int, QCursor> m_drawn; ///< at m_pixelRatio
    qreal m_pixelRatio = 0;
};
