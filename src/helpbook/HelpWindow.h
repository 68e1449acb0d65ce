#pragma once

#include "helpbook/HelpBook.h"

#include <QMainWindow>

class HelpBrowser;
class HelpFindBar;
class QAction;
class QListWidget;
class QToolBar;
class StateFile;

/// The window of a help book: contents at the left, the page at the right. It remembers its place
/// and size, and that of the text.
class HelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `state` outlives the window.
    HelpWindow(const QString &title, HelpBook book, StateFile &state);
    ~HelpWindow() override;

    /// Shows the window in front, at the place called `anchor`, or at the first page.
    void showAnchor(const QString &anchor);

    [[nodiscard]] const HelpBook &book() const { return m_book; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeContents();
    void makeToolBar();
    QAction *addButton(QToolBar *bar, const char *name, const char *text, const char *tip,
                       const QList<QKeySequence> &keys);
    void pageChanged(const QUrl &url);
    void setZoom(int steps);
    void restorePlacement();
    void rememberPlacement();

    const HelpBook m_book;
    StateFile &m_state;
    QListWidget *m_contents = nullptr;
    HelpBrowser *m_page = nullptr;
    HelpFindBar *m_findBar = nullptr;
    int m_zoom = 0; ///< steps from the normal size of the text
};
