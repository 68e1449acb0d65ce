#pragma once

#include "capture/CaptureSurroundings.h"
#include "capture/MarkerDrawing.h"
#include "capture/PointList.h"

#include <QImage>
#include <QRect>
#include <QTransform>

#include <array>
#include <memory>

class QPainter;
class ZKConvCoordinate;

/// The markers and lines of all series as they were drawn last, kept for the visible part of the
/// view: while only the pointer moves they are copied, and what was scrolled into view is added.
/// Whatever changes what would be drawn makes the next drawing anew.
class MarkerLayer
{
public:
    /// Does what markerdrawing::drawDataMarkersWithScale() does. The painter is in view
    /// coordinates; its clip is the part worth keeping. Without a clip nothing is kept.
    void draw(QPainter &painter, float scale, const MarkerSource &source,
              const CapturePrefs &prefs);

private:
    struct Series
    {
        PointList list;
        std::shared_ptr<const ZKConvCoordinate> converter;
        PlotStyle style;
        int markerDraw = 0;

        /// Whether both are drawn alike, without looking at the points.
        [[nodiscard]] bool looksLike(const Series &other) const;
    };
    struct Content
    {
        std::array<Series, 10> series;
        QTransform toPixels; ///< from view points at the scale to pixels of the widget
        float scale = 0;

        [[nodiscard]] bool looksLike(const Content &other) const;
    };

    [[nodiscard]] static Content contentOf(const MarkerSource &source, const CapturePrefs &prefs);
    /// Makes m_kept show `part` of the content.
    void prepare(const QRect &part, const MarkerSource &source, const CapturePrefs &prefs);
    void drawInto(QImage &image, const QRect &part, const QRect &strip, const MarkerSource &source,
                  const CapturePrefs &prefs) const;

    Content m_content;
    QImage m_kept;    ///< the pixels of m_keptPart, transparent where nothing was drawn
    QRect m_keptPart; ///< in pixels from the widget's top left corner
};
