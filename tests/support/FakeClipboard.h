#pragma once

#include "platform/Clipboard.h"

#include <optional>

/// A clipboard of the test's own.
class FakeClipboard final : public Clipboard
{
public:
    void setText(const QString &text) override
    {
        m_text = text;
        ++m_setCount;
    }

    void setTable(const QString &text) override { setText(text); }

    /// What was put last, or nothing if nothing ever was.
    [[nodiscard]] const std::optional<QString> &text() const { return m_text; }
    [[nodiscard]] int setCount() const { return m_setCount; }

private:
    std::optional<QString> m_text;
    int m_setCount = 0;
};
