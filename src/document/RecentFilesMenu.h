#pragma once

#include <QMenu>

class MyDocument;

/// The submenu of the files that were used last; its last item empties it.
class RecentFilesMenu : public QMenu
{
    Q_OBJECT

public:
    /// Adds itself to `menu`, which owns it.
    RecentFilesMenu(MyDocument &document, QMenu *menu);

private:
    void fill();
    void showIcon(const QString &path);

    MyDocument &m_document;
};
