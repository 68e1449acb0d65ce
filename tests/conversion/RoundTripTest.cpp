#include "SampleConverters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

using namespace sampleconverters;

// Graph values to the picture and back, for ten thousand random converters of each kind.
//
// A linear value's error is measured against the larger of the value and the axis' span (a value
// of 0 has no relative error of its own), a logarithmic value's against the value, an angle's
// against the full turn. Angles stay a thousandth of a turn away from the zero direction and from
// its opposite, where the arc cosine, by its nature, is worth half the digits only.

namespace {

constexpr int converterCount = 10000;
constexpr double allowedError = 1e-9;

class Dice
{
public:
    explicit Dice(std::uint64_t seed)
        : m_engine(seed)
    {}

    double real(double from, double to)
    {
        return std::uniform_real_distribution<double>(from, to)(m_engine);
    }
    int integer(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_engine); }
    bool coin() { return integer(0, 1) == 1; }

    FloatPoint point(double from, double to)
    {
        const double x = real(from, to);
        const double y = real(from, to);
        return {static_cast<float>(x), static_cast<float>(y)};
    }

    /// A linear axis within -2000 ... 2000 that spans at least 1, or a logarithmic one within
    /// 1e-10 ... 1e10 that spans at least half a decade; rising or falling.
    AxisValues axis()
    {
        AxisValues values;
        values.log = coin();
        const double from = values.log ? real(-5, 5) : real(-1000, 1000);
        const double span = values.log ? real(0.5, 5) : real(1, 1000);
        const double to = coin() ? from + span : from - span;
        values.value0 = values.log ? std::pow(10.0, from) : from;
        values.value1 = values.log ? std::pow(10.0, to) : to;
        return values;
    }

private:
    std::mt19937_64 m_engine;
};

/// The value at `fraction` of the axis.
double valueAt(const AxisValues &axis, double fraction)
{
    if (axis.log)
        return axis.value0 * std::pow(axis.value1 / axis.value0, fraction);
    return axis.value0 + fraction * (axis.value1 - axis.value0);
}

double relativeError(double value, double expected, const AxisValues &axis)
{
    const double span = axis.log ? 0.0 : std::fabs(axis.value1 - axis.value0);
    return std::fabs(value - expected) / std::max(std::fabs(expected), span);
}

double angleError(double angle, double expected, double fullTurn)
{
    return std::fabs(std::remainder(angle - expected, fullTurn)) / fullTurn;
}

double distance(FloatPoint a, FloatPoint b)
{
    return ZKVector::vectorWithNSPoint(a).subVector(ZKVector::vectorWithNSPoint(b)).length();
}

/// An affine converter whose axes are at least 50 pixels long and meet at 6 degrees or more.
Affine randomAffine(Dice &dice, const AxisValues &x, const AxisValues &y)
{
    for (;;) {
        const std::array anchors{dice.point(0, 4000), dice.point(0, 4000), dice.point(0, 4000),
                                 dice.point(0, 4000)};
        const ZKVector alongX = ZKVector::vectorWithNSPoint(anchors[1])
                                    .subVector(ZKVector::vectorWithNSPoint(anchors[0]));
        const ZKVector alongY = ZKVector::vectorWithNSPoint(anchors[3])
                                    .subVector(ZKVector::vectorWithNSPoint(anchors[2]));
        if (alongX.length() < 50 || alongY.length() < 50 ||
            std::fabs(alongX.mulVector2(alongY)) < 0.1 * alongX.length() * alongY.length())
            continue;
        return ZKConvCoordinateAffine::convCoordWithX0Point(anchors[0], anchors[1], x.value0,
                                                            x.value1, x.log, anchors[2], anchors[3],
                                                            y.value0, y.value1, y.log);
    }
}

/// The corner (u, v) of a rectangle with a random displacement of up to a quarter of its sides,
/// turned by `angle` about its left bottom corner at `origin`.
FloatPoint randomCorner(Dice &dice, FloatPoint origin, FloatSize size, double angle, int u, int v)
{
    const double width = static_cast<double>(size.width) * (u + dice.real(-0.25, 0.25));
    const double height = static_cast<double>(size.height) * (v + dice.real(-0.25, 0.25));
    return ZKVector::vectorWithX(width, height)
        .rotateCCW(angle)
        ->addVector(ZKVector::vectorWithNSPoint(origin))
        .vectorToNSPoint();
}

/// A quadrilateral about a turned rectangle; for one in four the right top corner is chosen so that
/// both pairs of edges are parallel (exactly, or but for the rounding to float).
Corners randomCorners(Dice &dice)
{
    const FloatPoint origin = dice.point(0, 2000);
    const FloatSize size{static_cast<float>(dice.real(100, 2000)),
                         static_cast<float>(dice.real(100, 2000))};
    const double angle = dice.real(0, twoPi);
    Corners corners{randomCorner(dice, origin, size, angle, 0, 0),
                    randomCorner(dice, origin, size, angle, 1, 0),
                    randomCorner(dice, origin, size, angle, 0, 1),
                    randomCorner(dice, origin, size, angle, 1, 1)};
    if (dice.integer(0, 3) == 0)
        corners.rightTop = {corners.rightBottom.x + corners.leftTop.x - corners.leftBottom.x,
                            corners.rightBottom.y + corners.leftTop.y - corners.leftBottom.y};
    return corners;
}

/// A polar converter whose radius is at least 50 pixels long.
Polar randomPolar(Dice &dice, const AxisValues &r, std::int32_t tRange, bool rotateCCW)
{
    for (;;) {
        const FloatPoint center = dice.point(0, 4000);
        const FloatPoint radius = dice.point(0, 4000);
        if (distance(center, radius) >= 50)
            return ZKConvCoordinatePolar::convCoordWithCenter(center, radius, r.value0, r.value1,
                                                              r.log, tRange, rotateCCW);
    }
}

/// The point form gives what the double form gives for the same point, to half a unit in the
/// last place of a float.
void expectFloatPrecision(FloatPoint point, const std::optional<ZKVector> &exact)
{
    ASSERT_TRUE(exact.has_value());
    const double halfUnit = std::numeric_limits<float>::epsilon() / 2.0;
    EXPECT_LE(std::fabs(static_cast<double>(point.x) - exact->X()),
              halfUnit * std::fabs(exact->X()));
    EXPECT_LE(std::fabs(static_cast<double>(point.y) - exact->Y()),
              halfUnit * std::fabs(exact->Y()));
}

void expectPointFormsToAgree(const ZKConvCoordinate &converter, const ZKVector &values)
{
    const FloatPoint valuePoint = values.vectorToNSPoint();
    const FloatPoint picturePoint = converter.convertPointToCartesian(valuePoint);
    expectFloatPrecision(picturePoint,
                         converter.convertToCartesian(ZKVector::vectorWithNSPoint(valuePoint)));
    expectFloatPrecision(converter.convertPointFromCartesian(picturePoint),
                         converter.convertFromCartesian(ZKVector::vectorWithNSPoint(picturePoint)));
}

ZKVector thereAndBack(const ZKConvCoordinate &converter, const ZKVector &values)
{
    return converter.convertFromCartesian(converter.convertToCartesian(values).value()).value();
}

} // namespace

TEST(RoundTrip, affine)
{
    Dice dice(101);
    for (int i = 0; i < converterCount; ++i) {
        const AxisValues x = dice.axis();
        const AxisValues y = dice.axis();
        const Affine converter = randomAffine(dice, x, y);
        ASSERT_NE(converter, nullptr);
        const ZKVector values =
            vector(valueAt(x, dice.real(-0.5, 1.5)), valueAt(y, dice.real(-0.5, 1.5)));
        const ZKVector back = thereAndBack(*converter, values);
        ASSERT_LE(relativeError(back.X(), values.X(), x), allowedError) << "converter " << i;
        ASSERT_LE(relativeError(back.Y(), values.Y(), y), allowedError) << "converter " << i;
        expectPointFormsToAgree(*converter, values);
    }
}

TEST(RoundTrip, keystone)
{
    Dice dice(102);
    for (int i = 0; i < converterCount; ++i) {
        const AxisValues x = dice.axis();
        const AxisValues y = dice.axis();
        const Keystone converter = keystone(randomCorners(dice), x, y);
        ASSERT_NE(converter, nullptr);
        const ZKVector values =
            vector(valueAt(x, dice.real(0.0, 1.0)), valueAt(y, dice.real(0.0, 1.0)));
        const ZKVector back = thereAndBack(*converter, values);
        ASSERT_LE(relativeError(back.X(), values.X(), x), allowedError) << "converter " << i;
        ASSERT_LE(relativeError(back.Y(), values.Y(), y), allowedError) << "converter " << i;
        expectPointFormsToAgree(*converter, values);
    }
}

TEST(RoundTrip, polar)
{
    Dice dice(103);
    for (int i = 0; i < converterCount; ++i) {
        const AxisValues r = dice.axis();
        const std::int32_t range = dice.integer(0, 3);
        const Polar converter = randomPolar(dice, r, range, dice.coin());
        ASSERT_NE(converter, nullptr);
        // Falling radii are measured outwards as well: no point is below the centre's value.
        const double outwards = r.value1 > r.value0 ? 1 : -1;
        const double fullTurn = range < 2 ? 360 : twoPi;
        const double start = range % 2 == 0 ? 0.0 : -0.5;
        const double half = dice.coin() ? 0.0 : 0.5;
        const ZKVector values = vector(fullTurn * (start + half + dice.real(0.001, 0.499)),
                                       valueAt(r, outwards * dice.real(0.01, 1.5)));
        const ZKVector back = thereAndBack(*converter, values);
        ASSERT_LE(angleError(back.X(), values.X(), fullTurn), allowedError) << "converter " << i;
        ASSERT_LE(std::fabs(back.X() - values.X()), 0.5 * fullTurn) << "wrapped, converter " << i;
        ASSERT_LE(relativeError(back.Y(), values.Y(), r), allowedError) << "converter " << i;
        expectPointFormsToAgree(*converter, values);
    }
}
