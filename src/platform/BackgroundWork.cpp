#include "platform/BackgroundWork.h"

#include "platform/WindingUp.h"

#include <mutex>
#include <utility>

/// What the two threads share.
struct BackgroundWork::Job
{
    std::mutex mutex;
    BackgroundWork *asking = nullptr; ///< null when nobody waits for the result any more
    std::stop_source stop;
    windingup::Worker worker; ///< used by the asking thread only
};

BackgroundWork::~BackgroundWork() { abandon(); }

void BackgroundWork::begin(Work work)
{
    abandon();
    m_job = std::make_shared<Job>();
    m_job->asking = this;
    m_job->worker = windingup::begin([job = m_job, work = std::move(work)] {
        Handler handler = work(job->stop.get_token());
        const std::lock_guard lock(job->mutex);
        if (BackgroundWork *asking = job->asking)
            QMetaObject::invokeMethod(
                asking,
                [asking, job, handler = std::move(handler)] {
                    if (asking->m_job != job)
                        return;
                    asking->abandon(); // it is done, and the next may begin
                    handler();
                },
                Qt::QueuedConnection);
    });
}

void BackgroundWork::abandon()
{
    if (m_job == nullptr)
        return;
    const std::shared_ptr<Job> job = std::exchange(m_job, nullptr);
    {
        const std::lock_guard lock(job->mutex);
        job->asking = nullptr;
    }
    job->stop.request_stop();
    windingup::leave(std::move(job->worker));
}
