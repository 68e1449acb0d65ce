#include "app/FactsAsJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <charconv>

namespace {

/// The number that the float's shortest text stands for: 0.1, not 0.10000000149.
QJsonValue number(float value)
{
    constexpr std::size_t longestText = 32;
    std::array<char, longestText> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value);
    double shown = 0;
    std::from_chars(text.data(), written.ptr, shown);
    return shown;
}

QJsonValue point(FloatPoint point)
{
    return QJsonObject{{QStringLiteral("x"), number(point.x)},
                       {QStringLiteral("y"), number(point.y)}};
}

QJsonValue picture(FloatSize size)
{
    return QJsonObject{{QStringLiteral("width"), number(size.width)},
                       {QStringLiteral("height"), number(size.height)}};
}

QJsonValue polarAxes(const AxisFacts &axes)
{
    return QJsonObject{{QStringLiteral("kind"), QStringLiteral("polar")},
                       {QStringLiteral("centre"), point(axes.anchors[0])},
                       {QStringLiteral("radiusEnd"), point(axes.anchors[1])},
                       {QStringLiteral("radius"), axes.radius},
                       {QStringLiteral("inclination"), axes.inclination}};
}

QJsonValue cornerAxes(const AxisFacts &axes)
{
    QJsonArray anchors;
    for (const FloatPoint &anchor : axes.anchors)
        anchors.append(point(anchor));
    const QString kind =
        axes.axisType == 0 ? QStringLiteral("parallel") : QStringLiteral("quadrangle");
    return QJsonObject{{QStringLiteral("kind"), kind},
                       {QStringLiteral("anchors"), anchors},
                       {QStringLiteral("bottomLength"), axes.bottomLength},
                       {QStringLiteral("leftLength"), axes.leftLength}};
}

QJsonValue data(const DataFacts &facts)
{
    return QJsonObject{{QStringLiteral("currentSeries"), facts.currentSeries + 1},
                       {QStringLiteral("currentRow"), facts.currentIndex},
                       {QStringLiteral("numberOfSeries"), facts.validSeries},
                       {QStringLiteral("numberOfRows"), facts.maxRows}};
}

} // namespace

namespace factsasjson {

QByteArray line(const QString &file, const InfoFacts &facts)
{
    constexpr int polar = 2;
    QJsonObject object{{QStringLiteral("file"), file},
                       {QStringLiteral("picture"), QJsonValue::Null},
                       {QStringLiteral("axes"), QJsonValue::Null},
                       {QStringLiteral("data"), QJsonValue::Null}};
    if (facts.imageSize) {
        object[QStringLiteral("picture")] = picture(*facts.imageSize);
        object[QStringLiteral("axes")] =
            facts.axes.axisType == polar ? polarAxes(facts.axes) : cornerAxes(facts.axes);
        object[QStringLiteral("data")] = data(facts.data);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace factsasjson
