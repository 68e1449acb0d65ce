#include "capture/SeriesExport.h"

#include "capture/DataSeries.h"
#include "capture/SeriesText.h"
#include "platform/FilePanels.h"
#include "platform/Sheets.h"
#include "platform/Texts.h"

#include <QFileInfo>
#include <QSaveFile>

#include <utility>

SeriesExport::SeriesExport(const SeriesExportSurroundings &surroundings,
                           std::function<QString()> displayName, QObject *parent)
    : QObject(parent)
    , m_surroundings(surroundings)
    , m_displayName(std::move(displayName))
{}

SeriesExport::~SeriesExport() = default;

void SeriesExport::saveDataAs()
{
    saveSeries(m_surroundings.dataSeries.validSeries(), "SaveAllMessage");
}

void SeriesExport::saveSelectionAs()
{
    saveSeries(m_surroundings.dataSeries.selectedSeries(), "SaveSelectionMessage");
}

void SeriesExport::saveSeries(const IndexSet &series, const char *message)
{
    const bool withTitle = m_surroundings.prefs.saveWithTitle();
    const std::optional<QString> text =
        m_surroundings.dataSeries.makeStringForSeries(series, withTitle);
    if (!text)
        return;
    m_surroundings.panels.chooseTextFileToSave(
        texts::localized(message), proposedFileName(),
        [this, held = *text](const QString &path) { savePanelDidEnd(path, held); });
}

QString SeriesExport::proposedFileName() const
{
    const QString name = m_displayName();
    const auto point = name.lastIndexOf(QLatin1Char('.'));
    // A point in front hides a file; it begins no extension.
    return (point > 0 ? name.left(point) : name) + QStringLiteral(".txt");
}

void SeriesExport::savePanelDidEnd(const QString &path, const QString &text)
{
    const QByteArray content = seriestext::lossyAscii(text);
    QSaveFile file(path);
    // Flushed by hand: commit() does not notice when the last buffered bytes find no room.
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() &&
        file.commit())
        return;
    const QString title = texts::localized("capture.export.failed").arg(QFileInfo(path).fileName());
    m_surroundings.sheets.present(
        {title, reasonOfFailure(path, file.error()), texts::localized("OK"), {}}, {});
}

QString SeriesExport::reasonOfFailure(const QString &path, QFileDevice::FileError error)
{
    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    if (!folder.isDir())
        return texts::localized("capture.export.no-folder").arg(folder.fileName());
    if (file.isDir())
        return texts::localized("capture.export.is-folder");
    if (error == QFileDevice::PermissionsError || !folder.isWritable() ||
        (file.exists() && !file.isWritable()))
        return texts::localized("capture.export.not-allowed");
    return texts::localized("capture.export.not-written");
}
