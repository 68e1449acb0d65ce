#include "document/WindowListMenu.h"

#include "document/MyDocument.h"

#include <QPointer>

WindowListMenu::WindowListMenu(MyDocument &document, QMenu *menu)
    : QObject(menu)
    , m_document(document)
    , m_menu(*menu)
    , m_windows(menu)
{
    menu->setToolTipsVisible(true);
    menu->addSeparator();
    connect(menu, &QMenu::aboutToShow, this, &WindowListMenu::fill);
}

void WindowListMenu::fill()
{
    for (QAction *former : m_windows.actions()) {
        m_menu.removeAction(former);
        former->deleteLater();
    }
    for (MyDocument *document : m_document.openDocuments()) {
        // An ampersand in a name is no mnemonic.
        QAction *action = m_menu.addAction(
            document->displayName().replace(QLatin1Char('&'), QStringLiteral("&&")));
        action->setToolTip(document->fileUrl().toLocalFile());
        action->setCheckable(true);
        action->setChecked(document == &m_document);
        m_windows.addAction(action);
        connect(action, &QAction::triggered, this, [shown = QPointer(document)] {
            if (shown != nullptr)
                shown->raise();
        });
    }
}
