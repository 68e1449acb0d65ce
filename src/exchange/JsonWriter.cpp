#include "exchange/JsonWriter.h"

#include <cmath>

namespace {

void appendEscaped(std::string &text, char character)
{
    constexpr std::string_view hexadecimal = "0123456789abcdef";
    constexpr unsigned firstPrintable = 0x20;
    const auto code = static_cast<unsigned char>(character);
    if (character == '"' || character == '\\') {
        text += '\\';
        text += character;
    } else if (code < firstPrintable) {
        text += "\\u00";
        text += hexadecimal[code / 16];
        text += hexadecimal[code % 16];
    } else {
        text += character;
    }
}

} // namespace

void JsonWriter::beginObject()
{
    separate();
    m_text += '{';
}

void JsonWriter::endObject()
{
    m_text += '}';
    m_needsComma = true;
}

void JsonWriter::beginArray()
{
    separate();
    m_text += '[';
}

void JsonWriter::endArray()
{
    m_text += ']';
    m_needsComma = true;
}

void JsonWriter::key(std::string_view name)
{
    string(name);
    m_text += ':';
    m_needsComma = false;
}

void JsonWriter::null() { put("null"); }

void JsonWriter::boolean(bool value) { put(value ? "true" : "false"); }

void JsonWriter::integer(int value) { put(std::to_string(value)); }

void JsonWriter::number(double value, std::optional<int> digits)
{
    put(std::isfinite(value) ? exchangenumber::text(value, digits) : "null");
}

void JsonWriter::number(float value)
{
    put(std::isfinite(value) ? exchangenumber::text(value) : "null");
}

void JsonWriter::string(std::string_view text)
{
    separate();
    m_text += '"';
    for (const char character : text)
        appendEscaped(m_text, character);
    m_text += '"';
    m_needsComma = true;
}

void JsonWriter::separate()
{
    if (m_needsComma)
        m_text += ',';
    m_needsComma = false;
}

void JsonWriter::put(std::string_view value)
{
    separate();
    m_text += value;
    m_needsComma = true;
}
