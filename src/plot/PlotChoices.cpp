#include "plot/PlotChoices.h"

#include "platform/WindowPlacement.h"

namespace {
const QString formatKey = QStringLiteral("Plot Format");
const QString folderKey = QStringLiteral("Plot Folder");
const QString placementKey = QStringLiteral("Plot Window");
} // namespace

PlotChoices::PlotChoices(const QString &path)
    : m_state(path)
{}

plotpicture::Format PlotChoices::format() const
{
    const QString suffix = m_state.value(formatKey).toString();
    for (const plotpicture::Format format : plotpicture::formats)
        if (plotpicture::suffixOf(format) == suffix)
            return format;
    return plotpicture::formats.front();
}

QString PlotChoices::folder() const { return m_state.folder(folderKey); }

void PlotChoices::remember(plotpicture::Format format, const QString &folder)
{
    m_state.remember(plotpicture::suffixOf(format), formatKey);
    m_state.remember(folder, folderKey);
}

void PlotChoices::placeWindow(QWidget &window) const
{
    windowplacement::restore(window, m_state, placementKey);
}

void PlotChoices::rememberPlaceOf(const QWidget &window)
{
    windowplacement::remember(window, m_state, placementKey);
}
