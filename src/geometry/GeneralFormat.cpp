#include "geometry/GeneralFormat.h"

#include <array>
#include <charconv>

namespace {

constexpr int kSignificantDigits = 6;
constexpr std::size_t kLongestText = 32; // "-1.23457e-308" has 13 characters

} // namespace

std::string generalformat::general(double value)
{
    std::array<char, kLongestText> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value,
                                      std::chars_format::general, kSignificantDigits);
    return {text.data(), result.ptr};
}
