#include "imageview/KeyboardCross.h"

#include <QLineF>
#include <QPainter>
#include <QPen>

#include <array>

void keyboardcross::draw(QPainter &painter, FloatPoint centre)
{
    constexpr double freeMiddle = 3;
    const double x = centre.x;
    const double y = centre.y;
    const std::array arms{
        QLineF(x - reach, y, x - freeMiddle, y), QLineF(x + freeMiddle, y, x + reach, y),
        QLineF(x, y - reach, x, y - freeMiddle), QLineF(x, y + freeMiddle, x, y + reach)};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLines(arms.data(), static_cast<int>(arms.size()));
    painter.setPen(QPen(Qt::black, 2, Qt::SolidLine, Qt::FlatCap));
    painter.drawLines(arms.data(), static_cast<int>(arms.size()));
    painter.restore();
}
