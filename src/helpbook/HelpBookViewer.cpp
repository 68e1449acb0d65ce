#include "helpbook/HelpBookViewer.h"

#include "helpbook/HelpWindow.h"
#include "platform/Texts.h"

#include <utility>

HelpBookViewer::HelpBookViewer(const QString &statePath, HelpBook::KeysOfCommand keysOfCommand,
                               const QString &language)
    : m_state(statePath)
    , m_keysOfCommand(std::move(keysOfCommand))
    , m_folder(QStringLiteral(":/help/") + language)
{}

HelpBookViewer::~HelpBookViewer() = default;

void HelpBookViewer::openHelpAnchor(const QString &anchor, const QString &inBook)
{
    // There is one book; another one is not there to be opened.
    if (inBook != QLatin1String(helpbook::bookName))
        return;
    if (m_window == nullptr)
        m_window = std::make_unique<HelpWindow>(
            texts::localized("help.title"),
            HelpBook(m_folder, m_keysOfCommand, QStringLiteral(":/help/en")), m_state);
    m_window->showAnchor(anchor);
}
