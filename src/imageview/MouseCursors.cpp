#include "imageview/MouseCursors.h"

#include "imageview/MouseDownMode.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QPoint>
#include <QSvgRenderer>

namespace {

struct CursorImage
{
    const char *name;
    QPoint hotSpot; ///< points from the top left corner
};

CursorImage imageOf(int mode)
{
    switch (mode) {
    case ZoomInMode:
        return {"zoom_in", {9, 9}};
    case ZoomOutMode:
        return {"zoom_out", {9, 9}};
    case TrimMode:
        return {"scissors", {7, 7}};
    default:
        return {"info_on", {7, 7}};
    }
}

QCursor drawn(const CursorImage &image, qreal pixelRatio)
{
    QSvgRenderer renderer(QStringLiteral(":/cursors/%1.svg").arg(QLatin1String(image.name)));
    QPixmap pixmap(renderer.defaultSize() * pixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(pixelRatio);
    // X11 looks for the hot spot in the pixels of the picture, other window systems in points.
    const bool inPixels = QGuiApplication::platformName() == QLatin1String("xcb");
    const QPoint hotSpot = inPixels ? image.hotSpot * pixelRatio : image.hotSpot;
    return QCursor(pixmap, hotSpot.x(), hotSpot.y());
}

} // namespace

const QCursor &MouseCursors::cursorOfMode(int mode, qreal pixelRatio)
{
    if (m_pixelRatio != pixelRatio) {
        m_drawn.clear();
        m_pixelRatio = pixelRatio;
    }
    const auto known = m_drawn.find(mode);
    if (known != m_drawn.end())
        return known->second;
    return m_drawn.emplace(mode, drawn(imageOf(mode), pixelRatio)).first->second;
}
