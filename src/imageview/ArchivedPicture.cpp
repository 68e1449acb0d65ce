#include "imageview/ArchivedPicture.h"

#include "imageview/PictureFile.h"
#include "imageview/PictureMemory.h"
#include "imageview/PictureReader.h"
#include "imageview/PictureSource.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QtEndian>

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <utility>

namespace {

/// The text of the PNG file that tells the size in points: width, blank, height.
const QString sizeKey = QStringLiteral("Curvegrab-Size");

/// Quick rather than small: charts compress well at any level.
constexpr int compression = 30;

QString sizeText(FloatSize size)
{
    std::array<char, 64> text{};
    char *end = std::to_chars(text.data(), text.data() + 31, size.width).ptr;
    *end++ = ' ';
    end = std::to_chars(end, text.data() + text.size(), size.height).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}

std::optional<FloatSize> sizeFromText(const QString &text)
{
    const QByteArray bytes = text.toLatin1();
    const char *end = bytes.constData() + bytes.size();
    FloatSize size;
    const auto [afterWidth, widthError] = std::from_chars(bytes.constData(), end, size.width);
    if (widthError != std::errc() || afterWidth == end)
        return {};
    const auto [afterHeight, heightError] = std::from_chars(afterWidth + 1, end, size.height);
    if (heightError != std::errc())
        return {};
    return size;
}

/// The size in points of so many pixels: what `told` says if it agrees, else one point per pixel.
FloatSize sizeOf(QSize pixels, const QString &told)
{
    const FloatSize pixelSize{static_cast<float>(pixels.width()),
                              static_cast<float>(pixels.height())};
    const std::optional<FloatSize> size = sizeFromText(told);
    const bool agrees = size && std::ceil(size->width) == pixelSize.width &&
                        std::ceil(size->height) == pixelSize.height;
    return agrees ? *size : pixelSize;
}

/// Whether the PNG file's chunks are as long as they say, up to the last one. The decoder makes
/// room for a chunk before it looks whether it is there.
bool chunksAreThere(const std::vector<std::byte> &bytes)
{
    constexpr std::size_t signature = 8;
    constexpr std::size_t aroundContent = 12; // length and type before it, checksum after it
    std::size_t position = signature;
    while (position + aroundContent <= bytes.size()) {
        const auto *head = reinterpret_cast<const char *>(bytes.data()) + position;
        const std::size_t length = qFromBigEndian<quint32>(head);
        if (length > bytes.size() - position - aroundContent)
            return false;
        if (std::string_view(head + 4, 4) == "IEND")
            return true;
        position += aroundContent + length;
    }
    return false;
}

/// Cutting the encoder off makes it forget to free a few bytes per row of pixels. That is worth it
/// where going on would take seconds.
constexpr qint64 pixelsWorthCuttingOff = 16'000'000;

/// Takes what an encoder writes until it is to leave off.
class StoppableBuffer final : public QBuffer
{
public:
    StoppableBuffer(QByteArray &bytes, std::stop_token stop)
        : QBuffer(&bytes)
        , m_stop(std::move(stop))
    {}

protected:
    qint64 writeData(const char *data, qint64 length) override
    {
        return m_stop.stop_requested() ? -1 : QBuffer::writeData(data, length);
    }

private:
    std::stop_token m_stop;
};

/// The bytes without a copy; `bytes` outlives them.
QByteArray rawBytes(const std::vector<std::byte> &bytes)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(bytes.data()),
                                   static_cast<qsizetype>(bytes.size()));
}

} // namespace

std::shared_ptr<const ArchivedPicture> ArchivedPicture::archived(const Picture &picture,
                                                                 const std::stop_token &stop)
{
    QByteArray bytes;
    const QSize size = picture.pixels().size();
    const bool isLong = qint64{size.width()} * size.height() >= pixelsWorthCuttingOff;
    StoppableBuffer buffer(bytes, isLong ? stop : std::stop_token());
    QImageWriter writer(&buffer, "png");
    writer.setCompression(compression);
    writer.setText(sizeKey, sizeText(picture.size()));
    if (!writer.write(picture.pixels()))
        return nullptr;
    const auto *begin = reinterpret_cast<const std::byte *>(bytes.constData());
    return std::make_shared<const ArchivedPicture>(
        std::make_shared<const std::vector<std::byte>>(begin, begin + bytes.size()));
}

std::shared_ptr<const ArchivedPicture> ArchivedPicture::initWithCoder(SequentialDecoder &coder)
{
    ArchivedBytes bytes = coder.decodeBytes();
    if (coder.failed() || bytes == nullptr)
        return nullptr;
    return std::make_shared<const ArchivedPicture>(std::move(bytes));
}

ArchivedPicture::ArchivedPicture(ArchivedBytes bytes)
    : m_bytes(std::move(bytes))
{}

ArchivedPicture::ArchivedPicture(Picture picture)
    : m_picture(std::move(picture))
{}

void ArchivedPicture::encodeWithCoder(SequentialEncoder &coder) const
{
    coder.encodeBytes(m_bytes);
}

std::optional<FloatSize> ArchivedPicture::size() const
{
    if (m_picture)
        return m_picture->size();
    if (!chunksAreThere(*m_bytes))
        return {};
    QByteArray bytes = rawBytes(*m_bytes);
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "png");
    const QSize pixels = reader.size();
    if (pixels.isEmpty())
        return {};
    return sizeOf(pixels, reader.text(sizeKey));
}

std::optional<PictureProblem> ArchivedPicture::decode(std::uint64_t memoryLimit,
                                                      const std::stop_token &stop,
                                                      std::atomic<int> *percentDecoded) const
{
    if (m_picture)
        return {};
    if (!chunksAreThere(*m_bytes))
        return PictureProblem::Damaged;
    PictureFile file(PictureSource::handedOver(rawBytes(*m_bytes), QStringLiteral("image/png")),
                     stop, percentDecoded);
    if (!file.open(QIODevice::ReadOnly))
        return PictureProblem::Damaged;
    QImageReader::setAllocationLimit(0); // the size is compared with the memory here instead
    QImageReader reader(&file, "png");
    const auto claim = picturememory::claim(reader, memoryLimit);
    if (!claim && !reader.size().isEmpty())
        return PictureProblem::TooLarge;
    QImage pixels = reader.read();
    if (stop.stop_requested())
        return PictureProblem::Cancelled;
    if (pixels.isNull())
        return PictureProblem::Damaged;
    const FloatSize size = sizeOf(pixels.size(), pixels.text(sizeKey));
    m_picture = Picture::fromPixels(std::move(pixels), size);
    return m_picture ? std::nullopt : std::optional(PictureProblem::TooLarge);
}

std::optional<Picture> ArchivedPicture::picture() const
{
    if (decode(picturememory::available()))
        return {};
    return m_picture;
}
