#pragma once

#include "conversion/ZKConvCoordinate.h"
#include "document/DocumentServices.h"
#include "document/MenuRules.h"
#include "geometry/FloatGeometry.h"
#include "platform/ChangeKind.h"
#include "platform/UndoManager.h"

#include <QObject>
#include <QRect>
#include <QString>
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
class DocumentStatus;
class DocumentWindow;
class GraphImageView;
class ImageViewAdapter;
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

    /// Shows the window of a new, empty document.
    void showWindow();
    /// Opens the picture file that this document is made from, as soon as the window is on the
    /// screen: only then its frame is known, which belongs to the window's size.
    void openPicture(const QUrl &url);

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
    [[nodiscard]] bool isDocumentEdited() const { return m_changeCount != 0; }
    [[nodiscard]] QString displayName() const;

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

    /// 0 the drawer is open, 1 it is closed.
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
    /// The Window menu's zoom: to the standard frame and back to the user's.
    void zoomWindow();
    void about();
    void editPreferences();
    void showHelp();
    void showAxisHelp();
    void showDigitizeHelp();
    void showHideDataTable();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeComponents();
    void wire();
    void readOwnPicture();
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
    bool m_isKey = false;
    bool m_closeAgreed = false;
    mutable std::optional<bool> m_pasteboardIsGood; ///< as far as it was looked at
    int m_drawerOpenButtonState = 1;
    QUrl m_fileUrl;
    std::vector<std::pair<int, std::function<void()>>> m_postponed;
    QRect m_userFrame;

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
    std::unique_ptr<SeriesExport> m_seriesExport;
    DocumentMenus *m_menus = nullptr;   // owned by the window
    DocumentStatus *m_status = nullptr; // owned by the window
    ToolPalette *m_tools = nullptr;     // owned by the window
};
