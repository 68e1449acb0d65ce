#pragma once

#include "document/RecoveryWriter.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

#include <QStringList>

/// The thread of a RecoveryWriter; the store shares it, and waits for its end.
class RecoveryThread
{
public:
    explicit RecoveryThread(RecoveryWriter &asking);
    ~RecoveryThread();
    RecoveryThread(const RecoveryThread &) = delete;
    RecoveryThread &operator=(const RecoveryThread &) = delete;

    void keep(RecoveryWriter::Kept kept);
    void remove(const QString &key);
    /// Nobody wants to be told any more, and nothing more is asked for.
    void release();
    /// Waits until everything that was asked for is done.
    void finish();
    [[nodiscard]] bool hasEnded();

private:
    /// What is on the disk.
    struct OnDisk
    {
        QString key;
        std::optional<qint64> pixels; ///< what tells them from other pixels; nothing: no picture
        QString pictureName;
    };

    void run();
    [[nodiscard]] std::optional<QString> written(const RecoveryWriter::Kept &kept);
    [[nodiscard]] std::optional<QString> write(const RecoveryWriter::Kept &kept);
    [[nodiscard]] std::optional<QString> writePicture(const RecoveryWriter::Kept &kept);
    [[nodiscard]] std::optional<QString> keepPicture(const RecoveryWriter::Kept &kept,
                                                     const QString &name);
    void forget(const QString &key);

    std::mutex m_mutex; ///< of the members up to m_hasEnded
    std::condition_variable m_wake;
    RecoveryWriter *m_asking;
    std::optional<RecoveryWriter::Kept> m_waiting;
    QStringList m_removed;
    bool m_isReleased = false;
    bool m_hasEnded = false;
    OnDisk m_onDisk; ///< used by the thread only
    int m_lastPicture = 0;
    std::thread m_thread;
};
