#pragma once

#include <cstddef>
#include <span>
#include <vector>

/// PNG files without their pixels.
namespace picturehead {

/// The file with one empty chunk in place of those that hold pixels: enough to tell size and texts.
/// What follows a chunk that is longer than the file is left out too, so that such a file stays a
/// damaged one.
[[nodiscard]] std::vector<std::byte> of(std::span<const std::byte> png);

} // namespace picturehead
