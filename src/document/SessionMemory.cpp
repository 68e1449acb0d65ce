#include "document/SessionMemory.h"

#include <QJsonArray>

namespace {

const QString windowPlaceKey = QStringLiteral("Document Window");

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

std::optional<QRect> SessionMemory::windowPlace() const
{
    const QJsonArray stored = m_state.value(windowPlaceKey).toArray();
    const QRect place(stored.at(0).toInt(), stored.at(1).toInt(), stored.at(2).toInt(),
                      stored.at(3).toInt());
    return stored.size() == 4 && !place.isEmpty() ? std::optional(place) : std::nullopt;
}

void SessionMemory::setWindowPlace(const QRect &place)
{
    m_state.remember(QJsonArray{place.x(), place.y(), place.width(), place.height()},
                     windowPlaceKey);
}

QString SessionMemory::folderOf(Panel panel) const { return m_state.folder(keyOf(panel)); }

void SessionMemory::setFolderOf(Panel panel, const QString &folder)
{
    m_state.remember(folder, keyOf(panel));
}
