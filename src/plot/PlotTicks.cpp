#include "plot/PlotTicks.h"

#include "conversion/GridValues.h"
#include "platform/NumberText.h"
#include "plot/PlotContent.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace {

constexpr int intervals = 8;
constexpr int anglesPerTurn = 12;
constexpr int degreesPerTick = 30;
constexpr int mostDigits = 15;
/// On an axis that goes beyond, powers of ten are written with an exponent.
constexpr double longestPower = 3;
/// With fewer decades some lines between them have labels too.
constexpr int fewDecades = 3;

constexpr QChar minusSign(u'−');

QString text(double value, int digits)
{
    return QString::fromStdString(numbertext::general(value, digits)).replace(u'-', minusSign);
}

/// As many digits as tell neighbouring ticks apart.
int digitsFor(const plotticks::Range &range, double step)
{
    const double largest = std::max(std::fabs(range.low), std::fabs(range.high));
    const double digits = std::ceil(std::log10(largest / step)) + 1;
    return static_cast<int>(std::min(std::max(6.0, digits), double(mostDigits)));
}

QString powerOfTen(int exponent)
{
    const QString superscripts = QStringLiteral("⁰¹²³⁴⁵⁶⁷⁸⁹");
    QString power = QStringLiteral("10");
    for (const char digit : numbertext::fixed(exponent, 0))
        power += digit == '-' ? QChar(u'⁻') : superscripts.at(digit - '0');
    return power;
}

/// On a logarithmic axis without decades the values themselves have to be told apart.
int digitsOnLogarithmicAxis(const plotticks::Range &range)
{
    if (range.high - range.low >= 1)
        return 6;
    plotticks::Range values;
    values.low = std::pow(10.0, range.low);
    values.high = std::pow(10.0, range.high);
    return digitsFor(values, (values.high - values.low) / intervals);
}

QString labelOnLogarithmicAxis(const plotticks::Range &range, const gridvalues::Line &line,
                               bool labelsMinors)
{
    const bool hasLongPowers = range.low < -longestPower || range.high > longestPower;
    if (hasLongPowers && line.isMajor && line.position == std::floor(line.position))
        return powerOfTen(static_cast<int>(line.position));
    const double mantissa = std::round(std::pow(10.0, line.position - std::floor(line.position)));
    if (!line.isMajor && (!labelsMinors || (mantissa != 2 && mantissa != 5)))
        return {};
    return text(std::pow(10.0, line.position), digitsOnLogarithmicAxis(range));
}

QString labelOfAngle(int twelfths, const PlotAngles &angles)
{
    int count = twelfths;
    if (angles.isSigned && count > anglesPerTurn / 2)
        count -= anglesPerTurn;
    if (angles.isInDegrees)
        return text(count * degreesPerTick, 6) + QChar(u'°');
    if (count == 0)
        return QStringLiteral("0");
    // A twelfth of a turn is a sixth of π.
    const int common = std::gcd(std::abs(count), anglesPerTurn / 2);
    const int above = std::abs(count) / common;
    const int below = anglesPerTurn / 2 / common;
    QString label = count < 0 ? QString(minusSign) : QString();
    if (above != 1)
        label += text(above, 6);
    label += QChar(u'π');
    if (below != 1)
        label += QChar(u'/') + text(below, 6);
    return label;
}

void sort(std::vector<PlotTick> &ticks)
{
    std::sort(ticks.begin(), ticks.end(),
              [](const PlotTick &a, const PlotTick &b) { return a.position < b.position; });
}

} // namespace

std::vector<PlotTick> plotticks::along(const Range &range)
{
    const double apart = (range.high - range.low) / intervals;
    const auto lines = gridvalues::linesIn({range.low, range.high}, range.isLogarithmic, apart);
    const auto majors = std::count_if(lines.begin(), lines.end(),
                                      [](const gridvalues::Line &line) { return line.isMajor; });
    std::vector<PlotTick> ticks;
    ticks.reserve(lines.size());
    for (const gridvalues::Line &line : lines) {
        const QString label = range.isLogarithmic
                                  ? labelOnLogarithmicAxis(range, line, majors < fewDecades)
                                  : text(line.position, digitsFor(range, apart));
        const double place = std::min(std::max(range.placeOf(line.position), 0.0), 1.0);
        ticks.push_back({place, label, !label.isEmpty()});
    }
    sort(ticks);
    return ticks;
}

std::vector<PlotTick> plotticks::around(const PlotAngles &angles)
{
    std::vector<PlotTick> ticks;
    ticks.reserve(anglesPerTurn);
    for (int i = 0; i < anglesPerTurn; ++i) {
        const double turn = double(i) / anglesPerTurn;
        const double direction = directionOf(turn * 2 * std::numbers::pi, angles);
        const double clockwise = 0.25 - direction / (2 * std::numbers::pi);
        double position = clockwise - std::floor(clockwise);
        if (position > 1 - 1e-9)
            position = 0;
        ticks.push_back({position, labelOfAngle(i, angles), true});
    }
    sort(ticks);
    return ticks;
}

double plotticks::directionOf(double angle, const PlotAngles &angles)
{
    return angles.zeroDirection + (angles.isCounterClockwise ? angle : -angle);
}
