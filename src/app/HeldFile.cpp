#include "app/HeldFile.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

HeldFile::HeldFile(const QString &path)
    : m_descriptor(::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC,
                          S_IRUSR | S_IWUSR))
{}

HeldFile::~HeldFile()
{
    if (isThere())
        ::close(m_descriptor);
}

bool HeldFile::hold() { return isThere() && ::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0; }

bool HeldFile::waitAndHold()
{
    if (!isThere())
        return false;
    int result = 0;
    do
        result = ::flock(m_descriptor, LOCK_EX);
    while (result != 0 && errno == EINTR);
    return result == 0;
}
