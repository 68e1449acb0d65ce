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

    [[nodiscard]] bool isWorking() const { return m_job != nullptr; }

private:
    struct Job;

    std::shared_ptr<Job> m_job; ///< null: nothing is done
};
