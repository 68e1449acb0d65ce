#pragma once

struct PlotContent;
class MyDocument;

namespace plotfacts {

/// What a plot of the document shows: its axes as they are set, and the series with points.
[[nodiscard]] PlotContent of(const MyDocument &document);

} // namespace plotfacts
