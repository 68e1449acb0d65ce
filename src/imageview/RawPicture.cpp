#include "imageview/RawPicture.h"

#include "imageview/PictureFile.h"
#include "imageview/PictureMemory.h"
#include "imageview/PictureReader.h"
#include "imageview/PictureSource.h"

#include <QDataStream>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>

namespace {

/// Before the pixels, which are a PPM or PGM file: this, and the size in points.
constexpr quint32 signature = 0x43475250;

QByteArray formatOf(const QImage &pixels)
{
    return pixels.format() == QImage::Format_Grayscale8 ? "pgm" : "ppm";
}

} // namespace

bool rawpicture::isRaw(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QDataStream stream(&file);
    quint32 begin = 0;
    stream >> begin;
    return begin == signature;
}

bool rawpicture::write(const Picture &picture, QIODevice &device)
{
    QDataStream stream(&device);
    stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    stream << signature << picture.size().width << picture.size().height;
    QImageWriter writer(&device, formatOf(picture.pixels()));
    return stream.status() == QDataStream::Ok && writer.write(picture.pixels());
}

std::variant<Picture, PictureProblem> rawpicture::read(const QString &path,
                                                       std::uint64_t memoryLimit,
                                                       const std::stop_token &stop,
                                                       std::atomic<int> *percentRead)
{
    PictureFile file(path, stop, percentRead);
    if (!file.open(QIODevice::ReadOnly))
        return PictureProblem::Damaged;
    QDataStream stream(&file);
    stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    quint32 begin = 0;
    FloatSize size;
    stream >> begin >> size.width >> size.height;
    if (stream.status() != QDataStream::Ok || begin != signature)
        return PictureProblem::Damaged;
    QImageReader::setAllocationLimit(0); // the size is compared with the memory here instead
    QImageReader reader(&file, "ppm");
    const auto claim = picturememory::claim(reader, memoryLimit);
    if (!claim)
        return reader.size().isValid() ? PictureProblem::TooLarge : PictureProblem::Damaged;
    QImage pixels = reader.read();
    if (stop.stop_requested())
        return PictureProblem::Cancelled;
    if (pixels.isNull())
        return PictureProblem::Damaged;
    if (auto picture = Picture::fromPixels(std::move(pixels), size))
        return *std::move(picture);
    return PictureProblem::Damaged;
}
