#pragma once

#include "archiving/ArchiveTree.h"
#include "document/DocumentArchive.h"
#include "platform/DurableFile.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

class ArchivedPicture;
class Picture;
class QLockFile;
class RecoveryThread;

/// The work that is not saved yet, kept on the disk while the program runs; and what a program left
/// behind that ended without warning. Every running program has a folder of its own, locked as long
/// as it lives.
class RecoveryStore
{
public:
    /// A document as it is kept. The picture is a file of its own, so that it is written only once.
    struct Document
    {
        ArchiveDictionary root;
        QString path;                                ///< of its file; empty if it was never saved
        QString name;                                ///< what the user calls it
        std::optional<durablefile::Stamp> fileStamp; ///< how it knew its file
        /// What could not be read of it.
        std::vector<documentarchive::Damage> damages = {};
    };

    /// Keeps everything in `folder`, which need not exist yet.
    explicit RecoveryStore(const QString &folder);
    ~RecoveryStore();

    /// What programs left that ended without warning. Nobody else is offered it meanwhile.
    [[nodiscard]] QStringList remains();
    /// What is kept under `key`, as far as it can be read; nothing if it is no document. A picture
    /// that is not encoded is left out after `stop` was requested, and `percentRead`, which may be
    /// null, follows its progress. May run in any thread.
    [[nodiscard]] static std::optional<Document> read(const QString &key,
                                                      const std::stop_token &stop = {},
                                                      std::atomic<int> *percentRead = nullptr);
    /// The same without the picture, which takes longest.
    [[nodiscard]] static std::optional<Document> readWithoutPicture(const QString &key);

    /// The key of a document that is to be kept; empty if the disk takes none.
    [[nodiscard]] QString newKey();
    /// Keeps `document` without its picture, which is the one that keepPicture() kept as
    /// `pictureName`. The reason if the disk refuses.
    [[nodiscard]] static std::optional<QString> keep(const QString &key, const Document &document,
                                                     const QString &pictureName);
    [[nodiscard]] static std::optional<QString>
    keepPicture(const QString &key, const ArchivedPicture &picture, const QString &pictureName);
    /// The same with a picture whose encoding would take too long; read() gives one that is not
    /// encoded yet.
    [[nodiscard]] static std::optional<QString>
    keepPicture(const QString &key, const Picture &picture, const QString &pictureName);
    static void removePicture(const QString &key, const QString &pictureName);
    /// The store does not go before the thread has done what it was asked for.
    void waitAtTheEndFor(std::shared_ptr<RecoveryThread> thread);
    /// Forgets the document and its pictures.
    static void remove(const QString &key);

private:
    [[nodiscard]] static std::unique_ptr<QLockFile> claim(const QString &sessionFolder);

    QString m_folder;
    QString m_sessionFolder;
    std::unique_ptr<QLockFile> m_session;
    std::vector<std::unique_ptr<QLockFile>> m_deadSessions;
    QStringList m_remains;
    std::vector<std::shared_ptr<RecoveryThread>> m_threads;
    int m_lastKey = 0;
};
