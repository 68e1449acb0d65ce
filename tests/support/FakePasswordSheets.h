#pragma once

#include "platform/PasswordSheets.h"

#include <functional>
#include <optional>
#include <utility>
#include <vector>

/// Password sheets that a test reads and answers; one is up at a time.
class FakePasswordSheets final : public PasswordSheets
{
public:
    void askForPassword(const PasswordSheet &sheet,
                        std::function<void(const std::optional<QString> &)> ended) override
    {
        m_asked.push_back(sheet);
        m_ended = std::move(ended);
    }

    [[nodiscard]] bool isAsking() const { return m_ended != nullptr; }
    /// Every sheet that was ever asked for, in order, answered or not.
    [[nodiscard]] const std::vector<PasswordSheet> &asked() const { return m_asked; }

    /// Types the password; nothing cancels. False if no sheet is up.
    bool answer(const std::optional<QString> &password)
    {
        const auto ended = std::exchange(m_ended, nullptr);
        if (!ended)
            return false;
        ended(password);
        return true;
    }

private:
    std::vector<PasswordSheet> m_asked;
    std::function<void(const std::optional<QString> &)> m_ended;
};
