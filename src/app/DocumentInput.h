#pragma once

#include "app/Console.h"
#include "document/DocumentContents.h"

#include <optional>

/// Documents that commands without a window read.
namespace documentinput {

/// The document in `file`, or on standard input for "-". One that cannot be read, or not whole, is
/// none, and the user is told why.
[[nodiscard]] std::optional<DocumentContents> read(const QString &file, const Console &console);

} // namespace documentinput
