#include "document/DocumentController.h"

#include "document/ApplicationPanels.h"
#include "document/MyDocument.h"
#include "platform/SystemClipboard.h"
#include "platform/SystemDesktop.h"
#include "platform/SystemPasteboard.h"
#include "platform/Texts.h"
#include "platform/WindowFilePanels.h"
#include "platform/WindowPasswordSheets.h"
#include "platform/WindowSheets.h"
#include "prefs/CurvegrabPrefs.h"
#include "prefs/PrefsController.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QKeySequence>

#include <algorithm>
#include <utility>

DocumentController::DocumentController(CurvegrabPrefs &prefs, QObject *parent)
    : QObject(parent)
    , m_prefs(prefs)
    , m_panels(std::make_unique<ApplicationPanels>(prefs))
    , m_clipboard(std::make_unique<SystemClipboard>())
    , m_pasteboard(std::make_unique<SystemPasteboard>())
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

MyDocument &DocumentController::addDocument()
{
    m_documents.push_back(std::make_unique<MyDocument>(*this, ++m_lastNumber));
    return *m_documents.back();
}

void DocumentController::openFiles(const QStringList &paths)
{
    if (paths.isEmpty())
        newDocument();
    for (const QString &path : paths) {
        MyDocument &document = addDocument();
        document.showWindow();
        document.openPicture(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
    }
}

NotificationCentre &DocumentController::notificationCentre()
{
    return m_panels->notificationCentre();
}

HelpViewer &DocumentController::helpViewer() { return *m_panels; }

void DocumentController::editPreferences() { m_panels->prefsController().editPreferences(); }

Clipboard &DocumentController::clipboard() { return *m_clipboard; }

Pasteboard &DocumentController::pasteboard() { return *m_pasteboard; }

WindowDialogs DocumentController::makeDialogs(QWidget &window)
{
    auto sheets = std::make_unique<WindowSheets>(&window);
    auto panels = std::make_unique<WindowFilePanels>(*sheets);
    auto passwords = std::make_unique<WindowPasswordSheets>(*sheets);
    return {std::move(sheets), std::move(panels), std::move(passwords)};
}

std::unique_ptr<Desktop> DocumentController::makeDesktop(QWidget &window)
{
    return std::make_unique<SystemDesktop>(&window);
}

void DocumentController::newDocument() { addDocument().showWindow(); }

void DocumentController::terminate() { QApplication::closeAllWindows(); }

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
}
