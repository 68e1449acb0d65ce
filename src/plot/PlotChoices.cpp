#include "plot/PlotChoices.h"

#include <QDir>

namespace {
const QString formatKey = QStringLiteral("Plot Format");
const QString folderKey = QStringLiteral("Plot Folder");
} // namespace

PlotChoices::PlotChoices(const QString &path)
    : m_state(path)
{}

plotpicture::Format PlotChoices::format() const
{
    const QString suffix = m_state.objectForKey(formatKey).value_or(QJsonValue()).toString();
    for (const plotpicture::Format format : plotpicture::formats)
        if (plotpicture::suffixOf(format) == suffix)
            return format;
    return plotpicture::formats.front();
}

QString PlotChoices::folder() const
{
    const QString path = m_state.objectForKey(folderKey).value_or(QJsonValue()).toString();
    return QDir::isAbsolutePath(path) && QDir(path).exists() ? path : QString();
}

// A choice that cannot be kept is good for this session all the same.
void PlotChoices::remember(plotpicture::Format format, const QString &folder)
{
    m_state.setObject(plotpicture::suffixOf(format), formatKey);
    m_state.setObject(folder, folderKey);
    static_cast<void>(m_state.synchronize());
}
