#include "platform/Modules.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>

namespace {

QString &chosenFolder()
{
    static QString folder;
    return folder;
}

} // namespace

// Wherever the whole installation was moved to, its parts keep their places to each other.
QString modules::folderFor(const QString &programFolder)
{
    return QDir::cleanPath(
        QDir(programFolder).filePath(QStringLiteral(CURVEGRAB_MODULES_FROM_PROGRAM)));
}

QString modules::folder()
{
    const QString &chosen = chosenFolder();
    return chosen.isEmpty() ? folderFor(QCoreApplication::applicationDirPath()) : chosen;
}

void modules::setFolder(const QString &folder) { chosenFolder() = folder; }

QObject *modules::root(const QString &folder, const QString &name)
{
    return QPluginLoader(QDir(folder).filePath(name)).instance();
}
