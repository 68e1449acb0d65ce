#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <stop_token>

/// Does one thing at a time in a thread of its own. The thread is left to itself when nobody wants
/// its result any more: it may hang in a slow file.
class BackgroundWork : public QObject
{
    Q_OBJECT

public:
    using Handler = std::function<void()>;
    /// What the thread does, with nothing but what it owns; it leaves off soon after `stop` is
    /// requested. The handler that it returns is called in this object's thread.
    using Work = std::function<Handler(const std::stop_token &stop)>;

    BackgroundWork() = default;
    ~BackgroundWork() override;

    /// Gives up the work in progress, if there is one, and begins another.
    void begin(Work work);
    /// Gives up the work in progress, if there is one; its handler is not called.
    void abandon();
    /// The same for work that has proved to hang: the end of the program does not wait for it.
    void forsake();

    [[nodiscard]] bool isWorking() const { return m_job != nullptr; }

private:
    struct Job;

    /// What was in progress, its handler not to be called any more; null if nothing was.
    std::shared_ptr<Job> takeJob();

    std::shared_ptr<Job> m_job; ///< null: nothing is done
};
