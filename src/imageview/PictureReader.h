#pragma once

#include "imageview/Picture.h"
#include "imageview/PictureSource.h"

#include <QSize>
#include <QString>

#include <atomic>
#include <cstdint>
#include <optional>
#include <stop_token>

/// Why a source gives no picture.
enum class PictureProblem {
    Missing,
    Folder,
    Unreadable,
    Empty,
    NotAPicture,
    Damaged,
    TooLarge,
    NotAPdf,
    PdfUnderOtherName, ///< a PDF file is opened as one only if its name ends in "pdf"
    NoPages,
    PageTooLarge,
    NeedsPassword, ///< the PDF file is locked, and the password given, if any, is not the right one
    UnknownProtection,
    PdfModuleMissing, ///< the part of the program that knows PDF files is not installed
    Cancelled,
};

/// What came of reading: the picture or the problem.
struct PictureReading
{
    std::optional<Picture> picture;
    std::optional<PictureProblem> problem;
    QSize pixelSize; ///< as the source tells it, where it does
};

/// Reads pictures of every format that the image plugins know, upright as the camera
/// held them. Needs no window, and may run in any thread.
class PictureReader
{
public:
    /// `memoryLimit` in bytes: pictures that need more are refused before they are decoded.
    explicit PictureReader(std::uint64_t memoryLimit);

    /// Looks at the beginning only: the problem that is known from it, and the size.
    [[nodiscard]] PictureReading probe(const PictureSource &source) const;

    /// Reads the source whole. `percentRead`, which may be null, follows the progress.
    [[nodiscard]] PictureReading read(const PictureSource &source, const std::stop_token &stop = {},
                                      std::atomic<int> *percentRead = nullptr) const;

    /// Takes pixels that are decoded already.
    [[nodiscard]] PictureReading read(const QImage &pixels) const;

private:
    std::uint64_t m_memoryLimit;
};

namespace pictureproblem {

/// The problem that is known without opening the file.
[[nodiscard]] std::optional<PictureProblem> ofPath(const QString &path);

/// The reason in the user's words, naming the file.
[[nodiscard]] QString explanation(const PictureReading &reading, const PictureSource &source);
/// The same for what was handed over through a pasteboard, in whatever form.
[[nodiscard]] QString explanation(const PictureReading &reading);

} // namespace pictureproblem
