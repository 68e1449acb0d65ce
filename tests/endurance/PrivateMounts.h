#pragma once

#include <QString>

/// File systems that only this process sees.
namespace privatemounts {

/// Whether the process may mount: not every machine lets it.
[[nodiscard]] bool allowed();

/// A file system of `bytes` in memory at `folder`.
[[nodiscard]] bool mountMemory(const QString &folder, int bytes);
/// Makes `folder` and all in it read-only, or writable again.
[[nodiscard]] bool protect(const QString &folder);
[[nodiscard]] bool unprotect(const QString &folder);
/// Takes what is mounted at `folder` away, as a cable that is pulled does.
[[nodiscard]] bool pullOut(const QString &folder);

} // namespace privatemounts
