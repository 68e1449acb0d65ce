#pragma once

#include "document/DocumentServices.h"
#include "document/DocumentWindow.h"
#include "document/ExportChoices.h"
#include "document/MyDocument.h"
#include "document/RecentFiles.h"
#include "document/RecentThumbnails.h"
#include "document/RecoveryStore.h"
#include "document/SessionMemory.h"
#include "imageview/GraphImageView.h"
#include "imageview/PictureScrollArea.h"
#include "platform/HelpViewer.h"
#include "platform/NotificationCentre.h"
#include "platform/UserDefaults.h"
#include "plot/PlotTools.h"
#include "prefs/CurvegrabPrefs.h"
#include "support/FakeClipboard.h"
#include "support/FakeDesktop.h"
#include "support/FakeFilePanels.h"
#include "support/FakePasswordSheets.h"
#include "support/FakePasteboard.h"
#include "support/FakeTableDrag.h"
#include "support/RecordingSheets.h"
#include "ui_MyDocument.h"

#include <QAction>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <utility>

/// Notes the places of the help that were opened.
class RecordingHelp final : public HelpViewer
{
public:
    void openHelpAnchor(const QString &anchor, const QString &inBook) override
    {
        opened << inBook + u'#' + anchor;
    }

    QStringList opened;
};

/// The services of an application that a test plays.
class TestServices final : public DocumentServices
{
public:
    TestServices()
        : m_recovery(recoveryFolder())
        , m_recentFiles(m_folder.filePath(QStringLiteral("state.json")))
        , m_recentThumbnails(m_folder.filePath(QStringLiteral("thumbnails")))
        , m_exportChoices(m_folder.filePath(QStringLiteral("export.json")))
        , m_sessionMemory(m_folder.filePath(QStringLiteral("session.json")))
        , m_defaults(m_folder.filePath(QStringLiteral("settings.json")))
        , m_prefs(m_defaults)
    {
        m_prefs.awakeFromNib();
        showHideTable.setObjectName(QStringLiteral("showHideDataTable"));
        lockUnlockX.setObjectName(QStringLiteral("lockUnlockX"));
        lockUnlockY.setObjectName(QStringLiteral("lockUnlockY"));
    }

    CurvegrabPrefs &prefs() override { return m_prefs; }
    Clipboard &clipboard() override { return fakeClipboard; }
    Pasteboard &pasteboard() override { return fakePasteboard; }
    TableDrag &tableDrag() override { return fakeTableDrag; }
    NotificationCentre &notificationCentre() override { return notifications; }
    HelpViewer &helpViewer() override { return help; }
    DocumentMenus::SharedItems sharedItems() override
    {
        return {&showHideTable, &lockUnlockX, &lockUnlockY, &showHideInfo};
    }
    WindowDialogs makeDialogs(QWidget &) override
    {
        auto madeSheets = std::make_unique<RecordingSheets>();
        auto madePanels = std::make_unique<FakeFilePanels>();
        sheets = madeSheets.get();
        panels = madePanels.get();
        auto madePasswords = std::make_unique<FakePasswordSheets>();
        passwords = madePasswords.get();
        return {std::move(madeSheets), std::move(madePanels), std::move(madePasswords)};
    }
    std::unique_ptr<Desktop> makeDesktop(QWidget &) override
    {
        auto made = std::make_unique<FakeDesktop>();
        desktop = made.get();
        return made;
    }
    void newDocument() override { ++newDocuments; }
    void editPreferences() override { ++preferencesEdits; }
    void openFiles(const QStringList &paths) override { openedFiles += paths; }
    void openCopy(const QString &path) override { openedCopies += path; }
    QString examplesFolder() const override { return examples; }
    [[nodiscard]] std::vector<MyDocument *> openDocuments() const override { return {}; }
    RecentFiles &recentFiles() override { return m_recentFiles; }
    RecentThumbnails &recentThumbnails() override { return m_recentThumbnails; }
    ExportChoices &exportChoices() override { return m_exportChoices; }
    PlotTools &plotTools() override { return plots; }
    SessionMemory &sessionMemory() override { return m_sessionMemory; }
    RecoveryStore &recoveryStore() override { return m_recovery; }
    [[nodiscard]] QString recoveryFolder() const
    {
        return m_folder.filePath(QStringLiteral("recovery"));
    }
    void terminate() override { ++terminations; }
    void documentBecameKey(MyDocument &document) override { keyDocument = &document; }
    void documentClosed(MyDocument &) override { ++closedDocuments; }

    QAction showHideTable;
    QAction lockUnlockX;
    QAction lockUnlockY;
    QAction showHideInfo;
    NotificationCentre notifications;
    RecordingHelp help;
    FakeClipboard fakeClipboard;
    FakePasteboard fakePasteboard;
    FakeTableDrag fakeTableDrag;
    RecordingSheets *sheets = nullptr;
    FakeFilePanels *panels = nullptr;
    FakePasswordSheets *passwords = nullptr;
    FakeDesktop *desktop = nullptr;
    MyDocument *keyDocument = nullptr;
    QStringList openedFiles;
    QStringList openedCopies;
    QString examples; ///< the folder that holds them
    int newDocuments = 0;
    int terminations = 0;
    int preferencesEdits = 0;
    int closedDocuments = 0;

private:
    QTemporaryDir m_folder;
    RecoveryStore m_recovery;
    RecentFiles m_recentFiles;
    RecentThumbnails m_recentThumbnails;
    ExportChoices m_exportChoices;
    SessionMemory m_sessionMemory;
    UserDefaults m_defaults;
    CurvegrabPrefs m_prefs;

public:
    /// Without a module, unless a test brings it.
    PlotTools plots{PlotModule(m_folder.filePath(QStringLiteral("modules"))),
                    PlotChoices(m_folder.filePath(QStringLiteral("plot.json")))};
};

/// A document in a shown window, used through the events and commands that a user has.
class TestDocument
{
public:
    /// With `pictureSize` pixels of white; the empty size leaves it without a picture.
    explicit TestDocument(QSize pictureSize = {500, 400})
        : document(std::make_unique<MyDocument>(services))
    {
        document->showWindow();
        if (!pictureSize.isEmpty()) {
            QImage picture(pictureSize, QImage::Format_RGB32);
            picture.fill(Qt::white);
            document->graphView().replaceImageWithImageRep(picture);
        }
        endEvent();
    }

    /// Ends the event that the calls up to now belong to, as a return to the event loop does.
    void endEvent() { document->undoManager().closeGroup(); }

    [[nodiscard]] Ui::MyDocument &ui() const { return document->window().ui(); }

    /// Triggers a menu command by its name.
    void command(const char *name)
    {
        auto *action = document->window().findChild<QAction *>(QString::fromLatin1(name));
        if (action != nullptr)
            action->trigger();
        endEvent();
    }

    [[nodiscard]] QAction *action(const char *name) const
    {
        return document->window().findChild<QAction *>(QString::fromLatin1(name));
    }

    /// The widget position of a point in view coordinates.
    [[nodiscard]] QPoint widgetPosition(int x, int y) const
    {
        const float height = document->graphView().scaledImageSize().height;
        return {x, static_cast<int>(height) - y};
    }

    void click(int x, int y)
    {
        QTest::mouseClick(&document->graphView(), Qt::LeftButton, Qt::NoModifier,
                          widgetPosition(x, y));
        endEvent();
    }

    void drag(QPoint from, QPoint to)
    {
        QWidget *view = &document->graphView();
        QTest::mousePress(view, Qt::LeftButton, Qt::NoModifier, widgetPosition(from.x(), from.y()));
        endEvent();
        QTest::mouseMove(view, widgetPosition((from.x() + to.x()) / 2, (from.y() + to.y()) / 2));
        endEvent();
        QTest::mouseMove(view, widgetPosition(to.x(), to.y()));
        endEvent();
        QTest::mouseRelease(view, Qt::LeftButton, Qt::NoModifier, widgetPosition(to.x(), to.y()));
        endEvent();
    }

    void digitize()
    {
        QTest::mouseClick(ui().digitizingTabButton, Qt::LeftButton);
        endEvent();
    }

    void setAxes()
    {
        QTest::mouseClick(ui().axisTabButton, Qt::LeftButton);
        endEvent();
    }

    /// Makes the change count zero, as a save does.
    void markSaved() { document->updateChangeCount(ChangeKind::Cleared); }

    TestServices services;
    std::unique_ptr<MyDocument> document;
};
