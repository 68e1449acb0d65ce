#include "exchange/ExchangeNumber.h"

#include "platform/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace {

template <typename Number>
std::string shortest(Number value)
{
    constexpr std::size_t longest = 32;
    std::array<char, longest> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value);
    return {text.data(), written.ptr};
}

} // namespace

namespace exchangenumber {

std::string text(double value, std::optional<int> digits)
{
    // The sign of what is no number says nothing.
    if (std::isnan(value))
        return "nan";
    return digits ? numbertext::general(value, *digits) : shortest(value);
}

std::string text(float value) { return shortest(value); }

double rounded(double value, std::optional<int> digits)
{
    if (!digits || !std::isfinite(value))
        return value;
    const std::string shown = text(value, digits);
    double result = value;
    std::from_chars(shown.data(), shown.data() + shown.size(), result);
    return result;
}

} // namespace exchangenumber
