#pragma once

#include "document/DocumentArchive.h"
#include "document/SampleRoots.h"
#include "geometry/FloatGeometry.h"

#include <QByteArray>

#include <algorithm>
#include <optional>

/// A document that counts its saves: its first series holds the last counts as points, so that a
/// file tells whether it is the whole of one save and of which.
namespace counteddocument {

/// So many points, and the series begins anew.
inline constexpr int mostPoints = 60;

[[nodiscard]] inline FloatPoint point(int count)
{
    return {static_cast<float>(count), static_cast<float>(count) / 2};
}

/// The document that nobody has counted on yet.
[[nodiscard]] inline QByteArray unused()
{
    ArchiveDictionary root = sampleroots::root(sampleroots::Kind::Parallel, 0);
    ArchiveDictionary guide = *root.dictionaryForKey(documentkeys::cursorGuideData);
    guide.set("Initial X Value", {0.0});
    guide.set("Auto X Value Mode", sampleroots::integer(0));
    root.set(documentkeys::cursorGuideData, {guide});
    return documentarchive::archivedData(root);
}

/// The count of the save that wrote `file`; nothing if it is not the whole of a save.
[[nodiscard]] inline std::optional<int> countIn(const QByteArray &file)
{
    const documentarchive::Reading reading = documentarchive::unarchived(file);
    if (!reading.isWhole())
        return std::nullopt;
    const ArchiveDictionary *view = reading.root.dictionaryForKey(documentkeys::graphImageViewData);
    const ArchiveDictionary *guide = reading.root.dictionaryForKey(documentkeys::cursorGuideData);
    const ArchiveDictionary *series = reading.root.dictionaryForKey(documentkeys::dataSeriesData);
    if (view == nullptr || guide == nullptr || series == nullptr)
        return std::nullopt;
    const auto picture =
        std::dynamic_pointer_cast<const ArchivedPicture>(view->objectForKey("Original Image"));
    if (picture == nullptr || !picture->picture())
        return std::nullopt;
    const int count = static_cast<int>(guide->doubleForKey("Initial X Value"));
    const auto &points = std::get<ArchiveArray>(series->arrayForKey("Data Series")->at(0).value);
    const int held = count == 0 ? 0 : (count - 1) % mostPoints + 1;
    if (static_cast<int>(points.size()) != held)
        return std::nullopt;
    for (int i = 0; i < held; ++i) {
        const auto &object = std::get<std::shared_ptr<const Archivable>>(
            points.at(static_cast<std::size_t>(i)).value);
        const auto &stored = dynamic_cast<const ArchivedCopy<ZKVector> &>(*object);
        if (stored.value().vectorToNSPoint() != point(count - held + 1 + i))
            return std::nullopt;
    }
    return count;
}

} // namespace counteddocument
