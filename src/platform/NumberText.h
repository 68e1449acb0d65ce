#pragma once

#include <QString>

#include <string>

/// Numbers as text: the formats of C with their exact rounding, a point in every locale.
namespace numbertext {

/// "%g": six significant digits, ties to even, minus zero kept ("-0").
[[nodiscard]] std::string general(double value);

/// The number that a field holds when it is shown there: six digits are left of it.
[[nodiscard]] double asShown(double value);

/// "%.<digits>g".
[[nodiscard]] std::string general(double value, int digits);

/// "%<width>.<digits>g": as above, right-aligned in `width` characters.
[[nodiscard]] std::string general(double value, int digits, int width);

/// "%.<decimals>f".
[[nodiscard]] std::string fixed(double value, int decimals);

/// The number that a field's text begins with: blanks are skipped, then the longest decimal
/// prefix with an exponent counts; one comma between digits is read as the point; no hexadecimal,
/// no "inf", no "nan". Nothing readable is 0. What is too large for a double is the largest finite
/// one, so that a field never holds an infinity.
[[nodiscard]] double doubleValue(const QString &text);

/// The part of a field's text that doubleValue reads, with a point; "0" if it reads nothing.
[[nodiscard]] QString readPart(const QString &text);

/// The whole number that a field's text begins with; a fraction is dropped ("250.9" is 250,
/// "2e2" is 2). Nothing readable is 0; beyond the range it stops at the range's end.
[[nodiscard]] int integerValue(const QString &text);

} // namespace numbertext
