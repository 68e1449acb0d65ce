#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <optional>

/// A file that has no name until it is whole, so that a process that is killed leaves nothing
/// behind. Operations give 0, or the system's number of what went wrong.
class NamelessFile
{
public:
    /// Nothing where the system or the file system knows no such files.
    [[nodiscard]] static std::optional<NamelessFile> inFolder(const QString &folder);

    NamelessFile(NamelessFile &&other) noexcept;
    NamelessFile(const NamelessFile &) = delete;
    NamelessFile &operator=(const NamelessFile &) = delete;
    NamelessFile &operator=(NamelessFile &&) = delete;
    ~NamelessFile();

    [[nodiscard]] int write(const QByteArray &bytes);
    /// Waits until the content is on the disk.
    [[nodiscard]] int flush() const;
    /// Gives the file a name beside `path` that tells what it is, and that no other file has; what
    /// a kill left there long ago goes.
    [[nodiscard]] int nameBeside(const QString &path);
    /// Takes the place, and the permissions, of the file at `path`; after nameBeside() of it.
    [[nodiscard]] int takePlaceOf(const QString &path);

private:
    explicit NamelessFile(int handle)
        : m_handle(handle)
    {}

    int m_handle = -1;
    QByteArray m_name; ///< the path, once there is one
};
