#include "platform/WindowFilePanels.h"

#include "platform/Texts.h"
#include "platform/WindowSheets.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

using Panel = PanelFolders::Panel;

namespace {

QString filter(const QString &name, const QString &patterns)
{
    return name + QStringLiteral(" (") + patterns + QLatin1Char(')');
}

QString filter(const char *nameKey, const QString &patterns)
{
    return filter(texts::localized(nameKey), patterns);
}

QStringList filters(const std::vector<FileKind> &kinds)
{
    QStringList filters;
    for (const FileKind &kind : kinds)
        filters += filter(kind.name, QLatin1Char('*') + kind.suffix);
    return filters;
}

bool endsIn(const QString &path, const FileKind &kind)
{
    return path.endsWith(kind.suffix, Qt::CaseInsensitive);
}

/// The property of a panel that keeps the name which it shows on its own account.
constexpr char proposedName[] = "proposedName";

/// The kind that the user means: the one of a suffix that was typed, otherwise the one of the
/// filter. The suffix of a proposed name was not typed.
std::size_t kindOf(const FileToSave &file, const QString &path, const QFileDialog &panel)
{
    if (QFileInfo(path).fileName() != panel.property(proposedName).toString())
        for (std::size_t i = 0; i < file.kinds.size(); ++i)
            if (endsIn(path, file.kinds[i]))
                return i;
    const auto chosenFilter = panel.nameFilters().indexOf(panel.selectedNameFilter());
    return chosenFilter < 0 ? file.kind : static_cast<std::size_t>(chosenFilter);
}

QString withoutSuffix(const QString &path, const FileKind &kind)
{
    return endsIn(path, kind) ? path.chopped(kind.suffix.size()) : path;
}

/// The path with the suffix of its kind in place of the proposed one.
QString completed(const FileToSave &file, const QString &path, std::size_t kind)
{
    if (endsIn(path, file.kinds[kind]))
        return path;
    return withoutSuffix(path, file.kinds[file.kind]) + file.kinds[kind].suffix;
}

void propose(QFileDialog &panel, const QString &name)
{
    panel.selectFile(name);
    // Panels of the desktop may keep the name that they have.
    const QStringList paths = panel.selectedFiles();
    panel.setProperty(proposedName,
                      paths.isEmpty() ? QString() : QFileInfo(paths.first()).fileName());
}

/// Another filter gives the name in the panel its suffix.
void renameWithFilter(QFileDialog &panel, const std::vector<FileKind> &kinds)
{
    const auto chosen = panel.nameFilters().indexOf(panel.selectedNameFilter());
    const QStringList paths = panel.selectedFiles();
    if (chosen < 0 || paths.isEmpty())
        return;
    const QString name = QFileInfo(paths.first()).fileName();
    for (const FileKind &kind : kinds)
        if (endsIn(name, kind)) {
            propose(panel,
                    withoutSuffix(name, kind) + kinds[static_cast<std::size_t>(chosen)].suffix);
            return;
        }
}

QString patternsOf(const QStringList &suffixes)
{
    QStringList patterns;
    for (const QString &suffix : suffixes)
        patterns += QStringLiteral("*.") + suffix;
    return patterns.join(QLatin1Char(' '));
}

QDialog *makeSavePanel(QWidget *window, const FileToSave &file, const QString &folder)
{
    auto *const panel = new QFileDialog(window, file.message, folder);
    panel->setAcceptMode(QFileDialog::AcceptSave);
    panel->setFileMode(QFileDialog::AnyFile);
    panel->setNameFilters(filters(file.kinds));
    panel->selectNameFilter(panel->nameFilters().at(static_cast<qsizetype>(file.kind)));
    // The name is not complete yet when the panel would ask, so the question comes later.
    panel->setOption(QFileDialog::DontConfirmOverwrite);
    propose(*panel, completed(file, file.proposedName, file.kind));
    QObject::connect(panel, &QFileDialog::filterSelected, panel,
                     [panel, kinds = file.kinds] { renameWithFilter(*panel, kinds); });
    return panel;
}

QFileDialog *makeOpenPanel(QWidget *window, const QString &folder)
{
    auto *const panel =
        new QFileDialog(window, texts::localized("platform.files.openPicture"), folder);
    panel->setAcceptMode(QFileDialog::AcceptOpen);
    panel->setFileMode(QFileDialog::ExistingFile);
    return panel;
}

/// The file that the user has confirmed, or an empty text.
QString chosenPath(const QDialog &dialog, int result)
{
    const QStringList paths = static_cast<const QFileDialog &>(dialog).selectedFiles();
    return result == QDialog::Accepted && !paths.isEmpty() ? paths.first() : QString();
}

Sheet overwriteQuestion(const QString &path)
{
    return {texts::localized("platform.files.overwrite").arg(QFileInfo(path).fileName()),
            texts::localized("platform.files.overwriteHint"),
            texts::localized("platform.files.replace"), texts::localized("Cancel")};
}

} // namespace

WindowFilePanels::WindowFilePanels(WindowSheets &sheets, PanelFolders &folders)
    : m_sheets(sheets)
    , m_folders(folders)
{}

void WindowFilePanels::chooseFileToSave(const FileToSave &file, FileChosen chosen)
{
    askToSave(Panel::SaveData, file, chosen);
}

void WindowFilePanels::askToSave(Panel kindOfPanel, const FileToSave &file,
                                 const FileChosen &chosen)
{
    m_sheets.presentDialog(
        [this, kindOfPanel, file](QWidget *window) {
            return makeSavePanel(window, file,
                                 file.folder.isEmpty() ? folderFor(kindOfPanel, *window)
                                                       : file.folder);
        },
        [this, kindOfPanel, file, chosen](const QDialog &dialog, int result) {
            const QString path = chosenPath(dialog, result);
            if (path.isEmpty())
                return;
            remember(kindOfPanel, path);
            const std::size_t kind = kindOf(file, path, static_cast<const QFileDialog &>(dialog));
            const QString whole = completed(file, path, kind);
            FileToSave next = file;
            next.kind = kind;
            next.folder.clear();
            save(kindOfPanel, next, whole, chosen);
        });
}

void WindowFilePanels::chooseDocumentToSave(const QString &proposed,
                                            std::function<void(const QString &path)> chosen)
{
    const QFileInfo file(proposed);
    if (file.isAbsolute() && file.absoluteDir().exists())
        m_folder = file.absolutePath();
    askToSave(
        Panel::SaveDocument,
        {texts::localized("platform.files.saveDocument"),
         file.fileName(),
         {{texts::localized("platform.files.documents"), QStringLiteral(".crvgrab")}},
         0,
         {}},
        [chosen = std::move(chosen)](const QString &path, std::size_t /*kind*/) { chosen(path); });
}

void WindowFilePanels::save(Panel panel, const FileToSave &file, const QString &path,
                            const FileChosen &chosen)
{
    if (!QFileInfo::exists(path)) {
        chosen(path, file.kind);
        return;
    }
    m_sheets.present(overwriteQuestion(path),
                     [this, panel, file, path, chosen](SheetAnswer answer) {
                         if (answer == SheetAnswer::Default) {
                             chosen(path, file.kind);
                             return;
                         }
                         FileToSave again = file;
                         again.proposedName = QFileInfo(path).fileName();
                         askToSave(panel, again, chosen);
                     });
}

void WindowFilePanels::chooseFilesToOpen(const QStringList &suffixes,
                                         std::function<void(const QStringList &paths)> chosen)
{
    const QStringList all = QStringList{QStringLiteral("crvgrab")} + suffixes;
    m_sheets.presentDialog(
        [this, all](QWidget *window) {
            QFileDialog *const panel = makeOpenPanel(window, folderFor(Panel::OpenFiles, *window));
            panel->setWindowTitle(texts::localized("platform.files.openFiles"));
            panel->setFileMode(QFileDialog::ExistingFiles);
            panel->setNameFilters({filter("platform.files.documentsAndPictures", patternsOf(all)),
                                   filter("platform.files.documents", QStringLiteral("*.crvgrab")),
                                   filter("platform.files.all", QStringLiteral("*"))});
            return panel;
        },
        [this, chosen = std::move(chosen)](const QDialog &panel, int result) {
            const QString path = chosenPath(panel, result);
            if (path.isEmpty())
                return;
            remember(Panel::OpenFiles, path);
            chosen(static_cast<const QFileDialog &>(panel).selectedFiles());
        });
}

void WindowFilePanels::choosePictureToOpen(const QStringList &suffixes,
                                           std::function<void(const QString &path)> chosen)
{
    m_sheets.presentDialog(
        [this, suffixes](QWidget *window) {
            QFileDialog *const panel =
                makeOpenPanel(window, folderFor(Panel::OpenPicture, *window));
            panel->setNameFilters({filter("platform.files.pictures", patternsOf(suffixes)),
                                   filter("platform.files.all", QStringLiteral("*"))});
            return panel;
        },
        [this, chosen = std::move(chosen)](const QDialog &panel, int result) {
            const QString path = chosenPath(panel, result);
            if (path.isEmpty())
                return;
            remember(Panel::OpenPicture, path);
            chosen(path);
        });
}

// What belongs to a file is looked for beside it, until the user goes elsewhere.
QString WindowFilePanels::folderFor(Panel panel, const QWidget &window) const
{
    if (!m_folder.isEmpty())
        return m_folder;
    const QFileInfo file(window.windowFilePath());
    if (file.isAbsolute() && file.absoluteDir().exists())
        return file.absolutePath();
    if (QString last = m_folders.folderOf(panel); !last.isEmpty())
        return last;
    QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

// A name typed with its folder leaves the panel in another one.
void WindowFilePanels::remember(Panel panel, const QString &path)
{
    m_folder = QFileInfo(path).absolutePath();
    m_folders.setFolderOf(panel, m_folder);
}
