#include "capture/DataTableModel.h"

#include "capture/MarkerDrawing.h"
#include "platform/Texts.h"

#include <QGuiApplication>

#include <string>

namespace {

/// Side of the marker beside a column's title.
constexpr int swatchSide = 13;

QString countedFromOne(int index) { return QString::fromStdString(std::to_string(index + 1)); }

} // namespace

DataTableModel::DataTableModel(QObject *parent)
    : QAbstractTableModel(parent)
{}

void DataTableModel::setSource(const TableSource &source)
{
    m_source = &source;
    noteNumberOfRowsChanged();
}

void DataTableModel::setPrefs(const CapturePrefs &prefs)
{
    m_prefs = &prefs;
    reloadMarkers();
}

void DataTableModel::noteNumberOfRowsChanged()
{
    const int rows = m_source == nullptr ? 0 : m_source->numberOfRowsInTableView();
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    } else if (rows < m_rows) {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    }
    announceCells();
}

void DataTableModel::reloadData() { announceCells(); }

void DataTableModel::announceCells()
{
    if (m_rows > 0)
        Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, seriesCount - 1));
}

void DataTableModel::reloadMarkers()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, seriesCount - 1);
}

int DataTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int DataTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : seriesCount;
}

QVariant DataTableModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid() || m_source == nullptr)
        return {};
    return m_source->tableView(index.column(), index.row());
}

QVariant DataTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? QVariant(countedFromOne(section)) : QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return countedFromOne(section);
    case Qt::DecorationRole:
        if (m_prefs == nullptr)
            return {};
        return markerdrawing::swatch(m_prefs->plotPrefsForSeries(section), swatchSide,
                                     qGuiApp->devicePixelRatio());
    case Qt::AccessibleTextRole:
        return texts::localizedFormat("capture.table.column", section + 1);
    case Qt::ToolTipRole:
        return texts::localizedFormat("capture.table.columnTip", section + 1);
    default:
        return {};
    }
}
