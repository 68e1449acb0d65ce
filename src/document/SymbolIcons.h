#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

/// Our own line icons, drawn in the colours of the palette so that they suit light and dark.
namespace symbolicons {

/// The icon `name` (resources/icons/<name>.svg), sharp at every size.
[[nodiscard]] QIcon icon(const QString &name, const QPalette &palette);

} // namespace symbolicons
