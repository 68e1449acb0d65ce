#include "platform/DurableFile.h"

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
    if (target.isDir())
        return texts::localized("platform.file.isFolder");
    if (target.exists() && !target.isWritable())
        return texts::localized("platform.file.readOnly");
    if (!folder.isWritable())
        return texts::localized("platform.file.folderReadOnly");
    return file.errorString();
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
    QSaveFile file(path);
    if (target.isDir() || !file.open(QIODevice::WriteOnly))
        return reasonToOpen(file, target);
    errno = 0;
    if (file.write(bytes) != bytes.size() || !file.flush())
        return errno != 0 ? systemReason(errno) : file.errorString();
    if (const int number = flushToDisk(file.handle()); number != 0)
        return systemReason(number);
    if (!file.commit())
        return file.errorString();
    const QString real = target.isSymLink() ? target.symLinkTarget() : target.absoluteFilePath();
    flushFolder(QFileInfo(real).absolutePath());
    return std::nullopt;
}

} // namespace durablefile
