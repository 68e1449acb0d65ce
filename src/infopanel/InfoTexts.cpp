#include "infopanel/InfoTexts.h"

#include "platform/NumberText.h"
#include "platform/Texts.h"

namespace {

constexpr int polarAxes = 2;

QString noValue() { return QStringLiteral("-----"); }

QString noCaption() { return QStringLiteral("-----:"); }

QString pointText(FloatPoint point)
{
    constexpr int decimals = 1;
    return QString::fromStdString("{ " + numbertext::fixed(static_cast<double>(point.x), decimals) +
                                  ", " + numbertext::fixed(static_cast<double>(point.y), decimals) +
                                  " }");
}

infotexts::AxisTexts polarTexts(const AxisFacts &axes)
{
    return {{texts::localized("PolarAxis"), pointText(axes.anchors[0]), pointText(axes.anchors[1]),
             texts::localizedFormat("AxisLenFormat", {axes.radius}),
             texts::localizedFormat("AxisDegFormat", {axes.inclination}), noValue(), noValue()},
            {{texts::localized("InfoCenterLabel"), texts::localized("InfoRadialLabel"),
              texts::localized("RadiusLabel"), texts::localized("InclinationLabel"), noCaption(),
              noCaption()}}};
}

infotexts::AxisTexts cornerTexts(const AxisFacts &axes)
{
    return {{texts::localized(axes.axisType == 0 ? "ParallelAxis" : "QuadrangleAxis"),
             pointText(axes.anchors[0]), pointText(axes.anchors[1]), pointText(axes.anchors[2]),
             pointText(axes.anchors[3]),
             texts::localizedFormat("AxisLenFormat", {axes.bottomLength}),
             texts::localizedFormat("AxisLenFormat", {axes.leftLength})},
            {{texts::localized("InfoAnchor1Label"), texts::localized("InfoAnchor2Label"),
              texts::localized("InfoAnchor3Label"), texts::localized("InfoAnchor4Label"),
              texts::localized("BottomLenLabel"), texts::localized("LeftLenLabel")}}};
}

/// The singular form stands for none as well as for one.
QString countText(const char *singular, const char *plural, int count)
{
    return texts::localizedFormat(count <= 1 ? singular : plural, count);
}

} // namespace

namespace infotexts {

QString imageInfo(const InfoFacts *facts)
{
    if (facts == nullptr)
        return texts::localized("InfoNoDoc");
    if (!facts->imageSize)
        return texts::localized("InfoNoImage");
    return texts::localizedFormat("ImageSizeFormat",
                                  {static_cast<double>(facts->imageSize->width),
                                   static_cast<double>(facts->imageSize->height)});
}

AxisTexts axisTexts(const InfoFacts *facts)
{
    if (facts == nullptr || !facts->imageSize) {
        AxisTexts nothing;
        nothing.info.fill(noValue());
        return nothing;
    }
    return facts->axes.axisType == polarAxes ? polarTexts(facts->axes) : cornerTexts(facts->axes);
}

DataTexts dataInfo(const InfoFacts *facts)
{
    if (facts == nullptr || !facts->imageSize)
        return {noValue(), noValue(), noValue(), noValue()};
    const DataFacts &data = facts->data;
    return {texts::localizedFormat("SeriesFormat", data.currentSeries + 1),
            texts::localizedFormat("RowFormat", data.currentIndex),
            countText("NumSeriesFormat", "NumSeriesFormat2", data.validSeries),
            countText("NumRowFormat", "NumRowsFormat", data.maxRows)};
}

} // namespace infotexts
