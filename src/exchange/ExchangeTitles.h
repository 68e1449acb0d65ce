#pragma once

#include "exchange/ExchangeFacts.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

/// What the columns of a series are called, in every table that leaves the program.
namespace exchangetitles {

/// "Series_01".
[[nodiscard]] std::string nameOf(const ExchangeSeries &series);
/// What the two values of a point are: "x" and "y", or "theta" and "r".
[[nodiscard]] std::array<std::string, 2> quantitiesOf(const ExchangeSeries &series);
/// The titles of the two columns: "Series_01_x" and "Series_01_y".
[[nodiscard]] std::array<std::string, 2> columnsOf(const ExchangeSeries &series);

/// The length of the longest of the series.
[[nodiscard]] std::size_t rowsOf(const std::vector<ExchangeSeries> &series);

} // namespace exchangetitles
