#include "plot/PlotModule.h"

#include "platform/Modules.h"
#include "plot/PlotView.h"

QString PlotModule::folderFor(const QString &programFolder)
{
    return modules::folderFor(programFolder);
}

PlotViewMaker *PlotModule::maker()
{
    if (m_maker == nullptr)
        m_maker = modules::find<PlotViewMaker>(m_folder, QStringLiteral("curvegrabplot"));
    return m_maker;
}
