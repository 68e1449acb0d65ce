#pragma once

#include <QString>

/// Lets the user drag tables into other programs.
class TableDrag
{
public:
    virtual ~TableDrag() = default;

    /// Takes the table, of the form that Clipboard::setTable() has, along with the pointer while
    /// the mouse button is down; returns once it was dropped, or the drag given up.
    virtual void drag(const QString &text) = 0;
};
