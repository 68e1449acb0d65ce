#include "axes/AxisValues.h"

namespace {

// The values that stand in for those that a logarithmic axis cannot show.
constexpr double logMinimum = 0.1;
constexpr double logMaximum = 100.0;

// How far the other end of the axis gives way: a decade, or ten units.
constexpr double distance = 10;

// Written so that a value that is not a number passes.
bool isBadForLog(double value) { return value <= 0; }

bool isOutOfOrder(const AxisRange &range) { return range.minimum >= range.maximum; }

} // namespace

RangeCorrection axisvalues::minimumEdited(AxisRange range)
{
    RangeCorrection result{range, false, false, {}};
    AxisRange &corrected = result.range;
    if (corrected.log && isBadForLog(corrected.minimum)) {
        corrected.minimum = logMinimum;
        result.minimumReplaced = true;
        result.messages.push_back({"InvalidLog", RangeEnd::Minimum});
    }
    if (isOutOfOrder(corrected)) {
        corrected.maximum =
            corrected.log ? corrected.minimum * distance : corrected.minimum + distance;
        result.maximumReplaced = true;
        result.messages.push_back({"SmallMax", RangeEnd::Maximum});
    }
    return result;
}

RangeCorrection axisvalues::maximumEdited(AxisRange range)
{
    RangeCorrection result{range, false, false, {}};
    AxisRange &corrected = result.range;
    if (corrected.log && isBadForLog(corrected.maximum)) {
        corrected.maximum = logMaximum;
        result.maximumReplaced = true;
        result.messages.push_back({"InvalidLog", RangeEnd::Maximum});
    }
    if (isOutOfOrder(corrected)) {
        corrected.minimum =
            corrected.log ? corrected.maximum / distance : corrected.maximum - distance;
        result.minimumReplaced = true;
        result.messages.push_back({"LargeMin", RangeEnd::Minimum});
    }
    return result;
}

RangeCorrection axisvalues::madeLogarithmic(AxisRange range)
{
    RangeCorrection result{range, false, false, {}};
    if (isBadForLog(range.minimum)) {
        result.range.minimum = logMinimum;
        result.minimumReplaced = true;
    }
    if (isBadForLog(range.maximum)) {
        result.range.maximum = logMaximum;
        result.maximumReplaced = true;
    }
    if (result.maximumReplaced)
        result.messages.push_back({"InvalidLog", RangeEnd::Maximum});
    else if (result.minimumReplaced)
        result.messages.push_back({"InvalidLog", RangeEnd::Minimum});
    return result;
}
