#pragma once

#include "imageview/PictureSource.h"

#include <QString>
#include <QStringList>

#include <optional>

class PictureReader;
class QMimeData;

/// What a pasteboard, the general one or that of a drag, offers as a picture. Local files come
/// before pixels, and of several files only the first one counts.
namespace pasteboardpicture {

/// The path of the first local file; nothing if there is none. Addresses of the web are none.
[[nodiscard]] std::optional<QString> firstFile(const QMimeData &pasteboard);

/// Whether the first file has the extension of a picture, or, without files, there are pixels.
[[nodiscard]] bool isOffered(const QMimeData &pasteboard);

/// The forms in which other programs offer their pixels, in the order to try them: those that
/// keep every pixel before those that do not, drawings last.
[[nodiscard]] QStringList imageFormats(const QMimeData &pasteboard);

/// The first form of the pixels whose beginning `reader` understands; if it understands none,
/// the first form, for its problem. Nothing if there are no pixels in any form.
[[nodiscard]] std::optional<PictureSource> imageSource(const QMimeData &pasteboard,
                                                       const PictureReader &reader);

} // namespace pasteboardpicture
