#pragma once

#include <QString>

#include <initializer_list>

/// The user's texts by key.
namespace texts {

/// The text behind `key` in the application's string table.
[[nodiscard]] QString localized(const char *key);

/// The text behind `key`, used as a format: the first "%d" becomes `value`, each "%%" a percent
/// sign, everything else stays as it is.
[[nodiscard]] QString localizedFormat(const char *key, int value);

/// The text behind `key`, used as a format: each "%.<n>f" (n one digit) becomes the next of
/// `values` with n decimals and a point, each "%%" a percent sign, everything else stays as it is.
[[nodiscard]] QString localizedFormat(const char *key, std::initializer_list<double> values);

} // namespace texts
