#include "capture/SeriesExport.h"

#include "capture/DataSeries.h"
#include "capture/SeriesText.h"
#include "platform/DurableFile.h"
#include "platform/Sheets.h"
#include "platform/Texts.h"

#include <QFileInfo>

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
    const auto chosen = [this, held = *text,
                         maker = m_surroundings.formats.maker(series, withTitle)](
                            const QString &path, std::size_t kind) {
        m_surroundings.formats.remember(kind, QFileInfo(path).absolutePath());
        if (kind == 0)
            savePanelDidEnd(path, held);
        else if (const std::optional<QByteArray> content = maker(kind))
            write(path, *content);
        else
            tellFailure(path, m_surroundings.formats.reasonOfNothing());
    };
    m_surroundings.panels.chooseFileToSave(
        {texts::localized(message), proposedFileName(), m_surroundings.formats.offered(),
         m_surroundings.formats.lastChosen(), m_surroundings.formats.lastFolder()},
        chosen);
}

QString SeriesExport::proposedFileName() const
{
    const QString name = m_displayName();
    const auto point = name.lastIndexOf(QLatin1Char('.'));
    // A point in front hides a file; it begins no extension.
    return point > 0 ? name.left(point) : name;
}

void SeriesExport::savePanelDidEnd(const QString &path, const QString &text)
{
    write(path, seriestext::lossyAscii(text));
}

void SeriesExport::write(const QString &path, const QByteArray &content)
{
    if (const std::optional<QString> reason = durablefile::write(path, content))
        tellFailure(path, *reason);
}

void SeriesExport::tellFailure(const QString &path, const QString &reason)
{
    const QString title = texts::localized("capture.export.failed").arg(QFileInfo(path).fileName());
    m_surroundings.sheets.present({title, reason, texts::localized("OK"), {}}, {});
}
