#include "conversion/GridValues.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace gridvalues {

namespace {

/// An end that misses a line by no more than this part of a step has it still.
constexpr double slack = 1e-9;
/// Steps that are counted beyond this lie closer than two doubles do.
constexpr double mostSteps = 9007199254740992.0;

/// The multiples of a step in a range: the first count, and how many there are.
struct Multiples
{
    double first = 0;
    int number = 0;
};

Multiples multiplesIn(Range range, Step step)
{
    const double first = std::ceil(range.low / step.length() - slack);
    const double last = std::floor(range.high / step.length() + slack);
    if (!(std::fabs(first) < mostSteps) || !(std::fabs(last) < mostSteps) || last < first)
        return {};
    return {first, static_cast<int>(std::min(last - first, double(maximumLines))) + 1};
}

std::vector<Line> linearLines(Range range, double apart)
{
    const double shortest = std::max(apart, (range.high - range.low) / maximumLines);
    if (!(shortest > 0) || !std::isfinite(shortest))
        return {};
    const Step step = stepOfAtLeast(shortest);
    const Multiples multiples = multiplesIn(range, step);
    std::vector<Line> lines;
    lines.reserve(static_cast<std::size_t>(multiples.number));
    for (int i = 0; i < multiples.number; ++i)
        lines.push_back({step.times(multiples.first + i), true});
    return lines;
}

/// Round values of their own where not even a decade is to be seen.
std::vector<Line> linesWithinDecade(Range range, double apart)
{
    const Range values{std::pow(10.0, range.low), std::pow(10.0, range.high)};
    const double valuesPerUnit = (values.high - values.low) / (range.high - range.low);
    std::vector<Line> lines;
    for (const Line &line : linearLines(values, apart * valuesPerUnit)) {
        const double position = std::log10(line.position);
        if (std::isfinite(position))
            lines.push_back({position, true});
    }
    return lines;
}

/// The mantissas between 1 and 10 of lines as close together as `apart` allows.
std::vector<int> minorMantissas(Range range, double apart)
{
    const double decades = range.high - range.low;
    const auto hasRoom = [decades](int linesPerDecade) {
        return decades * linesPerDecade <= maximumLines;
    };
    // Fine lines tell where they are by growing denser, so they may lie much closer.
    if (std::log10(10.0 / 9.0) >= apart / 12 && hasRoom(9))
        return {2, 3, 4, 5, 6, 7, 8, 9};
    if (std::log10(2.0) >= apart / 4 && hasRoom(3))
        return {2, 5};
    return {};
}

std::vector<Line> decadeLines(Range range, double apart)
{
    const std::vector<int> minors = minorMantissas(range, apart);
    if (minors.empty() || !(std::fabs(range.low) < mostSteps))
        return linearLines(range, std::max(apart, 1.0));
    std::vector<Line> lines;
    const auto add = [&](double position, bool isMajor) {
        if (position >= range.low - slack && position <= range.high + slack)
            lines.push_back({position, isMajor});
    };
    const double first = std::floor(range.low);
    const int decades = static_cast<int>(std::floor(range.high + slack) - first) + 1;
    for (int i = 0; i < decades; ++i) {
        const double decade = first + i;
        add(decade, true);
        for (const int minor : minors)
            add(decade + std::log10(double(minor)), false);
    }
    return lines;
}

} // namespace

// A power of ten below 1 is no double, its reciprocal is.
double Step::times(double count) const
{
    const double power = std::pow(10.0, std::abs(exponent));
    if (exponent < 0 && !std::isfinite(power))
        return count * mantissa * std::pow(10.0, exponent);
    return exponent < 0 ? count * mantissa / power : count * mantissa * power;
}

Step stepOfAtLeast(double length)
{
    if (!(length > 0) || !std::isfinite(length))
        return {};
    const int exponent = static_cast<int>(std::floor(std::log10(length)));
    for (const Step step : {Step{1, exponent}, Step{2, exponent}, Step{5, exponent}}) {
        if (step.length() >= length)
            return step;
    }
    return {1, exponent + 1};
}

std::vector<Line> linesIn(Range range, bool isLogarithmic, double apart)
{
    if (!std::isfinite(range.low) || !std::isfinite(range.high) || !std::isfinite(apart) ||
        range.high < range.low || apart <= 0)
        return {};
    if (!isLogarithmic)
        return linearLines(range, apart);
    if (range.high - range.low >= 1 || range.high == range.low)
        return decadeLines(range, apart);
    return linesWithinDecade(range, apart);
}

} // namespace gridvalues
