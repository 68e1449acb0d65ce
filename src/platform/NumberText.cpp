#include "platform/NumberText.h"

#include "geometry/GeneralFormat.h"
#include "platform/DecimalText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace numbertext {

namespace {

/// Enough for the 309 digits before the point, a sign, the point and an exponent.
constexpr int charactersBesidesDigits = 330;

std::string formatted(double value, std::chars_format format, int digits)
{
    std::string text(static_cast<std::size_t>(charactersBesidesDigits + std::max(digits, 0)), ' ');
    const auto written =
        std::to_chars(text.data(), text.data() + text.size(), value, format, digits);
    text.resize(static_cast<std::size_t>(written.ptr - text.data()));
    return text;
}

/// The text from its first character that is no blank on. Characters outside Latin-1 belong
/// to no number, so what becomes of them does not matter.
std::string withoutLeadingBlanks(const QString &text)
{
    const auto *const first =
        std::find_if_not(text.cbegin(), text.cend(), [](QChar c) { return c.isSpace(); });
    return QStringView(first, text.cend()).toLatin1().toStdString();
}

} // namespace

std::string general(double value) { return generalformat::general(value); }

double asShown(double value) { return doubleValue(QString::fromStdString(general(value))); }

std::string general(double value, int digits)
{
    return formatted(value, std::chars_format::general, digits);
}

std::string general(double value, int digits, int width)
{
    const std::string text = general(value, digits);
    const auto wanted = static_cast<std::size_t>(std::max(width, 0));
    return text.size() < wanted ? std::string(wanted - text.size(), ' ') + text : text;
}

std::string fixed(double value, int decimals)
{
    return formatted(value, std::chars_format::fixed, decimals);
}

double doubleValue(const QString &text)
{
    const auto scanned =
        decimaltext::scanNumber(withoutLeadingBlanks(text), decimaltext::Comma::IsThePoint);
    return scanned ? scanned->value : 0;
}

QString readPart(const QString &text)
{
    const std::string number = withoutLeadingBlanks(text);
    const auto scanned = decimaltext::scanNumber(number, decimaltext::Comma::IsThePoint);
    if (!scanned)
        return QStringLiteral("0");
    return QString::fromStdString(number.substr(0, scanned->length)).replace(u',', u'.');
}

int integerValue(const QString &text)
{
    const std::string digits = withoutLeadingBlanks(text);
    const bool hasPlus = digits.starts_with('+') && !digits.starts_with("+-");
    const char *const begin = digits.data() + (hasPlus ? 1 : 0);
    int value = 0;
    const auto read = std::from_chars(begin, digits.data() + digits.size(), value);
    if (read.ec == std::errc::result_out_of_range)
        return *begin == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return value;
}

} // namespace numbertext
