#include "document/SymbolIcons.h"

#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QRect>

#include <gtest/gtest.h>

namespace {

QPalette palette()
{
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::ButtonText, Qt::blue);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::green);
    return palette;
}

/// The colour of the pixels that are fully painted; black if they have several or none.
QColor ink(const QImage &image)
{
    QColor found;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() != 255)
                continue;
            if (found.isValid() && found != color)
                return Qt::black;
            found = color;
        }
    return found.isValid() ? found : QColor(Qt::black);
}

} // namespace

TEST(SymbolIcons, areDrawnInTheColoursOfThePalette)
{
    const QIcon icon = symbolicons::icon(QStringLiteral("table"), palette());
    EXPECT_EQ(ink(icon.pixmap(64, QIcon::Normal).toImage()), QColor(Qt::blue));
    EXPECT_EQ(ink(icon.pixmap(64, QIcon::Disabled).toImage()), QColor(Qt::green));
}

TEST(SymbolIcons, haveTheSizeThatIsWantedOnEveryScreen)
{
    const QIcon icon = symbolicons::icon(QStringLiteral("table"), palette());
    EXPECT_EQ(icon.pixmap(QSize(24, 24), 1.0).size(), QSize(24, 24));
    const QPixmap fine = icon.pixmap(QSize(24, 24), 2.0);
    EXPECT_EQ(fine.size(), QSize(48, 48));
    EXPECT_EQ(fine.devicePixelRatio(), 2.0);
}

TEST(SymbolIcons, arePaintedIntoTheirPlace)
{
    QImage canvas(40, 40, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    {
        QPainter painter(&canvas);
        symbolicons::icon(QStringLiteral("table"), palette()).paint(&painter, 10, 10, 20, 20);
    }
    QRect painted;
    for (int y = 0; y < canvas.height(); ++y)
        for (int x = 0; x < canvas.width(); ++x)
            if (canvas.pixelColor(x, y).alpha() > 0)
                painted |= QRect(x, y, 1, 1);
    EXPECT_TRUE(QRect(10, 10, 20, 20).contains(painted));
    EXPECT_GT(painted.width(), 10);
}

TEST(SymbolIcons, anUnknownNameIsNoIcon)
{
    EXPECT_TRUE(symbolicons::icon(QStringLiteral("no-such-symbol"), palette()).isNull());
}
