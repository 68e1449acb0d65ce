#pragma once

#include <vector>

/// Round values for the lines of a grid, and for the ticks and ends of a plot's axes: 1, 2 or 5
/// times a power of ten; on a logarithmic axis the powers of ten and what lies between them.
///
/// Positions are in units of the axis: the value itself, for a logarithmic axis its log10.
namespace gridvalues {

/// No axis has more lines.
inline constexpr int maximumLines = 400;

/// 1, 2 or 5 times a power of ten.
struct Step
{
    int mantissa = 1;
    int exponent = 0;

    /// `count` steps, as exact as a double can be: three steps of 0.1 are 0.3.
    [[nodiscard]] double times(double count) const;
    [[nodiscard]] double length() const { return times(1); }

    friend bool operator==(const Step &, const Step &) = default;
};

/// The shortest step that is not shorter than `length`; 1 where `length` is not finite or not
/// above 0.
[[nodiscard]] Step stepOfAtLeast(double length);

struct Range
{
    double low = 0;
    double high = 0;
};

struct Line
{
    double position = 0; ///< in units of the axis
    bool isMajor = true; ///< a power of ten, or any line of a linear axis

    friend bool operator==(const Line &, const Line &) = default;
};

/// The lines from `range.low` to `range.high`, ascending, that lie at least about `apart` from
/// each other (the minor ones of a logarithmic axis closer); none where no double is between two
/// lines, or where something is not finite.
[[nodiscard]] std::vector<Line> linesIn(Range range, bool isLogarithmic, double apart);

} // namespace gridvalues
