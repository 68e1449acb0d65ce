#pragma once

#include "platform/StateFile.h"
#include "platform/WindowFilePanels.h"

#include <QRect>

#include <optional>

/// Where windows and panels were left; kept from session to session, apart from the preferences.
class SessionMemory final : public PanelFolders
{
public:
    /// Kept in the file at `path`.
    explicit SessionMemory(const QString &path);

    /// Of the document window that was closed last, if there was one: where the top left corner of
    /// its frame stood, and its size without frame and drawer.
    [[nodiscard]] std::optional<QRect> windowPlace() const;
    void setWindowPlace(const QRect &place);

    [[nodiscard]] QString folderOf(Panel panel) const override;
    void setFolderOf(Panel panel, const QString &folder) override;

private:
    StateFile m_state;
};
