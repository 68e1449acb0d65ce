#include "imageview/GraphImageView.h"

#include "imageview/AccessiblePicture.h"
#include "imageview/DropArea.h"
#include "imageview/FocusFrame.h"
#include "imageview/ImageViewSurroundings.h"
#include "imageview/PdfOpener.h"
#include "imageview/PictureOpener.h"
#include "imageview/PictureScrollArea.h"
#include "imageview/ZoomSlider.h"
#include "platform/Desktop.h"
#include "platform/GeometryText.h"
#include "platform/Sheets.h"
#include "platform/Texts.h"

#include <QAbstractButton>
#include <QFileInfo>
#include <QKeyEvent>

#include <cmath>
#include <utility>

namespace {

bool isTurnedAside(float rotation) { return rotation != 0 && rotation != 180; }

} // namespace

GraphImageView::GraphImageView(PictureScrollArea &scrollArea)
    : m_scrollArea(scrollArea)
    , m_opener(std::make_unique<PictureOpener>(scrollArea))
    , m_pdfOpener(std::make_unique<PdfOpener>(scrollArea))
    , m_focusFrame(nullptr)
{
    setObjectName(QStringLiteral("graphView"));
    accessiblepicture::install();
    setAccessibleName(texts::localized("imageview.view.name"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_mouseCheckTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_mouseCheckTimer, &QTimer::timeout, this, &GraphImageView::mouseCheckRoutine);
    connect(&scrollArea, &PictureScrollArea::zoomRequested, this, &GraphImageView::zoomAbout);
    scrollArea.setDocumentView(this);
    // After the view, which goes first and may lose the focus only then.
    m_focusFrame = new FocusFrame(scrollArea.viewport());
    new DropArea(scrollArea, *this);
}

GraphImageView::~GraphImageView() = default;

void GraphImageView::connectOutlets(const ImageViewOutlets &outlets)
{
    m_outlets = outlets;
    connect(outlets.rotateCWButton, &QAbstractButton::clicked, this,
            &GraphImageView::imageRotateCw);
    connect(outlets.rotateCCWButton, &QAbstractButton::clicked, this,
            &GraphImageView::imageRotateCcw);
    connect(outlets.fitWidthButton, &QAbstractButton::clicked, this,
            &GraphImageView::zoomToFitWidth);
    connect(outlets.fitHeightButton, &QAbstractButton::clicked, this,
            &GraphImageView::zoomToFitHeight);
    connect(outlets.magnificationSlider, &ZoomSlider::moved, this,
            &GraphImageView::imageScaleChanged);
}

void GraphImageView::awakeFromNib()
{
    m_imageScale = 0.1F;
    m_rotation = 0;
    m_originalImage.reset();
    m_scaledImage.reset();
    m_mouseDownMode = 0;
    m_becameDropTarget = false;
    m_justMouseDown = false;
    m_inDragging = false;
    setButtonStates();
}

bool GraphImageView::hasImage() const { return m_originalImage.has_value(); }

FloatSize GraphImageView::imageSize() const
{
    return m_originalImage ? m_originalImage->size() : FloatSize{};
}

FloatSize GraphImageView::scaledImageSize() const
{
    return m_scaledImage ? m_scaledImage->size() : FloatSize{};
}

FloatSize GraphImageView::imageSizeWithRotate() const
{
    const FloatSize size = imageSize();
    return isTurnedAside(m_rotation) ? FloatSize{size.height, size.width} : size;
}

bool GraphImageView::openImageFile(const QUrl &url)
{
    if (!url.isLocalFile())
        return false;
    const QString path = url.toLocalFile();
    giveUpOpening();
    if (QFileInfo(path).suffix() != QStringLiteral("pdf"))
        return openPicture(path);
    openPdfFile(path);
    return true;
}

void GraphImageView::expectPicture(std::shared_ptr<PictureReadAhead> ahead)
{
    m_opener->expect(std::move(ahead));
}

void GraphImageView::giveUpOpening()
{
    m_opener->cancel();
    m_pdfOpener->cancel();
}

bool GraphImageView::openPicture(const PictureSource &source)
{
    const auto install = [this, source](const PictureReading &reading) {
        if (reading.picture)
            return replaceImageWith(reading.picture);
        if (reading.problem != PictureProblem::Cancelled)
            presentProblem(pictureproblem::explanation(reading, source));
        return false;
    };
    const std::optional<PictureReading> reading =
        m_opener->open(source, [this, install](const PictureReading &later) {
            Q_EMIT fileOpened(install(later));
        });
    return reading ? install(*reading) : true;
}

// What comes of a PDF file is installed even if it is nothing: the undo actions go all the same.
void GraphImageView::openPdfFile(const QString &path)
{
    const auto install = [this, path](const PictureReading &reading) {
        const bool taken = replaceImageWith(reading.picture);
        if (!taken && reading.problem != PictureProblem::Cancelled)
            presentProblem(pictureproblem::explanation(reading, path));
        Q_EMIT fileOpened(taken);
    };
    m_pdfOpener->open(path, m_outlets.prefs->pdfScale(), m_outlets.document->passwordSheets(),
                      install);
}

void GraphImageView::presentProblem(const QString &explanation)
{
    m_outlets.document->sheets().present(
        {texts::localized("ErrorOccurred"), explanation, texts::localized("OK"), QString()}, {});
}

bool GraphImageView::replaceImageWithImageRep(const QImage &rep)
{
    std::optional<Picture> image = Picture::fromImageRep(rep);
    if (!image)
        return false;
    return replaceImageWith(std::move(image));
}

bool GraphImageView::replaceImageWith(std::optional<Picture> image)
{
    const bool taken = image.has_value();
    if (taken) {
        abandonPress();
        leavePointerToMouse();
        m_originalImage = std::move(image);
        m_archivedImage.reset();
        otherPictureCame();
        m_rotation = 0;
        const float screenWidth = m_outlets.document->desktop().mainScreenSize().width;
        float scale = (screenWidth - marginWidth - drawerWidth) / m_originalImage->size().width;
        if (scale > 1)
            scale = 1;
        m_outlets.currentAxes->resetPositionFromImageView();
        rescaleImageWith(scale, true);
        m_outlets.document->zoomWindow();
    }
    setButtonStates();
    m_outlets.document->removeUndoOfDataSeries();
    m_outlets.document->removeUndoOfCurrentAxes();
    m_outlets.infoPanel->updateImageInfo();
    if (taken)
        Q_EMIT pictureChanged();
    return taken;
}

void GraphImageView::imageRotateCw()
{
    if (!m_originalImage)
        return;
    m_rotation -= 90;
    if (m_rotation < 0)
        m_rotation += 360;
    imageRotated();
}

void GraphImageView::imageRotateCcw()
{
    if (!m_originalImage)
        return;
    m_rotation += 90;
    if (m_rotation >= 360)
        m_rotation -= 360;
    imageRotated();
}

void GraphImageView::imageRotated()
{
    leavePointerToMouse();
    makeScaledImage();
    m_outlets.currentAxes->resetPosition();
    m_outlets.infoPanel->updateImageInfo();
    setNeedsDisplay();
    m_outlets.document->updateChangeCount(ChangeKind::Done);
    Q_EMIT pictureChanged();
}

void GraphImageView::makeScaledImage()
{
    abandonZoomArea();
    if (!m_originalImage)
        return;
    m_scaledImage.emplace(*m_originalImage, m_imageScale, m_rotation);
    m_scrollArea.setDocumentSize(m_scaledImage->size());
}

void GraphImageView::setButtonStates()
{
    const bool image = hasImage();
    const bool canRotate = image && m_outlets.document->isInAxisSettingMode();
    m_outlets.rotateCWButton->setEnabled(canRotate);
    m_outlets.rotateCCWButton->setEnabled(canRotate);
    m_outlets.fitWidthButton->setEnabled(image);
    m_outlets.fitHeightButton->setEnabled(image);
    m_outlets.magnificationSlider->setEnabled(image);
    // What goes is hidden first: the two have one place.
    if (image) {
        m_outlets.noImageTab->hide();
        m_outlets.actionSelectionTab->show();
        startMouseChecking();
    } else {
        m_outlets.actionSelectionTab->hide();
        m_outlets.noImageTab->show();
        stopMouseChecking();
    }
}

ArchiveDictionary GraphImageView::dataForSave() const
{
    if (m_originalImage && m_archivedImage == nullptr)
        m_archivedImage = ArchivedPicture::archived(*m_originalImage);
    return dataAsFarAsEncoded();
}

ArchiveDictionary GraphImageView::dataAsFarAsEncoded() const
{
    ArchiveDictionary saved;
    saved.set("Scrolled Position", {geometrytext::stringFromPoint(m_scrollArea.visibleOrigin())});
    saved.set("Image Scale", {m_imageScale});
    saved.set("Rotation Angle", {m_rotation});
    if (m_archivedImage != nullptr)
        saved.set("Original Image", {std::shared_ptr<const Archivable>(m_archivedImage)});
    return saved;
}

bool GraphImageView::loadFromData(const ArchiveDictionary *stored)
{
    if (stored == nullptr)
        return false;
    leavePointerToMouse();
    m_imageScale = stored->floatForKey("Image Scale");
    if (!std::isfinite(m_imageScale) || m_imageScale <= 0)
        m_imageScale = minimumScale; // no picture can be shown at the stored one
    m_outlets.magnificationSlider->setDoubleValue(std::log10(static_cast<double>(m_imageScale)) /
                                                  std::log10(2.0));
    m_rotation = stored->floatForKey("Rotation Angle");
    m_archivedImage =
        std::dynamic_pointer_cast<const ArchivedPicture>(stored->objectForKey("Original Image"));
    m_originalImage = m_archivedImage != nullptr ? m_archivedImage->picture() : std::nullopt;
    if (!m_originalImage || !m_archivedImage->isEncoded())
        m_archivedImage.reset();
    if (!m_originalImage) {
        m_scaledImage.reset();
        m_scrollArea.setDocumentSize({});
    }
    otherPictureCame();
    makeScaledImage();
    m_scrollArea.scrollPoint(
        geometrytext::pointFromString(stored->stringForKey("Scrolled Position")));
    setButtonStates();
    setNeedsDisplay();
    Q_EMIT pictureChanged();
    Q_EMIT scaleChanged(m_imageScale);
    return true;
}

void GraphImageView::settingModeChanged()
{
    abandonZoomArea();
    if (m_keyboardPart != 0)
        chooseKeyboardPart(0);
    setNeedsDisplay();
    const bool axisSetting = m_outlets.document->isInAxisSettingMode();
    if (!axisSetting && m_forcedMode == TrimMode)
        m_forcedMode.reset();
    if (axisSetting) {
        m_outlets.document->removeUndoOfDataSeries();
    } else {
        m_outlets.cursorGuide->setConverter(m_outlets.currentAxes->makeAxisConverter());
        m_outlets.cursorGuide->lockStateChanged();
        if (m_outlets.cursorGuide->converter() == nullptr)
            m_outlets.document->sheets().present({texts::localized("ErrorOccurred"),
                                                  texts::localized("CantMakeConverter"),
                                                  texts::localized("OK"), QString()},
                                                 {});
        m_outlets.document->removeUndoOfCurrentAxes();
    }
    m_outlets.rotateCWButton->setEnabled(axisSetting && hasImage());
    m_outlets.rotateCCWButton->setEnabled(axisSetting && hasImage());
}

void GraphImageView::prefsChanged()
{
    if (m_mouseCheckTimer.isActive()) {
        stopMouseChecking();
        startMouseChecking();
    }
    setNeedsDisplay();
}

void GraphImageView::setShowsAxisGrid(bool shows)
{
    m_showsAxisGrid = shows;
    setNeedsDisplay();
}

void GraphImageView::windowWillClose()
{
    giveUpOpening();
    leavePointerToMouse();
    m_encoding.abandon();
    m_waitingForEncoding.clear();
    m_originalImage.reset();
    m_scaledImage.reset();
    m_archivedImage.reset();
    stopMouseChecking();
}

void GraphImageView::setNeedsDisplay() { update(); }
