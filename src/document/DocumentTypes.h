#pragma once

#include <QString>
#include <QStringList>

class QMimeData;

/// Which files can be opened. The extension alone decides, content does not.
namespace documenttypes {

/// The name of the type of our own files, and their extension.
inline constexpr char curvegrabDocument[] = "Curvegrab X Document";
inline constexpr char extension[] = "crvgrab";

/// Whether the file at `path` has the extension of a document, in any case.
[[nodiscard]] bool isDocument(const QString &path);
/// Whether it has the extension of a picture.
[[nodiscard]] bool isPicture(const QString &path);

/// `path` with its last extension replaced by that of documents.
[[nodiscard]] QString documentPathFor(const QString &path);

/// The local document files among what is dragged.
[[nodiscard]] QStringList documentPaths(const QMimeData &data);

} // namespace documenttypes
