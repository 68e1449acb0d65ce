#pragma once

#include "document/DocumentArchive.h"
#include "platform/DurableFile.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <cstdint>
#include <optional>
#include <stop_token>

/// Reads the files of documents, with and without a window; in any thread.
namespace documentfile {

/// The bytes of a file.
struct Content
{
    QByteArray bytes;
    /// Why the file could not be read, in the user's words; empty if all is well.
    QString error;
    bool isTooLarge = false; ///< that is why
    /// The state of the file that was read.
    std::optional<durablefile::Stamp> stamp;
};

/// A document that is ready to be shown: what it holds is decoded.
struct Document
{
    documentarchive::Reading reading;
    QString error; ///< as of Content; then there is no reading
    std::optional<durablefile::Stamp> stamp;
};

/// The content of the file at `path`, unless a document of this size would need more than
/// `memoryLimit` bytes. Empty after `stop` was requested.
[[nodiscard]] Content contentOf(const QString &path, std::uint64_t memoryLimit,
                                const std::stop_token &stop = {});

/// Decodes the picture of what was read; one that cannot be decoded is left out, and damage.
/// `percentDecoded`, which may be null, follows the progress.
void decodePicture(documentarchive::Reading &reading, std::uint64_t memoryLimit,
                   const std::stop_token &stop = {}, std::atomic<int> *percentDecoded = nullptr);

/// Everything that is to be done before the document is shown: reads the file, takes the archive
/// apart and decodes the picture, which is what takes long.
[[nodiscard]] Document read(const QString &path, std::uint64_t memoryLimit,
                            const std::stop_token &stop = {},
                            std::atomic<int> *percentDecoded = nullptr);

} // namespace documentfile
