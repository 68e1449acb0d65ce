#include "document/RecentFilesMenu.h"

#include "document/MyDocument.h"
#include "document/RecentThumbnails.h"
#include "document/ThumbnailStyle.h"
#include "platform/Texts.h"

#include <QDir>
#include <QFileInfo>

RecentFilesMenu::RecentFilesMenu(MyDocument &document, QMenu *menu)
    : QMenu(texts::localized("document.command.openRecent"), menu)
    , m_document(document)
{
    setObjectName(QStringLiteral("recentFilesMenu"));
    setToolTipsVisible(true);
    auto *style = new ThumbnailStyle;
    style->setParent(this);
    setStyle(style);
    menu->addMenu(this);
    connect(this, &QMenu::aboutToShow, this, &RecentFilesMenu::fill);
    // With a start before they are looked at.
    connect(menu, &QMenu::aboutToShow, this, [this] {
        menuAction()->setEnabled(!m_document.recentFiles().isEmpty());
        m_document.recentThumbnails().prepare(m_document.recentFiles());
    });
    connect(&m_document.recentThumbnails(), &RecentThumbnails::iconChanged, this,
            &RecentFilesMenu::showIcon);
}

void RecentFilesMenu::fill()
{
    clear();
    for (const QString &path : m_document.recentFiles()) {
        const QFileInfo file(path);
        // An ampersand in a name is no mnemonic.
        QAction *action = addAction(texts::localized("document.recent.item")
                                        .arg(file.fileName(), file.dir().dirName())
                                        .replace(QLatin1Char('&'), QStringLiteral("&&")));
        action->setToolTip(path);
        action->setIcon(m_document.recentThumbnails().iconOf(path));
        action->setIconVisibleInMenu(true);
        connect(action, &QAction::triggered, &m_document,
                [this, path] { m_document.openFiles({path}); });
    }
    addSeparator();
    QAction *empty = addAction(texts::localized("document.recent.clear"));
    empty->setObjectName(QStringLiteral("clearRecentFiles"));
    connect(empty, &QAction::triggered, &m_document, &MyDocument::clearRecentFiles);
}

void RecentFilesMenu::showIcon(const QString &path)
{
    for (QAction *action : actions()) {
        if (action->toolTip() == path)
            action->setIcon(m_document.recentThumbnails().iconOf(path));
    }
}
