#include "geometry/InlineDoubles.h"

#include <algorithm>

std::unique_ptr<double[]> inlinedoubles::zeros(std::size_t count)
{
    return std::make_unique<double[]>(count);
}

std::unique_ptr<double[]> inlinedoubles::copyOf(const double *doubles, std::size_t count)
{
    auto copy = std::make_unique<double[]>(count);
    std::copy_n(doubles, count, copy.get());
    return copy;
}
