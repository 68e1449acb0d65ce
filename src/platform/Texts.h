#pragma once

#include <QString>

/// The user's texts by key.
namespace texts {

/// The text behind `key` in the application's string table.
[[nodiscard]] QString localized(const char *key);

/// The text behind `key`, used as a format: each "%d" takes the next of the values, "%%" is a
/// percent sign.
[[nodiscard]] QString localizedFormat(const char *key, int value);

} // namespace texts
