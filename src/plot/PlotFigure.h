#pragma once

#include <QColor>
#include <QPointF>
#include <QString>

#include <vector>

struct PlotContent;

/// A plot that only has to be drawn: every place is a part of the plot's extent.

struct PlotTick
{
    double position = 0; ///< 0 to 1 along the axis; of angles, clockwise from the top
    QString label;       ///< empty for a minor line
    bool isMajor = true;

    friend bool operator==(const PlotTick &, const PlotTick &) = default;
};

struct PlotFigureSeries
{
    QString name;
    QString shortName;
    QColor color;
    double size = 0;
    double thickness = 0;
    int shape = 0;
    int drawMode = 0;
    /// In the unit square from its lower left corner; of polar axes in the disc of radius 1 about
    /// (0, 0). y grows upwards.
    std::vector<QPointF> points;
};

struct PlotFigure
{
    bool isPolar = false;
    std::vector<PlotTick> xTicks;         ///< of polar axes the angles
    std::vector<PlotTick> yTicks;         ///< of polar axes the radii
    std::vector<PlotFigureSeries> series; ///< those of which something is shown
    int pointCount = 0;                   ///< shown
    int leftOutCount = 0;                 ///< points that have no place on these axes
};

namespace plotfigure {

/// Values beyond it have no place on a plot.
inline constexpr double largestValue = 1e300;

[[nodiscard]] PlotFigure of(const PlotContent &content);

} // namespace plotfigure
