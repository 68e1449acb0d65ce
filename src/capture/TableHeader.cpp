#include "capture/TableHeader.h"

#include <QAbstractItemModel>
#include <QIcon>
#include <QPixmap>
#include <QStyleOptionHeader>

QSize TableHeader::sectionSizeFromContents(int logicalIndex) const
{
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.section = logicalIndex;
    option.text = model()->headerData(logicalIndex, orientation(), Qt::DisplayRole).toString();
    // The style gives all symbols the same room.
    if (orientation() == Qt::Horizontal)
        option.icon = QIcon(QPixmap(1, 1));
    return style()->sizeFromContents(QStyle::CT_HeaderSection, &option, QSize(), this);
}
