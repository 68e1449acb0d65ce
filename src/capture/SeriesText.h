#pragma once

#include "capture/CaptureSurroundings.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>

class SeriesStore;

/// The text in which captured data leave the program: tab-separated columns, two per series.
namespace seriestext {

/// The series of `series` side by side, with a title line if `withTitle`; nothing for an empty
/// set. There are as many data lines as the longest of all ten series has points.
[[nodiscard]] std::optional<std::string> makeString(const SeriesStore &store,
                                                    const IndexSet &series, bool withTitle);

/// The text as ASCII; each character that has no place there becomes "?".
[[nodiscard]] QByteArray lossyAscii(const QString &text);

} // namespace seriestext
