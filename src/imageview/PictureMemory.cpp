#include "imageview/PictureMemory.h"

#include <QFile>
#include <QImageReader>
#include <QPixelFormat>

#include <algorithm>
#include <atomic>
#include <utility>

namespace {

/// Assumed where the system does not tell.
constexpr std::uint64_t usualMemory = std::uint64_t{2} << 30U;

/// No picture has more pixels, whatever the memory; views and painters count in 32 bits.
constexpr std::uint64_t mostPixels = std::uint64_t{1} << 30U;
constexpr int longestSide = 1 << 20;

/// The renderer counts the bytes of a page in 31 bits.
constexpr std::uint64_t mostPixelsOfPage = (std::uint64_t{1} << 29U) - 1;

/// The number of pixels of a picture of this size; zero where no picture can have it.
std::uint64_t pixelsOf(QSize size)
{
    if (size.isEmpty() || size.width() > longestSide || size.height() > longestSide)
        return 0;
    const std::uint64_t pixels =
        static_cast<std::uint64_t>(size.width()) * static_cast<std::uint64_t>(size.height());
    return pixels <= mostPixels ? pixels : 0;
}

/// The bytes needed at the worst moment: the decoded pixels, their form for the screen, a second
/// copy while they are turned upright, and the reduced copies.
std::uint64_t neededBytes(const QImageReader &reader, std::uint64_t pixels)
{
    const QImage::Format format = reader.imageFormat();
    const std::uint64_t decoded =
        format == QImage::Format_Invalid
            ? 4
            : (std::uint64_t{QImage::toPixelFormat(format).bitsPerPixel()} + 7) / 8;
    const bool turned = reader.transformation() != QImageIOHandler::TransformationNone;
    const std::uint64_t second = turned || decoded != 4 ? std::max<std::uint64_t>(decoded, 4) : 0;
    return pixels * (decoded + second) + pixels / 3;
}

/// The sum of all claims; what they stand for may be taken already, or not yet.
std::atomic<std::uint64_t> claimed = 0;

} // namespace

std::uint64_t picturememory::available()
{
    QFile file(QStringLiteral("/proc/meminfo"));
    if (!file.open(QIODevice::ReadOnly))
        return usualMemory;
    const QByteArray wanted = "MemAvailable:";
    for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
        if (line.startsWith(wanted)) {
            const QByteArray kibibytes = line.mid(wanted.size()).trimmed().split(' ').constFirst();
            return kibibytes.toULongLong() * 1024 / 10 * 9;
        }
    }
    return usualMemory;
}

bool picturememory::fits(const QImageReader &reader, std::uint64_t bytes)
{
    const std::uint64_t pixels = pixelsOf(reader.size());
    return pixels > 0 && neededBytes(reader, pixels) <= bytes;
}

picturememory::Claim::Claim(Claim &&other) noexcept
    : m_bytes(std::exchange(other.m_bytes, 0))
{}

picturememory::Claim::~Claim() { claimed -= m_bytes; }

std::optional<picturememory::Claim> picturememory::claim(const QImageReader &reader,
                                                         std::uint64_t bytes)
{
    const std::uint64_t pixels = pixelsOf(reader.size());
    if (pixels == 0)
        return std::nullopt;
    const std::uint64_t needed = neededBytes(reader, pixels);
    std::uint64_t byOthers = claimed;
    do {
        if (needed > bytes || byOthers > bytes - needed)
            return std::nullopt;
    } while (!claimed.compare_exchange_weak(byOthers, byOthers + needed));
    return Claim(needed);
}

bool picturememory::fits(const QImage &pixels, std::uint64_t bytes)
{
    const std::uint64_t count = pixelsOf(pixels.size());
    return count > 0 && count * 4 + count / 3 <= bytes;
}

bool picturememory::fitsPage(QSize size, std::uint64_t bytes)
{
    const std::uint64_t pixels = pixelsOf(size);
    // The page as painted, its place on white or the renderer's layers, and the reduced copies.
    return pixels > 0 && pixels <= mostPixelsOfPage && pixels * 8 + pixels / 3 <= bytes;
}
