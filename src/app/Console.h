#pragma once

#include <QIODevice>
#include <QString>

/// How a command that ran without a window ends.
namespace exitcode {

inline constexpr int success = 0;
inline constexpr int failure = 1;  ///< a file could not be read or written
inline constexpr int wrongUse = 2; ///< the arguments make no sense; nothing was done

} // namespace exitcode

/// The standard streams, open. Tests hand in buffers.
struct Console
{
    QIODevice &in;
    QIODevice &out;
    QIODevice &err;

    /// Writes to standard output; false, and the user is told why, if not all of it arrived.
    [[nodiscard]] bool print(const QByteArray &bytes) const;

    /// Says on standard error what is wrong, with the program's name in front.
    void complain(const QString &message) const;
    /// The same about `file`.
    void complainAbout(const QString &file, const QString &message) const;

    /// How messages call `file`; the name "-" stands for a stream.
    [[nodiscard]] static QString displayName(const QString &file);
};
