#include "document/RecoveryThread.h"

#include "imageview/ArchivedPicture.h"
#include "platform/Texts.h"

#include <QFileInfo>

#include <new>
#include <utility>

RecoveryThread::RecoveryThread(RecoveryWriter &asking)
    : m_asking(&asking)
    , m_thread([this] { run(); })
{}

RecoveryThread::~RecoveryThread() { finish(); }

void RecoveryThread::keep(RecoveryWriter::Kept kept)
{
    {
        const std::lock_guard lock(m_mutex);
        m_waiting = std::move(kept);
    }
    m_wake.notify_one();
}

void RecoveryThread::remove(const QString &key)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_waiting && m_waiting->key == key)
            m_waiting.reset();
        m_removed.append(key);
    }
    m_wake.notify_one();
}

void RecoveryThread::release()
{
    {
        const std::lock_guard lock(m_mutex);
        m_asking = nullptr;
        m_isReleased = true;
    }
    m_wake.notify_one();
}

void RecoveryThread::finish()
{
    release();
    if (m_thread.joinable())
        m_thread.join();
}

bool RecoveryThread::hasEnded()
{
    const std::lock_guard lock(m_mutex);
    return m_hasEnded;
}

void RecoveryThread::run()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        m_wake.wait(lock, [this] { return m_isReleased || m_waiting || !m_removed.isEmpty(); });
        const QStringList removed = std::exchange(m_removed, {});
        const std::optional<RecoveryWriter::Kept> kept = std::exchange(m_waiting, {});
        if (removed.isEmpty() && !kept)
            break;
        lock.unlock();
        for (const QString &key : removed)
            forget(key);
        const std::optional<QString> reason = kept ? written(*kept) : std::nullopt;
        lock.lock();
        if (m_asking != nullptr && !m_waiting && m_removed.isEmpty())
            QMetaObject::invokeMethod(
                m_asking, [asking = m_asking, reason] { Q_EMIT asking->wrote(reason); },
                Qt::QueuedConnection);
    }
    m_hasEnded = true;
}

void RecoveryThread::forget(const QString &key)
{
    RecoveryStore::remove(key);
    if (m_onDisk.key == key)
        m_onDisk = {};
}

// Too little memory for a copy must not end the program, whose work is not saved yet.
std::optional<QString> RecoveryThread::written(const RecoveryWriter::Kept &kept)
{
    try {
        return write(kept);
    } catch (const std::bad_alloc &) {
        return texts::localized("document.save.noMemory");
    }
}

std::optional<QString> RecoveryThread::write(const RecoveryWriter::Kept &kept)
{
    if (m_onDisk.key != kept.key)
        m_onDisk = {kept.key, std::nullopt, QString()};
    const QString earlierPicture = m_onDisk.pictureName;
    if (auto reason = writePicture(kept))
        return reason;
    if (auto reason = RecoveryStore::keep(kept.key, kept.document, m_onDisk.pictureName))
        return reason;
    if (!earlierPicture.isEmpty() && earlierPicture != m_onDisk.pictureName)
        RecoveryStore::removePicture(kept.key, earlierPicture);
    if (!kept.replaces.isEmpty())
        RecoveryStore::remove(kept.replaces);
    return std::nullopt;
}

// A new picture takes a new name: the document that is kept up to now goes on referring to its own.
std::optional<QString> RecoveryThread::writePicture(const RecoveryWriter::Kept &kept)
{
    const std::optional<qint64> pixels =
        kept.picture ? std::optional(kept.picture->pixels().cacheKey()) : std::nullopt;
    if (pixels == m_onDisk.pixels)
        return std::nullopt;
    QString name;
    if (kept.picture) {
        name = QStringLiteral("%1-%2.picture")
                   .arg(QFileInfo(kept.key).completeBaseName())
                   .arg(++m_lastPicture);
        if (auto reason = keepPicture(kept, name))
            return reason;
    }
    m_onDisk.pictureName = name;
    m_onDisk.pixels = pixels;
    return std::nullopt;
}

// Where the encoding is not there yet it is long, and a crash does not wait for it. The rest of
// the document does not wait for its first picture; but one that has a picture on the disk keeps it
// until the next one is there.
std::optional<QString> RecoveryThread::keepPicture(const RecoveryWriter::Kept &kept,
                                                   const QString &name)
{
    if (kept.encodedPicture != nullptr)
        return RecoveryStore::keepPicture(kept.key, *kept.encodedPicture, name);
    if (m_onDisk.pictureName.isEmpty()) {
        if (auto reason = RecoveryStore::keep(kept.key, kept.document, QString()))
            return reason;
    }
    return RecoveryStore::keepPicture(kept.key, *kept.picture, name);
}
