#include "platform/NamelessFile.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

#ifdef Q_OS_LINUX

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t permissionsOfNewFiles = 0666;
constexpr mode_t permissionBits = 07777;

int numberUnless(bool succeeded) { return succeeded ? 0 : errno; }

/// So many programs may save to one path at the same moment, those included that were killed.
constexpr int mostNames = 100;

/// A file has its passing name for less than a second, but clocks differ.
constexpr std::time_t longAgo = std::time_t(24) * 60 * 60;

/// ".chart.crvgrab.saving", ".chart.crvgrab.1.saving" and so on.
QByteArray passingName(const QString &path, int number)
{
    const QFileInfo file(path);
    const QString mark = number == 0 ? QString() : u'.' + QString::number(number);
    return QFile::encodeName(file.absolutePath() + QStringLiteral("/.") + file.fileName() + mark +
                             QStringLiteral(".saving"));
}

void removeIfLeftLongAgo(const QByteArray &name)
{
    struct stat left
    {};
    if (::lstat(name.constData(), &left) == 0 && S_ISREG(left.st_mode) &&
        std::time(nullptr) - left.st_mtime > longAgo)
        ::unlink(name.constData());
}

} // namespace

std::optional<NamelessFile> NamelessFile::inFolder(const QString &folder)
{
    const int handle = ::open(QFile::encodeName(folder).constData(),
                              O_TMPFILE | O_WRONLY | O_CLOEXEC, permissionsOfNewFiles);
    if (handle < 0)
        return std::nullopt;
    return NamelessFile(handle);
}

NamelessFile::~NamelessFile()
{
    if (!m_name.isEmpty())
        ::unlink(m_name.constData());
    if (m_handle >= 0)
        ::close(m_handle);
}

int NamelessFile::write(const QByteArray &bytes)
{
    const char *rest = bytes.constData();
    auto left = static_cast<std::size_t>(bytes.size());
    while (left > 0) {
        const ssize_t written = ::write(m_handle, rest, left);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        rest += written;
        left -= static_cast<std::size_t>(written);
    }
    return 0;
}

// A file system that cannot flush says so with EINVAL.
int NamelessFile::flush() const { return numberUnless(::fsync(m_handle) == 0 || errno == EINVAL); }

int NamelessFile::nameBeside(const QString &path)
{
    const std::string self = "/proc/self/fd/" + std::to_string(m_handle);
    for (int number = 0; number < mostNames; ++number) {
        const QByteArray name = passingName(path, number);
        if (::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) == 0) {
            m_name = name;
            return 0;
        }
        if (errno != EEXIST)
            return errno;
        // Another program may be about to put it in place.
        removeIfLeftLongAgo(name);
    }
    return EEXIST;
}

int NamelessFile::takePlaceOf(const QString &path)
{
    const QByteArray place = QFile::encodeName(path);
    struct stat old
    {};
    if (::stat(place.constData(), &old) == 0 &&
        ::fchmod(m_handle, old.st_mode & permissionBits) != 0)
        return errno;
    if (std::rename(m_name.constData(), place.constData()) != 0)
        return errno;
    m_name.clear();
    return 0;
}

#else

std::optional<NamelessFile> NamelessFile::inFolder(const QString &) { return std::nullopt; }

NamelessFile::~NamelessFile() = default;

int NamelessFile::write(const QByteArray &) { return -1; }

int NamelessFile::flush() const { return -1; }

int NamelessFile::nameBeside(const QString &) { return -1; }

int NamelessFile::takePlaceOf(const QString &) { return -1; }

#endif

NamelessFile::NamelessFile(NamelessFile &&other) noexcept
    : m_handle(std::exchange(other.m_handle, -1))
    , m_name(std::exchange(other.m_name, {}))
{}
