#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

/// Reading decimal numbers from the beginning of a text, in the C locale whatever the user's is.
namespace decimaltext {

/// Whether a comma between two digits is read as the point.
enum class Comma { IsThePoint, EndsTheNumber };

struct Scanned
{
    double value = 0;
    std::size_t length = 0; ///< how many characters the number takes
};

/// The longest decimal number with an optional sign and exponent that `text` begins with, or
/// nothing if it begins with none: no blanks, no hexadecimal, no "inf", no "nan". What is too
/// large for a double reads as the largest finite one, what is too small as zero of its sign.
[[nodiscard]] std::optional<Scanned> scanNumber(std::string_view text, Comma comma);

} // namespace decimaltext
