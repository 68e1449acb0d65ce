#include "capture/GuideLines.h"
#include "platform/DefaultLineStyle.h"

#include <QPainter>

#include <cmath>

namespace {

float length(FloatPoint vector) { return std::sqrt(vector.x * vector.x + vector.y * vector.y); }

bool isFinite(const FloatRect &rect)
{
    return std::isfinite(rect.origin.x) && std::isfinite(rect.origin.y) &&
           std::isfinite(rect.size.width) && std::isfinite(rect.size.height);
}

void stroke(QPainter &painter, const std::optional<ZKLineSegment> &line)
{
    if (!line)
        return;
    const FloatPoint from = line->getEndNSPoint1();
    const FloatPoint to = line->getEndNSPoint2();
    painter.drawLine(QPointF(from.x, from.y), QPointF(to.x, to.y));
}

} // namespace

GuideLines GuideLines::straight(const GuideFrame &frame, FloatRect trimmedBy)
{
    GuideLines lines;
    lines.m_guide1 = ZKLineSegment::lineWithNSPoint(frame.origin, frame.basis1, trimmedBy);
    lines.m_guide2 = ZKLineSegment::lineWithNSPoint(frame.origin, frame.basis2, trimmedBy);
    return lines;
}

GuideLines GuideLines::polar(const GuideFrame &frame, float scale, FloatRect trimmedBy)
{
    GuideLines lines;
    const FloatPoint pole{frame.basis2.x * scale, frame.basis2.y * scale};
    lines.m_guide1 = ZKLineSegment::lineWithNSPoint(frame.origin, frame.basis1, trimmedBy);
    const float r = length(frame.basis1) * scale;
    lines.m_guide3 = FloatRect{{pole.x - r, pole.y - r}, {2 * r, 2 * r}};
    return lines;
}

void GuideLines::draw(QPainter &painter, const CapturePrefs &prefs) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    QPen pen(prefs.guideColor().screenColor(), prefs.guideThick(), Qt::SolidLine,
             defaultlinestyle::capStyle(), defaultlinestyle::joinStyle());
    painter.setPen(pen);
    stroke(painter, m_guide1);
    stroke(painter, m_guide2);
    // The circle has the thickness of the axes on purpose.
    pen.setWidthF(prefs.axisThick());
    painter.setPen(pen);
    if (m_guide3 && isFinite(*m_guide3))
        painter.drawEllipse(QRectF(m_guide3->origin.x, m_guide3->origin.y, m_guide3->size.width,
                                   m_guide3->size.height));
    painter.restore();
}
