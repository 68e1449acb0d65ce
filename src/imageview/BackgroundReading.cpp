#include "imageview/BackgroundReading.h"

#include "imageview/ReadingProgress.h"

#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds timeBeforeProgress{500};
constexpr std::chrono::milliseconds timeBetweenUpdates{50};

} // namespace

BackgroundReading::BackgroundReading(QWidget &progressHost)
    : m_progress(new ReadingProgress(progressHost))
{
    connect(m_progress, &ReadingProgress::cancelled, this, &BackgroundReading::cancel);
    connect(&m_progressTimer, &QTimer::timeout, this, &BackgroundReading::showProgress);
}

void BackgroundReading::begin(const QString &name, Work work, Handler cancelled)
{
    cancel();
    m_name = name;
    m_cancelled = std::move(cancelled);
    m_percentRead = std::make_shared<std::atomic<int>>(0);
    m_progressTimer.start(timeBeforeProgress);
    m_work.begin([this, work = std::move(work),
                  percent = m_percentRead](const std::stop_token &stop) -> Handler {
        Handler handler = work(stop, *percent);
        return [this, handler = std::move(handler)] {
            end();
            handler();
        };
    });
}

void BackgroundReading::end()
{
    m_progressTimer.stop();
    m_progress->hide();
    Q_EMIT ended();
}

void BackgroundReading::abandon()
{
    if (!isReading())
        return;
    m_work.abandon();
    end();
}

void BackgroundReading::cancel()
{
    if (!isReading())
        return;
    const Handler cancelled = std::exchange(m_cancelled, {});
    abandon();
    cancelled();
}

void BackgroundReading::showProgress()
{
    if (!m_progress->isVisible()) {
        Q_EMIT tookLong();
        m_progress->showFor(m_name);
        m_progressTimer.start(timeBetweenUpdates);
    }
    m_progress->setPercent(m_percentRead->load());
}
