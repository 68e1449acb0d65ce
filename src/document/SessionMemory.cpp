#include "document/SessionMemory.h"

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
    const QJsonArray stored = m_state.value(windowSizeKey).toArray();
    const QSize size(stored.at(0).toInt(), stored.at(1).toInt());
    return stored.size() == 2 && !size.isEmpty() ? std::optional(size) : std::nullopt;
}

void SessionMemory::setWindowSize(QSize size)
{
    m_state.remember(QJsonArray{size.width(), size.height()}, windowSizeKey);
}

QString SessionMemory::folderOf(Panel panel) const { return m_state.folder(keyOf(panel)); }

void SessionMemory::setFolderOf(Panel panel, const QString &folder)
{
    m_state.remember(folder, keyOf(panel));
}
