#pragma once

#include "imageview/Picture.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <stop_token>
#include <variant>

class QIODevice;
enum class PictureProblem;

/// Pictures on the disk as they are in memory, pixel by pixel: large, and written within a moment,
/// where encoding them takes long.
namespace rawpicture {

/// Whether the file at `path` begins like a raw picture.
[[nodiscard]] bool isRaw(const QString &path);

/// False if `device` does not take it.
[[nodiscard]] bool write(const Picture &picture, QIODevice &device);

/// The picture, or why there is none: the file is damaged, needs more than `memoryLimit` bytes, or
/// `stop` was requested. `percentRead`, which may be null, follows the progress. May run in any
/// thread.
[[nodiscard]] std::variant<Picture, PictureProblem> read(const QString &path,
                                                         std::uint64_t memoryLimit,
                                                         const std::stop_token &stop = {},
                                                         std::atomic<int> *percentRead = nullptr);

} // namespace rawpicture
