#pragma once

#include <cstdint>

class QImage;
class QImageReader;
class QSize;

/// Whether there is room for a picture, asked before it is decoded.
namespace picturememory {

/// The bytes that this computer can give to pictures now.
[[nodiscard]] std::uint64_t available();

/// Whether the picture that `reader` is about to decode has a size, and `bytes` are enough for
/// it. Files that lie about their size, by accident or on purpose, are found out here.
[[nodiscard]] bool fits(const QImageReader &reader, std::uint64_t bytes);

/// The same for pixels that are there already, and need a copy for the screen.
[[nodiscard]] bool fits(const QImage &pixels, std::uint64_t bytes);

/// Whether `bytes` are enough for painting a page of `size` pixels.
[[nodiscard]] bool fitsPage(QSize size, std::uint64_t bytes);

} // namespace picturememory
