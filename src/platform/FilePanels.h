#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// The file choosers of one window. They are sheets: asking never blocks, and the handler
/// runs only when the user has confirmed a file.
class FilePanels
{
public:
    virtual ~FilePanels() = default;

    /// Asks where to save a text file. The path handed to `chosen` ends in ".txt" (in any
    /// case), and the user has agreed to overwriting it if it exists.
    virtual void chooseTextFileToSave(const QString &message, const QString &proposedName,
                                      std::function<void(const QString &path)> chosen) = 0;

    /// Asks where to save a document, starting with the path `proposed` (a bare name: in the folder
    /// where the user was last). The path handed to `chosen` ends in ".crvgrab" (in any case), and
    /// the user has agreed to overwriting it if it exists.
    virtual void chooseDocumentToSave(const QString &proposed,
                                      std::function<void(const QString &path)> chosen) = 0;

    /// Asks for documents and pictures, of which there may be several. `suffixes` are those of the
    /// pictures, without their point.
    virtual void chooseFilesToOpen(const QStringList &suffixes,
                                   std::function<void(const QStringList &paths)> chosen) = 0;

    /// Asks for a picture file. `suffixes` are file extensions without their point.
    virtual void choosePictureToOpen(const QStringList &suffixes,
                                     std::function<void(const QString &path)> chosen) = 0;
};
