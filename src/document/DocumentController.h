#pragma once

#include "document/DocumentFile.h"
#include "document/DocumentServices.h"
#include "document/ExportChoices.h"
#include "document/RecentFiles.h"
#include "document/RecentThumbnails.h"
#include "document/RecoveryStore.h"
#include "document/SessionMemory.h"
#include "plot/PlotTools.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class ApplicationPanels;
class SystemClipboard;
class SystemPasteboard;

/// The open documents of the application, the menu items that they share, and the services of the
/// real desktop.
class DocumentController : public QObject, public DocumentServices
{
    Q_OBJECT

public:
    /// Keeps the list of recent files, and unsaved changes, in `stateFolder`.
    DocumentController(CurvegrabPrefs &prefs, const QString &stateFolder,
                       QObject *parent = nullptr);
    ~DocumentController() override;

    /// What is left between sessions, preferences aside.
    [[nodiscard]] static QString standardStateFolder();

    /// Opens the files that the program is started with; without any, one empty window. Offers what
    /// a program that ended without warning left behind.
    void start(const QStringList &paths);
    /// Brings a window to the front; a new one if there is none.
    void reopen();

    [[nodiscard]] const std::vector<std::unique_ptr<MyDocument>> &documents() const
    {
        return m_documents;
    }

    /// The panels that all documents share.
    [[nodiscard]] ApplicationPanels &panels() const { return *m_panels; }

    [[nodiscard]] CurvegrabPrefs &prefs() override { return m_prefs; }
    [[nodiscard]] Clipboard &clipboard() override;
    [[nodiscard]] TableDrag &tableDrag() override;
    [[nodiscard]] Pasteboard &pasteboard() override;
    [[nodiscard]] NotificationCentre &notificationCentre() override;
    [[nodiscard]] HelpViewer &helpViewer() override;
    [[nodiscard]] DocumentMenus::SharedItems sharedItems() override { return m_sharedItems; }
    [[nodiscard]] WindowDialogs makeDialogs(QWidget &window) override;
    [[nodiscard]] std::unique_ptr<Desktop> makeDesktop(QWidget &window) override;
    void newDocument() override;
    void editPreferences() override;
    void openFiles(const QStringList &paths) override;
    void openCopy(const QString &path) override;
    [[nodiscard]] QString examplesFolder() const override;
    [[nodiscard]] std::vector<MyDocument *> openDocuments() const override;
    [[nodiscard]] RecentFiles &recentFiles() override { return m_recentFiles; }
    [[nodiscard]] RecentThumbnails &recentThumbnails() override { return m_recentThumbnails; }
    [[nodiscard]] ExportChoices &exportChoices() override { return m_exportChoices; }
    [[nodiscard]] PlotTools &plotTools() override { return m_plotTools; }
    [[nodiscard]] SessionMemory &sessionMemory() override { return m_sessionMemory; }
    [[nodiscard]] RecoveryStore &recoveryStore() override { return m_recovery; }
    void terminate() override;
    void documentBecameKey(MyDocument &document) override;
    void documentClosed(MyDocument &document) override;

private:
    /// A copy has no name, and its file stays as it is.
    enum class OpenAs { Itself, Copy };

    MyDocument &addDocument();
    void open(const QString &path);
    void readDocument(const QString &path, OpenAs as);
    void readPicture(const QString &path);
    void wasRead(MyDocument &document, bool isNew, const QString &path, OpenAs as,
                 const documentfile::Document &read);
    void show(MyDocument &document);
    void giveUpOpening(MyDocument &document, bool isNew);
    void offerRemains(MyDocument &document, const QString &path);
    void offerRecovered();
    void recoveryAnswered(const QStringList &remains, SheetAnswer answer);
    void bringBack(const QString &key);
    void wasBroughtBack(MyDocument &document, const QString &key,
                        RecoveryStore::Document recovered);
    void presentDamage(MyDocument &document, const QString &name,
                       const std::vector<documentarchive::Damage> &damages);
    void refuse(const QString &path, const QString &reason);
    void presentRefusal(const QString &path, const QString &reason);
    /// Runs `action` once no file is being opened any more.
    void afterOpening(std::function<void()> action);
    void openingEnded();
    [[nodiscard]] MyDocument *documentOf(const QString &path) const;
    /// An untouched document to open a file in, or a new one.
    [[nodiscard]] MyDocument &documentForOpening();
    /// A document at whose window messages about files are shown.
    [[nodiscard]] MyDocument &documentForMessages();
    [[nodiscard]] bool isOpening() const;
    [[nodiscard]] bool showsAWindow() const;
    QAction *addSharedItem(const char *name, const char *text, int tag, const QKeySequence &keys,
                           void (MyDocument::*invoke)());

    CurvegrabPrefs &m_prefs;
    std::unique_ptr<ApplicationPanels> m_panels; // the documents go before it
    RecentFiles m_recentFiles;
    RecentThumbnails m_recentThumbnails;
    ExportChoices m_exportChoices;
    PlotTools m_plotTools;
    SessionMemory m_sessionMemory;
    RecoveryStore m_recovery;
    DocumentMenus::SharedItems m_sharedItems;
    std::unique_ptr<SystemClipboard> m_clipboard;
    std::unique_ptr<SystemPasteboard> m_pasteboard;
    std::unique_ptr<TableDrag> m_tableDrag;
    std::vector<std::unique_ptr<MyDocument>> m_documents;
    MyDocument *m_keyDocument = nullptr;
    std::vector<std::function<void()>> m_afterOpening;
};
