#pragma once

#include "platform/FilePanels.h"

#include <QString>

class QWidget;
class WindowSheets;

/// The file choosers of one window; they wait in the queue of the window's sheets.
class WindowFilePanels final : public FilePanels
{
public:
    /// `sheets` outlives the panels, and the panels everything that is asked through them.
    explicit WindowFilePanels(WindowSheets &sheets);

    void chooseFileToSave(const FileToSave &file, FileChosen chosen) override;
    void chooseDocumentToSave(const QString &proposed,
                              std::function<void(const QString &path)> chosen) override;
    void chooseFilesToOpen(const QStringList &suffixes,
                           std::function<void(const QStringList &paths)> chosen) override;
    void choosePictureToOpen(const QStringList &suffixes,
                             std::function<void(const QString &path)> chosen) override;

private:
    void save(const FileToSave &file, const QString &path, const FileChosen &chosen);
    [[nodiscard]] QString folderFor(const QWidget &window) const;
    void remember(const QString &path);

    WindowSheets &m_sheets;
    QString m_folder; ///< where the user was last; empty before
};
