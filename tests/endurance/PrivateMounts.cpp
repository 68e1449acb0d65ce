#include "endurance/PrivateMounts.h"

#include <QFile>

#include <cstdio>
#include <string>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace {

bool put(const char *path, const std::string &text)
{
    const int file = ::open(path, O_WRONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    const bool isWritten =
        ::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    ::close(file);
    return isWritten;
}

/// A superuser has mounts of his own for the asking; others as superusers of a space of their own.
bool leaveTheMountsOfOthers()
{
    const std::string user = std::to_string(::geteuid());
    const std::string group = std::to_string(::getegid());
    if (::unshare(CLONE_NEWNS) != 0) {
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return false;
        if (!put("/proc/self/setgroups", "deny") ||
            !put("/proc/self/gid_map", "0 " + group + " 1") ||
            !put("/proc/self/uid_map", "0 " + user + " 1"))
            return false;
    }
    return ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

// Only a process of one thread may leave, so it does before the application begins.
const bool hasLeft = leaveTheMountsOfOthers();

QByteArray name(const QString &folder) { return QFile::encodeName(folder); }

} // namespace

namespace privatemounts {

bool allowed() { return hasLeft; }

bool mountMemory(const QString &folder, int bytes)
{
    const std::string options = "size=" + std::to_string(bytes);
    return ::mount("none", name(folder).constData(), "tmpfs", 0, options.c_str()) == 0;
}

bool protect(const QString &folder)
{
    const QByteArray place = name(folder);
    return ::mount(place.constData(), place.constData(), nullptr, MS_BIND, nullptr) == 0 &&
           ::mount(nullptr, place.constData(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY,
                   nullptr) == 0;
}

bool unprotect(const QString &folder) { return pullOut(folder); }

bool pullOut(const QString &folder) { return ::umount2(name(folder).constData(), MNT_DETACH) == 0; }

} // namespace privatemounts
