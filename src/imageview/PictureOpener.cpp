#include "imageview/PictureOpener.h"

#include "imageview/PictureMemory.h"

#include <utility>

namespace {

/// Smaller pictures are decoded within a few frames.
constexpr qint64 largePicture = 4'000'000;

bool isLarge(QSize size)
{
    return static_cast<qint64>(size.width()) * size.height() >= largePicture;
}

} // namespace

PictureOpener::PictureOpener(QWidget &progressHost)
    : m_reading(progressHost)
{}

std::optional<PictureReading> PictureOpener::open(const PictureSource &source,
                                                  const Handler &finished)
{
    cancel();
    const std::shared_ptr<const PictureReadAhead> ahead = aheadOf(source);
    const PictureReader reader(picturememory::available());
    PictureReading probed = reader.probe(source);
    if (probed.problem)
        return probed;
    if (!isLarge(probed.pixelSize))
        return ahead ? ahead->result() : reader.read(source);
    begin(source, finished, ahead);
    return {};
}

void PictureOpener::expect(std::shared_ptr<PictureReadAhead> ahead) { m_ahead = std::move(ahead); }

std::shared_ptr<const PictureReadAhead> PictureOpener::aheadOf(const PictureSource &source)
{
    const std::shared_ptr<const PictureReadAhead> ahead = std::exchange(m_ahead, nullptr);
    return ahead && source.isFile() && ahead->path() == source.path() ? ahead : nullptr;
}

void PictureOpener::cancel() { m_reading.cancel(); }

void PictureOpener::begin(const PictureSource &source, const Handler &finished,
                          const std::shared_ptr<const PictureReadAhead> &ahead)
{
    m_reading.begin(
        source.name(),
        [source, finished, ahead](const std::stop_token &stop, std::atomic<int> &percentRead) {
            PictureReading reading =
                ahead ? ahead->result(stop, &percentRead)
                      : PictureReader(picturememory::available()).read(source, stop, &percentRead);
            return [finished, reading = std::move(reading)] { finished(reading); };
        },
        [finished] {
            finished({{}, PictureProblem::Cancelled, {}});
        });
}
