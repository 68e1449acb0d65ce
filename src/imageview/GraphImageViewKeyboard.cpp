#include "imageview/FocusFrame.h"
#include "imageview/GraphImageView.h"
#include "imageview/ImageViewSurroundings.h"
#include "imageview/KeyboardCross.h"
#include "imageview/PictureKeys.h"
#include "imageview/PictureScrollArea.h"
#include "platform/Desktop.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace {

bool isReturn(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Whether a focus of this reason came by keyboard.
bool cameByKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

} // namespace

void GraphImageView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && hasImage()) {
        m_spaceIsHeld = true;
        return;
    }
    if (m_trackingAnchorDrag) {
        m_keysDuringDrag.emplace_back(event->clone());
        return;
    }
    if (event->key() == Qt::Key_Escape && m_leftButtonIsDown && m_mouseDownMode > HandMode) {
        abandonZoomArea();
        return;
    }
    // A press of the mouse takes the pointer: only a rectangle that is drawn by keyboard goes on.
    if (hasImage() && (!m_leftButtonIsDown || m_keyboardPointer) && pointWithKey(*event))
        return;
    QWidget::keyPressEvent(event);
}

void GraphImageView::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && m_spaceIsHeld) {
        if (!event->isAutoRepeat())
            m_spaceIsHeld = false;
        return;
    }
    QWidget::keyReleaseEvent(event);
}

void GraphImageView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    // A menu or another window gives the focus back as it was.
    setFocusFrameShown(cameByKeyboard(event->reason()) || m_keyboardPointer);
}

void GraphImageView::focusOutEvent(QFocusEvent *event)
{
    m_spaceIsHeld = false;
    setFocusFrameShown(false);
    QWidget::focusOutEvent(event);
}

bool GraphImageView::isUsedByKeyboard() const { return !m_focusFrame->isHidden(); }

void GraphImageView::setFocusFrameShown(bool shown)
{
    if (shown != m_focusFrame->isHidden())
        return;
    m_focusFrame->setVisible(shown);
    Q_EMIT keyboardChanged();
}

/// Whether `event` was one of the keys that point on the picture.
bool GraphImageView::pointWithKey(const QKeyEvent &event)
{
    if (const std::optional<QPointF> way = picturekeys::wayOf(event.key(), event.modifiers())) {
        if (m_keyboardPart != 0)
            moveKeyboardPart(*way);
        else
            moveKeyboardPointer(*way);
        return true;
    }
    const int direction = picturekeys::directionOf(event.key(), event.modifiers());
    if (direction != 0 && !m_leftButtonIsDown && m_outlets.document->isInAxisSettingMode()) {
        chooseKeyboardPart(m_outlets.currentAxes->partBeside(m_keyboardPart, direction));
        return true;
    }
    if (event.key() == Qt::Key_Escape && m_keyboardPart != 0) {
        chooseKeyboardPart(0);
        return true;
    }
    if (event.key() == Qt::Key_Escape && m_keyboardPointer) {
        leavePointerToMouse();
        return true;
    }
    return isReturn(event) && m_keyboardPointer && clickAtKeyboardPointer();
}

FloatPoint GraphImageView::keyboardPointerInView() const
{
    const auto scale = static_cast<double>(m_imageScale);
    return {static_cast<float>(m_keyboardPointer->x() * scale),
            static_cast<float>(m_keyboardPointer->y() * scale)};
}

/// Where the keyboard takes the pointer over: where the mouse has left it, else in the middle of
/// what is seen.
QPointF GraphImageView::startOfKeyboardPointer() const
{
    const FloatRect visible = m_scrollArea.visibleRect();
    FloatPoint start = pointerInView();
    if (!isPointerOn(visible, start))
        start = {visible.origin.x + visible.size.width / 2,
                 visible.origin.y + visible.size.height / 2};
    const auto scale = static_cast<double>(m_imageScale);
    return {static_cast<double>(start.x) / scale, static_cast<double>(start.y) / scale};
}

void GraphImageView::moveKeyboardPointer(QPointF way)
{
    const QPointF start = m_keyboardPointer.value_or(startOfKeyboardPointer());
    const FloatSize picture = imageSizeWithRotate();
    const auto within = [](double value, float length) {
        return std::min(std::max(value, 0.0), static_cast<double>(length));
    };
    setKeyboardPointer(
        {within(start.x() + way.x(), picture.width), within(start.y() + way.y(), picture.height)});
}

void GraphImageView::setKeyboardPointer(QPointF inPicture)
{
    m_keyboardPointer = inPicture;
    m_mouseAtKeyboard = m_outlets.document->desktop().pointerPosition();
    setFocusFrameShown(true);
    m_scrollArea.ensureVisible(keyboardPointerInView());
    setNeedsDisplay();
    if (m_leftButtonIsDown)
        mouseDragged(keyboardPointerInView());
    mouseCheckRoutine();
    Q_EMIT keyboardPointerMoved();
}

void GraphImageView::leavePointerToMouse()
{
    if (!m_keyboardPointer)
        return;
    abandonPress();
    m_keyboardPointer.reset();
    m_keyboardPart = 0;
    m_outlets.currentAxes->endMovesOfPart();
    setNeedsDisplay();
    Q_EMIT keyboardChanged();
}

void GraphImageView::leavePointerToMovedMouse(QPoint globalPosition)
{
    if (globalPosition != m_mouseAtKeyboard)
        leavePointerToMouse();
}

void GraphImageView::chooseKeyboardPart(int part)
{
    const std::optional<FloatPoint> place = m_outlets.currentAxes->placeOfPart(part);
    m_keyboardPart = place ? part : 0;
    m_outlets.currentAxes->endMovesOfPart();
    if (place)
        setKeyboardPointer({static_cast<double>(place->x), static_cast<double>(place->y)});
    Q_EMIT keyboardChanged();
}

void GraphImageView::moveKeyboardPart(QPointF way)
{
    m_outlets.currentAxes->movePart(m_keyboardPart,
                                    {static_cast<float>(way.x()), static_cast<float>(way.y())});
    // Another kind of axes may have other parts.
    const std::optional<FloatPoint> place = m_outlets.currentAxes->placeOfPart(m_keyboardPart);
    if (!place) {
        chooseKeyboardPart(0);
        return;
    }
    setKeyboardPointer({static_cast<double>(place->x), static_cast<double>(place->y)});
}

/// Does what a click without keys does there; where only a drag does something, begins it or ends
/// it. False where there is nothing to do.
bool GraphImageView::clickAtKeyboardPointer()
{
    if (m_leftButtonIsDown) {
        m_leftButtonIsDown = false;
        mouseUp();
        return true;
    }
    const int mode = modeOfPress(Qt::NoModifier);
    if (mode == TrimMode) {
        chooseKeyboardPart(0);
        m_leftButtonIsDown = true;
        // The way of the drag is the same in the window and in the view.
        mouseDown(keyboardPointerInView(), keyboardPointerInView(), mode);
        return true;
    }
    if (mode != DigitizeMode && mode != ZoomInMode && mode != ZoomOutMode)
        return false;
    mouseDown({}, keyboardPointerInView(), mode);
    if (!m_windowIsBlocked)
        mouseUp();
    mouseCheckRoutine();
    return true;
}

void GraphImageView::drawKeyboardPointer(QPainter &painter) const
{
    if (!m_keyboardPointer)
        return;
    FloatPoint centre = keyboardPointerInView();
    centre.y = m_scaledImage->size().height - centre.y;
    keyboardcross::draw(painter, centre);
}
