#pragma once

#include <vector>

/// The values at the two ends of an axis.
struct AxisRange
{
    double minimum = 0;
    double maximum = 0;
    bool log = false;

    friend bool operator==(const AxisRange &, const AxisRange &) = default;
};

enum class RangeEnd { Minimum, Maximum };

/// Something that the user is told about a value that was replaced.
struct BadValueMessage
{
    const char *key = nullptr;                    ///< of the text
    RangeEnd fieldShouldEdit = RangeEnd::Minimum; ///< the field to edit afterwards
};

/// What becomes of a range after an edit: bad values are never refused but replaced.
struct RangeCorrection
{
    AxisRange range;
    bool minimumReplaced = false;
    bool maximumReplaced = false;
    std::vector<BadValueMessage> messages; ///< in the order in which they are shown
};

namespace axisvalues {

/// The correction after the minimum (the maximum) of `range` was typed. On a logarithmic axis the
/// edited value is made positive first; then the other one gives way if the two are out of order.
/// A value that is not a number passes.
[[nodiscard]] RangeCorrection minimumEdited(AxisRange range);
[[nodiscard]] RangeCorrection maximumEdited(AxisRange range);

/// The correction after the axis was made logarithmic: both values are made positive; their order
/// is left as it is.
[[nodiscard]] RangeCorrection madeLogarithmic(AxisRange range);

} // namespace axisvalues
