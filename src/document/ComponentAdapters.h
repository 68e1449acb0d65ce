#pragma once

#include "axes/AxesSurroundings.h"
#include "capture/CaptureSurroundings.h"
#include "capture/MarkerDrawing.h"
#include "capture/MarkerLayer.h"
#include "imageview/ImageViewSurroundings.h"

#include <memory>

class MyDocument;

/// What the components need of each other and of their document, answered by the document: the one
/// place where they are wired. The document outlives its adapters.

/// The surroundings of the axis settings.
class AxesAdapter final : public AxesDocument,
                          public AxesImageView,
                          public AxesPrefs,
                          public AxesInfoPanel
{
public:
    explicit AxesAdapter(MyDocument &document)
        : m_document(document)
    {}

    [[nodiscard]] UndoManager &undoManager() override;
    [[nodiscard]] Sheets &sheets() override;
    void updateChangeCount(ChangeKind kind) override;
    void anchorsMovedOn() override;
    [[nodiscard]] bool isInAxisSettingMode() const override;
    void forceAxisSettingMode() override;

    [[nodiscard]] FloatSize imageSize() const override;
    [[nodiscard]] float imageRotation() const override;
    [[nodiscard]] float imageScale() const override;
    [[nodiscard]] FloatSize scaledImageSize() const override;
    void setNeedsDisplay() override;

    [[nodiscard]] DeviceColor axisColor() const override;
    [[nodiscard]] float axisThick() const override;
    [[nodiscard]] float axisAnchorSize() const override;

    void updateAxisInfo() override;

private:
    MyDocument &m_document;
};

/// The surroundings of data capture, and the series as the drawing of markers sees them.
class CaptureAdapter final : public CaptureDocument,
                             public CaptureImageView,
                             public CaptureAxes,
                             public CapturePrefs,
                             public CaptureInfoPanel,
                             public LockMenu,
                             public MarkerSource
{
public:
    explicit CaptureAdapter(MyDocument &document)
        : m_document(document)
    {}

    [[nodiscard]] UndoManager &undoManager() override;
    [[nodiscard]] Sheets &sheets() override;
    [[nodiscard]] Clipboard &clipboard() override;
    void updateChangeCount(ChangeKind kind) override;

    [[nodiscard]] FloatSize scaledImageSize() const override;
    void setNeedsDisplay() override;

    [[nodiscard]] double minXValue() const override;

    [[nodiscard]] bool copyWithTitle() const override;
    [[nodiscard]] bool saveWithTitle() const override;
    [[nodiscard]] PlotStyle plotPrefsForSeries(int series) const override;
    [[nodiscard]] DeviceColor guideColor() const override;
    [[nodiscard]] float guideThick() const override;
    [[nodiscard]] float axisThick() const override;

    void updateDataInfo() override;

    void setLockXTitle(const QString &title) override;
    void setLockYTitle(const QString &title) override;

    [[nodiscard]] const PointList &list(int series) const override;
    [[nodiscard]] std::shared_ptr<const ZKConvCoordinate> converterOf(int series) const override;
    [[nodiscard]] int markerDrawOf(int series) const override;

private:
    MyDocument &m_document;
};

/// The surroundings of the picture view.
class ImageViewAdapter final : public ImageViewDocument,
                               public ImageViewAxes,
                               public ImageViewGuide,
                               public ImageViewSeries,
                               public ImageViewInfoPanel,
                               public ImageViewPrefs
{
public:
    explicit ImageViewAdapter(MyDocument &document)
        : m_document(document)
    {}

    [[nodiscard]] bool isInAxisSettingMode() const override;
    [[nodiscard]] UndoManager &undoManager() override;
    [[nodiscard]] Sheets &sheets() override;
    [[nodiscard]] PasswordSheets &passwordSheets() override;
    [[nodiscard]] Desktop &desktop() override;
    void updateChangeCount(ChangeKind kind) override;
    void zoomWindow() override;
    [[nodiscard]] FloatSize windowFrameSize() const override;
    void removeUndoOfDataSeries() override;
    void removeUndoOfCurrentAxes() override;

    void resetPositionFromImageView() override;
    void resetPosition() override;
    void makeAnchorRectsWithScale(float scale) override;
    void drawAxisWithScale(QPainter &painter, float scale) override;
    void registerUndoOfAnchors() override;
    void dragAnchor(FloatPoint start, FloatPoint now) override;
    void continueDrag(FloatPoint now) override;
    void endDrag(FloatPoint now) override;
    [[nodiscard]] bool isDragging() const override;
    [[nodiscard]] int partBeside(int part, int direction) const override;
    [[nodiscard]] std::optional<FloatPoint> placeOfPart(int part) const override;
    void movePart(int part, FloatPoint way) override;
    void endMovesOfPart() override;
    [[nodiscard]] std::shared_ptr<const ZKConvCoordinate> makeAxisConverter() override;

    [[nodiscard]] std::shared_ptr<const ZKConvCoordinate> converter() const override;
    void setConverter(std::shared_ptr<const ZKConvCoordinate> converter) override;
    [[nodiscard]] FloatPoint dataPointAt(FloatPoint point, float withScale) override;
    void drawGuide(FloatPoint point, float withScale) override;
    void forceDrawGuide(FloatPoint point, float withScale) override;
    void drawGuide(QPainter &painter) override;
    void clearGuide() override;
    void lockStateChanged() override;

    void appendData(FloatPoint data, std::shared_ptr<const ZKConvCoordinate> converter) override;
    void drawDataMarkersWithScale(QPainter &painter, float scale) override;

    void updateImageInfo() override;
    [[nodiscard]] double guideInterval() const override;
    [[nodiscard]] float pdfScale() const override;

private:
    MyDocument &m_document;
    MarkerLayer m_markerLayer;
};
