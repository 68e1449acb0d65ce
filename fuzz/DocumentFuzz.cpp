#include "document/DocumentArchive.h"
#include "document/DocumentContents.h"
#include "document/DocumentKeys.h"
#include "imageview/ArchivedPicture.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

// Reads bytes as a document file, as the window and the command line do. What could be read must be
// readable again once it is written.

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void decodePicture(const ArchiveDictionary &root)
{
    const ArchiveDictionary *view = root.dictionaryForKey(documentkeys::graphImageViewData);
    if (view == nullptr)
        return;
    const auto picture =
        std::dynamic_pointer_cast<const ArchivedPicture>(view->objectForKey("Original Image"));
    if (picture == nullptr)
        return;
    const auto decoded = picture->picture();
    require(!decoded || !decoded->pixels().isNull());
}

void writeAndRead(const ArchiveDictionary &root)
{
    const QByteArray bytes = documentarchive::archivedData(root);
    const documentarchive::Reading again = documentarchive::unarchived(bytes);
    require(again.isWhole());
    require(documentarchive::archivedData(again.root) == bytes);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const documentarchive::Reading reading = documentarchive::unarchived(QByteArray::fromRawData(
        reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    require(reading.isWhole() == documentarchive::description(reading.damages).isEmpty());
    static_cast<void>(DocumentContents::fromRoot(reading.root));
    static_cast<void>(documentarchive::offersSomething(reading.root));
    decodePicture(reading.root);
    if (reading.isWhole())
        writeAndRead(reading.root);
    return 0;
}
