#pragma once

#include "platform/StateFile.h"
#include "platform/WindowFilePanels.h"

#include <QSize>

#include <optional>

/// Where windows and panels were left; kept from session to session, apart from the preferences.
class SessionMemory final : public PanelFolders
{
public:
    /// Kept in the file at `path`.
    explicit SessionMemory(const QString &path);

    /// The size of the window without frame and drawer that was closed last, if there was one.
    [[nodiscard]] std::optional<QSize> windowSize() const;
    void setWindowSize(QSize size);

    [[nodiscard]] QString folderOf(Panel panel) const override;
    void setFolderOf(Panel panel, const QString &folder) override;

private:
    StateFile m_state;
};
