#pragma once

#include "capture/CaptureSurroundings.h"
#include "capture/PointList.h"
#include "conversion/ZKConvCoordinate.h"

#include <array>
#include <memory>
#include <optional>
#include <vector>

/// A converter as series keep it; never changed once built, shared with the cursor guide.
using SeriesConverter = std::shared_ptr<const ZKConvCoordinate>;

/// The ten series of a document: points in graph values, the converter under which they were
/// taken, and how they are drawn. Needs no window. Indexes are 0 to 9.
class SeriesStore
{
public:
    static constexpr int seriesCount = 10;

    /// Ten empty series with a plain converter, which stands for "no axes yet", and draw mode 0.
    SeriesStore();

    /// Whether `series` is one of the ten.
    [[nodiscard]] static bool isSeries(int series) { return series >= 0 && series < seriesCount; }

    [[nodiscard]] const PointList &list(int series) const;
    [[nodiscard]] const std::vector<ZKVector> &points(int series) const;
    [[nodiscard]] int pointCount(int series) const;
    [[nodiscard]] const SeriesConverter &converterOf(int series) const;
    /// 0 markers, 1 markers and lines, 2 lines; a document file may hold another number.
    [[nodiscard]] int markerDrawOf(int series) const;

    /// Whether the series holds a point; false for any index outside 0 to 9.
    [[nodiscard]] bool isValidSeries(int series) const;
    [[nodiscard]] IndexSet validSeriesBetween(int first, int last) const;
    [[nodiscard]] IndexSet validSeriesWithin(const IndexSet &series) const;
    /// The length of the longest series.
    [[nodiscard]] int maxRows() const;

    /// The empty series that takes over from `series`: the nearest one above it, else the
    /// nearest one below it.
    [[nodiscard]] std::optional<int> emptySeriesNextTo(int series) const;

    void setList(int series, const PointList &list);
    void setConverter(int series, const SeriesConverter &converter);
    void setMarkerDraw(int series, int mode);
    void append(int series, const ZKVector &point);
    void appendSorted(int series, const ZKVector &point);
    void clear(int series);
    void sortAll();

private:
    struct Series
    {
        PointList list;
        SeriesConverter converter;
        int markerDraw = 0;
    };

    [[nodiscard]] const Series &at(int series) const;
    [[nodiscard]] Series &at(int series);

    std::array<Series, seriesCount> m_series;
};
