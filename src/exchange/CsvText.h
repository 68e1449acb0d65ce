#pragma once

#include "exchange/ExchangeFacts.h"

#include <string>

/// Comma-separated values, as RFC 4180 has them.
namespace csvtext {

/// The series side by side, two columns each; lines end with CR LF. There are as many lines of data
/// as the longest of these series has points; fields below the end of a shorter one are empty,
/// as are those of what is no number.
[[nodiscard]] std::string table(const ExchangeFacts &facts, const ExchangeStyle &style);

} // namespace csvtext
