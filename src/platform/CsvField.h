#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Comma-separated values, as RFC 4180 has them.
namespace csvfield {

/// One field (UTF-8), in quotes where it needs them.
[[nodiscard]] std::string quoted(std::string_view text);

/// A line of these fields with its end, CR LF. What stands for a number that is none is an empty
/// field: spreadsheets would take "inf" and "nan" for words, and "-inf" for a formula.
[[nodiscard]] std::string line(const std::vector<std::string> &fields);

} // namespace csvfield
