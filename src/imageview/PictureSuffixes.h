#pragma once

#include <QStringList>

namespace picturesuffixes {

/// The extensions of the picture files that can be opened (`imageFileTypes`), lower case, without
/// their point, in alphabetical order.
[[nodiscard]] QStringList all();

/// Whether `suffix`, in upper or lower case, is one of them.
[[nodiscard]] bool includes(const QString &suffix);
/// Whether the file name of `path` has one of them, in upper or lower case.
[[nodiscard]] bool includesSuffixOf(const QString &path);

} // namespace picturesuffixes
