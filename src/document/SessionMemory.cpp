#include "document/SessionMemory.h"

#include <QDir>
#include <QJsonArray>

namespace {

const QString windowSizeKey = QStringLiteral("Window Size");

QString keyOf(PanelFolders::Panel panel)
{
    switch (panel) {
    case PanelFolders::Panel::OpenFiles:
        return QStringLiteral("Folder of Opened Files");
    case PanelFolders::Panel::OpenPicture:
        return QStringLiteral("Folder of Opened Pictures");
    case PanelFolders::Panel::SaveDocument:
        return QStringLiteral("Folder of Saved Documents");
    case PanelFolders::Panel::SaveData:
        break;
    }
    return QStringLiteral("Folder of Saved Data");
}

} // namespace

SessionMemory::SessionMemory(const QString &path)
    : m_state(path)
{}

std::optional<QSize> SessionMemory::windowSize() const
{
    const QJsonArray stored = m_state.objectForKey(windowSizeKey).value_or(QJsonValue()).toArray();
    const QSize size(stored.at(0).toInt(), stored.at(1).toInt());
    return stored.size() == 2 && !size.isEmpty() ? std::optional(size) : std::nullopt;
}

void SessionMemory::setWindowSize(QSize size)
{
    keep(QJsonArray{size.width(), size.height()}, windowSizeKey);
}

QString SessionMemory::folderOf(Panel panel) const
{
    const QString path = m_state.objectForKey(keyOf(panel)).value_or(QJsonValue()).toString();
    return QDir::isAbsolutePath(path) && QDir(path).exists() ? path : QString();
}

void SessionMemory::setFolderOf(Panel panel, const QString &folder) { keep(folder, keyOf(panel)); }

// What cannot be kept is good for this session all the same.
void SessionMemory::keep(const QJsonValue &value, const QString &key)
{
    m_state.setObject(value, key);
    static_cast<void>(m_state.synchronize());
}
