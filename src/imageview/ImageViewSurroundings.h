#pragma once

#include "geometry/FloatGeometry.h"
#include "platform/ChangeKind.h"

#include <memory>
#include <optional>

class Desktop;
class QPainter;
class PasswordSheets;
class Sheets;
class UndoManager;
class ZKConvCoordinate;

/// What the picture view needs of its document.
class ImageViewDocument
{
public:
    virtual ~ImageViewDocument() = default;

    /// Whether the axis-setting page is shown, else the digitizing page.
    [[nodiscard]] virtual bool isInAxisSettingMode() const = 0;

    [[nodiscard]] virtual UndoManager &undoManager() = 0;
    [[nodiscard]] virtual Sheets &sheets() = 0;
    [[nodiscard]] virtual PasswordSheets &passwordSheets() = 0;
    [[nodiscard]] virtual Desktop &desktop() = 0;
    virtual void updateChangeCount(ChangeKind kind) = 0;

    /// Gives the window the standard frame around the picture, as its zoom button does (`zoom:`).
    virtual void zoomWindow() = 0;

    /// The window with its title bar, without an open drawer, in points.
    [[nodiscard]] virtual FloatSize windowFrameSize() const = 0;

    /// Drops the undo and redo actions whose target is the series store (the axis settings).
    virtual void removeUndoOfDataSeries() = 0;
    virtual void removeUndoOfCurrentAxes() = 0;
};

/// What the picture view needs of the axis settings. Points are in view coordinates.
class ImageViewAxes
{
public:
    virtual ~ImageViewAxes() = default;

    /// `resetPosition:` sent by the picture view, which rebuilds and redraws by itself.
    virtual void resetPositionFromImageView() = 0;
    /// `resetPosition:` without a sender: the axes rebuild their layout and redraw the view.
    virtual void resetPosition() = 0;

    virtual void makeAnchorRectsWithScale(float scale) = 0;

    /// `painter` is in view coordinates, y upwards.
    virtual void drawAxisWithScale(QPainter &painter, float scale) = 0;

    /// Registers `setAnchors:` with the current anchors as the undo.
    virtual void registerUndoOfAnchors() = 0;

    /// `dragAnchor:withEvent:` begins the drag of what lies under `start` and moves it by the way
    /// to `now`. Where nothing lies it does nothing and isDragging() stays false.
    virtual void dragAnchor(FloatPoint start, FloatPoint now) = 0;
    virtual void continueDrag(FloatPoint now) = 0;
    /// The last move of the drag, at the release.
    virtual void endDrag(FloatPoint now) = 0;
    [[nodiscard]] virtual bool isDragging() const = 0;

    /// The part that follows (`direction` 1) or precedes (-1) `part` where parts are chosen by
    /// keyboard; 0 stands for none.
    [[nodiscard]] virtual int partBeside(int part, int direction) const = 0;
    /// Where a part stands, in picture points; nothing for what is no part of the axes.
    [[nodiscard]] virtual std::optional<FloatPoint> placeOfPart(int part) const = 0;
    /// Moves a part as a drag by `way` (picture points) does. Moves of one part in a row are
    /// undone as one, up to endMovesOfPart().
    virtual void movePart(int part, FloatPoint way) = 0;
    virtual void endMovesOfPart() = 0;

    /// The converter that the present settings make; null when they make none.
    [[nodiscard]] virtual std::shared_ptr<const ZKConvCoordinate> makeAxisConverter() = 0;
};

/// What the picture view needs of the cursor guide. Points are in view coordinates.
class ImageViewGuide
{
public:
    virtual ~ImageViewGuide() = default;

    [[nodiscard]] virtual std::shared_ptr<const ZKConvCoordinate> converter() const = 0;
    virtual void setConverter(std::shared_ptr<const ZKConvCoordinate> converter) = 0;

    /// The graph values that a click at `point` captures.
    [[nodiscard]] virtual FloatPoint dataPointAt(FloatPoint point, float withScale) = 0;

    /// Rebuilds the guide if the pointer or a setting changed since the last time.
    virtual void drawGuide(FloatPoint point, float withScale) = 0;
    virtual void forceDrawGuide(FloatPoint point, float withScale) = 0;

    /// Strokes the built guide; `painter` is in view coordinates, y upwards.
    virtual void drawGuide(QPainter &painter) = 0;
    virtual void clearGuide() = 0;
    virtual void lockStateChanged() = 0;
};

/// What the picture view needs of the series store.
class ImageViewSeries
{
public:
    virtual ~ImageViewSeries() = default;

    /// `appendData:withConverter:` adds a point in graph values; `converter` may be null.
    virtual void appendData(FloatPoint data, std::shared_ptr<const ZKConvCoordinate> converter) = 0;

    /// `painter` is in view coordinates, y upwards.
    virtual void drawDataMarkersWithScale(QPainter &painter, float scale) = 0;
};

/// The facts panel, told that the picture of this document changed.
class ImageViewInfoPanel
{
public:
    virtual ~ImageViewInfoPanel() = default;
    virtual void updateImageInfo() = 0;
};

/// The preferences that the picture view reads.
class ImageViewPrefs
{
public:
    virtual ~ImageViewPrefs() = default;
    /// The seconds between two looks at the pointer.
    [[nodiscard]] virtual double guideInterval() const = 0;
    /// How many times their own size the pages of PDF files are read (1 ... 8).
    [[nodiscard]] virtual float pdfScale() const = 0;
};
