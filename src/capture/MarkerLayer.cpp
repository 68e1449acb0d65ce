#include "capture/MarkerLayer.h"

#include "conversion/ZKConvCoordinate.h"

#include <QPainter>
#include <QRegion>

#include <algorithm>
#include <utility>

namespace {

bool isEmpty(const MarkerSource &source)
{
    for (int series = 0; series < 10; ++series) {
        if (!source.list(series).isEmpty())
            return false;
    }
    return true;
}

QImage transparentImage(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

bool MarkerLayer::Series::looksLike(const Series &other) const
{
    return list.isSameStateAs(other.list) && converter == other.converter && style == other.style &&
           markerDraw == other.markerDraw;
}

bool MarkerLayer::Content::looksLike(const Content &other) const
{
    return scale == other.scale && toPixels == other.toPixels &&
           std::equal(series.begin(), series.end(), other.series.begin(),
                      [](const Series &a, const Series &b) { return a.looksLike(b); });
}

MarkerLayer::Content MarkerLayer::contentOf(const MarkerSource &source, const CapturePrefs &prefs)
{
    Content content;
    for (std::size_t i = 0; i < content.series.size(); ++i) {
        const int series = static_cast<int>(i);
        content.series.at(i) = {source.list(series), source.converterOf(series),
                                prefs.plotPrefsForSeries(series), source.markerDrawOf(series)};
    }
    return content;
}

void MarkerLayer::draw(QPainter &painter, float scale, const MarkerSource &source,
                       const CapturePrefs &prefs)
{
    if (!painter.hasClipping() || isEmpty(source)) {
        markerdrawing::drawDataMarkersWithScale(painter, scale, source, prefs);
        return;
    }
    const double pixelsPerPoint = painter.device()->devicePixelRatioF();
    Content content = contentOf(source, prefs);
    content.scale = scale;
    content.toPixels =
        painter.worldTransform() * QTransform::fromScale(pixelsPerPoint, pixelsPerPoint);
    const QRect part = content.toPixels.mapRect(painter.clipBoundingRect()).toAlignedRect();
    if (!content.looksLike(m_content)) {
        m_content = std::move(content);
        m_keptPart = QRect();
    }
    prepare(part, source, prefs);

    painter.save();
    painter.resetTransform();
    painter.drawImage(QPointF(m_keptPart.topLeft()) / pixelsPerPoint, m_kept);
    painter.restore();
}

void MarkerLayer::prepare(const QRect &part, const MarkerSource &source, const CapturePrefs &prefs)
{
    if (m_keptPart == part)
        return;
    const QRect common = m_keptPart.intersected(part);
    QImage image = transparentImage(part.size());
    if (!common.isEmpty()) {
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        m_kept.setDevicePixelRatio(1);
        painter.drawImage(common.topLeft() - part.topLeft(), m_kept,
                          common.translated(-m_keptPart.topLeft()));
    }
    for (const QRect &strip : QRegion(part) - common)
        drawInto(image, part, strip, source, prefs);
    m_kept = std::move(image);
    m_kept.setDevicePixelRatio(m_content.toPixels.m11());
    m_keptPart = part;
}

void MarkerLayer::drawInto(QImage &image, const QRect &part, const QRect &strip,
                           const MarkerSource &source, const CapturePrefs &prefs) const
{
    QPainter painter(&image);
    painter.translate(-part.topLeft());
    painter.setClipRect(strip);
    painter.setWorldTransform(m_content.toPixels, true);
    markerdrawing::drawDataMarkersWithScale(painter, m_content.scale, source, prefs);
}
