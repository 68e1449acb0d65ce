#include "capture/DataSeries.h"

#include "capture/SeriesArchive.h"
#include "capture/SeriesText.h"
#include "platform/Clipboard.h"
#include "platform/NumberText.h"
#include "platform/Sheets.h"
#include "platform/Texts.h"
#include "platform/UndoManager.h"

#include <QCheckBox>
#include <QComboBox>

#include <cstddef>
#include <cstdint>

namespace {

/// Selects an item as the program does, without the pop-up's action; an index that is no item
/// leaves the selection as it is.
void selectItem(QComboBox *popup, int index)
{
    if (index >= 0 && index < popup->count())
        popup->setCurrentIndex(index);
}

bool isOn(const QCheckBox *check) { return check->checkState() == Qt::Checked; }

} // namespace

DataSeries::DataSeries(const DataSeriesOutlets &outlets, const DataSeriesSurroundings &surroundings,
                       QObject *parent)
    : QObject(parent)
    , m_outlets(outlets)
    , m_surroundings(surroundings)
{}

DataSeries::~DataSeries() = default;

void DataSeries::connectTo(const DataSeriesViews &views) { m_views = views; }

void DataSeries::awakeFromNib()
{
    connect(m_outlets.seriesPopup, &QComboBox::activated, this, &DataSeries::seriesChanged);
    connect(m_outlets.markerDrawPopup, &QComboBox::activated, this, &DataSeries::markerDrawChanged);
    connect(m_outlets.sortCheck, &QCheckBox::clicked, this, &DataSeries::sortChanged);
    takeSeriesFromPopup();
    m_autoSortByX = isOn(m_outlets.sortCheck);
    setMarkerPreview();
}

const std::vector<ZKVector> &DataSeries::points(int series) const { return m_store.points(series); }

std::shared_ptr<const ZKConvCoordinate> DataSeries::converterOf(int series) const
{
    return m_store.converterOf(series);
}

int DataSeries::markerDrawOf(int series) const { return m_store.markerDrawOf(series); }

int DataSeries::count() const { return SeriesStore::seriesCount; }

int DataSeries::currentIndex() const { return m_store.pointCount(m_currentSeries); }

double DataSeries::xValueForSeries1() const
{
    const int next = currentIndex();
    if (m_store.pointCount(0) > next)
        return points(0)[static_cast<std::size_t>(next)].X();
    return m_surroundings.currentAxes.minXValue();
}

IndexSet DataSeries::selectedSeries() const
{
    return m_views.dataTableView->selectedColumnIndexes();
}

int DataSeries::numSelectedSeries() const { return static_cast<int>(selectedSeries().size()); }

bool DataSeries::isValidSeries(int series) const { return m_store.isValidSeries(series); }

IndexSet DataSeries::validSeries() const
{
    return validSeriesBetween(0, SeriesStore::seriesCount - 1);
}

IndexSet DataSeries::validSeriesBetween(int first, int last) const
{
    return m_store.validSeriesBetween(first, last);
}

IndexSet DataSeries::validSeriesWithin(const IndexSet &series) const
{
    return m_store.validSeriesWithin(series);
}

int DataSeries::maxRows() const { return m_store.maxRows(); }

QString DataSeries::tableView(int objectValueForTableColumn, int row) const
{
    constexpr int digits = 3;
    const int series = objectValueForTableColumn;
    if (!SeriesStore::isSeries(series) || row < 0 || row >= m_store.pointCount(series))
        return {};
    const ZKVector &point = points(series)[static_cast<std::size_t>(row)];
    return QString::fromStdString("(" + numbertext::general(point.X(), digits) + ", " +
                                  numbertext::general(point.Y(), digits) + ")");
}

bool DataSeries::appendData(FloatPoint point, const SeriesConverter &converter)
{
    if (converter == nullptr || !makeRoomForConverter(converter))
        return false;
    UndoManager &undoManager = m_surroundings.document.undoManager();
    undoManager.setActionName(texts::localized("actionDataAppend"));
    registerUndoOfCurrentSeries();
    const ZKVector value = ZKVector::vectorWithNSPoint(point);
    if (m_autoSortByX)
        m_store.appendSorted(m_currentSeries, value);
    else
        m_store.append(m_currentSeries, value);
    refresh();
    return true;
}

bool DataSeries::makeRoomForConverter(const SeriesConverter &converter)
{
    if (!isValidSeries(m_currentSeries)) {
        m_store.setConverter(m_currentSeries, converter);
        return true;
    }
    if (m_store.converterOf(m_currentSeries)->isEqualConverterAs(*converter))
        return true;
    const std::optional<int> empty = m_store.emptySeriesNextTo(m_currentSeries);
    if (!empty) {
        axisChangedAlert(texts::localized("SeriesIsFull"));
        return false;
    }
    selectItem(m_outlets.seriesPopup, *empty);
    m_store.setConverter(*empty, converter);
    seriesChanged();
    axisChangedAlert(texts::localizedFormat("NextSeriesUsed", *empty + 1));
    return true;
}

void DataSeries::deleteSelection()
{
    const IndexSet selection = selectedSeries();
    if (selection.empty())
        return;
    m_surroundings.document.undoManager().setActionName(texts::localized("actionDataDelete"));
    registerUndoOfSeries(selection);
    for (const int series : selection) {
        if (SeriesStore::isSeries(series))
            m_store.clear(series);
    }
    m_views.dataTableView->deselectAll();
    refresh();
}

DataSeries::SeriesRecord DataSeries::copyOfCurrentDataArray() const
{
    return {m_store.list(m_currentSeries), m_currentSeries};
}

DataSeries::SeriesSetRecord DataSeries::copyOfDataArraysOfSeries(const IndexSet &series) const
{
    SeriesSetRecord record{series, {}};
    for (const int i : series) {
        if (SeriesStore::isSeries(i))
            record.dataSeries.push_back(m_store.list(i));
    }
    return record;
}

void DataSeries::setDataArray(const SeriesRecord &record)
{
    selectItem(m_outlets.seriesPopup, record.series);
    seriesChanged();
    registerUndoOfCurrentSeries();
    m_store.setList(record.series, record.dataArray);
    refresh();
}

void DataSeries::setDataArrays(const SeriesSetRecord &record)
{
    registerUndoOfSeries(record.seriesIndexes);
    auto list = record.dataSeries.begin();
    for (const int series : record.seriesIndexes) {
        if (SeriesStore::isSeries(series) && list != record.dataSeries.end())
            m_store.setList(series, *list++);
    }
    refresh();
}

void DataSeries::registerUndoOfCurrentSeries()
{
    m_surroundings.document.undoManager().registerUndo(
        this, [this, record = copyOfCurrentDataArray()] { setDataArray(record); });
}

void DataSeries::registerUndoOfSeries(const IndexSet &series)
{
    m_surroundings.document.undoManager().registerUndo(
        this, [this, record = copyOfDataArraysOfSeries(series)] { setDataArrays(record); });
}

std::optional<QString> DataSeries::makeStringForSeries(const IndexSet &series, bool withTitle) const
{
    const std::optional<std::string> text = seriestext::makeString(m_store, series, withTitle);
    if (!text)
        return std::nullopt;
    return QString::fromStdString(*text);
}

void DataSeries::copySelection()
{
    const bool withTitle = m_surroundings.prefs.copyWithTitle();
    if (const std::optional<QString> text = makeStringForSeries(selectedSeries(), withTitle))
        m_surroundings.document.clipboard().setTable(*text);
}

void DataSeries::moveToNextSeries()
{
    if (m_currentSeries < SeriesStore::seriesCount - 1)
        moveToSeries(m_currentSeries + 1);
}

void DataSeries::moveToPrevSeries()
{
    if (m_currentSeries > 0)
        moveToSeries(m_currentSeries - 1);
}

void DataSeries::moveToSeries(int series)
{
    selectItem(m_outlets.seriesPopup, series);
    seriesChanged();
}

void DataSeries::seriesChanged()
{
    takeSeriesFromPopup();
    showDrawModeOfCurrentSeries();
    setMarkerPreview();
    m_views.dataTableView->scrollColumnToVisible(m_currentSeries);
    m_views.cursorGuide->seriesChanged();
    m_surroundings.infoPanel.updateDataInfo();
}

void DataSeries::takeSeriesFromPopup()
{
    const int selected = m_outlets.seriesPopup->currentIndex();
    if (SeriesStore::isSeries(selected))
        m_currentSeries = selected;
}

void DataSeries::showDrawModeOfCurrentSeries()
{
    const int mode = m_store.markerDrawOf(m_currentSeries);
    selectItem(m_outlets.markerDrawPopup, mode);
    // A document file may hold a mode that does not exist: the series then has the one shown.
    const int shown = m_outlets.markerDrawPopup->currentIndex();
    if (shown != mode)
        m_store.setMarkerDraw(m_currentSeries, shown);
}

void DataSeries::markerDrawChanged()
{
    m_store.setMarkerDraw(m_currentSeries, m_outlets.markerDrawPopup->currentIndex());
    setMarkerPreview();
    m_surroundings.graphView.setNeedsDisplay();
}

void DataSeries::setDrawMarkers() { chooseDrawMode(0); }

void DataSeries::setDrawMarkersAndLines() { chooseDrawMode(1); }

void DataSeries::setDrawLines() { chooseDrawMode(2); }

void DataSeries::chooseDrawMode(int mode)
{
    selectItem(m_outlets.markerDrawPopup, mode);
    markerDrawChanged();
}

void DataSeries::sortChanged()
{
    m_autoSortByX = isOn(m_outlets.sortCheck);
    if (!m_autoSortByX)
        return;
    m_store.sortAll();
    m_views.dataTableView->reloadData();
    m_surroundings.graphView.setNeedsDisplay();
}

void DataSeries::simulateToggleSort()
{
    m_outlets.sortCheck->setChecked(!isOn(m_outlets.sortCheck));
    sortChanged();
}

void DataSeries::setMarkerPreview()
{
    m_views.markerPreview->setPreview(m_surroundings.prefs.plotPrefsForSeries(m_currentSeries),
                                      m_store.markerDrawOf(m_currentSeries));
    m_views.markerPreview->setNeedsDisplay();
}

void DataSeries::axisChangedAlert(const QString &message)
{
    m_surroundings.document.sheets().present(
        {texts::localized("AxisChanged"), message, texts::localized("OK"), {}},
        &DataSeries::alertDidEnd);
}

void DataSeries::alertDidEnd(SheetAnswer /*returnCode*/) {}

void DataSeries::refresh()
{
    m_views.dataTableView->noteNumberOfRowsChanged();
    m_views.cursorGuide->setAutoXValue();
    m_surroundings.graphView.setNeedsDisplay();
    m_surroundings.infoPanel.updateDataInfo();
}

ArchiveDictionary DataSeries::dataForSave() const
{
    ArchiveDictionary data;
    data.set("Current Series", ArchiveValue{std::int64_t{m_currentSeries}});
    seriesarchive::putLists(data, m_store);
    data.set("Auto Sort", ArchiveValue{m_autoSortByX});
    return data;
}

bool DataSeries::loadFromData(const ArchiveDictionary *data)
{
    if (data == nullptr)
        return false;
    m_store = seriesarchive::storeFromData(*data);
    selectItem(m_outlets.seriesPopup, data->intForKey("Current Series"));
    m_autoSortByX = data->boolForKey("Auto Sort");
    m_outlets.sortCheck->setChecked(m_autoSortByX);
    seriesChanged();
    refresh();
    return true;
}
