#include "document/RecoveryStore.h"

#include "document/DocumentArchive.h"
#include "document/DocumentFile.h"
#include "document/DocumentKeys.h"
#include "document/RecoveryThread.h"
#include "imageview/ArchivedPicture.h"
#include "imageview/PictureMemory.h"
#include "imageview/PictureReader.h"
#include "imageview/RawPicture.h"
#include "platform/Texts.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QUuid>

#include <algorithm>
#include <cstddef>
#include <utility>
#include <variant>

namespace {

constexpr char suffix[] = "unsaved";
constexpr char pictureKey[] = "Recovery Picture";
constexpr char pathKey[] = "Recovery Path";
constexpr char nameKey[] = "Recovery Name";
constexpr char fileSizeKey[] = "Recovery File Size";
constexpr char fileTimeKey[] = "Recovery File Time";

QString lockOf(const QString &sessionFolder)
{
    return QDir(sessionFolder).filePath(QStringLiteral("lock"));
}

QString picturePath(const QString &key, const QString &pictureName)
{
    return QFileInfo(key).dir().filePath(pictureName);
}

/// The number under `key`, whose times do not fit the narrow integers of documents.
std::optional<qint64> number(const ArchiveDictionary &root, const char *key)
{
    const ArchiveValue *found = root.find(key);
    const auto *value = found != nullptr ? std::get_if<std::int64_t>(&found->value) : nullptr;
    return value != nullptr ? std::optional<qint64>(*value) : std::nullopt;
}

std::optional<durablefile::Stamp> stampIn(const ArchiveDictionary &root)
{
    const std::optional<qint64> size = number(root, fileSizeKey);
    const std::optional<qint64> time = number(root, fileTimeKey);
    if (!size || !time)
        return std::nullopt;
    return durablefile::Stamp{*size, QDateTime::fromMSecsSinceEpoch(*time)};
}

std::shared_ptr<const Archivable> encodedPicture(const QByteArray &content)
{
    const auto *first = reinterpret_cast<const std::byte *>(content.constData());
    return std::make_shared<ArchivedPicture>(
        std::make_shared<const std::vector<std::byte>>(first, first + content.size()));
}

/// The picture that was kept in the file at `path`, or why there is none to be had.
std::variant<std::shared_ptr<const Archivable>, PictureProblem>
pictureFrom(const QString &path, const std::stop_token &stop, std::atomic<int> *percentRead)
{
    if (rawpicture::isRaw(path)) {
        auto read = rawpicture::read(path, picturememory::available(), stop, percentRead);
        if (auto *picture = std::get_if<Picture>(&read))
            return std::make_shared<ArchivedPicture>(std::move(*picture));
        return std::get<PictureProblem>(read);
    }
    const documentfile::Content content = documentfile::contentOf(path, picturememory::available());
    if (content.bytes.isEmpty())
        return content.isTooLarge ? PictureProblem::TooLarge : PictureProblem::Damaged;
    return encodedPicture(content.bytes);
}

void putPicture(RecoveryStore::Document &document,
                const std::variant<std::shared_ptr<const Archivable>, PictureProblem> &picture)
{
    if (const auto *problem = std::get_if<PictureProblem>(&picture)) {
        const auto fault = *problem == PictureProblem::TooLarge
                               ? documentarchive::Fault::PictureTooLarge
                               : documentarchive::Fault::DamagedPicture;
        document.damages.push_back({fault, documentkeys::graphImageViewData, 0});
        return;
    }
    ArchiveDictionary view;
    if (const auto *stored = document.root.dictionaryForKey(documentkeys::graphImageViewData))
        view = *stored;
    view.set(documentkeys::originalImage, {std::get<0>(picture)});
    document.root.set(documentkeys::graphImageViewData, {view});
}

/// Removes the folder that `lock` holds.
void removeSession(QLockFile &lock)
{
    QDir folder = QFileInfo(lock.fileName()).dir();
    const QString lockName = QFileInfo(lock.fileName()).fileName();
    const QStringList files = folder.entryList(QDir::Files | QDir::Hidden);
    for (const QString &file : files) {
        if (file != lockName)
            folder.remove(file);
    }
    lock.unlock();
    QDir().rmdir(folder.absolutePath());
}

} // namespace

RecoveryStore::RecoveryStore(const QString &folder)
    : m_folder(folder)
{}

// A program that ends in order has saved or dropped everything.
RecoveryStore::~RecoveryStore()
{
    for (const std::shared_ptr<RecoveryThread> &thread : m_threads)
        thread->finish();
    if (m_session != nullptr)
        removeSession(*m_session);
    const auto isKept = [](const QString &key) { return QFileInfo::exists(key); };
    for (const std::unique_ptr<QLockFile> &dead : m_deadSessions) {
        const QString folder = QFileInfo(dead->fileName()).absolutePath();
        const bool holdsSomething =
            std::any_of(m_remains.cbegin(), m_remains.cend(), [&](const QString &key) {
                return QFileInfo(key).absolutePath() == folder && isKept(key);
            });
        if (!holdsSomething)
            removeSession(*dead);
    }
}

std::unique_ptr<QLockFile> RecoveryStore::claim(const QString &sessionFolder)
{
    auto lock = std::make_unique<QLockFile>(lockOf(sessionFolder));
    lock->setStaleLockTime(0); // only the owner's end frees it
    if (!lock->tryLock(0))
        return nullptr;
    return lock;
}

QStringList RecoveryStore::remains()
{
    const QFileInfoList sessions = QDir(m_folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot,
                                                                QDir::Time | QDir::Reversed);
    for (const QFileInfo &session : sessions) {
        std::unique_ptr<QLockFile> lock = claim(session.absoluteFilePath());
        if (lock == nullptr)
            continue;
        const QFileInfoList kept =
            QDir(session.absoluteFilePath())
                .entryInfoList({QStringLiteral("*.") + QLatin1String(suffix)}, QDir::Files,
                               QDir::Name);
        for (const QFileInfo &document : kept)
            m_remains.append(document.absoluteFilePath());
        m_deadSessions.push_back(std::move(lock));
    }
    return m_remains;
}

std::optional<RecoveryStore::Document> RecoveryStore::readWithoutPicture(const QString &key)
{
    QFile file(key);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    documentarchive::Reading reading = documentarchive::unarchived(file.readAll());
    if (reading.root.entries().empty())
        return std::nullopt;
    Document document;
    document.path = QString::fromStdString(reading.root.stringForKey(pathKey));
    document.name = QString::fromStdString(reading.root.stringForKey(nameKey));
    document.fileStamp = stampIn(reading.root);
    document.root = std::move(reading.root);
    document.damages = std::move(reading.damages);
    return document;
}

std::optional<RecoveryStore::Document>
RecoveryStore::read(const QString &key, const std::stop_token &stop, std::atomic<int> *percentRead)
{
    std::optional<Document> document = readWithoutPicture(key);
    if (!document)
        return std::nullopt;
    const QString pictureName = QString::fromStdString(document->root.stringForKey(pictureKey));
    if (!pictureName.isEmpty())
        putPicture(*document, pictureFrom(picturePath(key, pictureName), stop, percentRead));
    return document;
}

QString RecoveryStore::newKey()
{
    if (m_session == nullptr) {
        const QString folder =
            QDir(m_folder).absoluteFilePath(QUuid::createUuid().toString(QUuid::WithoutBraces));
        if (!QDir().mkpath(folder))
            return {};
        m_session = claim(folder);
        if (m_session == nullptr)
            return {};
        m_sessionFolder = folder;
    }
    const QString name = QString::number(++m_lastKey) + QLatin1Char('.') + QLatin1String(suffix);
    return QDir(m_sessionFolder).filePath(name);
}

std::optional<QString> RecoveryStore::keep(const QString &key, const Document &document,
                                           const QString &pictureName)
{
    ArchiveDictionary root = document.root;
    documentarchive::dropPicture(root);
    root.set(pictureKey, {pictureName.toStdString()});
    root.set(pathKey, {document.path.toStdString()});
    root.set(nameKey, {document.name.toStdString()});
    if (document.fileStamp) {
        root.set(fileSizeKey, {std::int64_t{document.fileStamp->size}});
        root.set(fileTimeKey, {std::int64_t{document.fileStamp->modified.toMSecsSinceEpoch()}});
    }
    return durablefile::write(key, documentarchive::archivedData(root));
}

std::optional<QString> RecoveryStore::keepPicture(const QString &key,
                                                  const ArchivedPicture &picture,
                                                  const QString &pictureName)
{
    const std::vector<std::byte> &bytes = *picture.bytes();
    return durablefile::write(picturePath(key, pictureName),
                              QByteArray::fromRawData(reinterpret_cast<const char *>(bytes.data()),
                                                      static_cast<qsizetype>(bytes.size())));
}

std::optional<QString> RecoveryStore::keepPicture(const QString &key, const Picture &picture,
                                                  const QString &pictureName)
{
    return durablefile::write(picturePath(key, pictureName), [&picture](QIODevice &file) {
        return rawpicture::write(picture, file);
    });
}

void RecoveryStore::waitAtTheEndFor(std::shared_ptr<RecoveryThread> thread)
{
    std::erase_if(m_threads, [](const auto &earlier) { return earlier->hasEnded(); });
    m_threads.push_back(std::move(thread));
}

void RecoveryStore::removePicture(const QString &key, const QString &pictureName)
{
    QFile::remove(picturePath(key, pictureName));
}

void RecoveryStore::remove(const QString &key)
{
    QFile::remove(key);
    const QFileInfo file(key);
    const QStringList pictures =
        file.dir().entryList({file.completeBaseName() + QStringLiteral("-*.picture")}, QDir::Files);
    for (const QString &picture : pictures)
        removePicture(key, picture);
}
