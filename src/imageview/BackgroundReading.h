#pragma once

#include "platform/BackgroundWork.h"

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
    using Handler = BackgroundWork::Handler;
    /// What a reading thread does, with nothing but what it owns: it leaves off soon after `stop`
    /// is requested, and tells how far it has come. The handler that it returns takes what it has
    /// read.
    using Work = std::function<Handler(const std::stop_token &stop, std::atomic<int> &percentRead)>;

    /// The progress panel is shown over `progressHost`.
    explicit BackgroundReading(QWidget &progressHost);
    /// Gives up the reading in progress and begins another one, which the user knows by `name`. In
    /// the end either what the work returns is called, or `cancelled`.
    void begin(const QString &name, Work work, Handler cancelled);
    /// Gives up the reading in progress; its `cancelled` is called.
    void cancel();
    /// Gives up the reading in progress; nobody is told.
    void abandon();

    [[nodiscard]] bool isReading() const { return m_work.isWorking(); }

Q_SIGNALS:
    /// The progress panel is about to be shown.
    void tookLong();
    /// The reading has ended or was given up; its handler is called next.
    void ended();

private:
    void end();
    void showProgress();

    BackgroundWork m_work;
    Handler m_cancelled;
    QString m_name;
    std::shared_ptr<std::atomic<int>> m_percentRead;
    ReadingProgress *m_progress;
    QTimer m_progressTimer;
};
