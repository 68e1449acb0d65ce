#pragma once

#include "plot/PlotFigure.h"

#include <vector>

struct PlotAngles;

/// The lines and labels of a plot's axes.
namespace plotticks {

/// An axis in its own units: the value itself, on a logarithmic axis its log10.
struct Range
{
    double low = 0;
    double high = 1; ///< above `low`
    bool isLogarithmic = false;
    bool isReversed = false;

    /// The place of a value in units, 0 to 1.
    [[nodiscard]] double placeOf(double units) const
    {
        const double place = (units - low) / (high - low);
        return isReversed ? 1 - place : place;
    }
};

/// In the order of their positions.
[[nodiscard]] std::vector<PlotTick> along(const Range &range);

/// Every thirty degrees, in the order of their positions.
[[nodiscard]] std::vector<PlotTick> around(const PlotAngles &angles);

/// The direction of an angle (radians) on the paper, counter-clockwise from the right.
[[nodiscard]] double directionOf(double angle, const PlotAngles &angles);

} // namespace plotticks
