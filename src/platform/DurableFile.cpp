#include "platform/DurableFile.h"

#include "platform/NamelessFile.h"
#include "platform/Texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

/// 0, or the system's number of what went wrong.
int flushToDisk([[maybe_unused]] int handle)
{
#ifdef Q_OS_UNIX
    // A file system that cannot flush says so with EINVAL.
    if (::fsync(handle) != 0 && errno != EINVAL)
        return errno;
#endif
    return 0;
}

// The new name is safe only once the folder is on the disk too.
void flushFolder([[maybe_unused]] const QString &path)
{
#ifdef Q_OS_UNIX
    const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY);
    if (folder < 0)
        return;
    flushToDisk(folder);
    ::close(folder);
#endif
}

QString systemReason(int number)
{
    switch (number) {
    case ENOSPC:
    case EDQUOT:
        return texts::localized("platform.file.diskFull");
    case EFBIG:
        return texts::localized("platform.file.tooLarge");
    default:
        return qt_error_string(number);
    }
}

QString reasonToOpen(const QSaveFile &file, const QFileInfo &target)
{
    const QFileInfo folder(target.absolutePath());
    if (!folder.isDir())
        return texts::localized("platform.file.folderGone");
    if (target.exists() && !target.isWritable())
        return texts::localized("platform.file.readOnly");
    if (!folder.isWritable())
        return texts::localized("platform.file.folderReadOnly");
    return file.errorString();
}

/// The file itself, where `target` may be a link to it.
QString realPath(const QFileInfo &target)
{
    if (target.exists())
        return target.canonicalFilePath();
    return target.isSymLink() ? target.symLinkTarget() : target.absoluteFilePath();
}

/// 0, or the number of what went wrong; nothing where files without a name are not known.
std::optional<int> writeNameless(const QString &path, const QByteArray &bytes)
{
    const QString folder = QFileInfo(path).absolutePath();
    std::optional<NamelessFile> file = NamelessFile::inFolder(folder);
    if (!file)
        return std::nullopt;
    if (const int number = file->write(bytes); number != 0)
        return number;
    if (const int number = file->flush(); number != 0)
        return number;
    if (file->nameBeside(path) != 0)
        return std::nullopt;
    const int number = file->takePlaceOf(path);
    flushFolder(folder);
    return number;
}

/// The same by a file whose name begins with the target's; a kill leaves it there.
std::optional<QString> writeBeside(const QFileInfo &target,
                                   const std::function<bool(QIODevice &)> &produce)
{
    QSaveFile file(target.filePath());
    if (!file.open(QIODevice::WriteOnly))
        return reasonToOpen(file, target);
    errno = 0;
    if (!produce(file) || !file.flush())
        return errno != 0 ? systemReason(errno) : file.errorString();
    if (const int number = flushToDisk(file.handle()); number != 0)
        return systemReason(number);
    if (!file.commit())
        return file.errorString();
    flushFolder(QFileInfo(realPath(target)).absolutePath());
    return std::nullopt;
}

} // namespace

namespace durablefile {

std::optional<Stamp> stampOf(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return std::nullopt;
    return Stamp{file.size(), file.lastModified()};
}

std::optional<QString> write(const QString &path, const QByteArray &bytes)
{
    const QFileInfo target(path);
    if (target.isDir())
        return texts::localized("platform.file.isFolder");
    const QString real = realPath(target);
    if (!target.exists() || (target.isFile() && target.isWritable())) {
        if (const std::optional<int> number = writeNameless(real, bytes))
            return *number == 0 ? std::nullopt : std::optional(systemReason(*number));
    }
    return writeBeside(target, [&bytes](QIODevice &file) { //
        return file.write(bytes) == bytes.size();
    });
}

std::optional<QString> write(const QString &path, const std::function<bool(QIODevice &)> &produce)
{
    const QFileInfo target(path);
    if (target.isDir())
        return texts::localized("platform.file.isFolder");
    return writeBeside(target, produce);
}

} // namespace durablefile
