#include "capture/SeriesArchive.h"

#include "archiving/ArchivedCopy.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace {

constexpr auto dataSeriesKey = "Data Series";
constexpr auto converterSeriesKey = "Converter Series";
constexpr auto markerSeriesKey = "Marker Series";

ArchiveValue archivedObject(std::shared_ptr<const Archivable> object)
{
    return ArchiveValue{std::move(object)};
}

ArchiveArray archivedPoints(const std::vector<ZKVector> &points)
{
    ArchiveArray array;
    array.reserve(points.size());
    for (const ZKVector &point : points)
        array.push_back(archivedObject(std::make_shared<ArchivedCopy<ZKVector>>(point)));
    return array;
}

/// The archived object of class `Wanted` that `value` holds, or null.
template <typename Wanted>
std::shared_ptr<const Wanted> objectIn(const ArchiveValue &value)
{
    const auto *object = std::get_if<std::shared_ptr<const Archivable>>(&value.value);
    return object == nullptr ? nullptr : std::dynamic_pointer_cast<const Wanted>(*object);
}

PointList pointsIn(const ArchiveValue &value)
{
    std::vector<ZKVector> points;
    if (const auto *array = std::get_if<ArchiveArray>(&value.value)) {
        points.reserve(array->size());
        for (const ArchiveValue &entry : *array) {
            if (const auto point = objectIn<ArchivedCopy<ZKVector>>(entry))
                points.push_back(point->value());
        }
    }
    return PointList(std::move(points));
}

/// Hands the first ten entries of the array under `key` to `take`, with their index.
template <typename Take>
void forEachSeriesEntry(const ArchiveDictionary &data, std::string_view key, const Take &take)
{
    const ArchiveArray *array = data.arrayForKey(key);
    if (array == nullptr)
        return;
    const std::size_t count = std::min<std::size_t>(array->size(), SeriesStore::seriesCount);
    for (std::size_t i = 0; i < count; ++i)
        take(static_cast<int>(i), (*array)[i]);
}

/// The number that `value` holds, read as a dictionary reads its numbers.
int intIn(const ArchiveValue &value)
{
    ArchiveDictionary number;
    number.set("number", value);
    return number.intForKey("number");
}

} // namespace

void seriesarchive::putLists(ArchiveDictionary &data, const SeriesStore &store)
{
    ArchiveArray lists;
    ArchiveArray converters;
    ArchiveArray markers;
    for (int i = 0; i < SeriesStore::seriesCount; ++i) {
        lists.push_back(ArchiveValue{archivedPoints(store.points(i))});
        converters.push_back(archivedObject(store.converterOf(i)));
        markers.push_back(ArchiveValue{std::int64_t{store.markerDrawOf(i)}});
    }
    data.set(dataSeriesKey, ArchiveValue{std::move(lists)});
    data.set(converterSeriesKey, ArchiveValue{std::move(converters)});
    data.set(markerSeriesKey, ArchiveValue{std::move(markers)});
}

SeriesStore seriesarchive::storeFromData(const ArchiveDictionary &data)
{
    SeriesStore store;
    forEachSeriesEntry(data, dataSeriesKey, [&store](int i, const ArchiveValue &value) {
        store.setList(i, pointsIn(value));
    });
    forEachSeriesEntry(data, converterSeriesKey, [&store](int i, const ArchiveValue &value) {
        if (const auto converter = objectIn<ZKConvCoordinate>(value))
            store.setConverter(i, converter);
    });
    forEachSeriesEntry(data, markerSeriesKey, [&store](int i, const ArchiveValue &value) {
        store.setMarkerDraw(i, intIn(value));
    });
    return store;
}
