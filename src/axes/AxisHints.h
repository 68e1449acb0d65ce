#pragma once

#include <QString>

namespace axishints {

/// What a press on the part of code `part` will do on axes of `axisType`, in words for the status
/// line; empty for no part.
[[nodiscard]] QString hintForPart(int axisType, int part);

} // namespace axishints
