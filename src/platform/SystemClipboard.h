#pragma once

#include "platform/Clipboard.h"

/// The clipboard of the desktop.
class SystemClipboard final : public Clipboard
{
public:
    void setText(const QString &text) override;
    void setTable(const QString &text) override;
};
