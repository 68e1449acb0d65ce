#pragma once

#include "archiving/ArchiveTree.h"
#include "capture/CaptureSurroundings.h"
#include "capture/SeriesStore.h"
#include "geometry/FloatGeometry.h"

#include <QObject>
#include <QString>

#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
enum class SheetAnswer;

/// The controls of the window that the series store reads and sets.
struct DataSeriesOutlets
{
    QComboBox *seriesPopup = nullptr;     ///< ten items, one per series
    QComboBox *markerDrawPopup = nullptr; ///< three items, the draw modes
    QCheckBox *sortCheck = nullptr;       ///< "Auto Sort"
};

/// What the series store works with; all of it outlives the store.
struct DataSeriesSurroundings
{
    CaptureDocument &document;
    CaptureImageView &graphView;
    CaptureAxes &currentAxes;
    CapturePrefs &prefs;
    CaptureInfoPanel &infoPanel;
};

/// The parts of the window that are made after the series store, because they need it.
struct DataSeriesViews
{
    SeriesGuide *cursorGuide = nullptr;
    SeriesTable *dataTableView = nullptr;
    SeriesMarkerPreview *markerPreview = nullptr;
};

/// The captured points of one document: ten series, the choice of the current one, sorting,
/// deleting, undo, and the text that goes out. It is the table's data source.
class DataSeries : public QObject, public TableSource, public GuideSeries
{
    Q_OBJECT

public:
    /// One series as it was: what undo of an added point restores.
    struct SeriesRecord
    {
        PointList dataArray;
        int series = 0;
    };
    /// Several series as they were: what undo of a deletion restores. The k-th list belongs to
    /// the k-th index.
    struct SeriesSetRecord
    {
        IndexSet seriesIndexes;
        std::vector<PointList> dataSeries;
    };

    DataSeries(const DataSeriesOutlets &outlets, const DataSeriesSurroundings &surroundings,
               QObject *parent = nullptr);
    ~DataSeries() override;

    /// Names the views; to be called once, before awakeFromNib().
    void connectTo(const DataSeriesViews &views);

    /// Takes the state of the controls over and listens to them from now on.
    void awakeFromNib();

    [[nodiscard]] const SeriesStore &store() const { return m_store; }
    /// The points of a series (0 to 9); the reference holds until the series change.
    [[nodiscard]] const std::vector<ZKVector> &points(int series) const;
    [[nodiscard]] std::shared_ptr<const ZKConvCoordinate> converterOf(int series) const;
    /// 0 markers, 1 markers and lines, 2 lines.
    [[nodiscard]] int markerDrawOf(int series) const;

    [[nodiscard]] int count() const;
    [[nodiscard]] int currentSeries() const override { return m_currentSeries; }
    [[nodiscard]] int currentIndex() const override;
    [[nodiscard]] double xValueForSeries1() const override;
    [[nodiscard]] bool autoSortByX() const { return m_autoSortByX; }

    /// The series selected in the table, and how many they are.
    [[nodiscard]] IndexSet selectedSeries() const;
    [[nodiscard]] int numSelectedSeries() const;

    [[nodiscard]] bool isValidSeries(int series) const override;
    [[nodiscard]] IndexSet validSeries() const override;
    [[nodiscard]] IndexSet validSeriesBetween(int first, int last) const override;
    [[nodiscard]] IndexSet validSeriesWithin(const IndexSet &series) const override;
    /// The length of the longest series, 0 when all are empty.
    [[nodiscard]] int maxRows() const;
    [[nodiscard]] int numberOfRowsInTableView() const override { return maxRows(); }
    [[nodiscard]] QString tableView(int objectValueForTableColumn, int row) const override;

    /// `appendData:withConverter:` adds one point, in graph values taken with `converter`, to
    /// the current series. If that one was begun under other axes, the next empty series takes
    /// the point and a sheet says so. False: nothing was added.
    bool appendData(FloatPoint point, const SeriesConverter &converter);

    [[nodiscard]] SeriesRecord copyOfCurrentDataArray() const;
    [[nodiscard]] SeriesSetRecord copyOfDataArraysOfSeries(const IndexSet &series) const;
    void setDataArray(const SeriesRecord &record);
    void setDataArrays(const SeriesSetRecord &record);

    /// `makeStringForSeries:withTitle:` gives the text of the series, or nothing for an empty set.
    [[nodiscard]] std::optional<QString> makeStringForSeries(const IndexSet &series,
                                                             bool withTitle) const;

    /// Hands the preview the current series' plot style and draw mode.
    void setMarkerPreview();

    /// Shows, without waiting, that the axes have changed since the current series was begun.
    void axisChangedAlert(const QString &message);
    /// `alertDidEnd:returnCode:contextInfo:` The alert only tells; its end changes nothing.
    static void alertDidEnd(SheetAnswer returnCode);

    /// Tells everyone who shows points that they changed.
    void refresh();

    [[nodiscard]] ArchiveDictionary dataForSave() const;
    /// Takes over what a document file holds; false without a dictionary.
    bool loadFromData(const ArchiveDictionary *data);

public Q_SLOTS:
    void deleteSelection();
    void copySelection();
    void moveToNextSeries();
    void moveToPrevSeries();
    /// Makes the series that the pop-up shows the current one.
    void seriesChanged();
    void markerDrawChanged();
    void setDrawMarkers();
    void setDrawMarkersAndLines();
    void setDrawLines();
    void sortChanged();
    void simulateToggleSort();

private:
    /// Sees to it that a point taken with `converter` may join the current series, which may
    /// become another one; false: every series is in use.
    [[nodiscard]] bool makeRoomForConverter(const SeriesConverter &converter);
    void registerUndoOfCurrentSeries();
    void registerUndoOfSeries(const IndexSet &series);
    void moveToSeries(int series);
    void takeSeriesFromPopup();
    void showDrawModeOfCurrentSeries();
    void chooseDrawMode(int mode);

    const DataSeriesOutlets m_outlets;
    const DataSeriesSurroundings m_surroundings;
    DataSeriesViews m_views;
    SeriesStore m_store;
    int m_currentSeries = 0;
    bool m_autoSortByX = false;
};
