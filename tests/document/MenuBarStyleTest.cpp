#include "document/MenuBarStyle.h"

#include <gtest/gtest.h>

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace {

/// Whether the icon's picture has a pixel of this colour and nothing hides it.
bool shows(const QIcon &icon, const QColor &color)
{
    const QImage image = icon.pixmap(64).toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                return true;
    return false;
}

} // namespace

TEST(MenuBarStyle, theArrowOfTheMenusWithoutRoomHasTheColourOfTexts)
{
    const MenuBarStyle style;
    QWidget bar;
    QPalette palette;
    palette.setColor(QPalette::ButtonText, Qt::blue);
    bar.setPalette(palette);
    EXPECT_TRUE(shows(
        style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, &bar), Qt::blue));
}

TEST(MenuBarStyle, theArrowIsDrawnWithoutABarToo)
{
    const MenuBarStyle style;
    EXPECT_FALSE(style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, nullptr)
                     .pixmap(16)
                     .isNull());
}

TEST(MenuBarStyle, otherIconsAreThoseOfTheDesktop)
{
    const MenuBarStyle style;
    QWidget bar;
    const auto picture = [&bar](const QStyle &of) {
        return of.standardIcon(QStyle::SP_DialogSaveButton, nullptr, &bar).pixmap(32).toImage();
    };
    ASSERT_FALSE(picture(style).isNull());
    EXPECT_EQ(picture(style), picture(*style.baseStyle()));
}
