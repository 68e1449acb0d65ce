#include "exchange/ExchangeTitles.h"

#include <algorithm>

namespace exchangetitles {

std::string nameOf(const ExchangeSeries &series)
{
    const std::string digits = std::to_string(series.number);
    return "Series_" + (digits.size() < 2 ? "0" + digits : digits);
}

std::array<std::string, 2> quantitiesOf(const ExchangeSeries &series)
{
    if (series.isPolar())
        return {"theta", "r"};
    return {"x", "y"};
}

std::array<std::string, 2> columnsOf(const ExchangeSeries &series)
{
    const std::string name = nameOf(series);
    const auto [first, second] = quantitiesOf(series);
    return {name + "_" + first, name + "_" + second};
}

std::size_t rowsOf(const std::vector<ExchangeSeries> &series)
{
    std::size_t rows = 0;
    for (const ExchangeSeries &one : series)
        rows = std::max(rows, one.points.size());
    return rows;
}

} // namespace exchangetitles
