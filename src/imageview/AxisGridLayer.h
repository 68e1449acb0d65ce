#pragma once

#include "archiving/SequentialCoder.h"
#include "geometry/FloatGeometry.h"

#include <QLineF>
#include <QRectF>
#include <QVector>

#include <vector>

class QPainter;
class ZKConvCoordinate;

/// The axis grid that a converter implies, laid over the picture. Its lines are kept until the
/// converter, the picture or the scale is another one.
class AxisGridLayer
{
public:
    /// Draws the grid over a picture of size `picture` (pixels) that is shown at `scale`. The
    /// painter is in view coordinates, y upwards; nothing is drawn beside the picture.
    void draw(QPainter &painter, const ZKConvCoordinate &converter, FloatSize picture, float scale);

private:
    struct Lines
    {
        QVector<QLineF> straight;
        QVector<QRectF> circles;
    };

    void prepare(const ZKConvCoordinate &converter, FloatSize picture, float scale);
    static void stroke(QPainter &painter, const Lines &lines);

    std::vector<ArchivedItem> m_converter; ///< what it archives
    FloatSize m_picture;
    float m_scale = 0;
    Lines m_major; ///< in view coordinates
    Lines m_minor;
};
