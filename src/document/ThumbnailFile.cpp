#include "document/ThumbnailFile.h"

#include "document/DocumentFile.h"
#include "document/DocumentKeys.h"
#include "document/DocumentTypes.h"
#include "imageview/ArchivedPicture.h"
#include "imageview/PictureMemory.h"
#include "platform/DurableFile.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QTransform>

#include <algorithm>

namespace {

/// A larger picture is not worth the memory that its decoding takes for a moment.
constexpr std::uint64_t mostMemory = std::uint64_t{600} << 20;

std::uint64_t memoryLimit() { return std::min(mostMemory, picturememory::available()); }

/// The same for the same state of the same file.
QString nameFor(const QString &path, const durablefile::Stamp &stamp)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QByteArray &part : {path.toUtf8(), QByteArray::number(stamp.size),
                                   QByteArray::number(stamp.modified.toMSecsSinceEpoch())})
        hash.addData(part + '\n');
    return QString::fromLatin1(hash.result().toHex()) + QStringLiteral(".png");
}

QImage reduced(const QImage &picture)
{
    return picture.isNull() ? QImage()
                            : picture.scaled(thumbnailfile::side, thumbnailfile::side,
                                             Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QImage ofPicture(const QString &path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    // Pages are painted by a thread of their own only.
    if (reader.format() == "pdf" || !picturememory::fits(reader, memoryLimit()))
        return {};
    // Formats that can, decode it small at once.
    if (reader.supportsOption(QImageIOHandler::ScaledSize)) {
        constexpr int enough = 4 * thumbnailfile::side;
        const QSize size = reader.size();
        if (size.width() > enough || size.height() > enough)
            reader.setScaledSize(size.scaled(enough, enough, Qt::KeepAspectRatio));
    }
    return reduced(reader.read());
}

QImage ofDocument(const QString &path, const std::stop_token &stop)
{
    const documentfile::Document document = documentfile::read(path, memoryLimit(), stop);
    const ArchiveDictionary *view =
        document.reading.root.dictionaryForKey(documentkeys::graphImageViewData);
    if (view == nullptr || stop.stop_requested())
        return {};
    const auto archived = documentarchive::pictureIn(document.reading.root);
    const auto picture = archived == nullptr ? std::nullopt : archived->picture();
    if (!picture)
        return {};
    // The copy that is made for reduced drawing is large enough, unless the picture is small.
    const QImage &smaller = picture->reducedPixels(1);
    const bool isEnough = std::max(smaller.width(), smaller.height()) >= thumbnailfile::side;
    const QTransform rotation =
        QTransform().rotate(-static_cast<double>(view->floatForKey("Rotation Angle")));
    return reduced(isEnough ? smaller : picture->pixels()).transformed(rotation);
}

/// A picture that cannot be remembered is made anew the next time.
void remember(const QImage &picture, const QDir &folder, const QString &name)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!folder.mkpath(QStringLiteral(".")) || !picture.save(&buffer, "png"))
        return;
    static_cast<void>(durablefile::write(folder.filePath(name), bytes));
    const QStringList oldestLast =
        folder.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Time);
    for (const QString &old : oldestLast.mid(thumbnailfile::mostInFolder))
        QFile::remove(folder.filePath(old));
}

} // namespace

namespace thumbnailfile {

QImage of(const QString &path, const QString &folder, const std::stop_token &stop)
{
    const std::optional<durablefile::Stamp> stamp = durablefile::stampOf(path);
    if (!stamp || !QFileInfo(path).isFile())
        return {};
    const QDir place(folder);
    const QString name = nameFor(path, *stamp);
    if (QImage known; known.load(place.filePath(name), "png"))
        return known;
    QImage made = documenttypes::isDocument(path) ? ofDocument(path, stop) : ofPicture(path);
    if (!made.isNull() && !stop.stop_requested())
        remember(made, place, name);
    // The list was cleared meanwhile: nothing of it is to stay.
    if (stop.stop_requested())
        QFile::remove(place.filePath(name));
    return made;
}

} // namespace thumbnailfile
