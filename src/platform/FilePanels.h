#pragma once

#include <QString>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <vector>

/// A kind of file that can be saved.
struct FileKind
{
    QString name;   ///< for the user
    QString suffix; ///< with its point
};

/// What a save panel asks for.
struct FileToSave
{
    QString message;
    QString proposedName;        ///< without suffix
    std::vector<FileKind> kinds; ///< one at least
    std::size_t kind = 0;        ///< the one that is chosen at first
    QString folder;              ///< where to begin; empty: where the user was last
};

/// Told the file that the user chose, and its kind.
using FileChosen = std::function<void(const QString &path, std::size_t kind)>;

/// The file choosers of one window. They are sheets: asking never blocks, and the handler
/// runs only when the user has confirmed a file.
class FilePanels
{
public:
    virtual ~FilePanels() = default;

    /// Asks where to save a file, and which of the kinds. The path handed to `chosen` ends in the
    /// suffix of the kind (in any case), and the user has agreed to overwriting it if it exists.
    virtual void chooseFileToSave(const FileToSave &file, FileChosen chosen) = 0;

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
