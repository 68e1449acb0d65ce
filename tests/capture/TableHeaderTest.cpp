#include "capture/TableHeader.h"

#include "capture/DataTableModel.h"

#include <QFontMetrics>
#include <QStyle>

#include <gtest/gtest.h>

TEST(TableHeader, hasRoomForTheTitlesOfColumnsAndTheirSymbols)
{
    DataTableModel model;
    TableHeader header(Qt::Horizontal);
    header.setModel(&model);
    header.resizeSections(QHeaderView::ResizeToContents);
    const int symbol = header.style()->pixelMetric(QStyle::PM_SmallIconSize);
    const int title = header.fontMetrics().horizontalAdvance(QStringLiteral("10"));
    EXPECT_GE(header.sectionSize(9), title + symbol);
    EXPECT_GE(header.sizeHint().height(), header.fontMetrics().height());
    EXPECT_GE(header.sizeHint().height(), symbol);
}
