#pragma once

#include "exchange/ExchangeNumber.h"

#include <optional>
#include <string>
#include <string_view>

/// Writes JSON without blanks, members in the order in which they are told. What JSON has no
/// number for becomes null.
class JsonWriter
{
public:
    /// What was written so far.
    [[nodiscard]] const std::string &text() const { return m_text; }

    void beginObject();
    void endObject();
    void beginArray();
    void endArray();

    /// Begins a member of the object; its value comes next.
    void key(std::string_view name);

    void null();
    void boolean(bool value);
    void integer(int value);
    void number(double value, std::optional<int> digits = {});
    void number(float value);
    /// UTF-8.
    void string(std::string_view text);

private:
    void separate();
    void put(std::string_view value);

    std::string m_text;
    bool m_needsComma = false;
};
