#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>

#include <vector>

class ExamplesMenu;
class MyDocument;
class QAction;
class QMainWindow;
class QMenu;
class RecentFilesMenu;

/// The menu bar of a document's window: every command is an action named after it, whose property
/// "tag" selects its rule.
class DocumentMenus : public QObject
{
    Q_OBJECT

public:
    /// Builds the menus into `window`; `shared` are the application-wide items (table, lock X, lock
    /// Y, info panel).
    struct SharedItems
    {
        QAction *showHideTable = nullptr;
        QAction *lockUnlockX = nullptr;
        QAction *lockUnlockY = nullptr;
        QAction *showHideInfo = nullptr;
    };
    DocumentMenus(MyDocument &document, QMainWindow &window, const SharedItems &shared);

    /// Enables each command exactly when it makes sense now, and brings titles and marks up to
    /// date.
    void refresh();

    /// The examples to try, a menu of the window.
    [[nodiscard]] ExamplesMenu &examples() const { return *m_examples; }

private:
    struct Command
    {
        const char *name;
        const char *text;
        int tag;
        QList<QKeySequence> shortcuts;
        void (MyDocument::*invoke)();
    };

    QMenu *addMenu(const char *title);
    QAction *add(QMenu *menu, const Command &command);
    void addFileMenu();
    void addEditMenu();
    void addViewMenu();
    void addPictureMenu();
    void addAxesMenu();
    void addDataMenu();
    void addWindowMenu();
    void addHelpMenu();
    void refreshUndoTitles();
    void refreshMarks();

    MyDocument &m_document;
    QMainWindow &m_window;
    SharedItems m_shared;
    std::vector<QAction *> m_actions;
    RecentFilesMenu *m_recentFiles = nullptr; // owned by the menu
    ExamplesMenu *m_examples = nullptr;       // owned by the menu
    QAction *m_revert = nullptr;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    std::vector<QAction *> m_axisTypes;
    std::vector<QAction *> m_drawModes;
    std::vector<QAction *> m_tabs;
    std::vector<QAction *> m_tools;
    QAction *m_axisGrid = nullptr;
    QAction *m_sort = nullptr;
};
