#pragma once

#include <QColor>
#include <QString>

#include <vector>

/// What a plot shows of a document, as plain values: handed over whenever it has changed.

/// One of the two axes as it stands on the picture; of polar axes the radius.
struct PlotAxis
{
    double first = 0; ///< the values at its ends; at the centre of polar axes
    double last = 1;
    bool isLogarithmic = false;
    bool isReversed = false; ///< values grow to the left, or downwards; never so of a radius

    friend bool operator==(const PlotAxis &, const PlotAxis &) = default;
};

/// How the angles of polar axes lie.
struct PlotAngles
{
    double zeroDirection = 0; ///< radians, counter-clockwise from the right
    bool isCounterClockwise = true;
    bool isInDegrees = true; ///< the labels, else in radians
    bool isSigned = false;   ///< the labels lie around 0, else above it

    friend bool operator==(const PlotAngles &, const PlotAngles &) = default;
};

/// A point in graph values: (x, y), or (theta, r).
struct PlotPoint
{
    double x = 0;
    double y = 0;

    friend bool operator==(const PlotPoint &, const PlotPoint &) = default;
};

/// One series with at least a point.
struct PlotSeries
{
    QString name;
    QString shortName; ///< written beside the last point
    QColor color;
    double size = 0;      ///< of its markers, view points
    double thickness = 0; ///< of its lines and outlines, view points
    int shape = 0;        ///< 0 filled square, 1 open square, 2 filled circle, 3 open circle
    int drawMode = 0;     ///< 0 markers, 1 markers and lines, 2 lines
    bool anglesAreInDegrees = true;
    bool hasOtherAxes = false; ///< taken under polar axes and shown on others, or the reverse
    std::vector<PlotPoint> points;

    friend bool operator==(const PlotSeries &, const PlotSeries &) = default;
};

struct PlotContent
{
    QString title;
    bool isPolar = false;
    PlotAxis x; ///< polar axes have none
    PlotAxis y;
    PlotAngles angles;
    std::vector<PlotSeries> series;

    friend bool operator==(const PlotContent &, const PlotContent &) = default;
};
