#include "geometry/ZKRect.h"
#include "imageview/GraphImageView.h"
#include "imageview/ImageViewSurroundings.h"
#include "imageview/MouseDownMode.h"
#include "imageview/PictureScrollArea.h"
#include "imageview/SubImage.h"
#include "imageview/ZoomArea.h"
#include "platform/NamedColors.h"
#include "platform/Sheets.h"
#include "platform/Texts.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <cmath>

// The rectangle that is dragged on the picture, and what its release does.

bool GraphImageView::isDraggingZoomArea() const
{
    return m_inDragging && m_mouseDownMode > HandMode;
}

void GraphImageView::dragZoomArea(FloatPoint windowPoint)
{
    m_prevDelta = {windowPoint.x - m_initialMousePos.x, windowPoint.y - m_initialMousePos.y};
    m_zoomAreaRect =
        zoomarea::dragged(m_initialViewPos, {m_prevDelta.x, m_prevDelta.y}, scaledImageSize());
    setNeedsDisplay();
}

void GraphImageView::zoomInWithMouse(bool wasDragged)
{
    if (!wasDragged) {
        rescaleImageWith(static_cast<float>(m_imageScale * zoomStep), m_initialViewPos, true);
        return;
    }
    rescaleToZoomArea(zoomarea::factorToFill(m_zoomAreaRect.size, m_scrollArea.clipSize()));
}

void GraphImageView::zoomOutWithMouse(bool wasDragged)
{
    if (!wasDragged) {
        rescaleImageWith(static_cast<float>(m_imageScale / zoomStep), m_initialViewPos, true);
        return;
    }
    rescaleToZoomArea(zoomarea::factorToShrinkInto(m_zoomAreaRect.size, m_scrollArea.clipSize()));
}

void GraphImageView::rescaleToZoomArea(float factor)
{
    if (!std::isnan(factor))
        rescaleImageWith(factor * m_imageScale, ZKRect::centerOfRect(m_zoomAreaRect), true);
}

void GraphImageView::askToTrim()
{
    m_trimQuestionIsOpen = true;
    m_outlets.document->sheets().present(
        {texts::localized("Trimming"), texts::localized("TrimmingMsg"), texts::localized("Trim"),
         texts::localized("Cancel")},
        [this](SheetAnswer returnCode) { trimAlertDidEnd(returnCode); });
}

void GraphImageView::trimAlertDidEnd(SheetAnswer returnCode)
{
    m_trimQuestionIsOpen = false;
    if (returnCode == SheetAnswer::Default) {
        std::optional<Picture> image = createSubImage();
        if (image && replaceImageWith(std::move(image)))
            return;
    }
    setNeedsDisplay();
}

std::optional<Picture> GraphImageView::createSubImage()
{
    if (!m_originalImage)
        return {};
    m_zoomAreaRect = ZKRect::divideRect(m_zoomAreaRect, m_imageScale);
    return subimage::cut(*m_originalImage, m_rotation, m_zoomAreaRect);
}

// A rectangle belongs to the picture as it was shown when it was dragged.
void GraphImageView::abandonZoomArea()
{
    if (m_leftButtonIsDown && m_mouseDownMode > HandMode) {
        m_leftButtonIsDown = false;
        setCursor(Qt::ArrowCursor);
        resetMouse();
        setNeedsDisplay();
        m_zoomAreaRect = {};
    } else if (m_trimQuestionIsOpen) {
        m_zoomAreaRect = {};
    }
}

void GraphImageView::drawZoomArea(QPainter &painter) const
{
    constexpr qreal lineWidth = 2;
    QPen pen(namedcolors::gray.screenColor(), lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    // 5 points on, 4 off; a pen counts them in its widths.
    pen.setDashPattern({5.0 / lineWidth, 4.0 / lineWidth});
    QPainterPath path;
    path.addRect(static_cast<qreal>(m_zoomAreaRect.origin.x),
                 static_cast<qreal>(m_zoomAreaRect.origin.y),
                 static_cast<qreal>(m_zoomAreaRect.size.width),
                 static_cast<qreal>(m_zoomAreaRect.size.height));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0, static_cast<qreal>(scaledImageSize().height));
    painter.scale(1, -1);
    painter.strokePath(path, pen);
    painter.restore();
}
