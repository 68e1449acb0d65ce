#pragma once

#include <QString>

/// The general pasteboard, as far as text goes out.
class Clipboard
{
public:
    virtual ~Clipboard() = default;

    /// Replaces the whole content by plain text, which may be empty.
    virtual void setText(const QString &text) = 0;

    /// Replaces the whole content by a table: the plain text as it stands, its columns separated by
    /// tabs and its lines ended by line feeds, and the same for programs that paste tables.
    virtual void setTable(const QString &text) = 0;
};
