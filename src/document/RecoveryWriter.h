#pragma once

#include "document/RecoveryStore.h"
#include "imageview/Picture.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

class ArchivedPicture;
class RecoveryThread;

/// Keeps one document in its recovery files, in a thread of its own: writing and flushing a large
/// picture takes seconds. What is asked for is done in that order, but of what waits to be kept
/// only the newest is. Only what changed is written: the picture once.
class RecoveryWriter : public QObject
{
    Q_OBJECT

public:
    struct Kept
    {
        QString key;
        RecoveryStore::Document document;
        std::optional<Picture> picture;
        std::shared_ptr<const ArchivedPicture> encodedPicture; ///< null: none, or not encoded yet
        QString replaces; ///< another key, which is removed once this is on the disk; or empty
    };

    explicit RecoveryWriter(RecoveryStore &store);
    /// What is being written is brought to its end before the store goes.
    ~RecoveryWriter() override;

    void keep(Kept kept);
    /// Forgets what is kept under `key`; what waits to be kept is dropped.
    void remove(const QString &key);

Q_SIGNALS:
    /// Everything that was asked for before is on the disk, or `reason` says why it is not.
    void wrote(const std::optional<QString> &reason);

private:
    [[nodiscard]] RecoveryThread &thread();

    RecoveryStore &m_store;
    std::shared_ptr<RecoveryThread> m_thread; ///< null: nothing was ever asked for
};
