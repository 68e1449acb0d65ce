#pragma once

#include "capture/CaptureSurroundings.h"
#include "capture/TableHeader.h"

/// The titles above the data table. A press on one says which modifiers were held; the titles of
/// selected columns stand out, and the column that the keyboard acts on has a focus frame.
class DataTableHeader : public TableHeader
{
    Q_OBJECT

public:
    explicit DataTableHeader(QWidget *parent = nullptr);

    void setSelectedColumns(const IndexSet &columns);
    /// The column with the focus frame; -1 for none.
    void setFocusedColumn(int column);

Q_SIGNALS:
    /// A press on a title; -1 for one beside all of them. The edges, which resize, say nothing.
    void columnPressed(int column, Qt::KeyboardModifiers modifiers);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const override;
    void paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const override;

private:
    IndexSet m_selectedColumns;
    int m_focusedColumn = -1;
    Qt::KeyboardModifiers m_modifiers;
};
