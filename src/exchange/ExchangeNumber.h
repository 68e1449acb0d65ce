#pragma once

#include <optional>
#include <string>

/// Numbers for other programs: a point in every locale.
namespace exchangenumber {

/// With so many significant digits, or without a number of them the shortest text that reads back
/// as the same number. Numbers that are none are "nan", "inf" and "-inf".
[[nodiscard]] std::string text(double value, std::optional<int> digits = {});
/// The shortest text of a single-precision number: 0.1, not 0.10000000149.
[[nodiscard]] std::string text(float value);

/// The number that the text with so many digits stands for.
[[nodiscard]] double rounded(double value, std::optional<int> digits);

} // namespace exchangenumber
