#pragma once

#include "geometry/FloatGeometry.h"
#include "imageview/Picture.h"

#include <QImage>
#include <QRect>

class QPainter;

/// The picture as it is shown, rotated and scaled. It has a size, and draws the part that is
/// asked for; pixels are made for that part only and kept for the next time.
class ScaledImage
{
public:
    /// `rotation` in degrees counter-clockwise, a multiple of 90; others are shown upright.
    ScaledImage(Picture picture, float scale, float rotation);

    /// The size in view points: the picture's size times the scale, with its sides exchanged
    /// when the rotation is 90 or 270.
    [[nodiscard]] FloatSize size() const { return m_size; }

    /// Draws `dirty`; both rectangles are in points from the image's top left corner, y
    /// downwards, as the widget's painter has them. `visible` is what is worth keeping.
    void draw(QPainter &painter, const QRect &dirty, const QRect &visible);

private:
    void prepare(const QRect &part, double pixelsPerPoint);
    [[nodiscard]] QImage rendered(const QRect &part, double pixelsPerPoint) const;

    Picture m_picture;
    float m_scale;
    float m_rotation;
    FloatSize m_size;

    QImage m_kept;               ///< the pixels of m_keptPart
    QRect m_keptPart;            ///< in screen pixels from the image's top left corner
    double m_pixelsPerPoint = 0; ///< of the screen that m_kept was made for
};
