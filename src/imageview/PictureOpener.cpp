#include "imageview/PictureOpener.h"

#include "imageview/PictureMemory.h"
#include "imageview/ReadingProgress.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

/// Smaller pictures are decoded within a few frames.
constexpr qint64 largePicture = 4'000'000;

constexpr std::chrono::milliseconds timeBeforeProgress{500};
constexpr std::chrono::milliseconds timeBetweenUpdates{50};

bool isLarge(QSize size)
{
    return static_cast<qint64>(size.width()) * size.height() >= largePicture;
}

} // namespace

PictureOpener::PictureOpener(QWidget &progressHost)
    : m_progress(new ReadingProgress(progressHost))
{
    connect(m_progress, &ReadingProgress::cancelled, this, &PictureOpener::cancel);
    connect(&m_progressTimer, &QTimer::timeout, this, &PictureOpener::showProgress);
}

PictureOpener::~PictureOpener()
{
    for (const std::unique_ptr<Job> &job : m_jobs)
        job->thread.request_stop();
}

std::optional<PictureReading> PictureOpener::open(const PictureSource &source, Handler finished)
{
    cancel();
    const PictureReader reader(picturememory::available());
    PictureReading probed = reader.probe(source);
    if (probed.problem)
        return probed;
    if (!isLarge(probed.pixelSize))
        return reader.read(source);
    begin(source, std::move(finished));
    return {};
}

void PictureOpener::cancel()
{
    if (m_current == nullptr)
        return;
    Job *job = std::exchange(m_current, nullptr);
    job->thread.request_stop();
    m_progressTimer.stop();
    m_progress->hide();
    job->finished({{}, PictureProblem::Cancelled, {}});
}

void PictureOpener::begin(const PictureSource &source, Handler finished)
{
    m_name = source.name();
    m_current = m_jobs.emplace_back(std::make_unique<Job>()).get();
    m_current->finished = std::move(finished);
    m_current->thread = std::jthread([this, source, job = m_current](const std::stop_token &stop) {
        PictureReading reading =
            PictureReader(picturememory::available()).read(source, stop, &job->percentRead);
        QMetaObject::invokeMethod(
            this, [this, job, reading = std::move(reading)] { end(job, reading); },
            Qt::QueuedConnection);
    });
    m_progressTimer.start(timeBeforeProgress);
}

void PictureOpener::end(Job *job, const PictureReading &reading)
{
    const auto place = std::find_if(m_jobs.begin(), m_jobs.end(), [job](const auto &candidate) {
        return candidate.get() == job;
    });
    const std::unique_ptr<Job> ended = std::move(*place);
    m_jobs.erase(place);
    if (m_current != job)
        return; // it was given up, and its handler was told then
    m_current = nullptr;
    m_progressTimer.stop();
    m_progress->hide();
    ended->finished(reading);
}

void PictureOpener::showProgress()
{
    if (!m_progress->isVisible()) {
        m_progress->showFor(m_name);
        m_progressTimer.start(timeBetweenUpdates);
    }
    m_progress->setPercent(m_current->percentRead.load());
}
