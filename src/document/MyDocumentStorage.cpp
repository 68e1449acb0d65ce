// How a document comes from a file and goes into one.
#include "document/MyDocument.h"

#include "axes/CurrentAxes.h"
#include "capture/CursorGuide.h"
#include "capture/DataSeries.h"
#include "capture/DataTableView.h"
#include "document/DocumentFile.h"
#include "document/DocumentKeys.h"
#include "document/DocumentRecovery.h"
#include "document/DocumentSaving.h"
#include "document/DocumentTypes.h"
#include "document/DocumentWindow.h"
#include "document/RecentFiles.h"
#include "document/SessionMemory.h"
#include "document/WindowFrame.h"
#include "imageview/GraphImageView.h"
#include "imageview/PictureMemory.h"
#include "platform/FirstPaint.h"
#include "platform/GeometryText.h"
#include "ui_MyDocument.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize newWindowSize{760, 620};

QRect primaryScreen() { return QGuiApplication::primaryScreen()->geometry(); }

QList<QRect> usableScreens()
{
    QList<QRect> screens{QGuiApplication::primaryScreen()->availableGeometry()};
    for (const QScreen *screen : QGuiApplication::screens()) {
        if (screen != QGuiApplication::primaryScreen())
            screens.append(screen->availableGeometry());
    }
    return screens;
}

ArchiveValue integerValue(int value) { return {std::int64_t{value}}; }

} // namespace

void MyDocument::showWindow()
{
    firstpaint::whenOver(*this, [this] { pasteboardChanged(); });
    placeNewWindow();
    if (m_loadedDataDict) {
        windowControllerDidLoadNib();
        m_window->show();
        return;
    }
    // The frame that a new window gets, and a picture needs, is known only on the screen.
    m_window->show();
    windowControllerDidLoadNib();
}

// The first window stands where the last one stood; where others go is up to the desktop, and a
// document that has been saved knows its own place.
void MyDocument::placeNewWindow()
{
    const QSize room = m_window->screen()->availableGeometry().size();
    const std::optional<QRect> place = m_services.sessionMemory().windowPlace();
    const QSize size = place ? place->size() : newWindowSize;
    m_window->resize(m_window->minimumSizeHint().expandedTo(size.boundedTo(room)));
    if (place && !m_loadedDataDict && m_services.openDocuments().size() <= 1)
        m_window->move(windowframe::restored({place->topLeft(), m_window->size()},
                                             m_window->minimumSize(), usableScreens())
                           .topLeft());
}

void MyDocument::setFileUrl(const QUrl &url)
{
    m_fileUrl = url;
    m_fileStamp.reset();
    showTitle();
}

bool MyDocument::loadDataRepresentation(const QByteArray &data, const QString &ofType)
{
    if (ofType != QLatin1String(documenttypes::curvegrabDocument)) {
        m_openImageDirect = documenttypes::isPicture(m_fileUrl.toLocalFile());
        return m_openImageDirect;
    }
    documentarchive::Reading reading = documentarchive::unarchived(data);
    documentfile::decodePicture(reading, picturememory::available());
    return loadReading(std::move(reading));
}

bool MyDocument::loadReading(documentarchive::Reading reading)
{
    if (!reading.isWhole()) {
        m_refused = std::move(reading);
        return false;
    }
    m_loadedDataDict = std::move(reading.root);
    return true;
}

void MyDocument::expectPicture(std::shared_ptr<PictureReadAhead> ahead)
{
    m_graphView->expectPicture(std::move(ahead));
}

void MyDocument::loadRemains(ArchiveDictionary root)
{
    m_loadedDataDict = std::move(root);
    m_loadsRemains = true;
}

void MyDocument::loadRecovered(RecoveryStore::Document recovered)
{
    setFileUrl(recovered.path.isEmpty() ? QUrl() : QUrl::fromLocalFile(recovered.path));
    m_fileStamp = recovered.fileStamp;
    loadRemains(std::move(recovered.root));
}

void MyDocument::keepSafeNow(const QString &insteadOf) { m_recovery->keepNow(insteadOf); }

ArchiveDictionary MyDocument::rootDictionary() const
{
    return rootDictionaryWith(m_graphView->dataForSave());
}

ArchiveDictionary MyDocument::rootDictionaryAsFarAsEncoded() const
{
    return rootDictionaryWith(m_graphView->dataAsFarAsEncoded());
}

ArchiveDictionary MyDocument::rootDictionaryWith(ArchiveDictionary viewData) const
{
    const TableDrawer &drawer = *m_window->ui().dataTableDrawer;
    const FloatSize drawerSize{static_cast<float>(drawer.contentWidth()),
                               static_cast<float>(drawer.height())};
    const FloatRect frame = windowframe::toBottomLeft(frameWithoutDrawer(), primaryScreen());
    ArchiveDictionary root;
    root.set(documentkeys::mainWindowFrame, {geometrytext::stringFromRect(frame)});
    root.set(documentkeys::dataTableSize, {geometrytext::stringFromSize(drawerSize)});
    root.set(documentkeys::dataTableViewState, integerValue(m_drawerOpenButtonState));
    root.set(documentkeys::actionTabSelection,
             integerValue(m_window->ui().actionSelectionTab->indexOfSelectedTab()));
    root.set(documentkeys::graphImageViewData, {std::move(viewData)});
    root.set(documentkeys::dataTableViewData, {m_dataTableView->dataForSave()});
    root.set(documentkeys::currentAxesData, {m_currentAxes->dataForSave()});
    root.set(documentkeys::cursorGuideData, {m_cursorGuide->dataForSave()});
    root.set(documentkeys::dataSeriesData, {m_dataSeries->dataForSave()});
    return root;
}

std::optional<QByteArray> MyDocument::dataOfType(const QString &) const
{
    const ArchiveDictionary root = rootDictionary();
    if (hasImage() && documentarchive::pictureIn(root) == nullptr)
        return std::nullopt;
    return documentarchive::archivedData(root);
}

std::optional<QByteArray> MyDocument::dataRepresentationOfType(const QString &) const
{
    return std::nullopt;
}

void MyDocument::windowControllerDidLoadNib()
{
    if (m_loadedDataDict) {
        restore(*m_loadedDataDict);
        m_loadedDataDict.reset();
        updateChangeCount(ChangeKind::Cleared);
        if (std::exchange(m_loadsRemains, false))
            updateChangeCount(ChangeKind::Done);
        showsChanged();
        return;
    }
    if (m_openImageDirect)
        openOwnPicture();
    if (m_drawerOpenButtonState == drawerIsClosed)
        showHideDataTable();
}

// The data series' restoring calls into the cursor guide and the table, and the guide's reads the
// series: the order is not the file's.
void MyDocument::restore(const ArchiveDictionary &root)
{
    restoreWindow(root);
    m_graphView->loadFromData(root.dictionaryForKey(documentkeys::graphImageViewData));
    m_dataTableView->loadFromData(root.dictionaryForKey(documentkeys::dataTableViewData));
    m_currentAxes->loadFromData(root.dictionaryForKey(documentkeys::currentAxesData));
    m_cursorGuide->loadFromData(root.dictionaryForKey(documentkeys::cursorGuideData));
    m_dataSeries->loadFromData(root.dictionaryForKey(documentkeys::dataSeriesData));
    const int tab = root.intForKey(documentkeys::actionTabSelection);
    m_window->ui().actionSelectionTab->selectTab(tab);
}

void MyDocument::restoreWindow(const ArchiveDictionary &root)
{
    TableDrawer &drawer = *m_window->ui().dataTableDrawer;
    drawer.close(); // the stored frame is the one without it
    const FloatRect frame =
        geometrytext::rectFromString(root.stringForKey(documentkeys::mainWindowFrame));
    applyFrame(windowframe::fromBottomLeft(frame, primaryScreen()));
    const FloatSize size =
        geometrytext::sizeFromString(root.stringForKey(documentkeys::dataTableSize));
    drawer.setContentWidth(static_cast<int>(std::min(size.width, 1e6F)));
    // The button knows two states, whatever number a file has.
    m_drawerOpenButtonState = root.intForKey(documentkeys::dataTableViewState) == drawerIsOpen
                                  ? drawerIsOpen
                                  : drawerIsClosed;
    if (m_drawerOpenButtonState == drawerIsOpen)
        drawer.open();
    drawerStateChanged();
}

// How much of the frame is the desktop's decoration shows only on the screen.
void MyDocument::applyFrame(const QRect &frame)
{
    if (frame.isEmpty()) {
        m_window->resize(m_window->minimumSize());
        return;
    }
    const auto apply = [this, frame] {
        const int drawer = m_window->ui().dataTableDrawer->widthInWindow();
        const QSize decoration = m_window->frameGeometry().size() - m_window->size();
        const QSize smallest = m_window->minimumSize() + decoration;
        const QRect fitting =
            windowframe::restored(frame.adjusted(0, 0, drawer, 0), smallest, usableScreens());
        m_window->resize(fitting.size() - decoration);
        m_window->move(fitting.topLeft());
    };
    apply();
    if (!m_window->isVisible())
        whenOnScreen(apply);
}

QRect MyDocument::frameWithoutDrawer() const
{
    QRect frame = m_window->frameGeometry();
    if (m_window->isMaximized() || m_window->isFullScreen()) {
        const QRect content = m_window->geometry();
        frame = m_window->normalGeometry().adjusted(
            frame.left() - content.left(), frame.top() - content.top(),
            frame.right() - content.right(), frame.bottom() - content.bottom());
    }
    frame.setWidth(frame.width() - m_window->ui().dataTableDrawer->widthInWindow());
    return frame;
}

void MyDocument::rememberWindowPlace()
{
    if (!m_window->isVisible() && !m_window->isMinimized())
        return;
    const bool fillsScreen = m_window->isMaximized() || m_window->isFullScreen();
    QRect place = fillsScreen ? m_window->normalGeometry() : m_window->geometry();
    place.setWidth(place.width() - m_window->ui().dataTableDrawer->widthInWindow());
    place.moveTopLeft(place.topLeft() - (m_window->geometry().topLeft() - m_window->pos()));
    if (!place.isEmpty())
        m_services.sessionMemory().setWindowPlace(place);
}

void MyDocument::whenOnScreen(std::function<void()> action)
{
    m_window->winId(); // makes the window of the desktop, whose events are waited for
    QWindow *onScreen = m_window->windowHandle();
    if (onScreen->isExposed()) {
        action();
        return;
    }
    m_whenOnScreen.push_back(std::move(action));
    onScreen->installEventFilter(this);
}

bool MyDocument::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Expose && m_window->windowHandle()->isExposed()) {
        watched->removeEventFilter(this);
        QMetaObject::invokeMethod(
            this,
            [this] {
                for (const std::function<void()> &action : std::exchange(m_whenOnScreen, {}))
                    action();
            },
            Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void MyDocument::openOwnPicture()
{
    const QUrl picture = m_fileUrl;
    // The name of the document beside the picture, not written yet.
    setFileUrl(picture.isLocalFile()
                   ? QUrl::fromLocalFile(documenttypes::documentPathFor(picture.toLocalFile()))
                   : QUrl());
    m_hasNoOwnPicture = false;
    whenOnScreen([this, picture] { m_hasNoOwnPicture = !m_graphView->openImageFile(picture); });
}

bool MyDocument::canRevert() const
{
    if (!m_fileStamp)
        return false;
    const auto present = durablefile::stampOf(m_fileUrl.toLocalFile());
    return isDocumentEdited() || (present && present != m_fileStamp);
}

bool MyDocument::isUntouched() const
{
    return (m_fileUrl.isEmpty() || m_hasNoOwnPicture) && !isReading() && !isDocumentEdited() &&
           !hasImage() && m_dataSeries->validSeries().empty();
}

void MyDocument::isBeingSaved()
{
    m_undoManager.closeGroup();
    // What follows a step that is saved is another one.
    m_currentAxes->endMovesOfPart();
    m_countBeingSaved = m_changeCount;
    m_stateBeingSavedIsGone = false;
}

void MyDocument::wasSavedTo(const QString &path, const std::optional<durablefile::Stamp> &stamp)
{
    m_undoManager.closeGroup();
    const int changesSince = m_changeCount - m_countBeingSaved;
    const bool isGone = m_stateBeingSavedIsGone;
    hasFile(path, stamp);
    if (changesSince == 0 && !isGone)
        return;
    m_changeCount = changesSince;
    m_savedStateIsGone = isGone;
    changeCountMoved();
    // What was kept of them went with what is saved.
    m_recovery->keepNow();
}

void MyDocument::wasReadFrom(const QString &path, const std::optional<durablefile::Stamp> &stamp)
{
    hasFile(path, stamp);
}

void MyDocument::hasFile(const QString &path, const std::optional<durablefile::Stamp> &stamp)
{
    m_fileUrl = QUrl::fromLocalFile(path);
    m_fileStamp = stamp;
    m_hasNoOwnPicture = false;
    updateChangeCount(ChangeKind::Cleared);
    m_services.recentFiles().add(path);
    showTitle();
    showsChanged();
}

void MyDocument::showLoaded()
{
    m_undoManager.removeAllActionsWithTarget(m_currentAxes.get());
    m_undoManager.removeAllActionsWithTarget(m_dataSeries.get());
    // From where a new window begins, so that a used one comes to the same state.
    forceAxisSettingMode();
    windowControllerDidLoadNib();
    if (m_isKey)
        showInInfoPanel();
}

void MyDocument::revertToLoaded(const std::optional<durablefile::Stamp> &stamp)
{
    showLoaded();
    m_fileStamp = stamp;
}

void MyDocument::makeReading()
{
    m_reading = std::make_unique<BackgroundReading>(*m_window);
    connect(m_reading.get(), &BackgroundReading::ended, this,
            [this] { m_window->setBlocked(false); });
    connect(m_reading.get(), &BackgroundReading::tookLong, this, [this] {
        if (!m_window->isVisible())
            showWindow();
        m_window->showBlocked();
    });
}

void MyDocument::readInBackground(const QString &name, BackgroundReading::Work work,
                                  BackgroundReading::Handler cancelled)
{
    m_window->setBlocked(true);
    m_reading->begin(name, std::move(work), std::move(cancelled));
}

bool MyDocument::isReading() const { return m_reading->isReading(); }

// A save under way has the last word on whether there is anything to ask.
void MyDocument::closeThen(std::function<void()> closed)
{
    m_reading->abandon();
    takeTypedText();
    if (m_saving->isBusy()) {
        m_saving->whenSaved([this, closed = std::move(closed)] { closeThen(closed); });
        return;
    }
    const auto close = [this, closed = std::move(closed)] {
        m_closeAgreed = true;
        m_window->close();
        if (closed)
            closed();
    };
    if (!isDocumentEdited()) {
        close();
        return;
    }
    raise();
    m_saving->askToSave(close);
}

void MyDocument::raise()
{
    if (m_window->isMinimized())
        m_window->showNormal();
    m_window->raise();
    m_window->activateWindow();
}
