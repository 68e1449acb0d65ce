#pragma once

#include <QImage>
#include <QString>

#include <stop_token>

/// Small pictures of documents and pictures, remembered in a folder. Slow; for any thread.
namespace thumbnailfile {

/// Pixels along the longer side.
inline constexpr int side = 48;

/// What the folder holds at most; the oldest go.
inline constexpr int mostInFolder = 30;

/// A small picture of what the file at `path` shows. It is remembered in `folder` until the file
/// changes. Null without file or picture, or after `stop` was requested.
[[nodiscard]] QImage of(const QString &path, const QString &folder, const std::stop_token &stop);

} // namespace thumbnailfile
