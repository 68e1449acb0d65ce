#include "imageview/ScaledImage.h"

#include "imageview/Resampling.h"

#include <QPainter>
#include <QRegion>
#include <QTransform>

#include <cmath>
#include <cstring>
#include <utility>

namespace {

/// How far a reduced copy may be enlarged before more pixels are worth their time.
constexpr double toleratedEnlargement = 1.1;

FloatSize scaledSize(FloatSize size, float scale, float rotation)
{
    if (rotation == 90 || rotation == 270)
        return {size.height * scale, size.width * scale};
    return {size.width * scale, size.height * scale};
}

/// `rect`, in points, in screen pixels, with all pixels that it touches.
QRect inPixels(const QRect &rect, double pixelsPerPoint)
{
    const int left = static_cast<int>(std::floor(rect.left() * pixelsPerPoint));
    const int top = static_cast<int>(std::floor(rect.top() * pixelsPerPoint));
    const int right = static_cast<int>(std::ceil((rect.left() + rect.width()) * pixelsPerPoint));
    const int bottom = static_cast<int>(std::ceil((rect.top() + rect.height()) * pixelsPerPoint));
    return {left, top, right - left, bottom - top};
}

/// Copies the pixels of `part` from one RGB32 image to another; both say where they begin.
void copyPart(const QImage &from, QPoint fromOrigin, QImage &to, QPoint toOrigin, const QRect &part)
{
    const auto bytes = static_cast<std::size_t>(part.width()) * sizeof(QRgb);
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const auto *source = reinterpret_cast<const QRgb *>(from.constScanLine(y - fromOrigin.y()));
        auto *target = reinterpret_cast<QRgb *>(to.scanLine(y - toOrigin.y()));
        std::memcpy(target + (part.left() - toOrigin.x()), source + (part.left() - fromOrigin.x()),
                    bytes);
    }
}

/// Draws `part`, given in screen pixels, of an image that begins at `origin`.
void drawPart(QPainter &painter, const QImage &image, QPoint origin, const QRect &part)
{
    const double pixelsPerPoint = image.devicePixelRatio();
    painter.drawImage(QPointF(part.topLeft()) / pixelsPerPoint, image,
                      QRectF(part.translated(-origin)));
}

} // namespace

ScaledImage::ScaledImage(Picture picture, float scale, float rotation)
    : m_picture(std::move(picture))
    , m_scale(scale)
    , m_rotation(rotation)
    , m_size(scaledSize(m_picture.size(), scale, rotation))
{}

void ScaledImage::draw(QPainter &painter, const QRect &dirty, const QRect &visible)
{
    const double pixelsPerPoint = painter.device()->devicePixelRatioF();
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const QRect part = inPixels(dirty, pixelsPerPoint);
    if (visible.contains(dirty)) {
        prepare(inPixels(visible, pixelsPerPoint), pixelsPerPoint);
        drawPart(painter, m_kept, m_keptPart.topLeft(), part);
    } else {
        QImage image = rendered(part, pixelsPerPoint);
        image.setDevicePixelRatio(pixelsPerPoint);
        drawPart(painter, image, part.topLeft(), part);
    }
    painter.restore();
}

void ScaledImage::prepare(const QRect &part, double pixelsPerPoint)
{
    const bool sameScreen = m_pixelsPerPoint == pixelsPerPoint;
    if (sameScreen && m_keptPart.contains(part))
        return;
    const QRect common = sameScreen ? m_keptPart.intersected(part) : QRect();
    if (common.isEmpty()) {
        m_kept = rendered(part, pixelsPerPoint);
    } else {
        QImage image(part.size(), QImage::Format_RGB32);
        copyPart(m_kept, m_keptPart.topLeft(), image, part.topLeft(), common);
        for (const QRect &strip : QRegion(part) - common)
            copyPart(rendered(strip, pixelsPerPoint), strip.topLeft(), image, part.topLeft(),
                     strip);
        m_kept = std::move(image);
    }
    m_kept.setDevicePixelRatio(pixelsPerPoint);
    m_keptPart = part;
    m_pixelsPerPoint = pixelsPerPoint;
}

QImage ScaledImage::rendered(const QRect &part, double pixelsPerPoint) const
{
    const double scale = m_scale * pixelsPerPoint;
    const QImage *source = &m_picture.pixels();
    double sourceScale = scale; // screen pixels per pixel of the source
    for (std::size_t i = 0; i < Picture::reductions.size(); ++i) {
        const double reducedScale = Picture::reductions.at(i) * scale;
        if (reducedScale <= toleratedEnlargement) {
            source = &m_picture.reducedPixels(i);
            sourceScale = reducedScale;
        }
    }

    // Where the part lies along the upright picture's columns and rows, in screen pixels.
    const double width = m_picture.size().width * scale;
    const double height = m_picture.size().height * scale;
    double column = part.left();
    double row = part.top();
    QSize size = part.size();
    if (m_rotation == 90) {
        column = width - part.top() - part.height();
        row = part.left();
        size.transpose();
    } else if (m_rotation == 180) {
        column = width - part.left() - part.width();
        row = height - part.top() - part.height();
    } else if (m_rotation == 270) {
        column = part.top();
        row = height - part.left() - part.width();
        size.transpose();
    }

    const double step = 1 / sourceScale;
    QImage image = resampling::resampled(*source, {column * step, step, size.width()},
                                         {row * step, step, size.height()});
    image.convertTo(QImage::Format_RGB32);
    if (m_rotation == 90 || m_rotation == 180 || m_rotation == 270)
        image = image.transformed(QTransform().rotate(-static_cast<qreal>(m_rotation)));
    return image;
}
