#include "imageview/Picture.h"

#include "imageview/Resampling.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int smallestLongerSide = 320;
constexpr double largestEnlargement = 10;

/// Lays premultiplied pixels on white, in place.
void layOnWhite(QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        auto *pixel = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (const QRgb *end = pixel + image.width(); pixel != end; ++pixel) {
            const int white = 255 - qAlpha(*pixel);
            *pixel = qRgb(qRed(*pixel) + white, qGreen(*pixel) + white, qBlue(*pixel) + white);
        }
    }
}

/// Whether the pixels are shades of gray that 8 bits hold.
bool isOpaqueGray(const QImage &image)
{
    switch (image.format()) {
    case QImage::Format_Grayscale8:
    case QImage::Format_Grayscale16:
        return true;
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
    case QImage::Format_Indexed8:
        return image.allGray() && !image.hasAlphaChannel();
    default:
        return false;
    }
}

/// The pixels without transparency, in one of the two formats of pictures; null without memory.
QImage opaque(QImage image)
{
    image.setDevicePixelRatio(1);
    if (isOpaqueGray(image)) {
        image.convertTo(QImage::Format_Grayscale8);
    } else if (image.hasAlphaChannel()) {
        image.convertTo(QImage::Format_ARGB32_Premultiplied);
        if (!image.isNull() && image.bits() != nullptr) {
            layOnWhite(image);
            image.reinterpretAsFormat(QImage::Format_RGB32);
        }
    } else {
        image.convertTo(QImage::Format_RGB32);
    }
    return image;
}

QImage enlarged(const QImage &rep, double factor, FloatSize size)
{
    QImage pixels(static_cast<int>(std::ceil(size.width)), static_cast<int>(std::ceil(size.height)),
                  QImage::Format_RGB32);
    if (pixels.isNull())
        return {};
    pixels.fill(Qt::white);
    QPainter painter(&pixels);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(factor, factor);
    painter.drawImage(0, 0, rep);
    return pixels;
}

QImage reduced(const QImage &pixels, int by)
{
    const auto direction = [by](int length) {
        return resampling::Direction{0, static_cast<double>(by), (length + by - 1) / by};
    };
    return resampling::resampled(pixels, direction(pixels.width()), direction(pixels.height()));
}

} // namespace

Picture::Picture(QImage pixels, FloatSize size)
    : m_pixels(std::move(pixels))
    , m_size(size)
{
    m_reduced[0] = reduced(m_pixels, reductions[0]);
    m_reduced[1] = reduced(m_reduced[0], reductions[1] / reductions[0]);
}

std::optional<Picture> Picture::fromImageRep(QImage rep)
{
    if (rep.isNull())
        return {};
    const int h = rep.height();
    const int w = rep.width();
    const int longer = h > w ? h : w;
    if (longer >= smallestLongerSide)
        return fromPixels(std::move(rep), {static_cast<float>(w), static_cast<float>(h)});
    rep.setDevicePixelRatio(1);
    const double factor =
        std::min(static_cast<double>(smallestLongerSide) / longer, largestEnlargement);
    const FloatSize size{static_cast<float>(w * factor), static_cast<float>(h * factor)};
    return fromPixels(enlarged(rep, factor, size), size);
}

std::optional<Picture> Picture::fromPixels(QImage pixels, FloatSize size)
{
    if (pixels.isNull() || static_cast<float>(pixels.width()) != std::ceil(size.width) ||
        static_cast<float>(pixels.height()) != std::ceil(size.height))
        return {};
    QImage opaquePixels = opaque(std::move(pixels));
    if (opaquePixels.isNull())
        return {};
    Picture picture(std::move(opaquePixels), size);
    if (picture.m_reduced[1].isNull())
        return {};
    return picture;
}
