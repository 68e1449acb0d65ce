#pragma once

#include "platform/PasswordSheets.h"

class WindowSheets;

/// Password sheets in the queue of a window's other sheets, which outlives them.
class WindowPasswordSheets final : public PasswordSheets
{
public:
    explicit WindowPasswordSheets(WindowSheets &sheets);

    void askForPassword(const PasswordSheet &sheet,
                        std::function<void(const std::optional<QString> &)> ended) override;

private:
    WindowSheets &m_sheets;
};
