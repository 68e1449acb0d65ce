#pragma once

#include "platform/Pasteboard.h"

/// What the clipboard of the desktop holds.
class SystemPasteboard final : public Pasteboard
{
    Q_OBJECT

public:
    SystemPasteboard();

    [[nodiscard]] const QMimeData *content() const override;
};
