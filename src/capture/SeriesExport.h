#pragma once

#include "capture/CaptureSurroundings.h"
#include "platform/FilePanels.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

class DataSeries;
class Sheets;

/// The formats in which series are saved; the first of them is the fixed text.
class SeriesFormats
{
public:
    /// Makes the content of a file of a kind other than the text; nothing if that is not possible.
    using Maker = std::function<std::optional<QByteArray>(std::size_t kind)>;

    virtual ~SeriesFormats() = default;
    [[nodiscard]] virtual std::vector<FileKind> offered() const = 0;
    /// What the user chose last time; the folder is empty if there was none.
    [[nodiscard]] virtual std::size_t lastChosen() const = 0;
    [[nodiscard]] virtual QString lastFolder() const = 0;
    virtual void remember(std::size_t kind, const QString &folder) = 0;
    /// For the series as they are now.
    [[nodiscard]] virtual Maker maker(const IndexSet &series, bool withTitle) const = 0;
    /// Why a content could not be made, in the user's words.
    [[nodiscard]] virtual QString reasonOfNothing() const = 0;
};

/// What saving data works with; all of it outlives the export.
struct SeriesExportSurroundings
{
    DataSeries &dataSeries;
    FilePanels &panels;
    Sheets &sheets;
    CapturePrefs &prefs;
    SeriesFormats &formats;
};

/// The commands that save captured data as a text file, or in another format.
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

public Q_SLOTS:
    /// Saves every series that holds points.
    void saveDataAs();
    /// Saves the series selected in the table.
    void saveSelectionAs();

private:
    [[nodiscard]] QString proposedFileName() const;
    void write(const QString &path, const QByteArray &content);
    void tellFailure(const QString &path, const QString &reason);

    const SeriesExportSurroundings m_surroundings;
    const std::function<QString()> m_displayName;
};
