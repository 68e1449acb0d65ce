#include "platform/WindowFilePanels.h"

#include "platform/Texts.h"
#include "platform/WindowSheets.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace {

QString withTextSuffix(const QString &path)
{
    const QString suffix = QStringLiteral(".txt");
    return path.endsWith(suffix, Qt::CaseInsensitive) ? path : path + suffix;
}

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
                       const QString &name)
{
    auto *const panel = new QFileDialog(window, message, folder);
    panel->setAcceptMode(QFileDialog::AcceptSave);
    panel->setFileMode(QFileDialog::AnyFile);
    panel->setNameFilter(filter("platform.files.texts", QStringLiteral("*.txt")));
    // The name is not complete yet when the panel would ask, so the question comes later.
    panel->setOption(QFileDialog::DontConfirmOverwrite);
    panel->selectFile(name);
    return panel;
}

QDialog *makeOpenPanel(QWidget *window, const QString &folder, const QStringList &suffixes)
{
    auto *const panel =
        new QFileDialog(window, texts::localized("platform.files.openPicture"), folder);
    panel->setAcceptMode(QFileDialog::AcceptOpen);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setNameFilters({filter("platform.files.pictures", patternsOf(suffixes)),
                           filter("platform.files.all", QStringLiteral("*"))});
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
    , m_folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
{}

void WindowFilePanels::chooseTextFileToSave(const QString &message, const QString &proposedName,
                                            std::function<void(const QString &path)> chosen)
{
    m_sheets.presentDialog(
        [this, message, proposedName](QWidget *window) {
            return makeSavePanel(window, message, m_folder, proposedName);
        },
        [this, message, chosen = std::move(chosen)](const QDialog &panel, int result) {
            const QString path = chosenPath(panel, result);
            if (path.isEmpty())
                return;
            remember(path);
            save(message, withTextSuffix(path), chosen);
        });
}

void WindowFilePanels::save(const QString &message, const QString &path, const Chosen &chosen)
{
    if (!QFileInfo::exists(path)) {
        chosen(path);
        return;
    }
    m_sheets.present(overwriteQuestion(path), [this, message, path, chosen](SheetAnswer answer) {
        if (answer == SheetAnswer::Default)
            chosen(path);
        else
            chooseTextFileToSave(message, QFileInfo(path).fileName(), chosen);
    });
}

void WindowFilePanels::choosePictureToOpen(const QStringList &suffixes,
                                           std::function<void(const QString &path)> chosen)
{
    m_sheets.presentDialog(
        [this, suffixes](QWidget *window) { return makeOpenPanel(window, m_folder, suffixes); },
        [this, chosen = std::move(chosen)](const QDialog &panel, int result) {
            const QString path = chosenPath(panel, result);
            if (path.isEmpty())
                return;
            remember(path);
            chosen(path);
        });
}

// A name typed with its folder leaves the panel in another one.
void WindowFilePanels::remember(const QString &path) { m_folder = QFileInfo(path).absolutePath(); }
