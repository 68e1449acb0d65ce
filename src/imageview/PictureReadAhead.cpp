#include "imageview/PictureReadAhead.h"

#include "imageview/PictureMemory.h"
#include "platform/WindingUp.h"

#include <QFileInfo>

#include <chrono>
#include <future>

/// What the thread that reads and those that wait share.
struct PictureReadAhead::Job
{
    std::stop_source stop;
    std::atomic<int> percentRead = 0;
    std::promise<PictureReading> reading;
    std::shared_future<PictureReading> read = reading.get_future().share();
};

std::shared_ptr<PictureReadAhead> PictureReadAhead::begin(const QString &path)
{
    if (QFileInfo(path).suffix().toLower() == QStringLiteral("pdf"))
        return nullptr;
    return std::shared_ptr<PictureReadAhead>(new PictureReadAhead(path));
}

PictureReadAhead::PictureReadAhead(const QString &path)
    : m_path(path)
    , m_job(std::make_shared<Job>())
{
    windingup::leave(windingup::begin([path, job = m_job] {
        const PictureReader reader(picturememory::available());
        job->reading.set_value(reader.read(path, job->stop.get_token(), &job->percentRead));
    }));
}

PictureReadAhead::~PictureReadAhead() { m_job->stop.request_stop(); }

PictureReading PictureReadAhead::result(const std::stop_token &stop,
                                        std::atomic<int> *percentRead) const
{
    constexpr std::chrono::milliseconds progressStep(20);
    const std::stop_callback giveUp(stop, [job = m_job] { job->stop.request_stop(); });
    while (m_job->read.wait_for(progressStep) != std::future_status::ready) {
        if (percentRead != nullptr)
            percentRead->store(m_job->percentRead.load());
    }
    return m_job->read.get();
}
