#pragma once

#include "platform/Pasteboard.h"

#include <QMimeData>

#include <memory>
#include <utility>

/// A pasteboard that holds what the test has put on it.
class FakePasteboard final : public Pasteboard
{
public:
    [[nodiscard]] const QMimeData *content() const override
    {
        ++m_askedCount;
        return m_content.get();
    }

    void setContent(std::unique_ptr<QMimeData> content)
    {
        m_content = std::move(content);
        Q_EMIT changed();
    }

    /// How often it was looked at.
    [[nodiscard]] int askedCount() const { return m_askedCount; }

private:
    std::unique_ptr<QMimeData> m_content;
    mutable int m_askedCount = 0;
};
