#include "platform/StateFile.h"

#include <QDir>

StateFile::StateFile(const QString &path)
    : m_values(path)
{}

QJsonValue StateFile::value(const QString &key) const
{
    return m_values.objectForKey(key).value_or(QJsonValue());
}

QString StateFile::folder(const QString &key) const
{
    const QString path = value(key).toString();
    return QDir::isAbsolutePath(path) && QDir(path).exists() ? path : QString();
}

void StateFile::remember(const QJsonValue &value, const QString &key)
{
    m_values.setObject(value, key);
    static_cast<void>(m_values.synchronize());
}
