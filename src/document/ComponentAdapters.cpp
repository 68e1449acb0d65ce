#include "document/ComponentAdapters.h"

#include "axes/CurrentAxes.h"
#include "capture/CursorGuide.h"
#include "capture/DataSeries.h"
#include "capture/MarkerDrawing.h"
#include "document/DocumentFacts.h"
#include "document/MyDocument.h"
#include "imageview/GraphImageView.h"
#include "infopanel/InfoPanelController.h"
#include "prefs/CurvegrabPrefs.h"

#include <QAction>

#include <utility>

namespace {

/// What the info panel shows has changed, and perhaps what the document's window shows as well.
void tellInfoPanel(MyDocument &document,
                   void (InfoPanelController::*update)(const InfoPanelDocument *))
{
    document.showsChanged();
    const DocumentFacts facts(document);
    if (gInfoPanelController != nullptr)
        (gInfoPanelController->*update)(&facts);
}

} // namespace

// --- Axis settings ---

UndoManager &AxesAdapter::undoManager() { return m_document.undoManager(); }

Sheets &AxesAdapter::sheets() { return m_document.sheets(); }

void AxesAdapter::updateChangeCount(ChangeKind kind) { m_document.updateChangeCount(kind); }

void AxesAdapter::anchorsMovedOn() { m_document.changedOn(); }

bool AxesAdapter::isInAxisSettingMode() const { return m_document.isInAxisSettingMode(); }

void AxesAdapter::forceAxisSettingMode() { m_document.forceAxisSettingMode(); }

FloatSize AxesAdapter::imageSize() const { return m_document.graphView().imageSize(); }

float AxesAdapter::imageRotation() const { return m_document.graphView().imageRotation(); }

float AxesAdapter::imageScale() const { return m_document.graphView().imageScale(); }

FloatSize AxesAdapter::scaledImageSize() const { return m_document.graphView().scaledImageSize(); }

void AxesAdapter::setNeedsDisplay() { m_document.graphView().setNeedsDisplay(); }

DeviceColor AxesAdapter::axisColor() const { return m_document.prefs().axisColor(); }

float AxesAdapter::axisThick() const { return m_document.prefs().axisThick(); }

float AxesAdapter::axisAnchorSize() const { return m_document.prefs().axisAnchorSize(); }

void AxesAdapter::updateAxisInfo()
{
    tellInfoPanel(m_document, &InfoPanelController::updateAxisInfoWith);
}

// --- Data capture ---

UndoManager &CaptureAdapter::undoManager() { return m_document.undoManager(); }

Sheets &CaptureAdapter::sheets() { return m_document.sheets(); }

Clipboard &CaptureAdapter::clipboard() { return m_document.clipboard(); }

void CaptureAdapter::updateChangeCount(ChangeKind kind) { m_document.updateChangeCount(kind); }

FloatSize CaptureAdapter::scaledImageSize() const
{
    return m_document.graphView().scaledImageSize();
}

void CaptureAdapter::setNeedsDisplay() { m_document.graphView().setNeedsDisplay(); }

double CaptureAdapter::minXValue() const { return m_document.currentAxes().minXValue(); }

bool CaptureAdapter::copyWithTitle() const { return m_document.prefs().copyWithTitle(); }

bool CaptureAdapter::saveWithTitle() const { return m_document.prefs().saveWithTitle(); }

PlotStyle CaptureAdapter::plotPrefsForSeries(int series) const
{
    const CurvegrabPrefs &prefs = m_document.prefs();
    const auto plotPrefs = prefs.plotPrefsForSeries(series);
    return {prefs.colorForPlotPref(plotPrefs), prefs.sizeForPlotPref(plotPrefs),
            prefs.thicknessForPlotPref(plotPrefs), prefs.shapeForPlotPref(plotPrefs)};
}

DeviceColor CaptureAdapter::guideColor() const { return m_document.prefs().guideColor(); }

float CaptureAdapter::guideThick() const { return m_document.prefs().guideThick(); }

float CaptureAdapter::axisThick() const { return m_document.prefs().axisThick(); }

void CaptureAdapter::updateDataInfo()
{
    tellInfoPanel(m_document, &InfoPanelController::updateDataInfoWith);
}

void CaptureAdapter::setLockXTitle(const QString &title)
{
    m_document.sharedItems().lockUnlockX->setText(title);
}

void CaptureAdapter::setLockYTitle(const QString &title)
{
    m_document.sharedItems().lockUnlockY->setText(title);
}

const PointList &CaptureAdapter::list(int series) const
{
    return m_document.dataSeries().store().list(series);
}

std::shared_ptr<const ZKConvCoordinate> CaptureAdapter::converterOf(int series) const
{
    return m_document.dataSeries().converterOf(series);
}

int CaptureAdapter::markerDrawOf(int series) const
{
    return m_document.dataSeries().markerDrawOf(series);
}

// --- Picture view ---

bool ImageViewAdapter::isInAxisSettingMode() const { return m_document.isInAxisSettingMode(); }

UndoManager &ImageViewAdapter::undoManager() { return m_document.undoManager(); }

Sheets &ImageViewAdapter::sheets() { return m_document.sheets(); }

PasswordSheets &ImageViewAdapter::passwordSheets() { return m_document.passwordSheets(); }

Desktop &ImageViewAdapter::desktop() { return m_document.desktop(); }

void ImageViewAdapter::updateChangeCount(ChangeKind kind) { m_document.updateChangeCount(kind); }

void ImageViewAdapter::zoomWindow() { m_document.applyStandardFrame(); }

FloatSize ImageViewAdapter::windowFrameSize() const { return m_document.windowFrameSize(); }

void ImageViewAdapter::removeUndoOfDataSeries()
{
    m_document.undoManager().removeAllActionsWithTarget(&m_document.dataSeries());
}

void ImageViewAdapter::removeUndoOfCurrentAxes() { m_document.currentAxes().removeAnchorUndo(); }

void ImageViewAdapter::resetPositionFromImageView()
{
    m_document.currentAxes().resetPosition(CurrentAxes::Sender::ImageView);
}

void ImageViewAdapter::resetPosition()
{
    m_document.currentAxes().resetPosition(CurrentAxes::Sender::None);
}

void ImageViewAdapter::makeAnchorRectsWithScale(float scale)
{
    m_document.currentAxes().makeAnchorRectsWithScale(scale);
}

void ImageViewAdapter::drawAxisWithScale(QPainter &painter, float scale)
{
    m_document.currentAxes().drawAxisWithScale(painter, scale);
}

void ImageViewAdapter::registerUndoOfAnchors()
{
    m_document.currentAxes().registerAnchorUndo("actionAxisChange");
}

void ImageViewAdapter::dragAnchor(FloatPoint start, FloatPoint now)
{
    m_document.currentAxes().dragAnchor(start, now);
}

void ImageViewAdapter::continueDrag(FloatPoint now) { m_document.currentAxes().continueDrag(now); }

void ImageViewAdapter::endDrag(FloatPoint now) { m_document.currentAxes().endDrag(now); }

bool ImageViewAdapter::isDragging() const { return m_document.currentAxes().isDragging(); }

int ImageViewAdapter::partBeside(int part, int direction) const
{
    return m_document.currentAxes().partBeside(part, direction);
}

std::optional<FloatPoint> ImageViewAdapter::placeOfPart(int part) const
{
    return m_document.currentAxes().placeOfPart(part);
}

void ImageViewAdapter::movePart(int part, FloatPoint way)
{
    m_document.currentAxes().movePart(part, way);
}

void ImageViewAdapter::endMovesOfPart() { m_document.currentAxes().endMovesOfPart(); }

std::shared_ptr<const ZKConvCoordinate> ImageViewAdapter::makeAxisConverter()
{
    return m_document.currentAxes().makeAxisConverter();
}

std::shared_ptr<const ZKConvCoordinate> ImageViewAdapter::converter() const
{
    return m_document.cursorGuide().converter();
}

void ImageViewAdapter::setConverter(std::shared_ptr<const ZKConvCoordinate> converter)
{
    m_document.cursorGuide().setConverter(std::move(converter));
}

FloatPoint ImageViewAdapter::dataPointAt(FloatPoint point, float withScale)
{
    return m_document.cursorGuide().dataPointAt(point, withScale);
}

void ImageViewAdapter::drawGuide(FloatPoint point, float withScale)
{
    m_document.cursorGuide().drawGuide(point, withScale);
}

void ImageViewAdapter::forceDrawGuide(FloatPoint point, float withScale)
{
    m_document.cursorGuide().forceDrawGuide(point, withScale);
}

void ImageViewAdapter::drawGuide(QPainter &painter) { m_document.cursorGuide().drawGuide(painter); }

void ImageViewAdapter::clearGuide() { m_document.cursorGuide().clearGuide(); }

void ImageViewAdapter::lockStateChanged() { m_document.cursorGuide().lockStateChanged(); }

void ImageViewAdapter::appendData(FloatPoint data,
                                  std::shared_ptr<const ZKConvCoordinate> converter)
{
    m_document.dataSeries().appendData(data, converter);
}

void ImageViewAdapter::drawDataMarkersWithScale(QPainter &painter, float scale)
{
    const CaptureAdapter capture(m_document);
    m_markerLayer.draw(painter, scale, capture, capture);
}

// The first picture brings the data to light as well: without one the panel tells nothing of them.
void ImageViewAdapter::updateImageInfo()
{
    tellInfoPanel(m_document, &InfoPanelController::updateImageInfoWith);
    tellInfoPanel(m_document, &InfoPanelController::updateDataInfoWith);
}

double ImageViewAdapter::guideInterval() const
{
    return static_cast<double>(m_document.prefs().guideInterval());
}

float ImageViewAdapter::pdfScale() const { return m_document.prefs().pdfScale(); }
