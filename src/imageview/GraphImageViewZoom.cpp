#include "imageview/GraphImageView.h"
#include "imageview/ImageViewSurroundings.h"
#include "imageview/PictureScrollArea.h"
#include "imageview/ZoomSlider.h"

#include <cmath>

namespace {

float limitedScale(float scale)
{
    if (scale > GraphImageView::maximumScale)
        return GraphImageView::maximumScale;
    if (scale < GraphImageView::minimumScale)
        return GraphImageView::minimumScale;
    return scale;
}

} // namespace

void GraphImageView::zoomIn()
{
    if (hasImage())
        rescaleImageWith(static_cast<float>(m_imageScale * zoomStep), true);
}

void GraphImageView::zoomOut()
{
    if (hasImage())
        rescaleImageWith(static_cast<float>(m_imageScale / zoomStep), true);
}

void GraphImageView::zoomToActualSize()
{
    if (hasImage())
        rescaleImageWith(1.0F, true);
}

void GraphImageView::zoomToFitWidth()
{
    if (!hasImage())
        return;
    const float width = m_outlets.document->windowFrameSize().width;
    rescaleImageWith((width - marginWidth) / imageSizeWithRotate().width, true);
}

void GraphImageView::zoomToFitHeight()
{
    if (!hasImage())
        return;
    const float height = m_outlets.document->windowFrameSize().height;
    rescaleImageWith((height - marginHeight) / imageSizeWithRotate().height, true);
}

void GraphImageView::imageScaleChanged()
{
    if (hasImage())
        rescaleImageWith(
            static_cast<float>(std::pow(2.0, m_outlets.magnificationSlider->doubleValue())), false);
}

bool GraphImageView::canZoomIn() const { return hasImage() && m_imageScale != maximumScale; }

bool GraphImageView::canZoomOut() const { return hasImage() && m_imageScale != minimumScale; }

bool GraphImageView::canZoomToActual() const { return hasImage() && m_imageScale != 1.0F; }

void GraphImageView::rescaleImageWith(float scale, bool sliderFeedback)
{
    const FloatRect visible = m_scrollArea.visibleRect();
    const FloatPoint centre{visible.origin.x + visible.size.width / 2,
                            visible.origin.y + visible.size.height / 2};
    rescaleImageWith(scale, centre, sliderFeedback);
}

void GraphImageView::rescaleImageWith(float scale, FloatPoint atCenter, bool sliderFeedback)
{
    const float newScale = limitedScale(scale);
    if (!sliderFeedback && newScale == m_imageScale)
        return;
    const FloatSize clip = m_scrollArea.clipSize();
    const FloatPoint origin{
        static_cast<float>(newScale * (atCenter.x / m_imageScale) - 0.5 * clip.width),
        static_cast<float>(newScale * (atCenter.y / m_imageScale) - 0.5 * clip.height)};
    m_imageScale = newScale;
    if (sliderFeedback)
        m_outlets.magnificationSlider->setDoubleValue(std::log10(static_cast<double>(newScale)) /
                                                      std::log10(2.0));
    makeScaledImage();
    m_outlets.currentAxes->makeAnchorRectsWithScale(m_imageScale);
    m_scrollArea.scrollPoint(origin);
    if (!m_outlets.document->isInAxisSettingMode() && m_outlets.cursorGuide->converter() != nullptr)
        m_outlets.cursorGuide->forceDrawGuide(pointerInView(), m_imageScale);
    else
        setNeedsDisplay();
    m_outlets.document->updateChangeCount(ChangeKind::Done);
    Q_EMIT scaleChanged(m_imageScale);
}

void GraphImageView::zoomAbout(double factor, QPointF viewportPosition)
{
    // What is being dragged counts on the scale at its press.
    if (!hasImage() || m_leftButtonIsDown)
        return;
    const float newScale = limitedScale(static_cast<float>(m_imageScale * factor));
    if (newScale == m_imageScale)
        return;
    const FloatPoint pointer = viewPoint(mapFrom(m_scrollArea.viewport(), viewportPosition));
    const FloatPoint origin = m_scrollArea.visibleOrigin();
    const FloatSize clip = m_scrollArea.clipSize();
    // The point that has to come to the middle for the pointer's to stay where it is.
    const float back = m_imageScale / newScale;
    const FloatPoint centre{pointer.x + (clip.width / 2 - (pointer.x - origin.x)) * back,
                            pointer.y + (clip.height / 2 - (pointer.y - origin.y)) * back};
    rescaleImageWith(newScale, centre, true);
}
