#include "document/MyDocument.h"

#include "axes/CurrentAxes.h"
#include "capture/CursorGuide.h"
#include "capture/DataSeries.h"
#include "capture/SeriesExport.h"
#include "document/ComponentAdapters.h"
#include "document/DocumentPlot.h"
#include "document/DocumentRecovery.h"
#include "document/DocumentSaving.h"
#include "document/DocumentStatus.h"
#include "document/DocumentWindow.h"
#include "document/ExamplesMenu.h"
#include "document/ExportFormats.h"
#include "document/RecentFiles.h"
#include "document/RecentThumbnails.h"
#include "document/ToolPalette.h"
#include "document/WindowFrame.h"
#include "imageview/GraphImageView.h"
#include "imageview/MouseDownMode.h"
#include "imageview/PictureSuffixes.h"
#include "infopanel/InfoPanelController.h"
#include "platform/NotificationCentre.h"
#include "platform/Pasteboard.h"
#include "platform/TableDrag.h"
#include "platform/TextField.h"
#include "platform/Texts.h"
#include "prefs/CurvegrabPrefs.h"
#include "ui_MyDocument.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QScreen>

#include <utility>

namespace {

FloatSize sizeOf(QSize size)
{
    return {static_cast<float>(size.width()), static_cast<float>(size.height())};
}

} // namespace

MyDocument::MyDocument(DocumentServices &services, int number, QObject *parent)
    : QObject(parent)
    , m_services(services)
    , m_number(number)
    , m_axesAdapter(std::make_unique<AxesAdapter>(*this))
    , m_captureAdapter(std::make_unique<CaptureAdapter>(*this))
    , m_imageViewAdapter(std::make_unique<ImageViewAdapter>(*this))
    , m_window(std::make_unique<DocumentWindow>(*this))
    , m_dialogs(services.makeDialogs(*m_window))
    , m_desktop(services.makeDesktop(*m_window))
{
    makeComponents();
    wire();
    m_menus = new DocumentMenus(*this, *m_window, services.sharedItems());
    if (m_menus->examples().hasExamples())
        m_window->offerExamples(m_menus->examples());
    m_status = new DocumentStatus(*this);
    m_tools = new ToolPalette(*this);
    m_saving = std::make_unique<DocumentSaving>(*this, m_dialogs, *m_window->ui().statusBar);
    m_recovery = std::make_unique<DocumentRecovery>(*this, services.recoveryStore(),
                                                    *m_window->ui().statusBar);
    makeReading();
    m_window->keepHintClearOfProgress();
    showTitle();
    // The first question to the pasteboard loads all formats of pictures, which nobody shall wait
    // for who has not seen the window yet.
    m_pasteboardIsGood = false;
    showsChanged();
}

MyDocument::~MyDocument()
{
    // The picture loses the focus with its window, when what would show that cannot any more.
    m_graphView->disconnect(m_status);
}

void MyDocument::makeComponents()
{
    Ui::MyDocument &ui = m_window->ui();
    m_graphView = new GraphImageView(*ui.pictureScrollArea);
    m_dataTableView = ui.dataTableView;
    m_currentAxes = std::make_unique<CurrentAxes>(
        CurrentAxesOutlets{ui.axisTypePopup, ui.resetDefault, ui.resetWhole, ui.minXTextField,
                           ui.maxXTextField, ui.logXCheck, ui.minYTextField, ui.maxYTextField,
                           ui.logYCheck, ui.thetaRangePopup, ui.rotDirRadio, ui.currentXLabel,
                           ui.currentYLabel, ui.xAxisBox, ui.yAxisBox, ui.tAxisBox, ui.xModeBox,
                           ui.autoXModePopUp, ui.sortCheck},
        *m_axesAdapter, *m_axesAdapter, *m_axesAdapter, *m_axesAdapter);
    CaptureAdapter &capture = *m_captureAdapter;
    m_dataSeries = std::make_unique<DataSeries>(
        DataSeriesOutlets{ui.seriesPopup, ui.markerDrawPopup, ui.sortCheck},
        DataSeriesSurroundings{capture, capture, capture, capture, capture});
    m_cursorGuide = std::make_unique<CursorGuide>(
        CursorGuideSurroundings{capture, capture, *m_dataSeries, capture, capture},
        CursorGuideOutlets{ui.autoXModePopUp, ui.initialXTextField, ui.stepXTextField,
                           ui.currentXTextField, ui.currentYTextField, ui.lockXCheck,
                           ui.lockYCheck});
    m_exportFormats = std::make_unique<ExportFormats>(*this, m_services.exportChoices());
    m_seriesExport = std::make_unique<SeriesExport>(
        SeriesExportSurroundings{*m_dataSeries, *m_dialogs.panels, *m_dialogs.sheets, capture,
                                 *m_exportFormats},
        [this] { return displayName(); });
}

// Connects everything that talks to each other, then wakes the components up in the order in which
// they need each other.
void MyDocument::wire()
{
    Ui::MyDocument &ui = m_window->ui();
    ImageViewAdapter &view = *m_imageViewAdapter;
    m_graphView->connectOutlets({&view, &view, &view, &view, &view, &view, ui.rotateCWButton,
                                 ui.rotateCCWButton, ui.fitWidthButton, ui.fitHeightButton,
                                 ui.magnificationSlider, ui.actionSelectionTab, ui.noImageTab});
    m_dataTableView->setDataSource(*m_dataSeries, *m_captureAdapter);
    m_dataSeries->connectTo({m_cursorGuide.get(), m_dataTableView, ui.markerPreview});

    connect(&m_undoManager, &UndoManager::changeCounted, this, &MyDocument::updateChangeCount);
    connect(&m_undoManager, &UndoManager::historyChanged, this, &MyDocument::showsChanged);
    connect(ui.actionSelectionTab, &ActionTab::didSelectTab, this, [this] {
        m_graphView->settingModeChanged();
        showsChanged();
    });
    connect(ui.drawerOpenButton, &QToolButton::clicked, this, &MyDocument::showHideDataTable);
    connect(ui.dataTableDrawer, &TableDrawer::didOpen, this, &MyDocument::drawerDidOpen);
    connect(ui.dataTableDrawer, &TableDrawer::didClose, this, &MyDocument::drawerDidClose);
    connect(m_dataTableView, &DataTableView::selectedColumnsChanged, this,
            &MyDocument::showsChanged);
    connect(m_dataTableView, &DataTableView::selectionDragged, this, &MyDocument::dragSelection);
    // What is kept safe since the drag began has the anchors somewhere on their way.
    connect(m_graphView, &GraphImageView::anchorDragEnded, this, &MyDocument::changedOn);
    connect(m_graphView, &GraphImageView::anchorDragEnded, this, &MyDocument::runPostponedCommands);
    connect(m_graphView, &GraphImageView::pictureChanged, this, &MyDocument::showsChanged);
    connect(m_graphView, &GraphImageView::fileOpened, this,
            [this](bool wasTaken) { m_hasNoOwnPicture = !wasTaken && !m_fileStamp; });
    connect(m_graphView, &GraphImageView::scaleChanged, this, &MyDocument::showsChanged);
    connect(&m_services.notificationCentre(), &NotificationCentre::posted, this,
            &MyDocument::notificationPosted);
    connect(&m_services.pasteboard(), &Pasteboard::changed, this, &MyDocument::pasteboardChanged);

    m_currentAxes->awakeFromNib();
    m_dataSeries->awakeFromNib();
    m_cursorGuide->awakeFromNib();
    m_graphView->awakeFromNib();
    m_currentAxes->replaceAxisDisplay();

    // After the components have taken over what their controls say. How series are drawn and sorted
    // is no change of the document; the axes count theirs, but leave it to others to show them.
    connect(ui.markerDrawPopup, &QComboBox::activated, this, &MyDocument::showsChanged);
    connect(ui.sortCheck, &QCheckBox::clicked, this, &MyDocument::showsChanged);
    connect(this, &MyDocument::edited, this, [this] {
        showsChanged();
        if (m_graphView->showsAxisGrid())
            m_graphView->setNeedsDisplay();
    });
}

CurvegrabPrefs &MyDocument::prefs() const { return m_services.prefs(); }

Clipboard &MyDocument::clipboard() const { return m_services.clipboard(); }

DocumentMenus::SharedItems MyDocument::sharedItems() const { return m_services.sharedItems(); }

void MyDocument::updateChangeCount(ChangeKind kind)
{
    switch (kind) {
    case ChangeKind::Done:
        // What was undone since the save can no longer be redone.
        m_savedStateIsGone = m_savedStateIsGone || m_changeCount < 0;
        m_stateBeingSavedIsGone = m_stateBeingSavedIsGone || m_changeCount < m_countBeingSaved;
        ++m_changeCount;
        break;
    case ChangeKind::Redone:
        ++m_changeCount;
        break;
    case ChangeKind::Undone:
        --m_changeCount;
        break;
    case ChangeKind::Cleared:
        m_changeCount = 0;
        m_savedStateIsGone = false;
        // What was saved is not to change within a step that is counted already.
        if (m_currentAxes != nullptr)
            m_currentAxes->endMovesOfPart();
        break;
    }
    changeCountMoved();
    if (kind != ChangeKind::Cleared)
        Q_EMIT edited();
}

void MyDocument::changeCountMoved()
{
    m_window->setWindowModified(isDocumentEdited());
    if (m_recovery != nullptr)
        m_recovery->documentChanged();
}

void MyDocument::changedOn()
{
    if (m_recovery != nullptr)
        m_recovery->documentChanged();
    Q_EMIT edited();
}

QString MyDocument::displayName() const
{
    if (m_fileUrl.isLocalFile())
        return m_fileUrl.fileName();
    if (m_number <= 1)
        return texts::localized("document.title.untitled");
    return texts::localized("document.title.numbered").arg(m_number);
}

bool MyDocument::isInAxisSettingMode() const
{
    return m_window->ui().actionSelectionTab->indexOfSelectedTab() == ActionTab::axisSetting;
}

void MyDocument::forceAxisSettingMode()
{
    m_window->ui().actionSelectionTab->selectTab(ActionTab::axisSetting);
}

bool MyDocument::hasImage() const { return m_graphView->hasImage(); }

FloatSize MyDocument::imageSize() const { return m_graphView->imageSizeWithRotate(); }

menurules::State MyDocument::menuState() const
{
    menurules::State state;
    state.hasImage = hasImage();
    state.inAxisSettingMode = isInAxisSettingMode();
    state.tableShown = m_drawerOpenButtonState == drawerIsOpen;
    state.numSelectedSeries = m_dataSeries->numSelectedSeries();
    state.numValidSeries = static_cast<int>(m_dataSeries->validSeries().size());
    state.currentSeries = m_dataSeries->currentSeries();
    state.autoXMode = m_cursorGuide->autoXMode();
    state.axisType = axisType();
    state.acceptsPasteboard = acceptsPasteboard();
    state.canZoomToActual = m_graphView->canZoomToActual();
    state.canZoomIn = m_graphView->canZoomIn();
    state.canZoomOut = m_graphView->canZoomOut();
    return state;
}

// The program that filled the pasteboard may be slow to answer: it is asked once per change, and
// only by the window that is in use.
bool MyDocument::acceptsPasteboard() const
{
    if (!isInAxisSettingMode())
        return false;
    if (!m_pasteboardIsGood)
        m_pasteboardIsGood = m_graphView->acceptPasteboard(m_services.pasteboard().content());
    return *m_pasteboardIsGood;
}

void MyDocument::pasteboardChanged()
{
    m_pasteboardIsGood.reset();
    if (m_isKey)
        showsChanged();
}

int MyDocument::axisType() const { return m_currentAxes->axisType(); }

int MyDocument::drawMode() const
{
    return m_dataSeries->markerDrawOf(m_dataSeries->currentSeries());
}

bool MyDocument::sortsAutomatically() const { return m_dataSeries->autoSortByX(); }

int MyDocument::mouseTool() const { return m_graphView->forcedMode().value_or(DigitizeMode); }

void MyDocument::perform(int tag, std::function<void()> command)
{
    if (m_graphView->isTrackingAnchorDrag()) {
        m_postponed.emplace_back(tag, std::move(command));
        return;
    }
    if (menurules::validateMenuItem(tag, menuState()))
        command();
    showsChanged();
}

void MyDocument::runPostponedCommands()
{
    for (auto &[tag, command] : std::exchange(m_postponed, {}))
        perform(tag, std::move(command));
}

FloatSize MyDocument::windowWillUseStandardFrame() const
{
    const QSize decoration = m_window->frameGeometry().size() - m_window->size();
    QSize smallest = m_window->minimumSize().expandedTo(m_window->minimumSizeHint()) + decoration;
    smallest.rwidth() -= m_window->ui().dataTableDrawer->widthInWindow();
    const FloatSize view{static_cast<float>(m_graphView->width()),
                         static_cast<float>(m_graphView->height())};
    return windowframe::standardSize(view, sizeOf(smallest));
}

FloatSize MyDocument::windowFrameSize() const
{
    QSize frame = m_window->frameGeometry().size();
    frame.rwidth() -= m_window->ui().dataTableDrawer->widthInWindow();
    return sizeOf(frame);
}

void MyDocument::applyStandardFrame()
{
    if (m_window->isMaximized() || m_window->isFullScreen())
        return;
    const FloatSize standard = windowWillUseStandardFrame();
    const int drawer = m_window->ui().dataTableDrawer->widthInWindow();
    const QRect oldFrame = m_window->frameGeometry();
    const QRect frame = windowframe::placed(
        oldFrame,
        QSize(static_cast<int>(standard.width) + drawer, static_cast<int>(standard.height)),
        m_window->screen()->availableGeometry());
    const QSize decoration = oldFrame.size() - m_window->size();
    m_window->resize(frame.size() - decoration);
    if (m_window->isVisible())
        m_window->move(frame.topLeft());
}

void MyDocument::zoomWindow()
{
    const FloatSize standard = windowWillUseStandardFrame();
    const QSize before = m_window->size();
    const bool isStandard = windowFrameSize() == standard;
    const QSize drawer(m_window->ui().dataTableDrawer->widthInWindow(), 0);
    if (isStandard && m_userFrame.isValid()) {
        m_window->resize(m_userFrame.size() + drawer);
        m_window->move(m_userFrame.topLeft());
        return;
    }
    const QRect userFrame(m_window->pos(), before - drawer);
    applyStandardFrame();
    if (m_window->size() != before)
        m_userFrame = userFrame;
}

void MyDocument::windowDidBecomeKey()
{
    m_isKey = true;
    m_services.documentBecameKey(*this);
    m_graphView->startMouseChecking();
    showInInfoPanel();
    drawerStateChanged();
    m_cursorGuide->lockStateChanged();
    showsChanged();
}

void MyDocument::windowDidResignKey()
{
    m_isKey = false;
    m_graphView->stopMouseChecking();
}

void MyDocument::takeTypedText()
{
    if (auto *field = qobject_cast<TextField *>(m_window->focusWidget()))
        field->takeTypedText();
}

bool MyDocument::windowShouldClose()
{
    m_reading->abandon();
    takeTypedText();
    if (m_closeAgreed || (!isDocumentEdited() && !m_saving->isBusy()))
        return true;
    closeThen({});
    return false;
}

void MyDocument::windowWillClose()
{
    rememberWindowPlace();
    m_graphView->windowWillClose();
    m_plot.reset();
    m_recovery->forget();
    if (gInfoPanelController != nullptr)
        gInfoPanelController->updateAllInfoWith(nullptr);
    m_services.documentClosed(*this);
}

void MyDocument::showsChanged()
{
    if (m_menus == nullptr || m_status == nullptr || m_tools == nullptr)
        return;
    m_menus->refresh();
    m_tools->refresh();
    m_status->refresh();
    if (m_plot != nullptr)
        m_plot->documentChanged();
}

void MyDocument::newDocument() { m_services.newDocument(); }

void MyDocument::openDocument()
{
    m_dialogs.panels->chooseFilesToOpen(
        picturesuffixes::all(), [this](const QStringList &paths) { m_services.openFiles(paths); });
}

void MyDocument::openFiles(const QStringList &paths) { m_services.openFiles(paths); }

QStringList MyDocument::recentFiles() const { return m_services.recentFiles().paths(); }

ExportChoices &MyDocument::exportChoices() const { return m_services.exportChoices(); }

void MyDocument::openCopy(const QString &path) { m_services.openCopy(path); }

QString MyDocument::examplesFolder() const { return m_services.examplesFolder(); }

std::vector<MyDocument *> MyDocument::openDocuments() const { return m_services.openDocuments(); }

void MyDocument::clearRecentFiles()
{
    m_services.recentFiles().clear();
    m_services.recentThumbnails().clear();
}

RecentThumbnails &MyDocument::recentThumbnails() const { return m_services.recentThumbnails(); }

// Until a file is read whole there is nothing that could take its place.
void MyDocument::saveDocument()
{
    if (isReading())
        return;
    takeTypedText();
    m_saving->save({});
}

void MyDocument::saveDocumentAs()
{
    if (isReading())
        return;
    takeTypedText();
    m_saving->saveAs({});
}

void MyDocument::revertDocumentToSaved() { m_saving->revert(); }

void MyDocument::openImageFile()
{
    m_dialogs.panels->choosePictureToOpen(
        picturesuffixes::all(), [this](const QString &path) { openImageFileDidEnd(path); });
}

void MyDocument::openImageFileDidEnd(const QString &path)
{
    m_graphView->openImageFile(QUrl::fromLocalFile(path));
}

void MyDocument::saveDataAs() { m_seriesExport->saveDataAs(); }

void MyDocument::saveSelectionAs() { m_seriesExport->saveSelectionAs(); }

void MyDocument::performClose() { m_window->close(); }

void MyDocument::performMiniaturize() { m_window->showMinimized(); }

void MyDocument::terminate() { m_services.terminate(); }

void MyDocument::undo() { m_undoManager.undo(); }

void MyDocument::redo() { m_undoManager.redo(); }

void MyDocument::copy() { m_dataSeries->copySelection(); }

void MyDocument::dragSelection()
{
    const std::optional<QString> text = m_dataSeries->makeStringForSeries(
        m_dataTableView->selectedColumnIndexes(), m_services.prefs().copyWithTitle());
    if (text)
        m_services.tableDrag().drag(*text);
}

void MyDocument::paste()
{
    m_graphView->replaceImageWithPasteboard(m_services.pasteboard().content());
}

void MyDocument::deleteSelection() { m_dataSeries->deleteSelection(); }

void MyDocument::selectAll() { m_dataTableView->selectAll(); }

void MyDocument::showAxisSetting()
{
    m_window->ui().actionSelectionTab->selectTab(ActionTab::axisSetting);
}

void MyDocument::showDigitizing()
{
    m_window->ui().actionSelectionTab->selectTab(ActionTab::digitizing);
}

void MyDocument::zoomToActualSize() { m_graphView->zoomToActualSize(); }

void MyDocument::zoomIn() { m_graphView->zoomIn(); }

void MyDocument::zoomOut() { m_graphView->zoomOut(); }

void MyDocument::zoomToFitWidth() { m_graphView->zoomToFitWidth(); }

void MyDocument::zoomToFitHeight() { m_graphView->zoomToFitHeight(); }

void MyDocument::toggleAxisGrid() { m_graphView->setShowsAxisGrid(!m_graphView->showsAxisGrid()); }

void MyDocument::imageRotateCw() { m_graphView->imageRotateCw(); }

void MyDocument::imageRotateCcw() { m_graphView->imageRotateCcw(); }

void MyDocument::choosePointerTool() { m_graphView->setForcedMode({}); }

void MyDocument::chooseHandTool() { m_graphView->setForcedMode(HandMode); }

void MyDocument::chooseZoomInTool() { m_graphView->setForcedMode(ZoomInMode); }

void MyDocument::chooseZoomOutTool() { m_graphView->setForcedMode(ZoomOutMode); }

void MyDocument::chooseTrimTool() { m_graphView->setForcedMode(TrimMode); }

void MyDocument::chooseParallelAxes() { chooseAxisType(0); }

void MyDocument::chooseQuadrangleAxes() { chooseAxisType(1); }

void MyDocument::choosePolarAxes() { chooseAxisType(2); }

void MyDocument::chooseAxisType(int type)
{
    m_window->ui().axisTypePopup->setCurrentIndex(type);
    m_currentAxes->axisTypeChanged();
}

void MyDocument::resetPosition() { m_currentAxes->resetPosition(CurrentAxes::Sender::Control); }

void MyDocument::wholePosition() { m_currentAxes->wholePosition(CurrentAxes::Sender::Control); }

void MyDocument::moveToNextSeries()
{
    if (!isInAxisSettingMode())
        m_dataSeries->moveToNextSeries();
}

void MyDocument::moveToPrevSeries()
{
    if (!isInAxisSettingMode())
        m_dataSeries->moveToPrevSeries();
}

void MyDocument::lockUnlockX()
{
    if (!isInAxisSettingMode())
        m_cursorGuide->simulateLockX();
}

void MyDocument::lockUnlockY()
{
    if (!isInAxisSettingMode())
        m_cursorGuide->simulateLockY();
}

void MyDocument::setDrawMarkers() { m_dataSeries->setDrawMarkers(); }

void MyDocument::setDrawMarkersAndLines() { m_dataSeries->setDrawMarkersAndLines(); }

void MyDocument::setDrawLines() { m_dataSeries->setDrawLines(); }

void MyDocument::simulateToggleSort() { m_dataSeries->simulateToggleSort(); }

void MyDocument::about()
{
    m_dialogs.sheets->present(
        {texts::localized("document.about.title"),
         texts::localized("document.about.text").arg(QCoreApplication::applicationVersion()),
         texts::localized("OK"), QString(), QString(), true},
        {});
}

void MyDocument::showHideDataTable()
{
    m_drawerOpenButtonState =
        m_drawerOpenButtonState == drawerIsClosed ? drawerIsOpen : drawerIsClosed;
    m_window->ui().dataTableDrawer->toggle();
    drawerStateChanged();
    showsChanged();
}

void MyDocument::drawerDidOpen()
{
    m_drawerOpenButtonState = drawerIsOpen;
    drawerStateChanged();
    showsChanged();
}

void MyDocument::drawerDidClose()
{
    m_drawerOpenButtonState = drawerIsClosed;
    drawerStateChanged();
    showsChanged();
}

void MyDocument::drawerStateChanged()
{
    const bool shown = m_drawerOpenButtonState != drawerIsClosed;
    m_window->ui().drawerOpenButton->setChecked(shown);
    m_services.sharedItems().showHideTable->setText(
        texts::localized(shown ? "HideTable" : "ShowTable"));
}

void MyDocument::showTitle()
{
    m_window->setWindowTitle(displayName() + QStringLiteral("[*]"));
    m_window->setWindowFilePath(m_fileUrl.toLocalFile());
}
