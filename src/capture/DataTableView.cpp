#include "capture/DataTableView.h"

#include "capture/DataTableHeader.h"
#include "capture/DataTableModel.h"
#include "platform/Texts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>
#include <string>
#include <utility>

namespace {

constexpr const char *columnWidthsKey = "Column Widths";
constexpr qreal cellFontSize = 10;
constexpr int minimumColumnWidth = 24;
/// Left and right of the text that fits a column.
constexpr int cellPadding = 12;

/// The width that a column needs for `text`.
int widthFor(const QString &text, const QFontMetrics &metrics)
{
    return metrics.horizontalAdvance(text) + cellPadding;
}

/// Paints the cells of the selected columns as selected.
class CellDelegate : public QStyledItemDelegate
{
public:
    explicit CellDelegate(DataTableView *table)
        : QStyledItemDelegate(table)
        , m_table(*table)
    {}

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state.setFlag(QStyle::State_Selected, m_table.isColumnSelected(index.column()));
        // Cells have no focus, columns do.
        option->state.setFlag(QStyle::State_HasFocus, false);
    }

private:
    const DataTableView &m_table;
};

/// The integer value of a number object, 0 for anything else.
int integerValue(const ArchiveValue &number)
{
    ArchiveDictionary box;
    box.set("number", number);
    return box.intForKey("number");
}

} // namespace

DataTableView::DataTableView(QWidget *parent)
    : QTableView(parent)
    , m_model(new DataTableModel(this))
    , m_header(new DataTableHeader(this))
{
    QFont font = QApplication::font("QMenu");
    font.setPointSizeF(cellFontSize);
    setFont(font);
    // Those that are there at first would measure all titles before they give way to these.
    setHorizontalHeader(m_header);
    setVerticalHeader(new TableHeader(Qt::Vertical, this));
    setModel(m_model);
    setItemDelegate(new CellDelegate(this));
    // The selection is our own; the platform's, of cells, stays empty.
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setUpHeaders();
    setAccessibleName(texts::localized("capture.table.name"));
    describeSelection();
}

void DataTableView::setUpHeaders()
{
    m_header->setMinimumSectionSize(minimumColumnWidth);
    m_header->setMinimumHeight(m_header->sizeHint().height());
    connect(m_header, &DataTableHeader::columnPressed, this, &DataTableView::pressColumn);
    connect(m_header, &QHeaderView::sectionResized, this, [this](int column) {
        if (!m_isWidening)
            chooseWidth(column);
    });
    // After the platform's table, which has fitted the column to its texts by now.
    connect(m_header, &QHeaderView::sectionHandleDoubleClicked, this, [this](int column) {
        m_columnsOfChosenWidth.erase(column);
        widenToTexts();
    });

    verticalHeader()->setSectionsClickable(false);
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (auto *corner = findChild<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly))
        corner->setToolTip(texts::localized("capture.table.selectAllTip"));
}

void DataTableView::setDataSource(const TableSource &source, const CapturePrefs &prefs)
{
    m_source = &source;
    m_model->setSource(source);
    m_model->setPrefs(prefs);
}

void DataTableView::selectColumnIndexes(const IndexSet &columns, bool byExtendingSelection)
{
    IndexSet valid = m_source == nullptr ? IndexSet() : m_source->validSeriesWithin(columns);
    if (byExtendingSelection)
        valid.insert(m_selectedColumns.begin(), m_selectedColumns.end());
    setSelectedColumns(std::move(valid));
}

void DataTableView::deselectAll() { setSelectedColumns({}); }

void DataTableView::setSelectedColumns(IndexSet columns)
{
    if (columns == m_selectedColumns)
        return;
    m_selectedColumns = std::move(columns);
    m_header->setSelectedColumns(m_selectedColumns);
    viewport()->update();
    describeSelection();
    Q_EMIT selectedColumnsChanged();
}

/// Says the selection to those who do not see it.
void DataTableView::describeSelection()
{
    QString text = texts::localized(m_selectedColumns.empty() ? "capture.table.nothingSelected"
                                                              : "capture.table.selectedSeries");
    QString separator = QStringLiteral(" ");
    for (const int column : m_selectedColumns) {
        text += separator + QString::fromStdString(std::to_string(column + 1));
        separator = QStringLiteral(", ");
    }
    setAccessibleDescription(text);
}

void DataTableView::selectAll()
{
    selectColumnIndexes(m_source == nullptr ? IndexSet() : m_source->validSeries(), false);
    m_lastClickedCol = -1;
}

bool DataTableView::pressColumn(int column, Qt::KeyboardModifiers modifiers)
{
    const bool shift = modifiers.testFlag(Qt::ShiftModifier);
    const bool command = modifiers.testFlag(Qt::ControlModifier);
    if (m_source == nullptr || !m_source->isValidSeries(column)) {
        if (shift || command)
            return true;
        deselectAll();
    }
    if (column < 0) {
        m_lastClickedCol = -1;
        return false;
    }
    if (shift && m_lastClickedCol >= 0)
        selectColumnIndexes(m_source->validSeriesBetween(m_lastClickedCol, column), true);
    else
        selectColumnIndexes({column}, command && !shift);
    m_lastClickedCol = column;
    setCurrentColumn(column);
    return true;
}

void DataTableView::setCurrentColumn(int column)
{
    m_currentColumn = column;
    m_header->setFocusedColumn(hasFocus() ? column : -1);
}

void DataTableView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const QPoint position = event->position().toPoint();
    const int column = columnAt(position.x());
    m_columnToPress = waitsForRelease(column, event->modifiers()) ? column : -1;
    if (m_columnToPress < 0 && !pressColumn(column, event->modifiers()))
        QTableView::mousePressEvent(event);
    m_dragStart = isColumnSelected(column) ? std::optional(position) : std::nullopt;
}

/// A press on one of several selected columns may begin a drag of all of them: only its release
/// selects that column alone.
bool DataTableView::waitsForRelease(int column, Qt::KeyboardModifiers modifiers) const
{
    return modifiers == Qt::NoModifier && isColumnSelected(column) && m_selectedColumns.size() > 1;
}

void DataTableView::mouseDoubleClickEvent(QMouseEvent *event) { mousePressEvent(event); }

// What follows a press belongs to the press: no drag selects cells.
void DataTableView::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    if (!m_dragStart || !event->buttons().testFlag(Qt::LeftButton))
        return;
    const QPoint way = event->position().toPoint() - *m_dragStart;
    if (way.manhattanLength() < QApplication::startDragDistance())
        return;
    m_dragStart.reset();
    m_columnToPress = -1;
    // Not out of this event: while the drag goes on, its window may be closed.
    QMetaObject::invokeMethod(this, &DataTableView::selectionDragged, Qt::QueuedConnection);
}

void DataTableView::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    m_dragStart.reset();
    if (event->button() == Qt::LeftButton && m_columnToPress >= 0)
        pressColumn(std::exchange(m_columnToPress, -1), Qt::NoModifier);
}

void DataTableView::setSelection(const QRect & /*rect*/,
                                 QItemSelectionModel::SelectionFlags /*command*/)
{}

void DataTableView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::SelectAll)) {
        selectAll();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
        moveCurrentColumn(-1, event->modifiers());
        return;
    case Qt::Key_Right:
        moveCurrentColumn(1, event->modifiers());
        return;
    case Qt::Key_Space:
        if (m_currentColumn >= 0)
            pressColumn(m_currentColumn, event->modifiers());
        return;
    default:
        if (!scrollByKey(event->key()))
            event->ignore();
    }
}

/// Goes to the next series that holds points and selects it as a click would; with the command key
/// it only goes there.
void DataTableView::moveCurrentColumn(int step, Qt::KeyboardModifiers modifiers)
{
    if (m_source == nullptr)
        return;
    int column = m_currentColumn < 0 && step < 0 ? m_model->columnCount() : m_currentColumn;
    do {
        column += step;
        if (column < 0 || column >= m_model->columnCount())
            return;
    } while (!m_source->isValidSeries(column));
    if (modifiers.testFlag(Qt::ControlModifier))
        setCurrentColumn(column);
    else
        pressColumn(column, modifiers);
    scrollColumnToVisible(column);
}

bool DataTableView::scrollByKey(int key)
{
    // New rows may not have reached the scroll bar yet.
    executeDelayedItemsLayout();
    switch (key) {
    case Qt::Key_Up:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
        return true;
    case Qt::Key_Down:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        return true;
    case Qt::Key_PageUp:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
        return true;
    case Qt::Key_PageDown:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
        return true;
    case Qt::Key_Home:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
        return true;
    case Qt::Key_End:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
        return true;
    default:
        return false;
    }
}

void DataTableView::focusInEvent(QFocusEvent *event)
{
    QTableView::focusInEvent(event);
    m_header->setFocusedColumn(m_currentColumn);
}

void DataTableView::focusOutEvent(QFocusEvent *event)
{
    QTableView::focusOutEvent(event);
    m_header->setFocusedColumn(-1);
}

void DataTableView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (m_model->rowCount() > 0)
        return;
    QPainter painter(viewport());
    // Not every palette has a placeholder colour of its own; half of the text's always fits.
    QColor color = palette().color(QPalette::Text);
    color.setAlphaF(0.5F);
    painter.setPen(color);
    painter.drawText(
        viewport()->rect().adjusted(cellPadding, cellPadding, -cellPadding, -cellPadding),
        Qt::AlignCenter | Qt::TextWordWrap, texts::localized("capture.table.empty"));
}

void DataTableView::noteNumberOfRowsChanged()
{
    m_model->noteNumberOfRowsChanged();
    viewport()->update();
    widenToTexts();
}

void DataTableView::reloadData()
{
    m_model->reloadData();
    widenToTexts();
}

void DataTableView::reloadMarkers() { m_model->reloadMarkers(); }

void DataTableView::scrollColumnToVisible(int column)
{
    if (column < 0 || column >= m_model->columnCount())
        return;
    if (!isVisible())
        m_columnToShow = column;
    executeDelayedItemsLayout();
    QScrollBar *bar = horizontalScrollBar();
    const int left = m_header->sectionPosition(column);
    const int right = left + m_header->sectionSize(column);
    // A column wider than the table shows its left part.
    bar->setValue(std::min(std::max(bar->value(), right - viewport()->width()), left));
}

// A table without its width scrolls farther than it has to.
void DataTableView::showEvent(QShowEvent *event)
{
    QTableView::showEvent(event);
    widenToTexts();
    const int column = std::exchange(m_columnToShow, -1);
    if (column < 0)
        return;
    horizontalScrollBar()->setValue(0);
    scrollColumnToVisible(column);
}

// Where a value is cut off its tip is the whole value, elsewhere that of the table.
bool DataTableView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QModelIndex cell = indexAt(help->pos());
        if (cell.isValid() && sizeHintForIndex(cell).width() > columnWidth(cell.column())) {
            QToolTip::showText(help->globalPos(), cell.data().toString(), viewport(),
                               visualRect(cell));
            return true;
        }
    }
    return QTableView::viewportEvent(event);
}

void DataTableView::setWidthOfEmptyColumns(int width)
{
    const QScopedValueRollback isWidening(m_isWidening, true);
    m_header->setDefaultSectionSize(width);
    m_columnsOfChosenWidth.clear();
}

// A document has all widths, also those that nobody chose.
void DataTableView::chooseWidth(int column)
{
    if (m_header->sectionSize(column) == m_header->defaultSectionSize())
        m_columnsOfChosenWidth.erase(column);
    else
        m_columnsOfChosenWidth.insert(column);
}

void DataTableView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    widenToTexts();
}

void DataTableView::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    widenToTexts();
}

// A column never becomes narrower by itself: it would go to and fro under the pointer.
void DataTableView::widenToTexts()
{
    if (m_isWidening)
        return;
    const QScopedValueRollback isWidening(m_isWidening, true);
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (!m_columnsOfChosenWidth.contains(column))
            m_header->resizeSection(
                column, std::max(m_header->sectionSize(column), widthOfTextsIn(column)));
    }
}

/// Of those in the rows that are seen: there may be many more.
int DataTableView::widthOfTextsIn(int column) const
{
    if (columnViewportPosition(column) >= viewport()->width())
        return 0;
    const int first = rowAt(0);
    const int end = rowAt(viewport()->height());
    const int last = end < 0 ? m_model->rowCount() - 1 : end;
    int width = 0;
    for (int row = first; row >= 0 && row <= last; ++row)
        width =
            std::max(width, widthFor(m_model->index(row, column).data().toString(), fontMetrics()));
    return width;
}

ArchiveDictionary DataTableView::dataForSave() const
{
    ArchiveArray widths;
    for (int visual = 0; visual < m_header->count(); ++visual) {
        const int width = m_header->sectionSize(m_header->logicalIndex(visual));
        widths.push_back(ArchiveValue{std::int64_t{width}});
    }
    ArchiveDictionary dictionary;
    dictionary.set(columnWidthsKey, ArchiveValue{std::move(widths)});
    return dictionary;
}

bool DataTableView::loadFromData(const ArchiveDictionary *dictionary)
{
    if (dictionary == nullptr)
        return false;
    const ArchiveArray *widths = dictionary->arrayForKey(columnWidthsKey);
    const std::size_t stored = widths == nullptr ? 0 : widths->size();
    for (int visual = 0; visual < m_header->count(); ++visual) {
        const auto i = static_cast<std::size_t>(visual);
        const int width = i < stored ? integerValue((*widths)[i]) : 0;
        const int atLeast = std::max(width, m_header->minimumSectionSize());
        m_header->resizeSection(m_header->logicalIndex(visual),
                                std::min(atLeast, m_header->maximumSectionSize()));
        chooseWidth(m_header->logicalIndex(visual));
    }
    return true;
}
