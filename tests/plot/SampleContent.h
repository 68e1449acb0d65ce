#pragma once

#include "plot/PlotContent.h"

#include <utility>
#include <vector>

/// What the tests of plots show.
namespace samplecontent {

inline PlotSeries series(std::vector<PlotPoint> points, QColor color = Qt::red)
{
    PlotSeries series;
    series.name = QStringLiteral("Series 1");
    series.shortName = QStringLiteral("1");
    series.color = color;
    series.size = 9;
    series.thickness = 1;
    series.points = std::move(points);
    return series;
}

/// x and y from 0 to 10.
inline PlotContent linear(std::vector<PlotPoint> points)
{
    PlotContent content;
    content.title = QStringLiteral("chart.crvgrab");
    content.x = {0, 10, false, false};
    content.y = {0, 10, false, false};
    content.series = {series(std::move(points))};
    return content;
}

/// The radius from 0 to 10, angles in degrees from the right, counter-clockwise.
inline PlotContent polar(std::vector<PlotPoint> points)
{
    PlotContent content = linear(std::move(points));
    content.isPolar = true;
    return content;
}

} // namespace samplecontent
