#include "capture/MarkerStamp.h"

#include <QPainter>

#include <cmath>
#include <cstdlib>

namespace {

/// Copies no farther apart, in steps, look like one.
constexpr std::int64_t sameToTheEye = 1;

} // namespace

MarkerStamp::MarkerStamp(Drawing drawing, double reach, bool opaque)
    : m_drawing(std::move(drawing))
    , m_middle(static_cast<int>(std::ceil(reach)))
    , m_opaque(opaque)
{}

void MarkerStamp::putAt(QPainter &painter, QPointF centre)
{
    const std::int64_t x = std::llround(centre.x() * steps);
    const std::int64_t y = std::llround(centre.y() * steps);
    if (m_opaque && m_last && std::abs(x - m_last->first) <= sameToTheEye &&
        std::abs(y - m_last->second) <= sameToTheEye)
        return;
    m_last = std::pair(x, y);
    const auto stepX = static_cast<int>(((x % steps) + steps) % steps);
    const auto stepY = static_cast<int>(((y % steps) + steps) % steps);
    const auto pixelX = static_cast<int>((x - stepX) / steps);
    const auto pixelY = static_cast<int>((y - stepY) / steps);
    painter.drawImage(QPoint(pixelX - m_middle, pixelY - m_middle), imageFor(stepX, stepY));
}

const QImage &MarkerStamp::imageFor(int stepX, int stepY)
{
    QImage &image =
        m_images.at(static_cast<std::size_t>(stepY) * steps + static_cast<std::size_t>(stepX));
    if (image.isNull()) {
        const int side = 2 * m_middle + 1;
        image = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        m_drawing(painter,
                  QPointF(m_middle + double(stepX) / steps, m_middle + double(stepY) / steps));
    }
    return image;
}
