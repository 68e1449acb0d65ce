#include "imageview/PictureScrollArea.h"

#include <QGestureEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// What one click of a wheel is, in the unit of wheel events.
constexpr double wheelClick = 120;
constexpr double pointsPerWheelClick = 60;
/// Four clicks double or halve the scale.
constexpr double octavesPerWheelClick = 0.25;
constexpr int pointsPerKey = 20;

/// What is seen around a point that was brought into sight.
constexpr float surroundings = 32;

/// The origin next to `origin` with which a clip of `length` shows `place` and its surroundings.
float originShowing(float place, float origin, float length)
{
    const float around = std::min(surroundings, length / 2);
    return std::min(std::max(origin, place + around - length), place - around);
}

int rounded(float value) { return static_cast<int>(std::lround(value)); }

} // namespace

PictureScrollArea::PictureScrollArea(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->grabGesture(Qt::PinchGesture);
    horizontalScrollBar()->setSingleStep(pointsPerKey);
    verticalScrollBar()->setSingleStep(pointsPerKey);
    setFocusPolicy(Qt::NoFocus); // the view in it takes the keyboard
}

void PictureScrollArea::setDocumentView(QWidget *view)
{
    m_view = view;
    view->setParent(viewport());
    view->show();
    setFocusProxy(view);
    layOut();
}

void PictureScrollArea::setDocumentSize(FloatSize size)
{
    m_documentSize = size;
    layOut();
}

FloatSize PictureScrollArea::clipSize() const
{
    const QSize largest = maximumViewportSize();
    const bool fits = static_cast<float>(largest.width()) >= std::ceil(m_documentSize.width) &&
                      static_cast<float>(largest.height()) >= std::ceil(m_documentSize.height);
    const bool barsCanHide = horizontalScrollBarPolicy() == Qt::ScrollBarAsNeeded &&
                             verticalScrollBarPolicy() == Qt::ScrollBarAsNeeded;
    const QSize size = fits && barsCanHide ? largest : viewport()->size();
    return {static_cast<float>(size.width()), static_cast<float>(size.height())};
}

FloatPoint PictureScrollArea::largestOrigin() const
{
    const FloatSize clip = clipSize();
    return {std::max(0.0F, m_documentSize.width - clip.width),
            std::max(0.0F, m_documentSize.height - clip.height)};
}

FloatPoint PictureScrollArea::limited(FloatPoint origin) const
{
    const FloatPoint largest = largestOrigin();
    return {std::min(std::max(0.0F, origin.x), largest.x),
            std::min(std::max(0.0F, origin.y), largest.y)};
}

FloatPoint PictureScrollArea::visibleOrigin() const
{
    if (!m_wasShown && m_wantedOrigin)
        return {std::max(0.0F, m_wantedOrigin->x), std::max(0.0F, m_wantedOrigin->y)};
    return m_origin;
}

FloatRect PictureScrollArea::visibleRect() const
{
    const FloatSize clip = clipSize();
    return {
        visibleOrigin(),
        {std::min(clip.width, m_documentSize.width), std::min(clip.height, m_documentSize.height)}};
}

void PictureScrollArea::scrollPoint(FloatPoint origin)
{
    if (m_wasShown) {
        m_wantedOrigin.reset();
        m_origin = limited(origin);
    } else {
        m_wantedOrigin = origin;
    }
    layOut();
}

void PictureScrollArea::ensureVisible(FloatPoint point)
{
    const FloatSize clip = clipSize();
    const FloatPoint origin = visibleOrigin();
    const FloatPoint wanted = limited({originShowing(point.x, origin.x, clip.width),
                                       originShowing(point.y, origin.y, clip.height)});
    if (wanted != origin)
        scrollPoint(wanted);
}

void PictureScrollArea::layOut()
{
    updateScrollBars();
    m_origin = limited(m_wantedOrigin.value_or(m_origin));
    updateScrollBars();
    placeDocument();
    Q_EMIT visibleRectChanged();
}

void PictureScrollArea::updateScrollBars()
{
    const bool outer = !std::exchange(m_settingScrollBars, true);
    const FloatPoint largest = largestOrigin();
    const FloatSize clip = clipSize();
    horizontalScrollBar()->setPageStep(rounded(clip.width));
    verticalScrollBar()->setPageStep(rounded(clip.height));
    horizontalScrollBar()->setRange(0, static_cast<int>(std::ceil(largest.x)));
    verticalScrollBar()->setRange(0, static_cast<int>(std::ceil(largest.y)));
    horizontalScrollBar()->setValue(rounded(m_origin.x));
    verticalScrollBar()->setValue(rounded(largest.y - m_origin.y));
    if (outer)
        m_settingScrollBars = false;
}

void PictureScrollArea::placeDocument()
{
    if (m_view == nullptr)
        return;
    if (m_documentSize == FloatSize{}) {
        m_view->setGeometry(viewport()->rect());
        return;
    }
    const FloatSize clip = clipSize();
    const float freeWidth = clip.width - m_documentSize.width;
    const float freeHeight = clip.height - m_documentSize.height;
    // A document smaller than the clip stands in its middle, which no other place knows.
    const int left = freeWidth > 0 ? static_cast<int>(freeWidth / 2) : rounded(-m_origin.x);
    const int top =
        freeHeight > 0 ? static_cast<int>(freeHeight / 2) : rounded(freeHeight + m_origin.y);
    const auto roundedUp = [](float length) {
        return static_cast<int>(std::min(std::ceil(length), static_cast<float>(QWIDGETSIZE_MAX)));
    };
    m_view->setGeometry(left, top, roundedUp(m_documentSize.width),
                        roundedUp(m_documentSize.height));
}

void PictureScrollArea::resizeEvent(QResizeEvent * /*event*/) { layOut(); }

void PictureScrollArea::showEvent(QShowEvent *event)
{
    QAbstractScrollArea::showEvent(event);
    m_wasShown = true;
    layOut();
}

void PictureScrollArea::scrollContentsBy(int dx, int dy)
{
    if (m_settingScrollBars)
        return;
    m_wantedOrigin.reset();
    const FloatPoint largest = largestOrigin();
    if (dx != 0)
        m_origin.x = static_cast<float>(horizontalScrollBar()->value());
    if (dy != 0)
        m_origin.y = largest.y - static_cast<float>(verticalScrollBar()->value());
    m_origin = limited(m_origin);
    placeDocument();
    Q_EMIT visibleRectChanged();
}

void PictureScrollArea::wheelEvent(QWheelEvent *event)
{
    event->accept();
    const QPointF clicks = QPointF(event->angleDelta()) / wheelClick;
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        if (clicks.y() != 0)
            Q_EMIT zoomRequested(std::exp2(clicks.y() * octavesPerWheelClick),
                                 viewport()->mapFromGlobal(event->globalPosition()));
        return;
    }
    QPointF way =
        event->pixelDelta().isNull() ? clicks * pointsPerWheelClick : QPointF(event->pixelDelta());
    if (event->modifiers().testFlag(Qt::ShiftModifier) && way.x() == 0)
        way = way.transposed();
    const FloatPoint origin = visibleOrigin();
    scrollPoint({origin.x - static_cast<float>(way.x()), origin.y + static_cast<float>(way.y())});
}

bool PictureScrollArea::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::NativeGesture &&
        nativeGesture(*static_cast<QNativeGestureEvent *>(event)))
        return true;
    if (event->type() == QEvent::Gesture) {
        const QGesture *gesture = static_cast<QGestureEvent *>(event)->gesture(Qt::PinchGesture);
        if (gesture != nullptr)
            return pinched(*static_cast<const QPinchGesture *>(gesture));
    }
    return QAbstractScrollArea::viewportEvent(event);
}

bool PictureScrollArea::nativeGesture(const QNativeGestureEvent &event)
{
    if (event.gestureType() != Qt::ZoomNativeGesture)
        return false;
    Q_EMIT zoomRequested(1 + event.value(), viewport()->mapFromGlobal(event.globalPosition()));
    return true;
}

bool PictureScrollArea::pinched(const QPinchGesture &pinch)
{
    if (pinch.changeFlags().testFlag(QPinchGesture::ScaleFactorChanged))
        Q_EMIT zoomRequested(pinch.scaleFactor(), viewport()->mapFromGlobal(pinch.hotSpot()));
    return true;
}
