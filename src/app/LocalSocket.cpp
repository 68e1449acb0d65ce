#include "app/LocalSocket.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr time_t patience = 5; // seconds
constexpr int mostWaiting = 50;

#ifdef MSG_NOSIGNAL
constexpr int withoutSignal = MSG_NOSIGNAL;
#else
constexpr int withoutSignal = 0;
#endif

/// A name in the file system as the system wants it; nothing if it is too long for that.
std::optional<sockaddr_un> addressOf(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(name.size()) >= sizeof(address.sun_path))
        return std::nullopt;
    std::copy(name.begin(), name.end(), std::begin(address.sun_path));
    return address;
}

/// The system takes addresses of all kinds as the general one.
const sockaddr *general(const sockaddr_un &address)
{
    return reinterpret_cast<const sockaddr *>(&address);
}

/// Programs that are started shall not inherit it.
int kept(int descriptor)
{
    if (descriptor >= 0)
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    return descriptor;
}

void limitWaiting(int descriptor)
{
    const timeval limit{patience, 0};
    ::setsockopt(descriptor, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof(limit));
    ::setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof(limit));
}

/// Nothing at the end, or at an error; no bytes if there was nothing to take within the time.
std::optional<QByteArray> taken(int descriptor, int flags)
{
    std::array<char, 4096> buffer{};
    ssize_t count = 0;
    do
        count = ::recv(descriptor, buffer.data(), buffer.size(), flags);
    while (count < 0 && errno == EINTR);
    if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
        return QByteArray();
    if (count <= 0)
        return std::nullopt;
    return QByteArray(buffer.data(), count);
}

} // namespace

LocalSocket LocalSocket::listeningAt(const QString &path)
{
    const std::optional<sockaddr_un> address = addressOf(path);
    LocalSocket socket(address ? kept(::socket(AF_UNIX, SOCK_STREAM, 0)) : closed);
    // Nobody can connect before it listens: until then there is time to lock others out.
    if (socket.isOpen() && (::bind(socket.m_descriptor, general(*address), sizeof(*address)) != 0 ||
                            ::chmod(address->sun_path, S_IRUSR | S_IWUSR) != 0 ||
                            ::fcntl(socket.m_descriptor, F_SETFL, O_NONBLOCK) != 0 ||
                            ::listen(socket.m_descriptor, mostWaiting) != 0))
        socket.close();
    return socket;
}

LocalSocket LocalSocket::connectedTo(const QString &path)
{
    const std::optional<sockaddr_un> address = addressOf(path);
    LocalSocket socket(address ? kept(::socket(AF_UNIX, SOCK_STREAM, 0)) : closed);
    if (!socket.isOpen())
        return socket;
    limitWaiting(socket.m_descriptor);
    if (::connect(socket.m_descriptor, general(*address), sizeof(*address)) != 0)
        socket.close();
    return socket;
}

void LocalSocket::close()
{
    if (isOpen())
        ::close(std::exchange(m_descriptor, closed));
}

LocalSocket LocalSocket::accepted() const
{
    LocalSocket socket(kept(::accept(m_descriptor, nullptr, nullptr)));
    if (socket.isOpen())
        limitWaiting(socket.m_descriptor);
    return socket;
}

bool LocalSocket::send(const QByteArray &bytes) const
{
    qsizetype sent = 0;
    while (sent < bytes.size()) {
        const ssize_t count = ::send(m_descriptor, bytes.constData() + sent,
                                     static_cast<std::size_t>(bytes.size() - sent), withoutSignal);
        if (count < 0 && errno != EINTR)
            return false;
        sent += std::max<ssize_t>(count, 0);
    }
    return true;
}

std::optional<QByteArray> LocalSocket::received() const
{
    return taken(m_descriptor, MSG_DONTWAIT);
}

std::optional<QByteArray> LocalSocket::awaited() const
{
    const std::optional<QByteArray> bytes = taken(m_descriptor, 0);
    return bytes && bytes->isEmpty() ? std::nullopt : bytes;
}
