#pragma once

#include "document/DocumentMenus.h"

#include "platform/Desktop.h"
#include "platform/FilePanels.h"
#include "platform/PasswordSheets.h"
#include "platform/Sheets.h"

#include <QStringList>

#include <memory>
#include <vector>

class Clipboard;
class CurvegrabPrefs;
class ExportChoices;
class HelpViewer;
class MyDocument;
class NotificationCentre;
class Pasteboard;
struct PlotTools;
class RecentFiles;
class RecentThumbnails;
class RecoveryStore;
class SessionMemory;
class TableDrag;
class QWidget;

/// What a window asks its user with. The panels go before the sheets.
struct WindowDialogs
{
    std::unique_ptr<Sheets> sheets;
    std::unique_ptr<FilePanels> panels;
    std::unique_ptr<PasswordSheets> passwords;
};

/// What a document is handed by the application around it. Tests hand in services that answer.
class DocumentServices
{
public:
    virtual ~DocumentServices() = default;

    [[nodiscard]] virtual CurvegrabPrefs &prefs() = 0;
    [[nodiscard]] virtual Clipboard &clipboard() = 0;
    [[nodiscard]] virtual Pasteboard &pasteboard() = 0;
    [[nodiscard]] virtual TableDrag &tableDrag() = 0;
    [[nodiscard]] virtual NotificationCentre &notificationCentre() = 0;
    [[nodiscard]] virtual HelpViewer &helpViewer() = 0;
    [[nodiscard]] virtual DocumentMenus::SharedItems sharedItems() = 0;
    /// The sheets and file panels of one window, which outlives them; they share one queue.
    [[nodiscard]] virtual WindowDialogs makeDialogs(QWidget &window) = 0;
    /// The desktop as one window sees it, which outlives it.
    [[nodiscard]] virtual std::unique_ptr<Desktop> makeDesktop(QWidget &window) = 0;

    /// Commands that concern the whole application.
    virtual void newDocument() = 0;
    virtual void editPreferences() = 0;
    /// Opens documents and pictures, each in a window of its own.
    virtual void openFiles(const QStringList &paths) = 0;
    /// Opens an untitled copy of a document, in a window of its own.
    virtual void openCopy(const QString &path) = 0;
    /// The folder with the documents that come with the program.
    [[nodiscard]] virtual QString examplesFolder() const = 0;
    /// The documents whose windows are open, oldest first.
    [[nodiscard]] virtual std::vector<MyDocument *> openDocuments() const = 0;
    [[nodiscard]] virtual RecentFiles &recentFiles() = 0;
    [[nodiscard]] virtual RecentThumbnails &recentThumbnails() = 0;
    [[nodiscard]] virtual ExportChoices &exportChoices() = 0;
    /// What all plots share.
    [[nodiscard]] virtual PlotTools &plotTools() = 0;
    [[nodiscard]] virtual SessionMemory &sessionMemory() = 0;
    /// Where unsaved changes are kept safe from a crash.
    [[nodiscard]] virtual RecoveryStore &recoveryStore() = 0;
    virtual void terminate() = 0;
    virtual void documentBecameKey(MyDocument &document) = 0;
    /// The document's window was closed; the document goes.
    virtual void documentClosed(MyDocument &document) = 0;
};
