#pragma once

#include <QString>

/// The user's texts by key.
namespace texts {

/// The text behind `key` in the application's string table.
[[nodiscard]] QString localized(const char *key);

/// The text behind `key`, used as a format: the first "%d" becomes `value`, each "%%" a percent
/// sign, everything else stays as it is.
[[nodiscard]] QString localizedFormat(const char *key, int value);

} // namespace texts
