#include "document/PlotFacts.h"

#include "axes/Anchors.h"
#include "axes/CurrentAxes.h"
#include "capture/DataSeries.h"
#include "conversion/ZKConvCoordinatePolar.h"
#include "document/DocumentWindow.h"
#include "document/MyDocument.h"
#include "plot/PlotContent.h"
#include "prefs/CurvegrabPrefs.h"
#include "ui_MyDocument.h"

#include <QComboBox>

#include <cmath>
#include <numbers>

namespace {

// The codes of the theta range: 0 to 360, -180 to 180 degrees, then the same in radians.
constexpr int signedDegrees = 1;
constexpr int firstRangeInRadians = 2;
constexpr int signedRadians = 3;

FloatPoint way(FloatPoint from, FloatPoint to) { return {to.x - from.x, to.y - from.y}; }

/// Whether an axis runs to the left or downwards. The longer component decides: the other one of an
/// axis that runs upright, or level, is chance.
bool runsBackwards(float usualComponent, float otherComponent)
{
    return std::fabs(usualComponent) >= std::fabs(otherComponent) ? usualComponent < 0
                                                                  : otherComponent < 0;
}

/// A chart that lies on its side, and is no mirror image: it is shown upright.
bool isTurned(FloatPoint alongX, FloatPoint alongY)
{
    const bool xRunsUpright = std::fabs(alongX.y) > std::fabs(alongX.x);
    const bool yRunsLevel = std::fabs(alongY.x) > std::fabs(alongY.y);
    const double area = double(alongX.x) * double(alongY.y) - double(alongX.y) * double(alongY.x);
    return xRunsUpright && yRunsLevel && area > 0;
}

/// `backwards` is the way from the first to the last value; the ranges of a plot run from the low
/// value to the high one.
PlotAxis axisOf(double first, double last, bool isLogarithmic, bool backwards)
{
    return {first, last, isLogarithmic, backwards != (first > last)};
}

/// A radius that is smaller at its anchor than at the centre grows on the side away from the
/// anchor, by as much as it was to shrink: points have a distance, which is never negative.
void turnFallingRadius(PlotContent &content)
{
    PlotAxis &radius = content.y;
    if (!(radius.first > radius.last))
        return;
    content.angles.zeroDirection += std::numbers::pi;
    radius.last = radius.isLogarithmic ? radius.first / radius.last * radius.first
                                       : 2 * radius.first - radius.last;
}

void takeAxes(PlotContent &content, const CurrentAxes &axes)
{
    const std::vector<FloatPoint> anchors = axes.currentAnchors();
    const FloatPoint alongX = way(anchors[0], anchors[1]);
    const FloatPoint alongY = way(anchors[0], anchors[3]);
    content.isPolar = axes.axisType() == axistype::polar;
    const bool turned = isTurned(alongX, alongY);
    content.x = axisOf(axes.minXValue(), axes.maxXValue(), axes.logX(),
                       !turned && runsBackwards(alongX.x, alongX.y));
    content.y = axisOf(axes.minYValue(), axes.maxYValue(), axes.logY(),
                       !turned && runsBackwards(alongY.y, alongY.x));
    content.angles = {std::atan2(double(alongX.y), double(alongX.x)), axes.rotCCW(),
                      axes.thetaRange() < firstRangeInRadians,
                      axes.thetaRange() == signedDegrees || axes.thetaRange() == signedRadians};
    if (content.isPolar)
        turnFallingRadius(content);
}

/// Points keep the axes under which they were taken, and the unit of their angles.
void takeConverter(PlotSeries &series, const ZKConvCoordinate *converter,
                   const PlotContent &content)
{
    series.anglesAreInDegrees = content.angles.isInDegrees;
    if (converter == nullptr || converter->converterType() == convertertype::base)
        return;
    const auto *polar = dynamic_cast<const ZKConvCoordinatePolar *>(converter);
    series.hasOtherAxes = (polar != nullptr) != content.isPolar;
    if (polar != nullptr)
        series.anglesAreInDegrees = polar->degreeMode();
}

PlotSeries seriesOf(const MyDocument &document, int index)
{
    const DataSeries &data = document.dataSeries();
    const auto style = document.prefs().plotPrefsForSeries(index);
    PlotSeries series;
    series.name = document.window().ui().seriesPopup->itemText(index);
    series.shortName = QString::number(index + 1);
    series.color = CurvegrabPrefs::colorForPlotPref(style).screenColor();
    series.size = CurvegrabPrefs::sizeForPlotPref(style);
    series.thickness = CurvegrabPrefs::thicknessForPlotPref(style);
    series.shape = CurvegrabPrefs::shapeForPlotPref(style);
    series.drawMode = data.markerDrawOf(index);
    for (const ZKVector &point : data.points(index))
        series.points.push_back({point.X(), point.Y()});
    return series;
}

} // namespace

PlotContent plotfacts::of(const MyDocument &document)
{
    PlotContent content;
    content.title = document.displayName();
    takeAxes(content, document.currentAxes());
    const DataSeries &data = document.dataSeries();
    for (const int index : data.validSeries()) {
        content.series.push_back(seriesOf(document, index));
        takeConverter(content.series.back(), data.converterOf(index).get(), content);
    }
    return content;
}
