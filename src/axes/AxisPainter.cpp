#include "axes/AxisPainter.h"
#include "platform/DefaultLineStyle.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QRectF>

#include <optional>

namespace {

constexpr float shadingAlpha = 0.1F;

QPointF screenPoint(FloatPoint p) { return {p.x, p.y}; }

QRectF screenRect(const FloatRect &rect)
{
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

QPainterPath pathOf(const AxisArea &area)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    if (const AxisArea::Circle *circle = area.circle()) {
        path.addEllipse(screenPoint(circle->centre), circle->radius, circle->radius);
    } else {
        const auto [p1, p2, p3, p4] = *area.corners();
        path.moveTo(screenPoint(p1));
        path.lineTo(screenPoint(p2));
        path.lineTo(screenPoint(p3));
        path.lineTo(screenPoint(p4));
        path.closeSubpath();
    }
    return path;
}

QPen linePen(const axispainter::Style &style)
{
    return {style.color.screenColor(), style.thickness, Qt::SolidLine, defaultlinestyle::capStyle(),
            defaultlinestyle::joinStyle()};
}

void prepareToStroke(QPainter &painter, const axispainter::Style &style)
{
    painter.setPen(linePen(style));
    painter.setBrush(Qt::NoBrush);
}

void prepareToFill(QPainter &painter, const DeviceColor &color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color.screenColor());
}

void drawSegment(QPainter &painter, const std::optional<ZKLineSegment> &segment)
{
    if (segment)
        painter.drawLine(screenPoint(segment->getEndNSPoint1()),
                         screenPoint(segment->getEndNSPoint2()));
}

void drawSquaresAndDots(QPainter &painter, const AnchorLayout &layout,
                        const axispainter::Style &style)
{
    prepareToStroke(painter, style);
    for (const FloatRect *square :
         {&layout.anchor1Rect, &layout.anchor2Rect, &layout.anchor3Rect, &layout.anchor4Rect})
        painter.drawRect(screenRect(*square));
    prepareToFill(painter, style.color);
    for (const FloatRect *dot :
         {&layout.anchor12Rect, &layout.anchor23Rect, &layout.anchor34Rect, &layout.anchor41Rect})
        painter.drawEllipse(screenRect(*dot));
}

void drawSides(QPainter &painter, const AnchorLayout &layout, const axispainter::Style &style)
{
    // The solid square tells the origin corner from the others.
    prepareToFill(painter, style.color);
    painter.drawRect(screenRect(layout.anchor1Rect));
    prepareToStroke(painter, style);
    drawSegment(painter, layout.axisLineSegment1);
    drawSegment(painter, layout.axisLineSegment2);
    drawSegment(painter, layout.axisLineSegment3);
    drawSegment(painter, layout.axisLineSegment4);
}

void drawCircle(QPainter &painter, const AnchorLayout &layout, const axispainter::Style &style)
{
    prepareToFill(painter, style.color);
    painter.drawRect(screenRect(layout.anchor1Rect));
    painter.drawRect(screenRect(layout.anchor2Rect));
    prepareToStroke(painter, style);
    if (layout.axisArea)
        painter.drawPath(pathOf(*layout.axisArea));
    drawSegment(painter, layout.axisLineSegment1);
    drawSegment(painter, layout.axisLineSegment2);
}

void shadeArea(QPainter &painter, const AnchorLayout &layout, const axispainter::Style &style)
{
    if (!layout.axisArea)
        return;
    prepareToFill(painter, style.color.withAlpha(shadingAlpha));
    painter.drawPath(pathOf(*layout.axisArea));
}

} // namespace

void axispainter::draw(QPainter &painter, int axisType, const AnchorLayout &layout,
                       const Style &style)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    drawSquaresAndDots(painter, layout, style);
    if (axisType == axistype::polar)
        drawCircle(painter, layout, style);
    else
        drawSides(painter, layout, style);
    shadeArea(painter, layout, style);
    painter.restore();
}
