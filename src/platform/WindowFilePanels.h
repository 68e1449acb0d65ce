#pragma once

#include "platform/FilePanels.h"

#include <QString>

class QWidget;
class WindowSheets;

/// The folders in which the panels of a kind were left.
class PanelFolders
{
public:
    enum class Panel { OpenFiles, OpenPicture, SaveDocument, SaveData };

    virtual ~PanelFolders() = default;
    /// Empty if there was no such panel, or the folder is gone.
    [[nodiscard]] virtual QString folderOf(Panel panel) const = 0;
    virtual void setFolderOf(Panel panel, const QString &folder) = 0;
};

/// The file choosers of one window; they wait in the queue of the window's sheets.
class WindowFilePanels final : public FilePanels
{
public:
    /// `sheets` and `folders` outlive the panels, and the panels everything that is asked through
    /// them.
    WindowFilePanels(WindowSheets &sheets, PanelFolders &folders);

    void chooseFileToSave(const FileToSave &file, FileChosen chosen) override;
    void chooseDocumentToSave(const QString &proposed,
                              std::function<void(const QString &path)> chosen) override;
    void chooseFilesToOpen(const QStringList &suffixes,
                           std::function<void(const QStringList &paths)> chosen) override;
    void choosePictureToOpen(const QStringList &suffixes,
                             std::function<void(const QString &path)> chosen) override;

private:
    void askToSave(PanelFolders::Panel panel, const FileToSave &file, const FileChosen &chosen);
    void save(PanelFolders::Panel panel, const FileToSave &file, const QString &path,
              const FileChosen &chosen);
    [[nodiscard]] QString folderFor(PanelFolders::Panel panel, const QWidget &window) const;
    void remember(PanelFolders::Panel panel, const QString &path);

    WindowSheets &m_sheets;
    PanelFolders &m_folders;
    QString m_folder; ///< where the user of this window was last; empty before
};
