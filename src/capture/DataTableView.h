#pragma once

#include "archiving/ArchiveTree.h"
#include "capture/CaptureSurroundings.h"

#include <QPoint>
#include <QTableView>

#include <optional>

class DataTableHeader;
class DataTableModel;

/// The table of captured points: a column for each series, a row for each point.
///
/// What is selected are whole series, and only such as hold points when they are selected. The
/// selection is a set of its own: it survives new rows, and nothing is pruned from it when a
/// series loses its points. Rows and cells cannot be selected.
class DataTableView : public QTableView, public SeriesTable
{
    Q_OBJECT

public:
    explicit DataTableView(QWidget *parent = nullptr);

    /// The store that the table shows, and the styles of the markers in its headers. Both outlive
    /// it.
    void setDataSource(const TableSource &source, const CapturePrefs &prefs);

    [[nodiscard]] IndexSet selectedColumnIndexes() const override { return m_selectedColumns; }
    [[nodiscard]] bool isColumnSelected(int column) const
    {
        return m_selectedColumns.contains(column);
    }
    /// The anchor of shift-clicks; -1 without one.
    [[nodiscard]] int lastClickedCol() const { return m_lastClickedCol; }
    /// The column that the keyboard acts on.
    [[nodiscard]] int currentColumn() const { return m_currentColumn; }

    /// `selectColumnIndexes:byExtendingSelection:` selects those of the columns that hold points.
    /// Every selection passes through here. With none of them nothing stays selected, or everything
    /// as it was when extending.
    void selectColumnIndexes(const IndexSet &columns, bool byExtendingSelection);
    void deselectAll() override;

    void noteNumberOfRowsChanged() override;
    void reloadData() override;
    void scrollColumnToVisible(int column) override;
    /// The styles of the series were changed.
    void reloadMarkers();

    /// How wide columns are before there is something in them. From then on a column is as wide as
    /// the widest of the texts that were seen in it, until somebody chooses its width; a double
    /// click on the edge of its title leaves the choice to the texts again.
    void setWidthOfEmptyColumns(int width);

    /// The column widths.
    [[nodiscard]] ArchiveDictionary dataForSave() const;
    /// False without a dictionary.
    bool loadFromData(const ArchiveDictionary *dictionary);

public Q_SLOTS:
    /// Selects all series that hold points.
    void selectAll() override;

Q_SIGNALS:
    /// Other columns are selected than before.
    void selectedColumnsChanged();
    /// The user drags the selected columns away; the button is down.
    void selectionDragged();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;

private:
    void setUpHeaders();
    /// A press on a column, of its body or of its header; false when it is for the platform's
    /// table.
    bool pressColumn(int column, Qt::KeyboardModifiers modifiers);
    [[nodiscard]] bool waitsForRelease(int column, Qt::KeyboardModifiers modifiers) const;
    void moveCurrentColumn(int step, Qt::KeyboardModifiers modifiers);
    void setCurrentColumn(int column);
    bool scrollByKey(int key);
    void setSelectedColumns(IndexSet columns);
    void describeSelection();
    void chooseWidth(int column);
    void widenToTexts();
    [[nodiscard]] int widthOfTextsIn(int column) const;

    DataTableModel *m_model;
    DataTableHeader *m_header;
    const TableSource *m_source = nullptr;
    IndexSet m_selectedColumns;
    int m_lastClickedCol = -1;
    int m_currentColumn = -1;
    IndexSet m_columnsOfChosenWidth;
    bool m_isWidening = false; ///< a width that changes meanwhile was not chosen
    /// Where a drag of the selected columns would begin.
    std::optional<QPoint> m_dragStart;
    /// The column that a release without a drag will press; -1 without one.
    int m_columnToPress = -1;
    int m_columnToShow = -1; ///< asked for before the table had its width
};
