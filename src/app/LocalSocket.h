#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>

/// A socket in the file system, through which programs of the same user talk. The toolkit's own
/// would bring its whole network library along, at every start.
class LocalSocket
{
public:
    LocalSocket() = default;
    LocalSocket(LocalSocket &&other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, closed))
    {}
    LocalSocket &operator=(LocalSocket &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~LocalSocket() { close(); }

    /// One at `path`, where nothing may lie, for this user only; closed if that cannot be.
    [[nodiscard]] static LocalSocket listeningAt(const QString &path);
    /// One to a program that listens at `path`; closed if none does.
    [[nodiscard]] static LocalSocket connectedTo(const QString &path);

    [[nodiscard]] bool isOpen() const { return m_descriptor != closed; }
    [[nodiscard]] int descriptor() const { return m_descriptor; }
    void close();

    /// The next program that connects to this listening socket; closed if none waits.
    [[nodiscard]] LocalSocket accepted() const;

    /// Whether all of `bytes` went out within a few seconds.
    [[nodiscard]] bool send(const QByteArray &bytes) const;
    /// What has come, without waiting; nothing at the end of what comes at all.
    [[nodiscard]] std::optional<QByteArray> received() const;
    /// Waits for something to come, a few seconds at most; nothing if nothing does.
    [[nodiscard]] std::optional<QByteArray> awaited() const;

private:
    static constexpr int closed = -1;

    explicit LocalSocket(int descriptor)
        : m_descriptor(descriptor)
    {}

    int m_descriptor = closed;
};
