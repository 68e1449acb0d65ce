#pragma once

#include "archiving/SequentialCoder.h"

#include <string_view>
#include <utility>

/// Puts a value that knows how to archive itself, but is no Archivable, into the archive tree.
template <class T>
class ArchivedCopy final : public Archivable
{
public:
    explicit ArchivedCopy(T value)
        : m_value(std::move(value))
    {}

    [[nodiscard]] const T &value() const { return m_value; }

    [[nodiscard]] std::string_view className() const override { return T::kClassName; }
    void encodeWithCoder(SequentialEncoder &coder) const override
    {
        m_value.encodeWithCoder(coder);
    }

private:
    T m_value;
};
