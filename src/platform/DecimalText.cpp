#include "platform/DecimalText.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace decimaltext {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Walks along a text and copies what belongs to the number in the form that from_chars reads.
class Scanner
{
public:
    Scanner(std::string_view text, Comma comma)
        : m_text(text)
        , m_comma(comma)
    {}

    bool scan()
    {
        scanSign();
        const bool whole = scanDigits();
        const bool fraction = scanFraction(whole);
        if (!whole && !fraction)
            return false;
        scanExponent();
        return true;
    }

    const std::string &number() const { return m_number; }
    std::size_t length() const { return m_at; }
    bool isNegative() const { return m_negative; }

private:
    char at(std::size_t offset) const
    {
        const std::size_t index = m_at + offset;
        return index < m_text.size() ? m_text[index] : '\0';
    }

    void scanSign()
    {
        if (at(0) != '-' && at(0) != '+')
            return;
        m_negative = at(0) == '-';
        if (m_negative)
            m_number += '-';
        ++m_at;
    }

    bool scanDigits()
    {
        const std::size_t start = m_at;
        while (isDigit(at(0)))
            m_number += m_text[m_at++];
        return m_at > start;
    }

    /// A point needs a digit on one of its sides, a comma on both.
    bool scanFraction(bool afterDigits)
    {
        const bool digitFollows = isDigit(at(1));
        const bool point = at(0) == '.' && (afterDigits || digitFollows);
        const bool comma =
            at(0) == ',' && m_comma == Comma::IsThePoint && afterDigits && digitFollows;
        if (!point && !comma)
            return false;
        m_number += '.';
        ++m_at;
        return scanDigits();
    }

    void scanExponent()
    {
        if (at(0) != 'e' && at(0) != 'E')
            return;
        const bool sign = at(1) == '-' || at(1) == '+';
        if (!isDigit(at(sign ? 2 : 1)))
            return;
        m_number += 'e';
        if (at(1) == '-')
            m_number += '-';
        m_at += sign ? 2 : 1;
        scanDigits();
    }

    std::string_view m_text;
    Comma m_comma;
    std::string m_number;
    std::size_t m_at = 0;
    bool m_negative = false;
};

/// Whether a number that does not fit a double is too large for it (and not too small):
/// its first digit that is not zero says which, together with the exponent.
bool isTooLarge(const std::string &number)
{
    const std::size_t exponentAt = number.find('e');
    const std::string mantissa = number.substr(0, exponentAt);
    const std::size_t point = mantissa.find('.');
    const auto digitsBeforePoint =
        static_cast<long long>(point == std::string::npos ? mantissa.size() : point);
    const auto firstDigit = static_cast<long long>(mantissa.find_first_of("123456789"));
    long long exponent = 0;
    if (exponentAt != std::string::npos) {
        const char *const begin = number.data() + exponentAt + 1;
        const auto read = std::from_chars(begin, number.data() + number.size(), exponent);
        if (read.ec == std::errc::result_out_of_range)
            return *begin != '-';
    }
    return digitsBeforePoint - firstDigit > -exponent;
}

} // namespace

std::optional<Scanned> scanNumber(std::string_view text, Comma comma)
{
    Scanner scanner(text, comma);
    if (!scanner.scan())
        return std::nullopt;
    const std::string &number = scanner.number();
    Scanned result{0, scanner.length()};
    const auto read = std::from_chars(number.data(), number.data() + number.size(), result.value);
    if (read.ec == std::errc::result_out_of_range || std::isinf(result.value)) {
        const double magnitude = isTooLarge(number) ? std::numeric_limits<double>::max() : 0.0;
        result.value = scanner.isNegative() ? -magnitude : magnitude;
    }
    return result;
}

} // namespace decimaltext
