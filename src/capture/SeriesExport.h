#pragma once

#include "capture/CaptureSurroundings.h"

#include <QFileDevice>
#include <QObject>
#include <QString>

#include <functional>

class DataSeries;
class FilePanels;
class Sheets;

/// What saving data as text works with; all of it outlives the export.
struct SeriesExportSurroundings
{
    DataSeries &dataSeries;
    FilePanels &panels;
    Sheets &sheets;
    CapturePrefs &prefs;
};

/// The commands that save captured data as a text file.
class SeriesExport : public QObject
{
    Q_OBJECT

public:
    /// `displayName` gives the document's name as the user sees it.
    SeriesExport(const SeriesExportSurroundings &surroundings, std::function<QString()> displayName,
                 QObject *parent = nullptr);
    ~SeriesExport() override;

    /// `saveSeries:withMessage:` asks where to save the series; `message` is the key of what
    /// the panel says. Without series nothing happens.
    void saveSeries(const IndexSet &series, const char *message);

    /// Writes `text`, all of it or nothing; a failure is told by a sheet.
    void savePanelDidEnd(const QString &path, const QString &text);

    /// Why `path` could not be written, in the user's words.
    [[nodiscard]] static QString reasonOfFailure(const QString &path, QFileDevice::FileError error);

public Q_SLOTS:
    /// Saves every series that holds points.
    void saveDataAs();
    /// Saves the series selected in the table.
    void saveSelectionAs();

private:
    [[nodiscard]] QString proposedFileName() const;

    const SeriesExportSurroundings m_surroundings;
    const std::function<QString()> m_displayName;
};
