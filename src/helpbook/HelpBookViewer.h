#pragma once

#include "helpbook/HelpBook.h"
#include "platform/HelpViewer.h"

#include <memory>

class HelpWindow;
class UserDefaults;

/// Shows the program's help book in a window of its own, made when it is first wanted.
class HelpBookViewer final : public HelpViewer
{
public:
    /// `defaults` outlives the viewer.
    HelpBookViewer(UserDefaults &defaults, HelpBook::KeysOfCommand keysOfCommand);
    ~HelpBookViewer() override;

    void openHelpAnchor(const QString &anchor, const QString &inBook) override;

    /// The window once it was wanted, or null.
    [[nodiscard]] HelpWindow *window() const { return m_window.get(); }

private:
    UserDefaults &m_defaults;
    HelpBook::KeysOfCommand m_keysOfCommand;
    std::unique_ptr<HelpWindow> m_window;
};
