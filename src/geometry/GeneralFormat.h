#pragma once

#include <string>

namespace generalformat {

/// The text that the C format "%g" gives in the C locale: exact binary value, ties to even, minus
/// zero kept, "inf" and "nan" as C writes them; the user's locale has no say.
[[nodiscard]] std::string general(double value);

} // namespace generalformat
