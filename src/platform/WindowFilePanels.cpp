#include "platform/WindowFilePanels.h"

#include "platform/Texts.h"
#include "platform/WindowSheets.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace {

QString filter(const char *nameKey, const QString &patterns)
{
    return texts::localized(nameKey) + QStringLiteral(" (") + patterns + QLatin1Char(')');
}

QString patternsOf(const QStringList &suffixes)
{
    QStringList patterns;
    for (const QString &suffix : suffixes)
        patterns += QStringLiteral("*.") + suffix;
    return patterns.join(QLatin1Char(' '));
}

QDialog *makeSavePanel(QWidget *window, const QString &message, const QString &folder,
                       const QString &name, const QString &nameFilter)
{
    auto *const panel = new QFileDialog(window, message, folder);
    panel->setAcceptMode(QFileDialog::AcceptSave);
    panel->setFileMode(QFileDialog::AnyFile);
    panel->setNameFilter(nameFilter);
    // The name is not complete yet when the panel would ask, so the question comes later.
    panel->setOption(QFileDialog::DontConfirmOverwrite);
    panel->selectFile(name);
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

WindowFilePanels::WindowFilePanels(WindowSheets &sheets)
    : m_sheets(sheets)
{}

QString WindowFilePanels::Saving::completed(const QString &path) const
{
    return path.endsWith(suffix, Qt::CaseInsensitive) ? path : path + suffix;
}

void WindowFilePanels::chooseTextFileToSave(const QString &message, const QString &proposedName,
                                            std::function<void(const QString &path)> chosen)
{
    chooseFileToSave({message, "platform.files.texts", QStringLiteral(".txt")}, proposedName,
                     chosen);
}

void WindowFilePanels::chooseDocumentToSave(const QString &proposed,
                                            std::function<void(const QString &path)> chosen)
{
    const QFileInfo file(proposed);
    if (file.isAbsolute() && file.absoluteDir().exists())
        remember(proposed);
    chooseFileToSave({texts::localized("platform.files.saveDocument"), "platform.files.documents",
                      QStringLiteral(".crvgrab")},
                     file.fileName(), chosen);
}

void WindowFilePanels::chooseFileToSave(const Saving &saving, const QString &proposed,
                                        const Chosen &chosen)
{
    m_sheets.presentDialog(
        [this, saving, proposed](QWidget *window) {
            return makeSavePanel(window, saving.message, folderFor(*window), proposed,
                                 filter(saving.filterKey, QLatin1Char('*') + saving.suffix));
        },
        [this, saving, chosen](const QDialog &panel, int result) {
            const QString path = chosenPath(panel, result);
            if (path.isEmpty())
                return;
            remember(path);
            save(saving, saving.completed(path), chosen);
        });
}

void WindowFilePanels::save(const Saving &saving, const QString &path, const Chosen &chosen)
{
    if (!QFileInfo::exists(path)) {
        chosen(path);
        return;
    }
    m_sheets.present(overwriteQuestion(path), [this, saving, path, chosen](SheetAnswer answer) {
        if (answer == SheetAnswer::Default)
            chosen(path);
        else
            chooseFileToSave(saving, QFileInfo(path).fileName(), chosen);
    });
}

void WindowFilePanels::chooseFilesToOpen(const QStringList &suffixes,
                                         std::function<void(const QStringList &paths)> chosen)
{
    const QStringList all = QStringList{QStringLiteral("crvgrab")} + suffixes;
    m_sheets.presentDialog(
        [this, all](QWidget *window) {
            QFileDialog *const panel = makeOpenPanel(window, folderFor(*window));
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
            remember(path);
            chosen(static_cast<const QFileDialog &>(panel).selectedFiles());
        });
}

void WindowFilePanels::choosePictureToOpen(const QStringList &suffixes,
                                           std::function<void(const QString &path)> chosen)
{
    m_sheets.presentDialog(
        [this, suffixes](QWidget *window) {
            QFileDialog *const panel = makeOpenPanel(window, folderFor(*window));
            panel->setNameFilters({filter("platform.files.pictures", patternsOf(suffixes)),
                                   filter("platform.files.all", QStringLiteral("*"))});
            return panel;
        },
        [this, chosen = std::move(chosen)](const QDialog &panel, int result) {
            const QString path = chosenPath(panel, result);
            if (path.isEmpty())
                return;
            remember(path);
            chosen(path);
        });
}

// What belongs to a file is looked for beside it, until the user goes elsewhere.
QString WindowFilePanels::folderFor(const QWidget &window) const
{
    if (!m_folder.isEmpty())
        return m_folder;
    const QFileInfo file(window.windowFilePath());
    if (file.isAbsolute() && file.absoluteDir().exists())
        return file.absolutePath();
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

// A name typed with its folder leaves the panel in another one.
void WindowFilePanels::remember(const QString &path) { m_folder = QFileInfo(path).absolutePath(); }
