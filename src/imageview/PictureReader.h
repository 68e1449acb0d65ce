#pragma once

#include "imageview/Picture.h"

#include <QSize>
#include <QString>

#include <atomic>
#include <cstdint>
#include <optional>
#include <stop_token>

/// Why a file gives no picture.
enum class PictureProblem {
    Missing,
    Folder,
    Unreadable,
    Empty,
    NotAPicture,
    Damaged,
    TooLarge,
    Cancelled,
};

/// What came of reading a file: the picture or the problem.
struct PictureReading
{
    std::optional<Picture> picture;
    std::optional<PictureProblem> problem;
    QSize pixelSize; ///< as the file tells it, where it does
};

/// Reads picture files of every format that the image plugins know, upright as the camera
/// held them. Needs no window, and may run in any thread.
class PictureReader
{
public:
    /// `memoryLimit` in bytes: pictures that need more are refused before they are decoded.
    explicit PictureReader(std::uint64_t memoryLimit);

    /// Looks at the file's beginning only: the problem that is known from it, and the size.
    [[nodiscard]] PictureReading probe(const QString &path) const;

    /// Reads the file whole. `percentRead`, which may be null, follows the progress.
    [[nodiscard]] PictureReading read(const QString &path, const std::stop_token &stop = {},
                                      std::atomic<int> *percentRead = nullptr) const;

private:
    std::uint64_t m_memoryLimit;
};

namespace pictureproblem {

/// The reason in the user's words, naming the file.
[[nodiscard]] QString explanation(const PictureReading &reading, const QString &path);

} // namespace pictureproblem
