#pragma once

#include "platform/UserDefaults.h"

#include <QJsonValue>
#include <QString>

/// What the program remembers from session to session, apart from the preferences.
class StateFile
{
public:
    /// Kept in the file at `path`.
    explicit StateFile(const QString &path);

    /// Null if nothing is remembered.
    [[nodiscard]] QJsonValue value(const QString &key) const;
    /// The path of a folder; empty if none is remembered, or it is gone.
    [[nodiscard]] QString folder(const QString &key) const;
    /// Writes the file at once. What cannot be written is good for this session all the same.
    void remember(const QJsonValue &value, const QString &key);

private:
    UserDefaults m_values;
};
