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

namespace {

// The codes of the theta range: 0 to 360, -180 to 180 degrees, then the same in radians.
constexpr int signedDegrees = 1;
constexpr int firstRangeInRadians = 2;
constexpr int signedRadians = 3;

void takeAxes(PlotContent &content, const CurrentAxes &axes)
{
    const std::vector<FloatPoint> anchors = axes.currentAnchors();
    const FloatPoint alongX{anchors[1].x - anchors[0].x, anchors[1].y - anchors[0].y};
    content.isPolar = axes.axisType() == axistype::polar;
    content.x = {axes.minXValue(), axes.maxXValue(), axes.logX(), alongX.x < 0};
    content.y = {axes.minYValue(), axes.maxYValue(), axes.logY(), anchors[3].y < anchors[0].y};
    content.angles = {std::atan2(double(alongX.y), double(alongX.x)), axes.rotCCW(),
                      axes.thetaRange() < firstRangeInRadians,
                      axes.thetaRange() == signedDegrees || axes.thetaRange() == signedRadians};
}

/// Points keep the unit of the angles under which they were taken.
bool anglesAreInDegrees(const ZKConvCoordinate *converter, bool otherwise)
{
    const auto *polar = dynamic_cast<const ZKConvCoordinatePolar *>(converter);
    return polar != nullptr ? polar->degreeMode() : otherwise;
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
        content.series.back().anglesAreInDegrees =
            anglesAreInDegrees(data.converterOf(index).get(), content.angles.isInDegrees);
    }
    return content;
}
