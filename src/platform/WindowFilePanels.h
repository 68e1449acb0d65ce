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

    void chooseTextFileToSave(const QString &message, const QString &proposedName,
                              std::function<void(const QString &path)> chosen) override;
    void chooseDocumentToSave(const QString &proposed,
                              std::function<void(const QString &path)> chosen) override;
    void chooseFilesToOpen(const QStringList &suffixes,
                           std::function<void(const QStringList &paths)> chosen) override;
    void choosePictureToOpen(const QStringList &suffixes,
                             std::function<void(const QString &path)> chosen) override;

private:
    using Chosen = std::function<void(const QString &path)>;

    /// How one kind of file is saved.
    struct Saving
    {
        QString message;
        const char *filterKey;
        QString suffix; ///< with its point

        [[nodiscard]] QString completed(const QString &path) const;
    };
    void chooseFileToSave(const Saving &saving, const QString &proposed, const Chosen &chosen);
    void save(const Saving &saving, const QString &path, const Chosen &chosen);
    [[nodiscard]] QString folderFor(const QWidget &window) const;
    void remember(const QString &path);

    WindowSheets &m_sheets;
    QString m_folder; ///< where the user was last; empty before
};
