#pragma once

#include <QString>

/// Tables for programs that paste them.
namespace tableashtml {

/// The table that the text means, as HTML: its lines end with a line feed, and its columns are
/// separated by tabs. Numbers carry their value for spreadsheets whose decimal mark is a comma.
[[nodiscard]] QString fromText(const QString &text);

} // namespace tableashtml
