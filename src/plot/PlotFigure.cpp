#include "plot/PlotFigure.h"

#include "conversion/GridValues.h"
#include "plot/PlotContent.h"
#include "plot/PlotTicks.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

namespace {

/// A point taken at the end of an axis may miss it by a pixel: the axis need not grow by a step for
/// that. In eighths of the axis.
constexpr double missedBy = 0.04;

/// A range that grows with what it has to hold.
struct Extent
{
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    [[nodiscard]] bool isEmpty() const { return !(low <= high); }
    void include(double units)
    {
        if (!std::isfinite(units))
            return;
        low = std::min(low, units);
        high = std::max(high, units);
    }
};

/// A value in the units of its axis; what has no place there is not finite.
double unitsOf(double value, bool isLogarithmic)
{
    if (!(std::fabs(value) <= plotfigure::largestValue))
        return std::numeric_limits<double>::quiet_NaN();
    return isLogarithmic ? std::log10(value) : value;
}

/// The range from end to end as the picture has it, and to round values beyond where points lie
/// beyond.
plotticks::Range rangeFor(const PlotAxis &axis, const Extent &data)
{
    Extent ends;
    ends.include(unitsOf(axis.first, axis.isLogarithmic));
    ends.include(unitsOf(axis.last, axis.isLogarithmic));
    Extent all = ends;
    all.include(data.low);
    all.include(data.high);
    if (all.isEmpty())
        all = {0, 1};
    const double apart = all.high / 8 - all.low / 8;
    // The least doubles may lie apart by less than can be divided.
    if (!(apart > 0)) {
        const double room = axis.isLogarithmic ? 1 : std::max(1.0, std::fabs(all.low) / 10);
        all = {all.low - room, all.high + room};
    } else {
        const double step = axis.isLogarithmic ? 1 : gridvalues::stepOfAtLeast(apart).length();
        const double near = missedBy * apart;
        if (ends.isEmpty() || all.low < ends.low - near)
            all.low = std::floor(all.low / step) * step;
        if (ends.isEmpty() || all.high > ends.high + near)
            all.high = std::ceil(all.high / step) * step;
    }
    return {all.low, all.high, axis.isLogarithmic, axis.isReversed};
}

Extent extentOf(const std::vector<PlotSeries> &series, const PlotAxis &axis,
                double PlotPoint::*component)
{
    Extent extent;
    for (const PlotSeries &one : series) {
        if (one.hasOtherAxes)
            continue;
        for (const PlotPoint &point : one.points)
            extent.include(unitsOf(point.*component, axis.isLogarithmic));
    }
    return extent;
}

/// Where a point lies in the unit square.
QPointF placeOf(const PlotPoint &point, const plotticks::Range &x, const plotticks::Range &y)
{
    return {x.placeOf(unitsOf(point.x, x.isLogarithmic)),
            y.placeOf(unitsOf(point.y, y.isLogarithmic))};
}

/// Where a point lies in the unit disc.
QPointF placeOf(const PlotPoint &point, const plotticks::Range &radius, const PlotAngles &angles,
                bool isInDegrees)
{
    const double angle = isInDegrees ? point.x / 180 * std::numbers::pi : point.x;
    const double direction = plotticks::directionOf(angle, angles);
    const double distance = radius.placeOf(unitsOf(point.y, radius.isLogarithmic));
    return {distance * std::cos(direction), distance * std::sin(direction)};
}

template <class Place>
void addSeries(PlotFigure &figure, const PlotSeries &series, const Place &place)
{
    PlotFigureSeries shown{series.name,      series.shortName, series.color,    series.size,
                           series.thickness, series.shape,     series.drawMode, {}};
    if (!series.hasOtherAxes) {
        shown.points.reserve(series.points.size());
        for (const PlotPoint &point : series.points) {
            const QPointF there = place(point);
            if (std::isfinite(there.x()) && std::isfinite(there.y()))
                shown.points.push_back(there);
        }
    }
    figure.pointCount += static_cast<int>(shown.points.size());
    figure.leftOutCount += static_cast<int>(series.points.size() - shown.points.size());
    // A name in the legend that stands for nothing is looked for in vain.
    if (!shown.points.empty())
        figure.series.push_back(std::move(shown));
}

} // namespace

PlotFigure plotfigure::of(const PlotContent &content)
{
    PlotFigure figure;
    figure.isPolar = content.isPolar;
    PlotAxis radius = content.y;
    radius.isReversed = false;
    const plotticks::Range y = rangeFor(content.isPolar ? radius : content.y,
                                        extentOf(content.series, content.y, &PlotPoint::y));
    figure.yTicks = plotticks::along(y);
    if (content.isPolar) {
        figure.xTicks = plotticks::around(content.angles);
        for (const PlotSeries &series : content.series)
            addSeries(figure, series, [&](const PlotPoint &point) {
                return placeOf(point, y, content.angles, series.anglesAreInDegrees);
            });
        return figure;
    }
    const plotticks::Range x =
        rangeFor(content.x, extentOf(content.series, content.x, &PlotPoint::x));
    figure.xTicks = plotticks::along(x);
    for (const PlotSeries &series : content.series)
        addSeries(figure, series, [&](const PlotPoint &point) { return placeOf(point, x, y); });
    return figure;
}
