#pragma once

#include "geometry/FloatGeometry.h"

#include <QAbstractScrollArea>

#include <optional>

class QNativeGestureEvent;
class QPinchGesture;

/// The scrolled area around the picture: the clip of the view that it shows.
///
/// What is visible is kept here as a point in view coordinates (y upwards, origin at the view's
/// bottom left) and limited to the document; the scroll bars only show and set it. An origin that
/// is wanted before the window was shown is kept until the layout is known.
class PictureScrollArea : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit PictureScrollArea(QWidget *parent = nullptr);

    /// Shows `view` in the area, which becomes its parent. Without a document size it fills the
    /// area.
    void setDocumentView(QWidget *view);

    /// The frame size of the view (`setFrameSize:`); the widget is this size rounded up. The zero
    /// size means no document.
    void setDocumentSize(FloatSize size);
    [[nodiscard]] FloatSize documentSize() const { return m_documentSize; }

    /// The size of the area that can show the document, in points.
    [[nodiscard]] FloatSize clipSize() const;

    /// The view point at the bottom left of the clip.
    [[nodiscard]] FloatPoint visibleOrigin() const;

    /// The part of the document that the clip shows, in view coordinates.
    [[nodiscard]] FloatRect visibleRect() const;

    /// Scrolls so that `origin` (view coordinates) is the visible origin, as far as the document
    /// goes.
    void scrollPoint(FloatPoint origin);

    /// Scrolls as little as brings `point` (view coordinates) into sight, with some of what is
    /// around it.
    void ensureVisible(FloatPoint point);

Q_SIGNALS:
    /// The user asks for a scale `factor` times the present one, about the pointer at
    /// `position` (this widget's viewport).
    void zoomRequested(double factor, QPointF position);

    /// Another part of the document has become visible.
    void visibleRectChanged();

protected:
    bool viewportEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    [[nodiscard]] FloatPoint largestOrigin() const;
    [[nodiscard]] FloatPoint limited(FloatPoint origin) const;
    void layOut();
    void updateScrollBars();
    void placeDocument();
    bool nativeGesture(const QNativeGestureEvent &event);
    bool pinched(const QPinchGesture &pinch);

    QWidget *m_view = nullptr;
    FloatSize m_documentSize;
    FloatPoint m_origin;
    std::optional<FloatPoint> m_wantedOrigin; ///< until the first scroll after the first layout
    bool m_wasShown = false;
    bool m_settingScrollBars = false;
};
