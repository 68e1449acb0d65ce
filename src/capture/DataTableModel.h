#pragma once

#include "capture/CaptureSurroundings.h"

#include <QAbstractTableModel>

/// The cells of the data table: a column for each series, a row for each point.
///
/// It keeps no text of its own. The number of rows is the one that was last noted, so that the
/// table is told of new rows in the order in which a view must hear of them.
class DataTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The number of series, hence of columns.
    static constexpr int seriesCount = 10;

    explicit DataTableModel(QObject *parent = nullptr);

    /// Takes the cells from `source` from now on; it must outlive the model.
    void setSource(const TableSource &source);
    /// Shows the markers of `prefs` in the headers; they must outlive the model.
    void setPrefs(const CapturePrefs &prefs);

    /// Compares the number of rows with the source's and tells the views; all cells are read anew.
    void noteNumberOfRowsChanged();
    /// All cells are read anew, the number of rows stays.
    void reloadData();
    /// The markers in the headers are made anew.
    void reloadMarkers();

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    void announceCells();

    const TableSource *m_source = nullptr;
    const CapturePrefs *m_prefs = nullptr;
    int m_rows = 0;
};
