#include "imageview/BackgroundReading.h"

#include "imageview/ReadingProgress.h"
#include "platform/WindingUp.h"

#include <chrono>
#include <mutex>
#include <utility>

namespace {

constexpr std::chrono::milliseconds timeBeforeProgress{500};
constexpr std::chrono::milliseconds timeBetweenUpdates{50};

} // namespace

/// What the two threads share.
struct BackgroundReading::Job
{
    std::mutex mutex;
    BackgroundReading *asking = nullptr; ///< null when nobody waits for the answer any more
    std::stop_source stop;
    std::atomic<int> percentRead{0};
    Handler cancelled;        ///< used by the asking thread only
    windingup::Worker worker; ///< used by the asking thread only
};

BackgroundReading::BackgroundReading(QWidget &progressHost)
    : m_progress(new ReadingProgress(progressHost))
{
    connect(m_progress, &ReadingProgress::cancelled, this, &BackgroundReading::cancel);
    connect(&m_progressTimer, &QTimer::timeout, this, &BackgroundReading::showProgress);
}

BackgroundReading::~BackgroundReading()
{
    if (m_job != nullptr)
        static_cast<void>(release());
}

void BackgroundReading::begin(const QString &name, Work work, Handler cancelled)
{
    cancel();
    m_name = name;
    m_job = std::make_shared<Job>();
    m_job->asking = this;
    m_job->cancelled = std::move(cancelled);
    m_progressTimer.start(timeBeforeProgress);
    m_job->worker = windingup::begin([job = m_job, work = std::move(work)] {
        Handler handler = work(job->stop.get_token(), job->percentRead);
        const std::lock_guard lock(job->mutex);
        if (BackgroundReading *asking = job->asking)
            QMetaObject::invokeMethod(
                asking,
                [asking, job, handler = std::move(handler)] {
                    if (asking->m_job == job)
                        asking->end(handler);
                },
                Qt::QueuedConnection);
    });
}

// The thread is left to itself: it may hang in a slow file.
std::shared_ptr<BackgroundReading::Job> BackgroundReading::release()
{
    std::shared_ptr<Job> job = std::exchange(m_job, nullptr);
    {
        const std::lock_guard lock(job->mutex);
        job->asking = nullptr;
    }
    job->stop.request_stop();
    windingup::leave(std::move(job->worker));
    m_progressTimer.stop();
    return job;
}

void BackgroundReading::end(const Handler &handler)
{
    static_cast<void>(release());
    m_progress->hide();
    Q_EMIT ended();
    handler();
}

void BackgroundReading::cancel()
{
    if (m_job == nullptr)
        return;
    const std::shared_ptr<Job> job = release();
    m_progress->hide();
    Q_EMIT ended();
    job->cancelled();
}

void BackgroundReading::abandon()
{
    if (m_job == nullptr)
        return;
    static_cast<void>(release());
    m_progress->hide();
    Q_EMIT ended();
}

void BackgroundReading::showProgress()
{
    if (!m_progress->isVisible()) {
        Q_EMIT tookLong();
        m_progress->showFor(m_name);
        m_progressTimer.start(timeBetweenUpdates);
    }
    m_progress->setPercent(m_job->percentRead.load());
}
