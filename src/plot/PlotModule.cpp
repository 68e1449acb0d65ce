#include "plot/PlotModule.h"

#include "plot/PlotView.h"

#include <QDir>
#include <QPluginLoader>

// Wherever the whole installation was moved to, its parts keep their places to each other.
QString PlotModule::folderFor(const QString &programFolder)
{
    return QDir::cleanPath(
        QDir(programFolder).filePath(QStringLiteral(CURVEGRAB_MODULES_FROM_PROGRAM)));
}

PlotViewMaker *PlotModule::maker()
{
    if (m_maker == nullptr) {
        QPluginLoader loader(QDir(m_folder).filePath(QStringLiteral("curvegrabplot")));
        m_maker = qobject_cast<PlotViewMaker *>(loader.instance());
    }
    return m_maker;
}
