#pragma once

#include "conversion/ZKConvCoordinateAffine.h"
#include "conversion/ZKConvCoordinateKeystone.h"
#include "conversion/ZKConvCoordinatePolar.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

/// What the tests of the converters share: converters whose values are easy to tell, and the way
/// through the archive.
namespace sampleconverters {

inline constexpr double pi = 3.141592653589793;
inline constexpr double twoPi = 6.283185307179586;
inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
inline constexpr double infinity = std::numeric_limits<double>::infinity();

using Affine = std::shared_ptr<const ZKConvCoordinateAffine>;
using Keystone = std::shared_ptr<const ZKConvCoordinateKeystone>;
using Polar = std::shared_ptr<const ZKConvCoordinatePolar>;

/// The values at the two anchors of an axis.
struct AxisValues
{
    double value0 = 0;
    double value1 = 0;
    bool log = false;
};

/// The corners of a quadrilateral.
struct Corners
{
    FloatPoint leftBottom;
    FloatPoint rightBottom;
    FloatPoint leftTop;
    FloatPoint rightTop;
};

inline constexpr Corners square{{0, 0}, {100, 0}, {0, 100}, {100, 100}};
/// The left and the right edge meet in (50, 250).
inline constexpr Corners trapezoid{{0, 0}, {100, 0}, {20, 100}, {80, 100}};
/// No two edges are parallel.
inline constexpr Corners generalQuadrilateral{{10, 20}, {410, 60}, {40, 320}, {350, 290}};

/// X anchors (100, 400) and (500, 400), Y anchors (100, 400) and (100, 100): y grows downwards.
Affine affine(AxisValues x = {0, 10}, AxisValues y = {0, 3});

Keystone keystone(const Corners &corners, AxisValues x = {0, 10}, AxisValues y = {0, 10});

/// Centre (100, 100), radius point (200, 100).
Polar polar(AxisValues r, std::int32_t tRange, bool rotateCCW = true);

[[nodiscard]] ZKVector vector(double x, double y);

/// Whether both are nothing, or have the same components to the last bit; a NaN is any NaN.
[[nodiscard]] bool areIdentical(const std::optional<ZKVector> &a, const std::optional<ZKVector> &b);

/// What the converter writes.
[[nodiscard]] std::vector<ArchivedItem> archived(const ZKConvCoordinate &converter);

/// What the values say; null when they are refused.
[[nodiscard]] std::shared_ptr<const ZKConvCoordinate>
decoded(std::string_view className, const std::vector<ArchivedItem> &items);

/// The converter after saving and opening.
template <class Converter>
std::shared_ptr<const Converter> reopened(const Converter &converter)
{
    return std::dynamic_pointer_cast<const Converter>(
        decoded(converter.className(), archived(converter)));
}

} // namespace sampleconverters
