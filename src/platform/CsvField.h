#pragma once

#include <string>
#include <string_view>

/// Comma-separated values, as RFC 4180 has them.
namespace csvfield {

/// One field (UTF-8), in quotes where it needs them.
[[nodiscard]] std::string quoted(std::string_view text);

} // namespace csvfield
