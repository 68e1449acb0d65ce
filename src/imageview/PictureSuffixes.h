#pragma once

#include <QStringList>

namespace picturesuffixes {

/// The extensions of the picture files that can be read, lower case, without their point, in
/// alphabetical order.
[[nodiscard]] QStringList all();

} // namespace picturesuffixes
