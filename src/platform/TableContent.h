#pragma once

#include <QMimeData>
#include <QString>

#include <memory>

/// Tables as other programs take them, by the clipboard or by a drag.
namespace tablecontent {

/// The plain text as it stands, its columns separated by tabs and its lines ended by line feeds,
/// and the same as an HTML table and as comma-separated values.
[[nodiscard]] std::unique_ptr<QMimeData> fromText(const QString &text);

} // namespace tablecontent
