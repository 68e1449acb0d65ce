#pragma once

#include "archiving/ArchiveTree.h"
#include "geometry/FloatGeometry.h"
#include "imageview/ArchivedPicture.h"
#include "imageview/AxisGridLayer.h"
#include "imageview/DropTarget.h"
#include "imageview/MouseCursors.h"
#include "imageview/MouseDownMode.h"
#include "imageview/Picture.h"
#include "imageview/ScaledImage.h"
#include "platform/BackgroundWork.h"

#include <QTimer>
#include <QUrl>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class ImageViewAxes;
class ImageViewDocument;
class ImageViewGuide;
class ImageViewInfoPanel;
class ImageViewPrefs;
class ImageViewSeries;
class FocusFrame;
class PdfOpener;
class PictureOpener;
class PictureReadAhead;
class PictureScrollArea;
class PictureSource;
class QMimeData;
class QAbstractButton;
struct PictureReading;
class ZoomSlider;
enum class SheetAnswer;

/// What the picture view is connected to in its document's window; all of it outlives the view's
/// use.
struct ImageViewOutlets
{
    ImageViewDocument *document = nullptr;
    ImageViewAxes *currentAxes = nullptr;
    ImageViewGuide *cursorGuide = nullptr;
    ImageViewSeries *dataSeries = nullptr;
    ImageViewInfoPanel *infoPanel = nullptr;
    ImageViewPrefs *prefs = nullptr;
    QAbstractButton *rotateCWButton = nullptr;
    QAbstractButton *rotateCCWButton = nullptr;
    QAbstractButton *fitWidthButton = nullptr;
    QAbstractButton *fitHeightButton = nullptr;
    ZoomSlider *magnificationSlider = nullptr;
    QWidget *actionSelectionTab = nullptr; ///< shown only while there is a picture
    QWidget *noImageTab = nullptr;         ///< shown in its place while there is none
};

/// The view that shows the picture: its scale and rotation, its part of the mouse, its drawing.
///
/// View coordinates are points with the origin at the picture's bottom left and y upwards: picture
/// coordinates (after rotation) times imageScale(). Widget pixels are turned into them in one
/// place, viewPoint(), and nothing else knows that widgets count downwards.
class GraphImageView : public QWidget, public DropTarget
{
    Q_OBJECT

public:
    /// What hovers over the picture, held by the mouse.
    enum class HoveringDrag {
        None,
        Picture,         ///< a drop would be taken
        NoPicture,       ///< refused: nothing that can be opened
        WhileDigitizing, ///< refused: the picture may be replaced on the axis page only
    };

    static constexpr float minimumScale = 0.125F;
    static constexpr float maximumScale = 2.0F;
    /// The space that the window's frame and controls take beside (above and below) the picture.
    static constexpr float marginWidth = 37;
    static constexpr float marginHeight = 207;
    /// The width that a new picture leaves free for the drawer.
    static constexpr float drawerWidth = 230;

    /// Places itself in `scrollArea`, which becomes its parent.
    explicit GraphImageView(PictureScrollArea &scrollArea);
    ~GraphImageView() override;

    void connectOutlets(const ImageViewOutlets &outlets);
    /// Once, after connectOutlets(): the start without a picture.
    void awakeFromNib();

    [[nodiscard]] bool hasImage() const;
    /// The picture as loaded, or nothing.
    [[nodiscard]] const std::optional<Picture> &originalImage() const { return m_originalImage; }
    /// The size of the picture as loaded, or the zero size without one.
    [[nodiscard]] FloatSize imageSize() const;
    /// The size as shown, in view points, or the zero size without a picture.
    [[nodiscard]] FloatSize scaledImageSize() const;
    /// imageSize() with its sides exchanged unless the rotation is 0 or 180.
    [[nodiscard]] FloatSize imageSizeWithRotate() const;
    [[nodiscard]] float imageScale() const { return m_imageScale; }
    /// Degrees counter-clockwise: 0, 90, 180 or 270.
    [[nodiscard]] float imageRotation() const { return m_rotation; }
    /// What a press would do, or does (MouseDownMode).
    [[nodiscard]] int mouseDownMode() const { return m_mouseDownMode; }
    /// The rectangle that a drag has marked, in view points; createSubImage() turns it into
    /// picture points.
    [[nodiscard]] FloatRect zoomAreaRect() const { return m_zoomAreaRect; }
    /// How far the last move of such a drag was from its start.
    [[nodiscard]] FloatPoint prevDelta() const { return m_prevDelta; }
    /// The timer of mouseCheckRoutine().
    [[nodiscard]] const QTimer &mouseCheckTimer() const { return m_mouseCheckTimer; }

    /// Takes the picture of a local file. False: refused, and a sheet says why; the present
    /// picture stays. Large files and PDF files are read in the background: then true says that
    /// reading has begun, and `fileOpened` how it ended.
    bool openImageFile(const QUrl &url);
    /// Takes the reading, which may be null, of a picture that openImageFile() is asked for soon.
    void expectPicture(std::shared_ptr<PictureReadAhead> ahead);
    /// Whether a paste or drop of `pasteboard`, which may be null, would be taken: on the axis
    /// page a local file with the extension of a picture, or an image where there are no files.
    [[nodiscard]] bool acceptPasteboard(const QMimeData *pasteboard) const;
    /// Takes the first local file on `pasteboard`, else its image, as openImageFile() does. False
    /// without a word for no pasteboard.
    bool replaceImageWithPasteboard(const QMimeData *pasteboard);
    /// Makes a picture of pixels; false for null pixels.
    bool replaceImageWithImageRep(const QImage &rep);
    /// Installs a picture, upright, at its initial scale. Nothing gives false, but what hangs on
    /// the picture is brought up to date all the same.
    bool replaceImageWith(std::optional<Picture> image);

    Qt::DropAction draggingEntered(const QMimeData *pasteboard) override;
    void draggingExited() override;
    bool performDragOperation(const QMimeData *pasteboard) override;
    void concludeDragOperation() override;
    /// An acceptable drag hovers over the picture.
    [[nodiscard]] bool becameDropTarget() const { return m_becameDropTarget; }
    [[nodiscard]] HoveringDrag hoveringDrag() const { return m_hoveringDrag; }

    void imageRotateCw();
    void imageRotateCcw();

    void zoomIn();
    void zoomOut();
    void zoomToActualSize();
    void zoomToFitWidth();
    void zoomToFitHeight();
    /// The action of the zoom slider.
    void imageScaleChanged();
    [[nodiscard]] bool canZoomIn() const;
    [[nodiscard]] bool canZoomOut() const;
    [[nodiscard]] bool canZoomToActual() const;

    /// `rescaleImageWith:sliderFeedback:` rescales about the centre of what is visible.
    void rescaleImageWith(float scale, bool sliderFeedback);
    /// `rescaleImageWith:atCenter:sliderFeedback:` rescales so that the view point `atCenter`
    /// comes to the centre of the clip.
    void rescaleImageWith(float scale, FloatPoint atCenter, bool sliderFeedback);

    /// Brings the controls and the hover timer in line with the picture and the page.
    void setButtonStates();

    /// Runs `ready` once the picture is encoded. A large one is encoded in the background, from the
    /// moment at which it comes.
    void encodePicture(std::function<void()> ready);
    /// Whether dataForSave() has no large picture left to encode.
    [[nodiscard]] bool pictureIsEncoded() const;
    [[nodiscard]] ArchiveDictionary dataForSave() const;
    /// The same, without a picture that is not encoded yet.
    [[nodiscard]] ArchiveDictionary dataAsFarAsEncoded() const;
    /// False for no data. A damaged picture counts as none.
    bool loadFromData(const ArchiveDictionary *stored);

    /// The page of the action tab was changed.
    void settingModeChanged();
    void prefsChanged();
    void windowWillClose();

    void startMouseChecking();
    void stopMouseChecking();
    /// One look at the pointer: cursor and guide follow it.
    void mouseCheckRoutine();

    /// `mosueDownMode:` is the mode that the modifier keys choose on the present page.
    [[nodiscard]] int mosueDownMode(Qt::KeyboardModifiers modifierFlags) const;

    /// Forces a mode, HandMode to TrimMode, for as long as the modifier keys choose none of these;
    /// nothing leaves the choice to the page. TrimMode is refused on the digitizing page, and
    /// dropped when that page comes.
    void setForcedMode(std::optional<MouseDownMode> mode);
    [[nodiscard]] std::optional<MouseDownMode> forcedMode() const { return m_forcedMode; }

    /// Whether the grid that the axes imply lies over the picture, while they imply one.
    void setShowsAxisGrid(bool shows);
    [[nodiscard]] bool showsAxisGrid() const { return m_showsAxisGrid; }

    /// Cuts zoomAreaRect() out of the picture; nothing if it is empty.
    [[nodiscard]] std::optional<Picture> createSubImage();
    /// `trimAlertDidEnd:returnCode:contextInfo:`: the user has answered whether to trim.
    void trimAlertDidEnd(SheetAnswer returnCode);

    void setNeedsDisplay();

    /// The point in view coordinates of a point in window coordinates (y upwards from the
    /// bottom left of the window's content).
    [[nodiscard]] FloatPoint convertPointFromWindow(FloatPoint windowPoint) const;

    /// From the first move of an anchor drag that hit something to its release. Commands and
    /// keys that arrive meanwhile act after it, when `anchorDragEnded` is sent.
    [[nodiscard]] bool isTrackingAnchorDrag() const { return m_trackingAnchorDrag; }

    /// Whether the keyboard is used here: it brought the focus, or it moves the pointer.
    [[nodiscard]] bool isUsedByKeyboard() const;
    /// The pointer as the arrow keys move it, in picture points, y upwards; nothing while it is
    /// the mouse's.
    [[nodiscard]] std::optional<QPointF> keyboardPointer() const { return m_keyboardPointer; }
    /// The code of the part of the axes that the arrow keys move, 0 for none.
    [[nodiscard]] int keyboardPart() const { return m_keyboardPart; }

Q_SIGNALS:
    void anchorDragEnded();
    /// The reading of a file in the background has ended; `taken` says whether its picture was
    /// installed.
    void fileOpened(bool taken);
    void hoveringDragChanged(HoveringDrag drag);
    void pictureChanged();
    void scaleChanged(float scale);
    void mouseDownModeChanged(int mode);
    /// The pointer in picture coordinates, or nothing when it is not on the visible picture.
    void hoverChanged(std::optional<FloatPoint> inPicture);
    /// Whether the keyboard is used here, or what it has chosen, was changed.
    void keyboardChanged();
    /// A key has moved the pointer; what follows the pointer is up to date.
    void keyboardPointerMoved();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool event(QEvent *event) override;

private:
    void giveUpOpening();
    bool openPicture(const PictureSource &source);
    void openPdfFile(const QString &path);
    void presentProblem(const QString &explanation);
    void otherPictureCame();
    void pictureWasEncoded(std::shared_ptr<const ArchivedPicture> encoded);
    void imageRotated();
    void makeScaledImage();
    void zoomAbout(double factor, QPointF viewportPosition);

    /// A press that makes the window active does nothing else.
    [[nodiscard]] bool bringsWindowToFront(const QMouseEvent &press) const;
    void mouseDown(FloatPoint windowPoint, FloatPoint viewPosition, int mode);
    void mouseDragged(FloatPoint windowPoint);
    void mouseUp();
    void dragAnchors(FloatPoint windowPoint);
    void endAnchorDrag(FloatPoint viewPosition);
    void resetMouse();
    void abandonPress();

    [[nodiscard]] bool isDraggingZoomArea() const;
    void dragZoomArea(FloatPoint windowPoint);
    void zoomInWithMouse(bool wasDragged);
    void zoomOutWithMouse(bool wasDragged);
    void rescaleToZoomArea(float factor);
    void askToTrim();
    void abandonZoomArea();
    void drawZoomArea(QPainter &painter) const;

    bool pointWithKey(const QKeyEvent &event);
    [[nodiscard]] FloatPoint keyboardPointerInView() const;
    [[nodiscard]] QPointF startOfKeyboardPointer() const;
    void moveKeyboardPointer(QPointF way);
    void setKeyboardPointer(QPointF inPicture);
    void leavePointerToMouse();
    void leavePointerToMovedMouse(QPoint globalPosition);
    void chooseKeyboardPart(int part);
    void moveKeyboardPart(QPointF way);
    bool clickAtKeyboardPointer();
    void drawKeyboardPointer(QPainter &painter) const;
    void setFocusFrameShown(bool shown);

    void endDragging();
    void setHoveringDrag(HoveringDrag drag);

    void drawRect(QPainter &painter, const QRect &dirtyRect);
    void drawPicture(QPainter &painter, const QRect &dirtyRect);
    void drawAxisGrid(QPainter &painter);
    static void drawDropVeil(QPainter &painter, const QRect &dirtyRect);

    [[nodiscard]] FloatPoint viewPoint(QPointF widgetPosition) const;
    [[nodiscard]] FloatPoint windowPoint(QPointF widgetPosition) const;
    [[nodiscard]] FloatPoint pointerInView() const;
    [[nodiscard]] bool isPointerOn(const FloatRect &rect, FloatPoint pointer) const;
    [[nodiscard]] int modeOfPress(Qt::KeyboardModifiers modifierFlags) const;
    void setMouseDownMode(int mode);
    void setHover(std::optional<FloatPoint> inPicture);
    void setModeCursor(int mode);

    static constexpr double zoomStep = 1.4142135623730951;

    PictureScrollArea &m_scrollArea;
    ImageViewOutlets m_outlets;
    std::unique_ptr<PictureOpener> m_opener;
    std::unique_ptr<PdfOpener> m_pdfOpener;

    float m_imageScale = 0.1F;
    float m_rotation = 0;
    std::optional<Picture> m_originalImage;
    std::optional<ScaledImage> m_scaledImage;
    mutable std::shared_ptr<const ArchivedPicture> m_archivedImage; ///< made at the first save
    std::vector<std::function<void()>> m_waitingForEncoding;
    BackgroundWork m_encoding;

    QTimer m_mouseCheckTimer;
    int m_mouseDownMode = 0;
    bool m_becameDropTarget = false;
    HoveringDrag m_hoveringDrag = HoveringDrag::None;
    bool m_justMouseDown = false;
    bool m_inDragging = false;
    FloatPoint m_initialMousePos; ///< window coordinates
    FloatPoint m_initialViewPos;
    FloatPoint m_initialOrigin;
    FloatPoint m_prevDelta;
    FloatRect m_zoomAreaRect;
    bool m_trimQuestionIsOpen = false;
    std::optional<MouseDownMode> m_forcedMode;
    MouseCursors m_cursors;
    bool m_showsAxisGrid = false;
    AxisGridLayer m_axisGrid;

    bool m_leftButtonIsDown = false; ///< a press that counted, until its release
    bool m_windowIsBlocked = false;  ///< a sheet is open, and no release arrives
    bool m_trackingAnchorDrag = false;
    FloatPoint m_anchorDragPosition; ///< of its last move, in view points
    std::vector<std::unique_ptr<QKeyEvent>> m_keysDuringDrag;
    bool m_spaceIsHeld = false;
    std::optional<quint32> m_activatedAt; ///< when the window last became active, if it ever did
    std::optional<FloatPoint> m_hover;
    FocusFrame *m_focusFrame; // owned by the viewport
    std::optional<QPointF> m_keyboardPointer;
    QPoint m_mouseAtKeyboard; ///< where the mouse rests on the desktop meanwhile
    int m_keyboardPart = 0;
    QPointF m_movedTo; ///< where in the viewport the last move was, to the pixel
};
