#pragma once

#include "conversion/ZKConvCoordinate.h"
#include "document/DocumentArchive.h"
#include "document/DocumentServices.h"
#include "document/MenuRules.h"
#include "document/RecoveryStore.h"
#include "geometry/FloatGeometry.h"
#include "imageview/BackgroundReading.h"
#include "platform/ChangeKind.h"
#include "platform/DurableFile.h"
#include "platform/UndoManager.h"

#include <QObject>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

class AxesAdapter;
class CaptureAdapter;
class CurrentAxes;
class CursorGuide;
class CurvegrabPrefs;
class DataSeries;
class DataTableView;
class DocumentPlot;
class DocumentRecovery;
class DocumentSaving;
class DocumentStatus;
class DocumentWindow;
class ExportChoices;
class ExportFormats;
class GraphImageView;
class ImageViewAdapter;
class PictureReadAhead;
class RecentThumbnails;
class SeriesExport;
class ToolPalette;

/// One picture being digitized together with everything captured on it: the picture view, the axis
/// settings, the cursor guide, the data series and the data table, in one window.
class MyDocument : public QObject
{
    Q_OBJECT

public:
    /// Makes the window (not shown yet) and wires the components. `services` outlives the document.
    explicit MyDocument(DocumentServices &services, int number = 1, QObject *parent = nullptr);
    ~MyDocument() override;

    /// The interface file that the window is made from.
    [[nodiscard]] static QString windowNibName() { return QStringLiteral("MyDocument"); }
    /// Sets the window up and shows it.
    void showWindow();

    /// Runs `action` once the desktop has given the window its place.
    void whenOnScreen(std::function<void()> action);

    /// The file that a plain save writes; a picture's document has one before it is written.
    [[nodiscard]] const QUrl &fileUrl() const { return m_fileUrl; }
    void setFileUrl(const QUrl &url);
    /// The state in which this document knows its file; nothing if it never read or wrote it.
    [[nodiscard]] const std::optional<durablefile::Stamp> &fileStamp() const { return m_fileStamp; }

    /// `loadDataRepresentation:ofType:` takes the content of a document file, or (for any other
    /// type) notes that the file at fileUrl() is a picture; false if it is neither. The window is
    /// not touched.
    [[nodiscard]] bool loadDataRepresentation(const QByteArray &data, const QString &ofType);
    /// The same with the content of a document file that was read already, with its picture.
    [[nodiscard]] bool loadReading(documentarchive::Reading reading);
    /// Takes the reading, which may be null, of the picture at fileUrl() that was begun already.
    void expectPicture(std::shared_ptr<PictureReadAhead> ahead);
    /// After a document file was refused: what is wrong with it, and what is left of it.
    [[nodiscard]] const documentarchive::Reading &refusedReading() const { return m_refused; }
    /// Takes what is left of a damaged document; it is a new one, and modified.
    void loadRemains(ArchiveDictionary root);
    /// `dataOfType:error:` gives the content of the document file, whatever the type; nothing if
    /// there is not enough memory for the picture.
    [[nodiscard]] std::optional<QByteArray> dataOfType(const QString &type) const;
    /// Nothing, always: saving goes through dataOfType().
    [[nodiscard]] std::optional<QByteArray> dataRepresentationOfType(const QString &type) const;
    /// Restores the window from what was loaded, or begins a new document.
    void windowControllerDidLoadNib();
    [[nodiscard]] bool openImageDirect() const { return m_openImageDirect; }
    [[nodiscard]] const std::optional<ArchiveDictionary> &loadedDataDict() const
    {
        return m_loadedDataDict;
    }
    /// The root dictionary as a file has it now.
    [[nodiscard]] ArchiveDictionary rootDictionary() const;
    /// The same, without a picture that is not encoded yet.
    [[nodiscard]] ArchiveDictionary rootDictionaryAsFarAsEncoded() const;

    /// Takes what was kept safe from a crash; it is modified.
    void loadRecovered(RecoveryStore::Document recovered);
    /// Begins to keep unsaved changes safe from a crash, in place of what is kept under the key
    /// `insteadOf`, if any.
    void keepSafeNow(const QString &insteadOf = {});

    /// Reads in the background what the document is to show; `work` and `cancelled` are as
    /// BackgroundReading::begin() has them. Until then the window takes nothing but the
    /// cancelling; one that is not on the screen yet comes there if the reading takes long.
    void readInBackground(const QString &name, BackgroundReading::Work work,
                          BackgroundReading::Handler cancelled);
    [[nodiscard]] bool isReading() const;

    /// Whether the file has another state than this document: that of before its changes, or one
    /// that another program has put there. Looks at the disk.
    [[nodiscard]] bool canRevert() const;
    /// Whether nothing was ever done in this window, so that a file may be opened in it; one whose
    /// picture could not be opened is such a window too.
    [[nodiscard]] bool isUntouched() const;
    /// What is written to a file now is the document as it is.
    void isBeingSaved();
    /// The document as it was at isBeingSaved() is now in the file at `path`, which is as `stamp`
    /// says. What was done since then is not saved.
    void wasSavedTo(const QString &path, const std::optional<durablefile::Stamp> &stamp);
    /// The document was read from the file at `path`, which was then as `stamp` says.
    void wasReadFrom(const QString &path, const std::optional<durablefile::Stamp> &stamp);
    /// Shows what was loaded from the file again, and forgets the rest.
    void revertToLoaded(const std::optional<durablefile::Stamp> &stamp);
    /// Shows what was loaded, in a window that may be in use.
    void showLoaded();
    /// Closes the window, after asking about changes; `closed` runs only if it was.
    void closeThen(std::function<void()> closed);
    void raise();
    [[nodiscard]] QStringList recentFiles() const;
    [[nodiscard]] RecentThumbnails &recentThumbnails() const;
    /// How data were exported last.
    [[nodiscard]] ExportChoices &exportChoices() const;
    /// The folder with the documents that come with the program.
    [[nodiscard]] QString examplesFolder() const;
    [[nodiscard]] std::vector<MyDocument *> openDocuments() const;

    [[nodiscard]] DocumentWindow &window() const { return *m_window; }
    [[nodiscard]] GraphImageView &graphView() const { return *m_graphView; }
    [[nodiscard]] DataTableView &dataTableView() const { return *m_dataTableView; }
    [[nodiscard]] CurrentAxes &currentAxes() const { return *m_currentAxes; }
    [[nodiscard]] CursorGuide &cursorGuide() const { return *m_cursorGuide; }
    [[nodiscard]] DataSeries &dataSeries() const { return *m_dataSeries; }

    [[nodiscard]] CurvegrabPrefs &prefs() const;
    [[nodiscard]] UndoManager &undoManager() { return m_undoManager; }
    [[nodiscard]] Sheets &sheets() const { return *m_dialogs.sheets; }
    [[nodiscard]] PasswordSheets &passwordSheets() const { return *m_dialogs.passwords; }
    [[nodiscard]] Clipboard &clipboard() const;
    [[nodiscard]] Desktop &desktop() const { return *m_desktop; }
    [[nodiscard]] DocumentMenus::SharedItems sharedItems() const;

    /// Moves the change count; the document is modified while it is not zero.
    void updateChangeCount(ChangeKind kind);
    /// The content has changed on within a step of undo that is counted already.
    void changedOn();
    [[nodiscard]] bool isDocumentEdited() const { return m_changeCount != 0 || m_savedStateIsGone; }
    [[nodiscard]] QString displayName() const;
    /// Tells documents without a file apart.
    [[nodiscard]] int number() const { return m_number; }

    /// Axis-setting mode: the first tab is selected; otherwise digitizing.
    [[nodiscard]] bool isInAxisSettingMode() const;
    void forceAxisSettingMode();

    [[nodiscard]] bool hasImage() const;
    [[nodiscard]] FloatSize imageSize() const;
    [[nodiscard]] bool isKey() const { return m_isKey; }

    /// What the menu rules ask.
    [[nodiscard]] menurules::State menuState() const;
    [[nodiscard]] int axisType() const;
    [[nodiscard]] int drawMode() const;
    [[nodiscard]] bool sortsAutomatically() const;
    /// The mode that the chosen mouse tool forces; 0 for the pointer, which forces none.
    [[nodiscard]] int mouseTool() const;

    /// Runs a command whose rule allows it now; a command given during an anchor drag waits for its
    /// end.
    void perform(int tag, std::function<void()> command);

    /// The standard frame around the picture (frame included, open drawer not), in points.
    [[nodiscard]] FloatSize windowWillUseStandardFrame() const;
    /// The window's frame without an open drawer, in points.
    [[nodiscard]] FloatSize windowFrameSize() const;
    /// `zoom:` for a new picture: gives the window its standard frame.
    void applyStandardFrame();

    // The states of the drawer's button; the sense is inverted on purpose.
    static constexpr int drawerIsOpen = 0;
    static constexpr int drawerIsClosed = 1;
    /// drawerIsOpen or drawerIsClosed.
    [[nodiscard]] int drawerOpenButtonState() const { return m_drawerOpenButtonState; }

    /// The user has changed the preferences.
    void prefsChanged();

    void windowDidBecomeKey();
    void windowDidResignKey();
    /// Whether the window may close now; if not, the user is asked.
    [[nodiscard]] bool windowShouldClose();
    void windowWillClose();

    /// Something that menus, title or status line show has changed.
    void showsChanged();

public Q_SLOTS:
    void newDocument();
    void openDocument();
    void openFiles(const QStringList &paths);
    /// Opens an untitled copy of a document.
    void openCopy(const QString &path);
    void clearRecentFiles();
    void saveDocument();
    void saveDocumentAs();
    void revertDocumentToSaved();
    void openImageFile();
    void saveDataAs();
    void saveSelectionAs();
    void performClose();
    void terminate();
    void undo();
    void redo();
    void copy();
    void paste();
    void deleteSelection();
    void selectAll();
    void showAxisSetting();
    void showDigitizing();
    void zoomToActualSize();
    void zoomIn();
    void zoomOut();
    void zoomToFitWidth();
    void zoomToFitHeight();
    void toggleAxisGrid();
    void showResult();
    void imageRotateCw();
    void imageRotateCcw();
    void choosePointerTool();
    void chooseHandTool();
    void chooseZoomInTool();
    void chooseZoomOutTool();
    void chooseTrimTool();
    void chooseParallelAxes();
    void chooseQuadrangleAxes();
    void choosePolarAxes();
    void resetPosition();
    void wholePosition();
    void moveToNextSeries();
    void moveToPrevSeries();
    void lockUnlockX();
    void lockUnlockY();
    void setDrawMarkers();
    void setDrawMarkersAndLines();
    void setDrawLines();
    void simulateToggleSort();
    void performMiniaturize();
    /// The Window menu's zoom: to the standard frame and back to the user's.
    void zoomWindow();
    void about();
    void editPreferences();
    void showHelp();
    void showAxisHelp();
    void showDigitizeHelp();
    void showHideDataTable();

Q_SIGNALS:
    /// The content was changed, also by undo.
    void edited();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeComponents();
    void wire();
    [[nodiscard]] ArchiveDictionary rootDictionaryWith(ArchiveDictionary viewData) const;
    void changeCountMoved();
    void makeReading();
    void hasFile(const QString &path, const std::optional<durablefile::Stamp> &stamp);
    void restore(const ArchiveDictionary &root);
    void restoreWindow(const ArchiveDictionary &root);
    void applyFrame(const QRect &frame);
    [[nodiscard]] QRect frameWithoutDrawer() const;
    /// Lets the user drag the selected series away as copySelection() would copy them.
    void dragSelection();
    void placeNewWindow();
    void rememberWindowPlace();
    /// What stands in the field with the keyboard counts, though the user has not left it yet.
    void takeTypedText();
    void openOwnPicture();
    /// `openImageFileDidEnd:returnCode:contextInfo:` takes the picture that the user has confirmed.
    void openImageFileDidEnd(const QString &path);
    void chooseAxisType(int type);
    void runPostponedCommands();
    void drawerDidOpen();
    void drawerDidClose();
    void drawerStateChanged();
    void showTitle();
    [[nodiscard]] bool acceptsPasteboard() const;
    void pasteboardChanged();
    void notificationPosted(const QString &name);
    void showInInfoPanel() const;

    DocumentServices &m_services;
    int m_number;
    UndoManager m_undoManager;
    int m_changeCount = 0;
    bool m_savedStateIsGone = false; ///< no undo or redo leads to what the file has
    int m_countBeingSaved = 0;
    bool m_stateBeingSavedIsGone = false;
    bool m_isKey = false;
    bool m_closeAgreed = false;
    mutable std::optional<bool> m_pasteboardIsGood; ///< as far as it was looked at
    int m_drawerOpenButtonState = drawerIsClosed;
    QUrl m_fileUrl;
    std::optional<durablefile::Stamp> m_fileStamp;
    bool m_openImageDirect = false;
    bool m_hasNoOwnPicture = false; ///< the picture that the window was opened for did not come
    bool m_loadsRemains = false;
    std::optional<ArchiveDictionary> m_loadedDataDict;
    documentarchive::Reading m_refused;
    std::vector<std::function<void()>> m_whenOnScreen;
    std::vector<std::pair<int, std::function<void()>>> m_postponed;
    QRect m_userFrame; ///< without the drawer

    std::unique_ptr<AxesAdapter> m_axesAdapter;
    std::unique_ptr<CaptureAdapter> m_captureAdapter;
    std::unique_ptr<ImageViewAdapter> m_imageViewAdapter;
    std::unique_ptr<DocumentWindow> m_window;
    WindowDialogs m_dialogs;
    std::unique_ptr<Desktop> m_desktop;
    GraphImageView *m_graphView = nullptr;    // owned by the window
    DataTableView *m_dataTableView = nullptr; // owned by the window
    std::unique_ptr<CurrentAxes> m_currentAxes;
    std::unique_ptr<DataSeries> m_dataSeries;
    std::unique_ptr<CursorGuide> m_cursorGuide;
    std::unique_ptr<ExportFormats> m_exportFormats;
    std::unique_ptr<SeriesExport> m_seriesExport;
    std::unique_ptr<DocumentSaving> m_saving;
    std::unique_ptr<DocumentRecovery> m_recovery;
    std::unique_ptr<BackgroundReading> m_reading;
    std::unique_ptr<DocumentPlot> m_plot; ///< null before it was wanted
    DocumentMenus *m_menus = nullptr;     // owned by the window
    DocumentStatus *m_status = nullptr;   // owned by the window
    ToolPalette *m_tools = nullptr;       // owned by the window
};
