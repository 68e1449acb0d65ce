#pragma once

#include "archiving/ArchiveTree.h"
#include "capture/SeriesStore.h"

/// The ten series as a document file holds them.
namespace seriesarchive {

/// Puts the points ("Data Series"), the converters ("Converter Series") and the draw modes
/// ("Marker Series") into `data`.
void putLists(ArchiveDictionary &data, const SeriesStore &store);

/// The series that `data` holds. Lists are cut to ten entries; what is missing, or is no point
/// or converter, is as in a new store.
[[nodiscard]] SeriesStore storeFromData(const ArchiveDictionary &data);

} // namespace seriesarchive
