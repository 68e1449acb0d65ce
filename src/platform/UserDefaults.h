#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <optional>

/// The user's settings: keys with JSON values (numbers, booleans, texts, nested objects and
/// arrays), kept in one file. Keys that the program does not know are kept.
class UserDefaults
{
public:
    /// Reads `filePath`; a missing or damaged file counts as empty (a damaged one is kept
    /// beside the new one under the name "<file>.damaged" at the first write).
    explicit UserDefaults(const QString &filePath);

    /// The file in the user's configuration folder.
    [[nodiscard]] static QString standardPath();

    /// The value under `key`, or nothing; a null in the file counts as nothing.
    [[nodiscard]] std::optional<QJsonValue> objectForKey(const QString &key) const;

    void setObject(const QJsonValue &value, const QString &key);
    void removeObjectForKey(const QString &key);

    /// Writes the file at once, whole or not at all. False when the disk refused; the values
    /// stay in memory and the file as it was.
    [[nodiscard]] bool synchronize();

private:
    QString m_filePath;
    QJsonObject m_values;
    bool m_fileIsDamaged = false;
};
