#include "capture/DataTableHeader.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QStyleOptionHeader>

DataTableHeader::DataTableHeader(QWidget *parent)
    : TableHeader(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setSectionsMovable(false);
    setSectionResizeMode(QHeaderView::Interactive);
    setStretchLastSection(false);
    setHighlightSections(false);
    connect(this, &QHeaderView::sectionPressed, this,
            [this](int column) { Q_EMIT columnPressed(column, m_modifiers); });
}

void DataTableHeader::setSelectedColumns(const IndexSet &columns)
{
    m_selectedColumns = columns;
    viewport()->update();
}

void DataTableHeader::setFocusedColumn(int column)
{
    m_focusedColumn = column;
    viewport()->update();
}

void DataTableHeader::mousePressEvent(QMouseEvent *event)
{
    m_modifiers = event->modifiers();
    QHeaderView::mousePressEvent(event);
}

void DataTableHeader::initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    if (!m_selectedColumns.contains(logicalIndex))
        return;
    option->state |= QStyle::State_On | QStyle::State_Sunken;
    option->palette.setBrush(QPalette::Button, option->palette.highlight());
    option->palette.setBrush(QPalette::ButtonText, option->palette.highlightedText());
}

void DataTableHeader::paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const
{
    QHeaderView::paintSection(painter, rect, logicalIndex);
    if (logicalIndex != m_focusedColumn)
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.state |= QStyle::State_KeyboardFocusChange;
    option.rect = rect.adjusted(1, 1, -1, -1);
    option.backgroundColor = option.palette.color(QPalette::Button);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, painter, this);
}
