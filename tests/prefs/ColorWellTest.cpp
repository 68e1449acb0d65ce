#include "prefs/ColorWell.h"

#include <gtest/gtest.h>

#include <QColorDialog>
#include <QTest>

namespace {

/// Clicks the well and gives the chooser that it opens.
QColorDialog *openChooser(ColorWell &well)
{
    QTest::mouseClick(&well, Qt::LeftButton);
    return well.findChild<QColorDialog *>();
}

} // namespace

TEST(ColorWell, offersTheOpacityAsWell)
{
    ColorWell well;
    well.setColor({1, 0.5F, 0, 0.4F});
    well.show();
    const QColorDialog *chooser = openChooser(well);
    ASSERT_NE(chooser, nullptr);
    EXPECT_TRUE(chooser->isVisible());
    EXPECT_TRUE(chooser->testOption(QColorDialog::ShowAlphaChannel));
    EXPECT_EQ(chooser->currentColor().alpha(), 102);
}

TEST(ColorWell, takesTheChosenColor)
{
    ColorWell well;
    well.setColor({1, 0, 0, 1});
    well.show();
    QColorDialog *chooser = openChooser(well);
    ASSERT_NE(chooser, nullptr);
    chooser->setCurrentColor(QColor(0, 51, 255, 102));
    chooser->accept();
    EXPECT_EQ(well.color(), (DeviceColor{0, 0.2F, 1, 0.4F}));
}

TEST(ColorWell, keepsItsColorWhenTheUserCancels)
{
    ColorWell well;
    well.setColor({1, 0, 0, 1});
    well.show();
    QColorDialog *chooser = openChooser(well);
    ASSERT_NE(chooser, nullptr);
    chooser->setCurrentColor(Qt::blue);
    chooser->reject();
    EXPECT_EQ(well.color(), (DeviceColor{1, 0, 0, 1}));
}

// The chooser knows 256 steps; a colour between them is not moved onto a step by merely looking.
TEST(ColorWell, keepsItsExactColorWhenTheSameOneIsChosen)
{
    const DeviceColor exact{0.123456F, 0.654321F, 0.5F, 0.7777F};
    ColorWell well;
    well.setColor(exact);
    well.show();
    QColorDialog *chooser = openChooser(well);
    ASSERT_NE(chooser, nullptr);
    chooser->accept();
    EXPECT_EQ(well.color(), exact);
}

TEST(ColorWell, keepsAColorBeyondWhatScreensShow)
{
    ColorWell well;
    well.setColor({1.5F, -0.25F, 0, 1});
    EXPECT_EQ(well.color(), (DeviceColor{1.5F, -0.25F, 0, 1}));
}

TEST(ColorWell, showsItsColorAndWhatLiesBehindIt)
{
    ColorWell well;
    well.setColor({0, 0, 1, 1});
    well.resize(60, 30);
    EXPECT_EQ(well.grab().toImage().pixelColor(30, 15), QColor(Qt::blue));
    well.setColor({0, 0, 1, 0});
    const QImage transparent = well.grab().toImage();
    EXPECT_NE(transparent.pixelColor(6, 6), transparent.pixelColor(10, 6));
}

TEST(ColorWell, tellsScreenReadersItsColor)
{
    ColorWell well;
    well.setColor({1, 0.5F, 0, 0.25F});
    EXPECT_EQ(well.accessibleDescription().toStdString(), "#ff8000, opacity 25 %");
}

TEST(ColorWell, opensWithTheSpaceBarAndNotWithReturn)
{
    ColorWell well;
    well.setAutoDefault(false);
    well.show();
    QTest::keyClick(&well, Qt::Key_Return);
    EXPECT_EQ(well.findChild<QColorDialog *>(), nullptr);
    QTest::keyClick(&well, Qt::Key_Space);
    EXPECT_NE(well.findChild<QColorDialog *>(), nullptr);
}
