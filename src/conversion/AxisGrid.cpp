#include "conversion/AxisGrid.h"

#include "conversion/GridValues.h"
#include "conversion/PlaneArithmetic.h"
#include "conversion/ZKConvCoordinateAffine.h"
#include "conversion/ZKConvCoordinateKeystone.h"
#include "conversion/ZKConvCoordinatePolar.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>

using planearithmetic::difference;
using planearithmetic::planeVector;
using planearithmetic::PlaneVector;
using planearithmetic::pointAlong;

namespace axisgrid {

namespace {

/// Lines that meet in one point crowd before it: this near to where they would be infinitely dense
/// (1 is the distance of the axes' origin) they end.
constexpr double nearestToHorizon = 0.1;

constexpr int raysPerTurn = 36;
constexpr int raysPerMajorRay = 3;

double cross(PlaneVector a, PlaneVector b) { return a.x * b.y - a.y * b.x; }

double length(PlaneVector vector) { return std::hypot(vector.x, vector.y); }

/// Products of long or short vectors may leave what a double holds; those of this do not.
PlaneVector normalized(PlaneVector vector)
{
    const double size = length(vector);
    return {vector.x / size, vector.y / size};
}

bool isFinite(PlaneVector vector) { return std::isfinite(vector.x) && std::isfinite(vector.y); }

bool isLogarithmic(const ZKConvCoordinate &converter, std::size_t component)
{
    const auto flags = converter.logConversion();
    return component < flags.size() && flags[component] != 0;
}

/// A convex part of the picture, its corners in order.
using Region = std::vector<PlaneVector>;

Region wholePicture(FloatSize picture)
{
    const double width = picture.width;
    const double height = picture.height;
    return {{0, 0}, {width, 0}, {width, height}, {0, height}};
}

/// What of the region has `height` (linear in the point) at or above 0.
template <class Height>
Region clipped(const Region &region, const Height &height)
{
    Region kept;
    for (std::size_t i = 0; i < region.size(); ++i) {
        const PlaneVector from = region[i];
        const PlaneVector to = region[(i + 1) % region.size()];
        const double start = height(from);
        const double end = height(to);
        if (start >= 0)
            kept.push_back(from);
        if ((start >= 0) != (end >= 0))
            kept.push_back(pointAlong(from, difference(to, from), start / (start - end)));
    }
    return kept;
}

/// The part of `origin` + t * `direction` with t from `first` on that lies in the region.
std::optional<Segment> segmentIn(const Region &region, PlaneVector origin, PlaneVector direction,
                                 double first = -std::numeric_limits<double>::infinity())
{
    double last = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < region.size(); ++i) {
        const PlaneVector side = difference(region[(i + 1) % region.size()], region[i]);
        // The region lies at the left of its sides.
        const double inside = cross(side, difference(origin, region[i]));
        const double gain = cross(side, direction);
        if (gain == 0) {
            if (inside < 0)
                return std::nullopt;
        } else if (gain > 0) {
            first = std::max(first, -inside / gain);
        } else {
            last = std::min(last, -inside / gain);
        }
    }
    if (!(first < last) || !std::isfinite(first) || !std::isfinite(last))
        return std::nullopt;
    const PlaneVector start = pointAlong(origin, direction, first);
    const PlaneVector end = pointAlong(origin, direction, last);
    return Segment{{start.x, start.y}, {end.x, end.y}};
}

/// The lines on which one graph component is constant: they cross an axis, and are parallel or
/// meet in one point.
struct LineFamily
{
    PlaneVector origin;       ///< a point of the crossed axis
    PlaneVector unit;         ///< along that axis, to the line of one more unit
    PlaneVector direction;    ///< of the lines, if they are parallel
    double originValue = 0;   ///< of the line through the origin, in units of the axis
    bool logarithmic = false; ///< a unit is a decade
    std::optional<PlaneVector> meeting;

    [[nodiscard]] PlaneVector directionAt(PlaneVector point) const
    {
        return normalized(meeting ? difference(*meeting, point) : direction);
    }
    /// Which line goes through `point`, in units of the axis.
    [[nodiscard]] double valueAt(PlaneVector point) const
    {
        const PlaneVector along = directionAt(point);
        return cross(difference(point, origin), along) / cross(unit, along) + originValue;
    }
    /// 1 at the origin, 0 where the lines grow infinitely dense.
    [[nodiscard]] double heightOverHorizon(PlaneVector point) const
    {
        if (!meeting)
            return 1;
        return cross(unit, difference(point, *meeting)) / cross(unit, difference(origin, *meeting));
    }
    /// The distance of two lines a unit apart, at the origin.
    [[nodiscard]] double unitDistance() const
    {
        return std::fabs(cross(unit, directionAt(origin)));
    }
    [[nodiscard]] bool isUsable() const
    {
        return isFinite(origin) && isFinite(unit) && isFinite(direction) &&
               (!meeting || isFinite(*meeting)) && std::isfinite(originValue) &&
               unitDistance() > 0 && std::isfinite(unitDistance());
    }
};

Region aboveHorizon(const Region &region, const LineFamily &family)
{
    return clipped(region, [&family](PlaneVector point) {
        return family.heightOverHorizon(point) - nearestToHorizon;
    });
}

void addLines(Grid &grid, const Region &region, const LineFamily &family, double apart)
{
    if (region.empty())
        return;
    gridvalues::Range range{std::numeric_limits<double>::infinity(),
                            -std::numeric_limits<double>::infinity()};
    for (const PlaneVector corner : region) {
        const double value = family.valueAt(corner);
        range = {std::min(range.low, value), std::max(range.high, value)};
    }
    for (const gridvalues::Line &line :
         gridvalues::linesIn(range, family.logarithmic, apart / family.unitDistance())) {
        const PlaneVector onAxis =
            pointAlong(family.origin, family.unit, line.position - family.originValue);
        if (auto segment = segmentIn(region, onAxis, family.directionAt(onAxis))) {
            segment->isMajor = line.isMajor;
            grid.segments.push_back(*segment);
        }
    }
}

Grid gridOfFamilies(const LineFamily &constantX, const LineFamily &constantY, FloatSize picture,
                    double apart)
{
    Grid grid;
    if (!constantX.isUsable() || !constantY.isUsable())
        return grid;
    const Region region = aboveHorizon(aboveHorizon(wholePicture(picture), constantX), constantY);
    addLines(grid, region, constantX, apart);
    addLines(grid, region, constantY, apart);
    return grid;
}

Grid gridOfAffine(const ZKConvCoordinateAffine &converter, FloatSize picture, double apart)
{
    if (!converter.origin() || !converter.xferMatrixToCartesian())
        return {};
    const PlaneVector origin = planeVector(*converter.origin());
    const ZKMatrix &matrix = *converter.xferMatrixToCartesian();
    const PlaneVector unitX{matrix.getElementAtRow(0, 0), matrix.getElementAtRow(1, 0)};
    const PlaneVector unitY{matrix.getElementAtRow(0, 1), matrix.getElementAtRow(1, 1)};
    return gridOfFamilies({origin, unitX, unitY, 0, isLogarithmic(converter, 0), {}},
                          {origin, unitY, unitX, 0, isLogarithmic(converter, 1), {}}, picture,
                          apart);
}

Grid gridOfKeystone(const ZKConvCoordinateKeystone &converter, FloatSize picture, double apart)
{
    if (!converter.origin() || !converter.originValue() || !converter.unitX() || !converter.unitY())
        return {};
    const PlaneVector origin = planeVector(*converter.origin());
    const PlaneVector unitX = planeVector(*converter.unitX());
    const PlaneVector unitY = planeVector(*converter.unitY());
    const PlaneVector originValue = planeVector(*converter.originValue());
    LineFamily constantX{origin, unitX, unitY, originValue.x, isLogarithmic(converter, 0), {}};
    if (converter.crossY())
        constantX.meeting = planeVector(*converter.crossY());
    LineFamily constantY{origin, unitY, unitX, originValue.y, isLogarithmic(converter, 1), {}};
    if (converter.crossX())
        constantY.meeting = planeVector(*converter.crossX());
    return gridOfFamilies(constantX, constantY, picture, apart);
}

/// How near and how far the picture is, seen from a point, in pixels.
gridvalues::Range distancesOfPicture(PlaneVector from, FloatSize picture)
{
    const double width = picture.width;
    const double height = picture.height;
    const PlaneVector nearest{std::min(std::max(from.x, 0.0), width),
                              std::min(std::max(from.y, 0.0), height)};
    double farthest = 0;
    for (const PlaneVector corner : wholePicture(picture))
        farthest = std::max(farthest, length(difference(corner, from)));
    return {length(difference(nearest, from)), farthest};
}

void addRays(Grid &grid, PlaneVector center, PlaneVector unit, FloatSize picture, double apart)
{
    const Region region = wholePicture(picture);
    constexpr double turn = 2 * std::numbers::pi / raysPerTurn;
    const PlaneVector direction = normalized(unit);
    for (int ray = 0; ray < raysPerTurn; ++ray) {
        const double angle = ray * turn;
        const PlaneVector along{direction.x * std::cos(angle) - direction.y * std::sin(angle),
                                direction.x * std::sin(angle) + direction.y * std::cos(angle)};
        const bool isMajor = ray % raysPerMajorRay == 0;
        // The others begin where they have half the usual room.
        const double first = isMajor ? 0 : apart / 2 / turn;
        if (auto segment = segmentIn(region, center, along, first)) {
            segment->isMajor = isMajor;
            grid.segments.push_back(*segment);
        }
    }
}

Grid gridOfPolar(const ZKConvCoordinatePolar &converter, FloatSize picture, double apart)
{
    Grid grid;
    if (!converter.center() || !converter.unitR() || !converter.originValue())
        return grid;
    const PlaneVector center = planeVector(*converter.center());
    const PlaneVector unit = planeVector(*converter.unitR());
    const double centerValue = converter.originValue()->Y();
    const double unitLength = length(unit);
    if (!isFinite(center) || !std::isfinite(unitLength) || unitLength <= 0)
        return grid;
    const gridvalues::Range distances = distancesOfPicture(center, picture);
    for (const gridvalues::Line &line : gridvalues::linesIn(
             {centerValue + distances.low / unitLength, centerValue + distances.high / unitLength},
             isLogarithmic(converter, 1), apart / unitLength)) {
        const double radius = (line.position - centerValue) * unitLength;
        if (radius > 0)
            grid.circles.push_back({{center.x, center.y}, radius, line.isMajor});
    }
    addRays(grid, center, unit, picture, apart);
    return grid;
}

} // namespace

Grid gridOf(const ZKConvCoordinate &converter, FloatSize picture, double apart)
{
    if (!(picture.width > 0) || !(picture.height > 0) || !(apart > 0))
        return {};
    if (const auto *affine = dynamic_cast<const ZKConvCoordinateAffine *>(&converter))
        return gridOfAffine(*affine, picture, apart);
    if (const auto *keystone = dynamic_cast<const ZKConvCoordinateKeystone *>(&converter))
        return gridOfKeystone(*keystone, picture, apart);
    if (const auto *polar = dynamic_cast<const ZKConvCoordinatePolar *>(&converter))
        return gridOfPolar(*polar, picture, apart);
    return {};
}

} // namespace axisgrid
