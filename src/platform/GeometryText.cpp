#include "platform/GeometryText.h"

#include "platform/DecimalText.h"
#include "platform/NumberText.h"

#include <cmath>
#include <limits>
#include <optional>

namespace geometrytext {

namespace {

/// Two numbers in braces, as they stand in the text.
struct Pair
{
    float first = 0;
    float second = 0;
};

std::string textOf(float first, float second)
{
    return '{' + numbertext::general(static_cast<double>(first)) + ", " +
           numbertext::general(static_cast<double>(second)) + '}';
}

/// Reads the parts of a text form one after the other, blanks before each.
class Reader
{
public:
    explicit Reader(std::string_view text)
        : m_rest(text)
    {}

    bool skip(char expected)
    {
        skipBlanks();
        if (!m_rest.starts_with(expected))
            return false;
        m_rest.remove_prefix(1);
        return true;
    }

    std::optional<float> number()
    {
        skipBlanks();
        const auto scanned = decimaltext::scanNumber(m_rest, decimaltext::Comma::EndsTheNumber);
        if (!scanned ||
            std::fabs(scanned->value) > static_cast<double>(std::numeric_limits<float>::max()))
            return std::nullopt;
        m_rest.remove_prefix(scanned->length);
        return static_cast<float>(scanned->value);
    }

    std::optional<Pair> pair()
    {
        if (!skip('{'))
            return std::nullopt;
        const auto first = number();
        if (!first || !skip(','))
            return std::nullopt;
        const auto second = number();
        if (!second || !skip('}'))
            return std::nullopt;
        return Pair{*first, *second};
    }

    bool isAtEnd()
    {
        skipBlanks();
        return m_rest.empty();
    }

private:
    void skipBlanks()
    {
        constexpr std::string_view blanks = " \t\r\n";
        const std::size_t first = m_rest.find_first_not_of(blanks);
        m_rest.remove_prefix(first == std::string_view::npos ? m_rest.size() : first);
    }

    std::string_view m_rest;
};

Pair pairFromString(std::string_view text)
{
    Reader reader(text);
    const auto pair = reader.pair();
    return pair && reader.isAtEnd() ? *pair : Pair{};
}

} // namespace

std::string stringFromPoint(FloatPoint point) { return textOf(point.x, point.y); }

std::string stringFromSize(FloatSize size) { return textOf(size.width, size.height); }

std::string stringFromRect(FloatRect rect)
{
    return '{' + stringFromPoint(rect.origin) + ", " + stringFromSize(rect.size) + '}';
}

FloatPoint pointFromString(std::string_view text)
{
    const Pair pair = pairFromString(text);
    return {pair.first, pair.second};
}

FloatSize sizeFromString(std::string_view text)
{
    const Pair pair = pairFromString(text);
    return {pair.first, pair.second};
}

FloatRect rectFromString(std::string_view text)
{
    Reader reader(text);
    if (!reader.skip('{'))
        return {};
    const auto origin = reader.pair();
    if (!origin || !reader.skip(','))
        return {};
    const auto size = reader.pair();
    if (!size || !reader.skip('}') || !reader.isAtEnd())
        return {};
    return {{origin->first, origin->second}, {size->first, size->second}};
}

} // namespace geometrytext
