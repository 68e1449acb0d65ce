#pragma once

#include <QHeaderView>

/// A header that needs as much room as its titles do as they are drawn, with a symbol beside those
/// of columns. QHeaderView makes room for bold ones, and has a font loaded for that which nobody
/// sees; and it has all symbols drawn to know their size.
class TableHeader : public QHeaderView
{
    Q_OBJECT

public:
    using QHeaderView::QHeaderView;

protected:
    [[nodiscard]] QSize sectionSizeFromContents(int logicalIndex) const override;
};
