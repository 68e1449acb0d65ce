#pragma once

#include <QString>

/// The general pasteboard, as far as text goes out.
class Clipboard
{
public:
    virtual ~Clipboard() = default;

    /// Replaces the whole content by plain text, which may be empty.
    virtual void setText(const QString &text) = 0;
};
