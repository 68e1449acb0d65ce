#pragma once

#include "imageview/Picture.h"

#include <QString>

#include <cstdint>
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

/// The picture, or why there is none: the file is damaged, or needs more than `memoryLimit` bytes.
/// May run in any thread.
[[nodiscard]] std::variant<Picture, PictureProblem> read(const QString &path,
                                                         std::uint64_t memoryLimit);

} // namespace rawpicture
