#pragma once

#include <QString>

namespace axishints {

/// What a press on the part of code `part` (anchorlayout::partOfHit) will do on axes of
/// `axisType`, in words for the status line; for part 0, what can be taken hold of.
[[nodiscard]] QString hintForPart(int axisType, int part);

/// What the part of code `part` of axes of `axisType` is called; empty for what is none.
[[nodiscard]] QString nameOfPart(int axisType, int part);

} // namespace axishints
