#pragma once

#include "helpbook/HelpBook.h"
#include "platform/HelpViewer.h"
#include "platform/StateFile.h"

#include <memory>

class HelpWindow;

/// Shows the program's help book in a window of its own, made when it is first wanted.
class HelpBookViewer final : public HelpViewer
{
public:
    /// Remembers the window in the file at `statePath`. Pages that there are not in `language` are
    /// shown in English.
    HelpBookViewer(const QString &statePath, HelpBook::KeysOfCommand keysOfCommand,
                   const QString &language = QStringLiteral("en"));
    ~HelpBookViewer() override;

    void openHelpAnchor(const QString &anchor, const QString &inBook) override;

    /// The window once it was wanted, or null.
    [[nodiscard]] HelpWindow *window() const { return m_window.get(); }

private:
    StateFile m_state;
    HelpBook::KeysOfCommand m_keysOfCommand;
    QString m_folder; ///< of the book in the user's language
    std::unique_ptr<HelpWindow> m_window;
};
