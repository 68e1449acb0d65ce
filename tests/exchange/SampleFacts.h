#pragma once

#include "conversion/ZKConvCoordinateAffine.h"
#include "conversion/ZKConvCoordinateKeystone.h"
#include "conversion/ZKConvCoordinatePolar.h"
#include "exchange/ExchangeFacts.h"

#include <utility>

/// Facts about small documents.
namespace samplefacts {

inline std::vector<ZKVector> points(const std::vector<std::pair<double, double>> &values)
{
    std::vector<ZKVector> points;
    for (const auto &[x, y] : values)
        points.push_back(ZKVector::vectorWithX(x, y));
    return points;
}

/// Graph units are ten pixels wide and a decade is 20 pixels high.
inline std::shared_ptr<const ZKConvCoordinate> parallel()
{
    return ZKConvCoordinateAffine::convCoordWithX0Point({10, 20}, {110, 20}, 0, 10, false, {10, 20},
                                                        {10, 60}, 1, 100, true);
}

inline std::shared_ptr<const ZKConvCoordinate> quadrangle()
{
    return ZKConvCoordinateKeystone::convCoordWithPointLB({0, 0}, {100, 0}, {0, 50}, {100, 50}, 0,
                                                          10, false, 0, 5, false);
}

inline std::shared_ptr<const ZKConvCoordinate> polar()
{
    return ZKConvCoordinatePolar::convCoordWithCenter({50, 50}, {90, 50}, 0, 4, false, 0, true);
}

/// Series 1 with two points, and series 3 with one under polar axes.
inline ExchangeFacts twoSeries()
{
    ExchangeFacts facts;
    facts.document = "plot.crvgrab";
    facts.picture = FloatSize{300, 200.5F};
    facts.axes = ExchangeAxes{};
    facts.axes->anchors = {FloatPoint{10, 20}, FloatPoint{110, 20}, FloatPoint{110, 60},
                           FloatPoint{10.1F, 60}};
    facts.axes->x = {0, 10, false};
    facts.axes->y = {1, 100, true};
    facts.series = {{1, points({{0.1, -2.5}, {1.0 / 3, 1e20}}), parallel()},
                    {3, points({{15, 7.5}}), polar()}};
    return facts;
}

} // namespace samplefacts
