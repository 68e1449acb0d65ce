#pragma once

#include "platform/Sheets.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <utility>
#include <vector>

/// Sheets that nobody sees: a test reads what was asked and answers the first one waiting.
class RecordingSheets final : public Sheets
{
public:
    void present(const Sheet &sheet, std::function<void(SheetAnswer)> ended) override
    {
        m_presented.push_back(sheet);
        m_waiting.push_back(std::move(ended));
    }

    /// Every sheet that was ever asked for, in order, answered or not.
    [[nodiscard]] const std::vector<Sheet> &presented() const { return m_presented; }

    /// How many sheets have no answer yet; the first of them is the one that is up.
    [[nodiscard]] std::size_t waitingCount() const { return m_waiting.size(); }

    /// Answers the sheet that is up; false if there is none.
    bool answerFirst(SheetAnswer answer = SheetAnswer::Default)
    {
        if (m_waiting.empty())
            return false;
        const std::function<void(SheetAnswer)> ended = std::move(m_waiting.front());
        m_waiting.pop_front();
        if (ended)
            ended(answer);
        return true;
    }

    /// Answers every sheet with its default button, also those that the answers bring up.
    void answerAll()
    {
        while (answerFirst())
            continue;
    }

    void forget() { m_presented.clear(); }

private:
    std::vector<Sheet> m_presented;
    std::deque<std::function<void(SheetAnswer)>> m_waiting;
};
