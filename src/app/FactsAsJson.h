#pragma once

#include "infopanel/InfoFacts.h"

#include <QByteArray>
#include <QString>

/// Facts about a document for other programs.
namespace factsasjson {

/// One line with a JSON object: "file", "picture", "axes" and "data"; the last three are null
/// without a picture. Numbers are not rounded; one that JSON does not have is null.
[[nodiscard]] QByteArray line(const QString &file, const InfoFacts &facts);

} // namespace factsasjson
