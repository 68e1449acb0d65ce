#include "capture/MarkerPreview.h"

#include "capture/MarkerDrawing.h"
#include "platform/DefaultLineStyle.h"
#include "platform/Texts.h"

#include <QPainter>

namespace {

/// Left free at both ends of the line.
constexpr double margin = 3.0;

} // namespace

MarkerPreview::MarkerPreview(QWidget *parent)
    : QFrame(parent)
{
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(texts::localized("capture.preview.name"));
    setToolTip(texts::localized("capture.preview.tip"));
}

void MarkerPreview::setPreview(const PlotStyle &style, int markerAndLine)
{
    if (markerAndLine >= 0 && markerAndLine <= 2) {
        m_marker = markerAndLine != 2;
        m_line = markerAndLine != 0;
    }
    m_color = style.color;
    m_size = style.size;
    m_thickness = style.thickness;
    m_shape = style.shape;
}

void MarkerPreview::setNeedsDisplay() { update(); }

QSize MarkerPreview::sizeHint() const { return {48, 24}; }

QSize MarkerPreview::minimumSizeHint() const { return {32, 20}; }

void MarkerPreview::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    if (!m_color)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_color->screenColor(), static_cast<qreal>(m_thickness), Qt::SolidLine,
                        defaultlinestyle::capStyle(), defaultlinestyle::joinStyle()));
    const double w = width();
    const double h = height();
    const double size = m_size;
    // The marker and the line are the same upside down, so the painter may stay as it is.
    if (m_marker)
        markerdrawing::drawMarker(painter, m_shape,
                                  QRectF(w * 0.5 - size * 0.5, h * 0.5 - size * 0.5, size, size));
    if (m_line)
        painter.drawLine(QPointF(margin, h * 0.5), QPointF(w - margin, h * 0.5));
}
