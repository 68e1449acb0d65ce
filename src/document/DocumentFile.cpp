#include "document/DocumentFile.h"

#include "document/DocumentKeys.h"
#include "imageview/ArchivedPicture.h"
#include "imageview/PictureMemory.h"
#include "imageview/PictureReader.h"
#include "platform/Texts.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

using documentarchive::Fault;
using documentarchive::Reading;

namespace {

/// Read in one go; between two of them the reading can be given up.
constexpr qint64 pieceSize = qint64{4} << 20;

/// The picture, which is most of a large document, is copied out of the file's bytes.
constexpr std::uint64_t bytesNeededPerByte = 2;

bool fits(qint64 size, std::uint64_t memoryLimit)
{
    return static_cast<std::uint64_t>(size) <= memoryLimit / bytesNeededPerByte;
}

QString tooLarge() { return texts::localized("document.open.tooLarge"); }

/// Reads up to the end; false if that does not fit. A pipe has no size beforehand.
bool readAll(QFile &file, QByteArray &bytes, std::uint64_t memoryLimit, const std::stop_token &stop)
{
    // With room for the look behind the end.
    bytes.reserve(static_cast<qsizetype>(std::max<qint64>(file.size(), 0) + pieceSize));
    while (!stop.stop_requested()) {
        const qsizetype filled = bytes.size();
        bytes.resize(filled + pieceSize);
        const qint64 length = file.read(bytes.data() + filled, pieceSize);
        bytes.resize(filled + static_cast<qsizetype>(std::max<qint64>(length, 0)));
        if (length <= 0)
            return true;
        if (!fits(bytes.size(), memoryLimit))
            return false;
    }
    bytes.clear();
    return true;
}

} // namespace

namespace documentfile {

Content contentOf(const QString &path, std::uint64_t memoryLimit, const std::stop_token &stop)
{
    Content content;
    content.stamp = durablefile::stampOf(path);
    QFile file(path);
    if (QFileInfo(path).isDir()) {
        content.error = texts::localized("document.open.noFile");
        return content;
    }
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        content.error = file.errorString();
        return content;
    }
    try {
        if (!fits(file.size(), memoryLimit) || !readAll(file, content.bytes, memoryLimit, stop))
            content.isTooLarge = true;
        else if (file.error() != QFileDevice::NoError)
            content.error = file.errorString();
    } catch (const std::bad_alloc &) {
        content.isTooLarge = true;
    }
    if (content.isTooLarge)
        content.error = tooLarge();
    if (!content.error.isEmpty())
        content.bytes.clear();
    return content;
}

void decodePicture(Reading &reading, std::uint64_t memoryLimit, const std::stop_token &stop,
                   std::atomic<int> *percentDecoded)
{
    const auto picture = documentarchive::pictureIn(reading.root);
    if (picture == nullptr)
        return;
    const std::optional<PictureProblem> problem =
        picture->decode(memoryLimit, stop, percentDecoded);
    if (!problem)
        return;
    documentarchive::dropPicture(reading.root);
    const Fault fault =
        problem == PictureProblem::TooLarge ? Fault::PictureTooLarge : Fault::DamagedPicture;
    reading.damages.push_back({fault, documentkeys::graphImageViewData, 0});
}

Document read(const QString &path, std::uint64_t memoryLimit, const std::stop_token &stop,
              std::atomic<int> *percentDecoded)
{
    Document document;
    Content content = contentOf(path, memoryLimit, stop);
    document.error = content.error;
    document.stamp = content.stamp;
    if (!content.error.isEmpty() || stop.stop_requested())
        return document;
    try {
        document.reading = documentarchive::unarchived(std::exchange(content.bytes, {}));
        // The bytes of the file have taken their part of the memory.
        decodePicture(document.reading, std::min(memoryLimit, picturememory::available()), stop,
                      percentDecoded);
    } catch (const std::bad_alloc &) {
        document = {{}, tooLarge(), {}};
    }
    return document;
}

} // namespace documentfile
