#include "document/RecentFiles.h"

#include <QFileInfo>
#include <QJsonArray>

namespace {
const QString key = QStringLiteral("Recent Files");
} // namespace

RecentFiles::RecentFiles(const QString &path)
    : m_state(path)
{}

void RecentFiles::add(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList list = paths();
    list.removeAll(absolute);
    list.prepend(absolute);
    keep(list.mid(0, most));
}

void RecentFiles::remove(const QString &path)
{
    QStringList list = paths();
    if (list.removeAll(QFileInfo(path).absoluteFilePath()) > 0)
        keep(list);
}

void RecentFiles::clear() { keep({}); }

QStringList RecentFiles::paths() const
{
    QStringList list;
    const QJsonArray stored = m_state.objectForKey(key).value_or(QJsonValue()).toArray();
    for (const auto &path : stored) {
        if (path.isString() && list.size() < most)
            list.append(path.toString());
    }
    return list;
}

// A list that cannot be kept is good for this session all the same.
void RecentFiles::keep(const QStringList &paths)
{
    m_state.setObject(QJsonArray::fromStringList(paths), key);
    static_cast<void>(m_state.synchronize());
}
