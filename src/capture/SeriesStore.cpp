#include "capture/SeriesStore.h"

#include <algorithm>
#include <cstddef>
#include <utility>

SeriesStore::SeriesStore()
{
    for (Series &series : m_series)
        series.converter = std::make_shared<ZKConvCoordinate>();
}

const PointList &SeriesStore::list(int series) const { return at(series).list; }

const std::vector<ZKVector> &SeriesStore::points(int series) const
{
    return at(series).list.points();
}

int SeriesStore::pointCount(int series) const { return static_cast<int>(at(series).list.size()); }

const SeriesConverter &SeriesStore::converterOf(int series) const { return at(series).converter; }

int SeriesStore::markerDrawOf(int series) const { return at(series).markerDraw; }

bool SeriesStore::isValidSeries(int series) const
{
    return isSeries(series) && !at(series).list.isEmpty();
}

IndexSet SeriesStore::validSeriesBetween(int first, int last) const
{
    if (first > last)
        std::swap(first, last);
    IndexSet valid;
    for (int i = std::max(first, 0); i <= std::min(last, seriesCount - 1); ++i) {
        if (isValidSeries(i))
            valid.insert(i);
    }
    return valid;
}

IndexSet SeriesStore::validSeriesWithin(const IndexSet &series) const
{
    IndexSet valid;
    for (const int i : series) {
        if (isValidSeries(i))
            valid.insert(i);
    }
    return valid;
}

int SeriesStore::maxRows() const
{
    int rows = 0;
    for (int i = 0; i < seriesCount; ++i)
        rows = std::max(rows, pointCount(i));
    return rows;
}

std::optional<int> SeriesStore::emptySeriesNextTo(int series) const
{
    for (int i = series + 1; i < seriesCount; ++i) {
        if (!isValidSeries(i))
            return i;
    }
    for (int i = series - 1; i >= 0; --i) {
        if (!isValidSeries(i))
            return i;
    }
    return std::nullopt;
}

void SeriesStore::setList(int series, const PointList &list) { at(series).list = list; }

void SeriesStore::setConverter(int series, const SeriesConverter &converter)
{
    at(series).converter = converter;
}

void SeriesStore::setMarkerDraw(int series, int mode) { at(series).markerDraw = mode; }

void SeriesStore::append(int series, const ZKVector &point) { at(series).list.append(point); }

void SeriesStore::appendSorted(int series, const ZKVector &point)
{
    at(series).list.appendSorted(point);
}

void SeriesStore::clear(int series) { at(series).list.clear(); }

void SeriesStore::sortAll()
{
    for (Series &series : m_series)
        series.list.sort();
}

const SeriesStore::Series &SeriesStore::at(int series) const
{
    return m_series.at(static_cast<std::size_t>(series));
}

SeriesStore::Series &SeriesStore::at(int series)
{
    return m_series.at(static_cast<std::size_t>(series));
}
