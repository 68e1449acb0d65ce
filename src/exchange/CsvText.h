#pragma once

#include "exchange/ExchangeFacts.h"

#include <string>
#include <string_view>

/// Comma-separated values, as RFC 4180 has them.
namespace csvtext {

/// The series side by side, two columns each; lines end with CR LF. There are as many lines of data
/// as the longest of these series has points; fields below the end of a shorter one are empty.
[[nodiscard]] std::string table(const ExchangeFacts &facts, const ExchangeStyle &style);

/// One field, in quotes where it needs them.
[[nodiscard]] std::string field(std::string_view text);

} // namespace csvtext
