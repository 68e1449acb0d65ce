#include "document/DocumentController.h"

#include "document/ApplicationPanels.h"
#include "document/DocumentWindow.h"
#include "document/MyDocument.h"
#include "platform/Modules.h"
#include "platform/SystemClipboard.h"
#include "platform/SystemDesktop.h"
#include "platform/SystemPasteboard.h"
#include "platform/SystemTableDrag.h"
#include "platform/Texts.h"
#include "platform/WindowFilePanels.h"
#include "platform/WindowPasswordSheets.h"
#include "platform/WindowSheets.h"
#include "prefs/CurvegrabPrefs.h"
#include "prefs/PrefsController.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QKeySequence>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

DocumentController::DocumentController(CurvegrabPrefs &prefs, const QString &stateFolder,
                                       QObject *parent)
    : QObject(parent)
    , m_prefs(prefs)
    , m_panels(std::make_unique<ApplicationPanels>(
          prefs, QDir(stateFolder).filePath(QStringLiteral("infopanel.json"))))
    , m_recentFiles(QDir(stateFolder).filePath(QStringLiteral("state.json")))
    , m_recentThumbnails(QDir(stateFolder).filePath(QStringLiteral("thumbnails")))
    , m_exportChoices(QDir(stateFolder).filePath(QStringLiteral("export.json")))
    , m_plotTools{PlotModule(modules::folder()),
                  PlotChoices(QDir(stateFolder).filePath(QStringLiteral("plot.json")))}
    , m_sessionMemory(QDir(stateFolder).filePath(QStringLiteral("session.json")))
    , m_recovery(QDir(stateFolder).filePath(QStringLiteral("recovery")))
    , m_clipboard(std::make_unique<SystemClipboard>())
    , m_pasteboard(std::make_unique<SystemPasteboard>())
    , m_tableDrag(std::make_unique<SystemTableDrag>())
{
    m_sharedItems.showHideTable =
        addSharedItem("showHideDataTable", "ShowTable", 0, QKeySequence(QStringLiteral("Ctrl+T")),
                      &MyDocument::showHideDataTable);
    m_sharedItems.lockUnlockX =
        addSharedItem("lockUnlockX", "LockXValue", menurules::LockX,
                      QKeySequence(QStringLiteral("Ctrl+Shift+X")), &MyDocument::lockUnlockX);
    m_sharedItems.lockUnlockY =
        addSharedItem("lockUnlockY", "LockYValue", menurules::LockY,
                      QKeySequence(QStringLiteral("Ctrl+Shift+Y")), &MyDocument::lockUnlockY);
    m_sharedItems.showHideInfo = &m_panels->showHideInfo();
    m_prefs.setShowHideTableMenu(m_sharedItems.showHideTable);
    m_prefs.setLockUnlockXMenu(m_sharedItems.lockUnlockX);
    m_prefs.setLockUnlockYMenu(m_sharedItems.lockUnlockY);
}

DocumentController::~DocumentController() = default;

QAction *DocumentController::addSharedItem(const char *name, const char *text, int tag,
                                           const QKeySequence &keys, void (MyDocument::*invoke)())
{
    auto *action = new QAction(texts::localized(text), this);
    action->setObjectName(QString::fromLatin1(name));
    action->setProperty("tag", tag);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, [this, tag, invoke] {
        if (MyDocument *document = m_keyDocument)
            document->perform(tag, [document, invoke] { (document->*invoke)(); });
    });
    return action;
}

// Documents without a file are told apart by their numbers.
MyDocument &DocumentController::addDocument()
{
    int last = 0;
    for (const auto &document : m_documents) {
        if (document->fileUrl().isEmpty())
            last = std::max(last, document->number());
    }
    m_documents.push_back(std::make_unique<MyDocument>(*this, last + 1));
    return *m_documents.back();
}

std::vector<MyDocument *> DocumentController::openDocuments() const
{
    std::vector<MyDocument *> open;
    for (const auto &document : m_documents)
        open.push_back(document.get());
    return open;
}

QString DocumentController::standardStateFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

NotificationCentre &DocumentController::notificationCentre()
{
    return m_panels->notificationCentre();
}

HelpViewer &DocumentController::helpViewer() { return *m_panels; }

void DocumentController::editPreferences() { m_panels->prefsController().editPreferences(); }

Clipboard &DocumentController::clipboard() { return *m_clipboard; }

Pasteboard &DocumentController::pasteboard() { return *m_pasteboard; }

TableDrag &DocumentController::tableDrag() { return *m_tableDrag; }

WindowDialogs DocumentController::makeDialogs(QWidget &window)
{
    auto sheets = std::make_unique<WindowSheets>(&window);
    auto panels = std::make_unique<WindowFilePanels>(*sheets, m_sessionMemory);
    auto passwords = std::make_unique<WindowPasswordSheets>(*sheets);
    return {std::move(sheets), std::move(panels), std::move(passwords)};
}

std::unique_ptr<Desktop> DocumentController::makeDesktop(QWidget &window)
{
    return std::make_unique<SystemDesktop>(&window);
}

void DocumentController::newDocument() { addDocument().showWindow(); }

// Asks document by document; a cancelled question ends it all.
void DocumentController::terminate()
{
    if (m_documents.empty())
        return;
    const auto edited =
        std::find_if(m_documents.begin(), m_documents.end(),
                     [](const auto &document) { return document->isDocumentEdited(); });
    MyDocument &next = edited == m_documents.end() ? *m_documents.front() : **edited;
    next.closeThen([this] {
        QMetaObject::invokeMethod(this, &DocumentController::terminate, Qt::QueuedConnection);
    });
}

void DocumentController::documentBecameKey(MyDocument &document) { m_keyDocument = &document; }

void DocumentController::documentClosed(MyDocument &document)
{
    if (m_keyDocument == &document)
        m_keyDocument = nullptr;
    const auto closed =
        std::find_if(m_documents.begin(), m_documents.end(),
                     [&document](const auto &open) { return open.get() == &document; });
    if (closed == m_documents.end())
        return;
    // The document is still in its window's close event: it goes once that is over.
    closed->release()->deleteLater();
    m_documents.erase(closed);
    // The program ends with its last window, and must not do so while a file is being opened.
    for (const auto &open : m_documents) {
        if (!showsAWindow() && open->isReading())
            open->showWindow();
    }
    openingEnded();
}

bool DocumentController::showsAWindow() const
{
    return std::any_of(m_documents.begin(), m_documents.end(),
                       [](const auto &document) { return document->window().isVisible(); });
}
