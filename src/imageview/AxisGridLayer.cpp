#include "imageview/AxisGridLayer.h"

#include "conversion/AxisGrid.h"
#include "conversion/ZKConvCoordinate.h"

#include <QColor>
#include <QPainter>
#include <QPen>

#include <utility>

namespace {

/// Between neighbouring lines, in view points.
constexpr double apart = 48;

// A dark line with a light seam is seen on dark and on light pictures.
constexpr int minorAlpha = 70;
constexpr int majorAlpha = 150;
constexpr int red = 10;
constexpr int green = 60;
constexpr int blue = 170;
constexpr qreal lineWidth = 1;
constexpr qreal seamWidth = 3;

} // namespace

void AxisGridLayer::draw(QPainter &painter, const ZKConvCoordinate &converter, FloatSize picture,
                         float scale)
{
    prepare(converter, picture, scale);
    const double factor = scale;
    painter.save();
    painter.setClipRect(
        QRectF(0, 0, double(picture.width) * factor, double(picture.height) * factor),
        Qt::IntersectClip);
    painter.setBrush(Qt::NoBrush);
    for (const auto &[lines, alpha] :
         {std::pair{&m_minor, minorAlpha}, std::pair{&m_major, majorAlpha}}) {
        painter.setPen(QPen(QColor(255, 255, 255, alpha), seamWidth, Qt::SolidLine, Qt::FlatCap));
        stroke(painter, *lines);
        painter.setPen(
            QPen(QColor(red, green, blue, alpha), lineWidth, Qt::SolidLine, Qt::FlatCap));
        stroke(painter, *lines);
    }
    painter.restore();
}

void AxisGridLayer::prepare(const ZKConvCoordinate &converter, FloatSize picture, float scale)
{
    SequentialEncoder coder;
    converter.encodeWithCoder(coder);
    if (coder.items() == m_converter && picture == m_picture && scale == m_scale)
        return;
    m_converter = coder.items();
    m_picture = picture;
    m_scale = scale;
    m_major = {};
    m_minor = {};
    const double factor = scale;
    const axisgrid::Grid grid = axisgrid::gridOf(converter, picture, apart / factor);
    for (const axisgrid::Segment &segment : grid.segments)
        (segment.isMajor ? m_major : m_minor)
            .straight.append({segment.start.x * factor, segment.start.y * factor,
                              segment.end.x * factor, segment.end.y * factor});
    for (const axisgrid::Circle &circle : grid.circles) {
        const double radius = circle.radius * factor;
        (circle.isMajor ? m_major : m_minor)
            .circles.append({circle.centre.x * factor - radius, circle.centre.y * factor - radius,
                             2 * radius, 2 * radius});
    }
}

void AxisGridLayer::stroke(QPainter &painter, const Lines &lines)
{
    painter.drawLines(lines.straight);
    for (const QRectF &circle : lines.circles)
        painter.drawEllipse(circle);
}
