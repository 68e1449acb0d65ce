#pragma once

#include "geometry/FloatGeometry.h"

#include <QPoint>
#include <QSize>

/// A page as its file describes it.
struct PdfPage
{
    double width = 0;  ///< of the crop box as stored, in points
    double height = 0; ///< of the crop box as stored, in points
    int rotation = 0;  ///< the page's own, clockwise: 0, 90, 180 or 270
};

/// Where a page comes to lie on its picture.
struct PdfPlacement
{
    FloatSize imageSize; ///< of the picture: the crop box times the scale
    QSize imagePixels;   ///< imageSize rounded up
    QSize pagePixels;    ///< of the page as it is turned for reading
    QPoint pageOrigin;   ///< of the page's top left corner, from that of the picture
};

namespace pdfplacement {

/// The page at `scale` times its size. The picture always has the shape of the crop box before
/// any turning: a page that is turned aside is made smaller (never larger) until it fits, and
/// lies in the middle.
[[nodiscard]] PdfPlacement placementOf(const PdfPage &page, float scale);

} // namespace pdfplacement
