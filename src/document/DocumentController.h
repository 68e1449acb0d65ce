#pragma once

#include "document/DocumentServices.h"

#include <QObject>
#include <QStringList>

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
    explicit DocumentController(CurvegrabPrefs &prefs, QObject *parent = nullptr);
    ~DocumentController() override;

    /// Opens each picture in a window of its own; without files one empty window.
    void openFiles(const QStringList &paths);

    [[nodiscard]] const std::vector<std::unique_ptr<MyDocument>> &documents() const
    {
        return m_documents;
    }

    /// The panels that all documents share.
    [[nodiscard]] ApplicationPanels &panels() const { return *m_panels; }

    [[nodiscard]] CurvegrabPrefs &prefs() override { return m_prefs; }
    [[nodiscard]] Clipboard &clipboard() override;
    [[nodiscard]] Pasteboard &pasteboard() override;
    [[nodiscard]] NotificationCentre &notificationCentre() override;
    [[nodiscard]] HelpViewer &helpViewer() override;
    [[nodiscard]] DocumentMenus::SharedItems sharedItems() override { return m_sharedItems; }
    [[nodiscard]] WindowDialogs makeDialogs(QWidget &window) override;
    [[nodiscard]] std::unique_ptr<Desktop> makeDesktop(QWidget &window) override;
    void newDocument() override;
    void editPreferences() override;
    void terminate() override;
    void documentBecameKey(MyDocument &document) override;
    void documentClosed(MyDocument &document) override;

private:
    MyDocument &addDocument();
    QAction *addSharedItem(const char *name, const char *text, int tag, const QKeySequence &keys,
                           void (MyDocument::*invoke)());

    CurvegrabPrefs &m_prefs;
    std::unique_ptr<ApplicationPanels> m_panels; // the documents go before it
    DocumentMenus::SharedItems m_sharedItems;
    std::unique_ptr<SystemClipboard> m_clipboard;
    std::unique_ptr<SystemPasteboard> m_pasteboard;
    std::vector<std::unique_ptr<MyDocument>> m_documents;
    MyDocument *m_keyDocument = nullptr;
    int m_lastNumber = 0;
};
