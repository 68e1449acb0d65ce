#include "platform/UserDefaults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

/// Keeps a file that could not be understood; false if that failed.
bool keepDamagedFile(const QString &filePath)
{
    const QString kept = filePath + QStringLiteral(".damaged");
    if (QFile::exists(kept) && !QFile::remove(kept))
        return false;
    return QFile::copy(filePath, kept);
}

} // namespace

UserDefaults::UserDefaults(const QString &filePath)
    : m_filePath(filePath)
{
    QFile file(filePath);
    if (!file.exists())
        return;
    const QJsonDocument document =
        file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()) : QJsonDocument();
    m_values = document.object();
    m_fileIsDamaged = !document.isObject();
}

QString UserDefaults::standardPath()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
        .filePath(QStringLiteral("preferences.json"));
}

std::optional<QJsonValue> UserDefaults::objectForKey(const QString &key) const
{
    const QJsonValue value = m_values.value(key);
    if (value.isUndefined() || value.isNull())
        return std::nullopt;
    return value;
}

void UserDefaults::setObject(const QJsonValue &value, const QString &key)
{
    m_values.insert(key, value);
}

void UserDefaults::removeObjectForKey(const QString &key) { m_values.remove(key); }

bool UserDefaults::synchronize()
{
    if (!QDir().mkpath(QFileInfo(m_filePath).absolutePath()))
        return false;
    if (m_fileIsDamaged && !keepDamagedFile(m_filePath))
        return false;
    m_fileIsDamaged = false;
    QSaveFile file(m_filePath);
    const QByteArray text = QJsonDocument(m_values).toJson();
    // Flushed apart from commit(), which does not tell of a disk that is full only then.
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush() &&
           file.commit();
}
