#pragma once

#include "exchange/ExchangeFacts.h"

#include <string>

/// A document for other programs.
namespace jsonline {

/// One line with a JSON object: "document", "picture", "axes" and "series"; picture and axes are
/// null without a picture. A series has "number", "name", "quantities", the "converter" under which
/// it was taken (null: none) and "points". The digits concern the points only.
[[nodiscard]] std::string object(const ExchangeFacts &facts, std::optional<int> digits);

} // namespace jsonline
