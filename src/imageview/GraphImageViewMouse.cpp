#include "imageview/GraphImageView.h"
#include "imageview/ImageViewSurroundings.h"
#include "imageview/MouseDownMode.h"
#include "imageview/PictureScrollArea.h"
#include "platform/Desktop.h"
#include "platform/Texts.h"
#include "platform/UndoManager.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// Pixels count from their upper edge, so it is the upper edge of a rectangle that belongs to it.
bool isPointerInside(FloatPoint p, const FloatRect &rect)
{
    return p.x >= rect.origin.x && p.x < rect.origin.x + rect.size.width && p.y > rect.origin.y &&
           p.y <= rect.origin.y + rect.size.height;
}

/// The clock by which the window system tells the times of presses.
quint32 millisecondsOfClock()
{
    QElapsedTimer clock;
    clock.start();
    return static_cast<quint32>(clock.msecsSinceReference());
}

/// An interval of a timer. A stored one may be any number.
int milliseconds(double seconds)
{
    constexpr double shortest = 0.001;
    constexpr double longest = 1000;
    if (!(seconds > shortest))
        return 1;
    return static_cast<int>(std::lround(std::min(seconds, longest) * 1000));
}

} // namespace

// The border of the widget: positions and keys

FloatPoint GraphImageView::viewPoint(QPointF widgetPosition) const
{
    const float height =
        m_scaledImage ? m_scaledImage->size().height : static_cast<float>(this->height());
    return {static_cast<float>(widgetPosition.x()),
            height - static_cast<float>(widgetPosition.y())};
}

FloatPoint GraphImageView::windowPoint(QPointF widgetPosition) const
{
    const QPointF inWindow = mapTo(window(), widgetPosition);
    return {static_cast<float>(inWindow.x()),
            static_cast<float>(window()->height()) - static_cast<float>(inWindow.y())};
}

FloatPoint GraphImageView::convertPointFromWindow(FloatPoint windowPoint) const
{
    const auto fromTop = static_cast<qreal>(static_cast<float>(window()->height()) - windowPoint.y);
    return viewPoint(mapFrom(window(), QPointF(static_cast<qreal>(windowPoint.x), fromTop)));
}

FloatPoint GraphImageView::pointerInView() const
{
    if (m_keyboardPointer)
        return keyboardPointerInView();
    // The desktop tells whole points, which are several pixels of a sharp screen.
    const QWidget *viewport = m_scrollArea.viewport();
    const QPointF whole =
        viewport->mapFromGlobal(QPointF(m_outlets.document->desktop().pointerPosition()));
    const QPointF gone = m_movedTo - whole;
    const bool isLastMove = std::fabs(gone.x()) < 1 && std::fabs(gone.y()) < 1;
    return viewPoint(mapFrom(viewport, isLastMove ? m_movedTo : whole));
}

/// The keyboard can reach every edge of the picture.
bool GraphImageView::isPointerOn(const FloatRect &rect, FloatPoint pointer) const
{
    if (!m_keyboardPointer)
        return isPointerInside(pointer, rect);
    return pointer.x >= rect.origin.x && pointer.x <= rect.origin.x + rect.size.width &&
           pointer.y >= rect.origin.y && pointer.y <= rect.origin.y + rect.size.height;
}

int GraphImageView::mosueDownMode(Qt::KeyboardModifiers modifierFlags) const
{
    return mousedownmode::modeFor(modifierFlags, m_outlets.document->isInAxisSettingMode());
}

int GraphImageView::modeOfPress(Qt::KeyboardModifiers modifierFlags) const
{
    if (m_spaceIsHeld)
        return HandMode;
    const int mode = mosueDownMode(modifierFlags);
    return mode < HandMode && m_forcedMode ? *m_forcedMode : mode;
}

void GraphImageView::setForcedMode(std::optional<MouseDownMode> mode)
{
    if (mode == TrimMode && !m_outlets.document->isInAxisSettingMode())
        return;
    m_forcedMode = mode;
}

// Press, drag, release

// Where there is nobody to activate windows none ever becomes active, and each press counts. A
// window manager may activate the window first and hand on the press afterwards: then the button
// went down before the window became active.
bool GraphImageView::bringsWindowToFront(const QMouseEvent &press) const
{
    if (!m_activatedAt)
        return false;
    if (!isActiveWindow())
        return true;
    constexpr quint32 handedOnWithin = 1000; // milliseconds
    // The window system's clock may wrap around at 32 bits.
    return *m_activatedAt - static_cast<quint32>(press.timestamp()) < handedOnWithin;
}

void GraphImageView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    if (bringsWindowToFront(*event))
        return;
    if (!m_scaledImage)
        return;
    leavePointerToMouse();
    setFocusFrameShown(false);
    m_leftButtonIsDown = true;
    mouseDown(windowPoint(event->position()), viewPoint(event->position()),
              modeOfPress(event->modifiers()));
    // The press took the focus from a field whose value needed a word.
    if (m_windowIsBlocked)
        abandonPress();
}

void GraphImageView::mouseMoveEvent(QMouseEvent *event)
{
    m_movedTo = mapTo(m_scrollArea.viewport(), event->position());
    leavePointerToMovedMouse(event->globalPosition().toPoint());
    if (!m_leftButtonIsDown)
        return;
    if (m_trackingAnchorDrag) {
        m_anchorDragPosition = viewPoint(event->position());
        m_outlets.currentAxes->continueDrag(m_anchorDragPosition);
    } else {
        mouseDragged(windowPoint(event->position()));
    }
}

void GraphImageView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_leftButtonIsDown)
        return;
    m_leftButtonIsDown = false;
    if (m_trackingAnchorDrag)
        endAnchorDrag(viewPoint(event->position()));
    else
        mouseUp();
}

void GraphImageView::mouseDown(FloatPoint windowPoint, FloatPoint viewPosition, int mode)
{
    setMouseDownMode(mode);
    m_initialMousePos = windowPoint;
    m_initialViewPos = viewPosition;
    m_prevDelta = {};
    m_justMouseDown = true;
    if (mode == DigitizeMode) {
        const std::shared_ptr<const ZKConvCoordinate> converter =
            m_outlets.cursorGuide->converter();
        const FloatPoint values =
            m_outlets.cursorGuide->dataPointAt(m_initialViewPos, m_imageScale);
        m_outlets.dataSeries->appendData(values, converter);
    } else if (mode == HandMode) {
        m_initialOrigin = m_scrollArea.visibleOrigin();
    }
}

void GraphImageView::mouseDragged(FloatPoint windowPoint)
{
    m_outlets.cursorGuide->clearGuide();
    if (m_mouseDownMode == HandMode) {
        m_scrollArea.scrollPoint({m_initialOrigin.x - (windowPoint.x - m_initialMousePos.x),
                                  m_initialOrigin.y - (windowPoint.y - m_initialMousePos.y)});
    } else if (m_mouseDownMode > HandMode) {
        dragZoomArea(windowPoint);
    } else if (m_mouseDownMode == DragAnchorMode) {
        dragAnchors(windowPoint);
        if (m_trackingAnchorDrag)
            return; // the rest is done when the drag has ended
        setMouseDownMode(DigitizeMode);
    }
    m_justMouseDown = false;
    m_inDragging = m_mouseDownMode != DigitizeMode;
}

void GraphImageView::dragAnchors(FloatPoint windowPoint)
{
    if (m_justMouseDown) {
        m_outlets.document->undoManager().setActionName(texts::localized("actionAxisChange"));
        m_outlets.currentAxes->registerUndoOfAnchors();
    }
    m_anchorDragPosition = convertPointFromWindow(windowPoint);
    m_outlets.currentAxes->dragAnchor(convertPointFromWindow(m_initialMousePos),
                                      m_anchorDragPosition);
    m_trackingAnchorDrag = m_outlets.currentAxes->isDragging();
}

void GraphImageView::endAnchorDrag(FloatPoint viewPosition)
{
    m_outlets.currentAxes->endDrag(viewPosition);
    m_trackingAnchorDrag = false;
    resetMouse();
    for (std::unique_ptr<QKeyEvent> &key : std::exchange(m_keysDuringDrag, {}))
        QCoreApplication::postEvent(this, key.release());
    Q_EMIT anchorDragEnded();
}

void GraphImageView::mouseUp()
{
    setCursor(Qt::ArrowCursor);
    const bool wasDragged = !m_justMouseDown;
    const bool hasArea =
        wasDragged && m_zoomAreaRect.size.width != 0 && m_zoomAreaRect.size.height != 0;
    if (m_mouseDownMode == ZoomInMode) {
        zoomInWithMouse(wasDragged);
    } else if (m_mouseDownMode == ZoomOutMode) {
        zoomOutWithMouse(wasDragged);
    } else if (m_mouseDownMode == TrimMode && hasArea) {
        askToTrim();
        resetMouse();
        return; // the rectangle is seen until the answer
    } else if (m_mouseDownMode == MeasureMode && hasArea) {
        // The picture stays as it is; the rectangle is left in picture points.
        static_cast<void>(createSubImage());
    }
    setNeedsDisplay();
    resetMouse();
}

void GraphImageView::resetMouse()
{
    setMouseDownMode(DigitizeMode);
    m_justMouseDown = false;
    m_inDragging = false;
}

/// Ends what a press began without its release, which will not come or not matter any more.
void GraphImageView::abandonPress()
{
    if (!m_leftButtonIsDown)
        return;
    if (m_mouseDownMode > HandMode) {
        abandonZoomArea();
        return;
    }
    m_leftButtonIsDown = false;
    if (m_trackingAnchorDrag) {
        endAnchorDrag(m_anchorDragPosition);
        return;
    }
    setCursor(Qt::ArrowCursor);
    resetMouse();
}

bool GraphImageView::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate) {
        m_activatedAt = millisecondsOfClock();
    } else if (event->type() == QEvent::WindowBlocked) {
        m_windowIsBlocked = true;
        abandonPress();
    } else if (event->type() == QEvent::WindowUnblocked) {
        m_windowIsBlocked = false;
    }
    return QWidget::event(event);
}

// Hovering

void GraphImageView::startMouseChecking()
{
    if (!hasImage()) {
        stopMouseChecking();
        return;
    }
    if (!m_mouseCheckTimer.isActive())
        m_mouseCheckTimer.start(milliseconds(m_outlets.prefs->guideInterval()));
}

void GraphImageView::stopMouseChecking()
{
    if (!m_mouseCheckTimer.isActive())
        return;
    m_mouseCheckTimer.stop();
    m_outlets.cursorGuide->clearGuide();
    setHover({});
}

void GraphImageView::mouseCheckRoutine()
{
    if (m_inDragging) {
        setModeCursor(m_mouseDownMode);
        return;
    }
    leavePointerToMovedMouse(m_outlets.document->desktop().pointerPosition());
    const FloatPoint pointer = pointerInView();
    // What the press began goes on whatever keys are held, also before the first move.
    const bool pressed = m_leftButtonIsDown;
    if (!isPointerOn(m_scrollArea.visibleRect(), pointer)) {
        m_outlets.cursorGuide->clearGuide();
        if (!pressed && m_mouseDownMode != DigitizeMode) {
            setCursor(Qt::ArrowCursor);
            setMouseDownMode(DigitizeMode);
        }
        setHover({});
        return;
    }
    setHover(FloatPoint{pointer.x / m_imageScale, pointer.y / m_imageScale});
    if (m_trackingAnchorDrag)
        return;
    const int mode =
        pressed ? m_mouseDownMode : modeOfPress(m_outlets.document->desktop().modifiers());
    if (mode >= HandMode) {
        if (mode != m_mouseDownMode)
            setModeCursor(mode);
    } else if (m_mouseDownMode != DragAnchorMode) {
        setCursor(Qt::ArrowCursor);
    }
    if (mode == DigitizeMode && !m_outlets.document->isInAxisSettingMode() &&
        m_outlets.cursorGuide->converter() != nullptr)
        m_outlets.cursorGuide->drawGuide(pointer, m_imageScale);
    setMouseDownMode(mode);
}

void GraphImageView::setMouseDownMode(int mode)
{
    if (std::exchange(m_mouseDownMode, mode) != mode)
        Q_EMIT mouseDownModeChanged(mode);
}

void GraphImageView::setHover(std::optional<FloatPoint> inPicture)
{
    if (std::exchange(m_hover, inPicture) != inPicture)
        Q_EMIT hoverChanged(inPicture);
}

void GraphImageView::setModeCursor(int mode)
{
    if (mode == HandMode)
        setCursor(Qt::OpenHandCursor);
    else if (mode > HandMode)
        setCursor(m_cursors.cursorOfMode(mode, devicePixelRatioF()));
}

// Drawing

void GraphImageView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    drawRect(painter, event->rect());
}

void GraphImageView::drawRect(QPainter &painter, const QRect &dirtyRect)
{
    if (m_scaledImage)
        drawPicture(painter, dirtyRect);
    else
        painter.fillRect(dirtyRect, Qt::white);
    if (m_scaledImage)
        drawKeyboardPointer(painter);
    if (m_becameDropTarget)
        drawDropVeil(painter, dirtyRect);
    else if (isDraggingZoomArea() || m_trimQuestionIsOpen)
        drawZoomArea(painter);
}

/// The picture with what the present page draws on it.
void GraphImageView::drawPicture(QPainter &painter, const QRect &dirtyRect)
{
    const QRect visible = visibleRegion().boundingRect();
    m_scaledImage->draw(painter, dirtyRect, visible);
    painter.save();
    // The clip is the part for which the series keep what they drew.
    if (visible.contains(dirtyRect))
        painter.setClipRect(visible);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0, static_cast<qreal>(m_scaledImage->size().height));
    painter.scale(1, -1);
    if (m_showsAxisGrid)
        drawAxisGrid(painter);
    if (m_outlets.document->isInAxisSettingMode()) {
        m_outlets.currentAxes->drawAxisWithScale(painter, m_imageScale);
    } else {
        m_outlets.cursorGuide->drawGuide(painter);
        m_outlets.dataSeries->drawDataMarkersWithScale(painter, m_imageScale);
    }
    painter.restore();
}

/// While axes are set the grid follows them; while points are taken it is that of the points.
void GraphImageView::drawAxisGrid(QPainter &painter)
{
    const auto converter = m_outlets.document->isInAxisSettingMode()
                               ? m_outlets.currentAxes->makeAxisConverter()
                               : m_outlets.cursorGuide->converter();
    if (converter != nullptr)
        m_axisGrid.draw(painter, *converter, imageSizeWithRotate(), m_imageScale);
}
