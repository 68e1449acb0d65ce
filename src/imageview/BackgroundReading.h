#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <atomic>
#include <functional>
#include <memory>
#include <stop_token>

class QWidget;
class ReadingProgress;

/// Reads one thing at a time in a thread of its own, with a progress panel after half a second.
class BackgroundReading : public QObject
{
    Q_OBJECT

public:
    /// Called in this object's thread.
    using Handler = std::function<void()>;
    /// What a reading thread does, with nothing but what it owns: it leaves off soon after `stop`
    /// is requested, and tells how far it has come. The handler that it returns takes what it has
    /// read.
    using Work = std::function<Handler(const std::stop_token &stop, std::atomic<int> &percentRead)>;

    /// The progress panel is shown over `progressHost`.
    explicit BackgroundReading(QWidget &progressHost);
    /// Gives up the reading in progress; nobody is told.
    ~BackgroundReading() override;

    /// Gives up the reading in progress and begins another one, which the user knows by `name`. In
    /// the end either what the work returns is called, or `cancelled`.
    void begin(const QString &name, Work work, Handler cancelled);
    /// Gives up the reading in progress; its `cancelled` is called.
    void cancel();
    /// Gives up the reading in progress; nobody is told.
    void abandon();

    [[nodiscard]] bool isReading() const { return m_job != nullptr; }

Q_SIGNALS:
    /// The progress panel is about to be shown.
    void tookLong();
    /// The reading has ended or was given up; its handler is called next.
    void ended();

private:
    struct Job;

    [[nodiscard]] std::shared_ptr<Job> release();
    void end(const Handler &handler);
    void showProgress();

    std::shared_ptr<Job> m_job; ///< null: nothing is read
    QString m_name;
    ReadingProgress *m_progress;
    QTimer m_progressTimer;
};
