#include "AllocationCounter.h"
#include "conversion/ZKConvCoordinateAffine.h"
#include "conversion/ZKConvCoordinateKeystone.h"
#include "conversion/ZKConvCoordinatePolar.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <memory>
#include <random>
#include <vector>

// One iteration converts one point: the time of an iteration is the time of a conversion through
// the base class, as the program calls it. The points change from iteration to iteration.

namespace {

using Converter = std::shared_ptr<const ZKConvCoordinate>;

constexpr std::size_t pointCount = 1024; // a power of two, all in the first-level cache

Converter affine(bool log)
{
    return ZKConvCoordinateAffine::convCoordWithX0Point({103, 411}, {522, 398}, 1, 100, log,
                                                        {98, 405}, {110, 96}, 1, 1000, log);
}

Converter keystone(bool log)
{
    return ZKConvCoordinateKeystone::convCoordWithPointLB({103, 96}, {522, 110}, {121, 398},
                                                          {480, 411}, 1, 100, log, 1, 1000, log);
}

Converter keystoneWithParallelEdges()
{
    return ZKConvCoordinateKeystone::convCoordWithPointLB(
        {100, 100}, {500, 100}, {100, 400}, {500, 400}, 1, 100, false, 1, 1000, false);
}

Converter polar(bool log)
{
    return ZKConvCoordinatePolar::convCoordWithCenter({310, 250}, {520, 260}, 1, 100, log, 0, true);
}

/// Points of the picture inside the axes.
std::vector<ZKVector> picturePoints()
{
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> x(130, 470);
    std::uniform_real_distribution<double> y(120, 390);
    std::vector<ZKVector> points;
    for (std::size_t i = 0; i < pointCount; ++i)
        points.push_back(ZKVector::vectorWithX(x(random), y(random)));
    return points;
}

std::vector<ZKVector> graphPoints(const ZKConvCoordinate &converter)
{
    std::vector<ZKVector> values;
    for (const ZKVector &point : picturePoints())
        values.push_back(converter.convertFromCartesian(point).value());
    return values;
}

void countAllocations(benchmark::State &state, std::size_t before)
{
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocationcounter::allocations() - before),
                           benchmark::Counter::kAvgIterations);
}

void fromCartesian(benchmark::State &state, const Converter &converter)
{
    const std::vector<ZKVector> points = picturePoints();
    std::size_t next = 0;
    const std::size_t before = allocationcounter::allocations();
    for (auto _ : state) {
        benchmark::DoNotOptimize(converter->convertFromCartesian(points[next]));
        next = (next + 1) % pointCount;
    }
    countAllocations(state, before);
}

void toCartesian(benchmark::State &state, const Converter &converter)
{
    const std::vector<ZKVector> values = graphPoints(*converter);
    std::size_t next = 0;
    const std::size_t before = allocationcounter::allocations();
    for (auto _ : state) {
        benchmark::DoNotOptimize(converter->convertToCartesian(values[next]));
        next = (next + 1) % pointCount;
    }
    countAllocations(state, before);
}

void pointFromCartesian(benchmark::State &state, const Converter &converter)
{
    std::vector<FloatPoint> points;
    for (const ZKVector &point : picturePoints())
        points.push_back(point.vectorToNSPoint());
    std::size_t next = 0;
    const std::size_t before = allocationcounter::allocations();
    for (auto _ : state) {
        benchmark::DoNotOptimize(converter->convertPointFromCartesian(points[next]));
        next = (next + 1) % pointCount;
    }
    countAllocations(state, before);
}

} // namespace

BENCHMARK_CAPTURE(fromCartesian, affine, affine(false));
BENCHMARK_CAPTURE(fromCartesian, affineLog, affine(true));
BENCHMARK_CAPTURE(fromCartesian, keystone, keystone(false));
BENCHMARK_CAPTURE(fromCartesian, keystoneWithParallelEdges, keystoneWithParallelEdges());
BENCHMARK_CAPTURE(fromCartesian, keystoneLog, keystone(true));
BENCHMARK_CAPTURE(fromCartesian, polar, polar(false));
BENCHMARK_CAPTURE(fromCartesian, polarLog, polar(true));
BENCHMARK_CAPTURE(toCartesian, affine, affine(false));
BENCHMARK_CAPTURE(toCartesian, affineLog, affine(true));
BENCHMARK_CAPTURE(toCartesian, keystone, keystone(false));
BENCHMARK_CAPTURE(toCartesian, keystoneLog, keystone(true));
BENCHMARK_CAPTURE(toCartesian, polar, polar(false));
BENCHMARK_CAPTURE(toCartesian, polarLog, polar(true));
BENCHMARK_CAPTURE(pointFromCartesian, affine, affine(false));
BENCHMARK_CAPTURE(pointFromCartesian, keystone, keystone(false));
BENCHMARK_CAPTURE(pointFromCartesian, polar, polar(false));
