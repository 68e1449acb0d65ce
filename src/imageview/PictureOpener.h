#pragma once

#include "imageview/PictureReader.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <atomic>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <thread>

class ReadingProgress;

/// Opens pictures without holding up the window: small ones at once, large ones in a thread
/// of their own, with a progress panel after half a second.
class PictureOpener : public QObject
{
    Q_OBJECT

public:
    using Handler = std::function<void(const PictureReading &)>;

    /// The progress panel is shown over `progressHost`.
    explicit PictureOpener(QWidget &progressHost);
    ~PictureOpener() override;

    /// What came of a small picture; for a large one nothing yet, and `finished` is called later,
    /// unless another one is opened before. A reading in progress is given up.
    [[nodiscard]] std::optional<PictureReading> open(const PictureSource &source, Handler finished);

    /// Gives up the reading in progress; its handler is told so.
    void cancel();

private:
    struct Job
    {
        std::atomic<int> percentRead{0};
        Handler finished;
        std::jthread thread;
    };

    void begin(const PictureSource &source, Handler finished);
    void end(Job *job, const PictureReading &reading);
    void showProgress();

    std::list<std::unique_ptr<Job>> m_jobs; ///< with those given up that still wind up
    Job *m_current = nullptr;
    QString m_name; ///< of the picture that is being read
    ReadingProgress *m_progress;
    QTimer m_progressTimer;
};
