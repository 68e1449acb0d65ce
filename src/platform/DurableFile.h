#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>

class QIODevice;

/// Files that are whole whatever happens: the old content or the new one, also after a kill or a
/// power cut.
namespace durablefile {

/// What tells two states of a file apart.
struct Stamp
{
    qint64 size = 0;
    QDateTime modified;

    friend bool operator==(const Stamp &, const Stamp &) = default;
};

/// The stamp of the file at `path`, or nothing if there is none.
[[nodiscard]] std::optional<Stamp> stampOf(const QString &path);

/// Puts `bytes` in place of the file at `path`, flushed to the disk with its folder. The file's
/// permissions stay, and a link stays a link. Nothing when it worked; otherwise the reason in the
/// user's words, and the old file is untouched.
[[nodiscard]] std::optional<QString> write(const QString &path, const QByteArray &bytes);

/// The same with what `produce` writes, piece by piece, which is false where the file takes no
/// more.
[[nodiscard]] std::optional<QString> write(const QString &path,
                                           const std::function<bool(QIODevice &)> &produce);

} // namespace durablefile
