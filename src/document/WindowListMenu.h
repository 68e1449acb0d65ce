#pragma once

#include <QActionGroup>
#include <QMenu>
#include <QObject>

class MyDocument;

/// The windows of the application at the end of a window's menu; the window's own is marked.
class WindowListMenu : public QObject
{
    Q_OBJECT

public:
    /// Adds the list to `menu` each time it is about to show.
    WindowListMenu(MyDocument &document, QMenu *menu);

private:
    void fill();

    MyDocument &m_document;
    QMenu &m_menu;
    QActionGroup m_windows;
};
