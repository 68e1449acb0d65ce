#include "imageview/PictureKeys.h"

#include <gtest/gtest.h>

namespace {

QPointF way(int key, Qt::KeyboardModifiers modifierFlags = Qt::NoModifier)
{
    return picturekeys::wayOf(key, modifierFlags).value_or(QPointF(-999, -999));
}

void expectWay(QPointF actual, double x, double y)
{
    EXPECT_DOUBLE_EQ(actual.x(), x);
    EXPECT_DOUBLE_EQ(actual.y(), y);
}

} // namespace

TEST(PictureKeys, arrowsGoOnePixel)
{
    expectWay(way(Qt::Key_Left), -1, 0);
    expectWay(way(Qt::Key_Right), 1, 0);
    expectWay(way(Qt::Key_Up), 0, 1);
    expectWay(way(Qt::Key_Down), 0, -1);
}

TEST(PictureKeys, shiftGoesTenPixels) { expectWay(way(Qt::Key_Up, Qt::ShiftModifier), 0, 10); }

TEST(PictureKeys, altGoesATenthOfAPixel) { expectWay(way(Qt::Key_Left, Qt::AltModifier), -0.1, 0); }

TEST(PictureKeys, theNumberPadGoesAsWell)
{
    expectWay(way(Qt::Key_Down, Qt::KeypadModifier | Qt::ShiftModifier), 0, -10);
    EXPECT_EQ(picturekeys::directionOf(Qt::Key_PageDown, Qt::KeypadModifier), 1);
}

TEST(PictureKeys, whatChoosesAMouseModeGoesNowhere)
{
    EXPECT_FALSE(picturekeys::wayOf(Qt::Key_Left, Qt::ControlModifier));
    EXPECT_FALSE(picturekeys::wayOf(Qt::Key_Left, Qt::ControlModifier | Qt::AltModifier));
    EXPECT_FALSE(picturekeys::wayOf(Qt::Key_Left, Qt::MetaModifier));
}

TEST(PictureKeys, otherKeysGoNowhere)
{
    EXPECT_FALSE(picturekeys::wayOf(Qt::Key_Home, Qt::NoModifier));
    EXPECT_EQ(picturekeys::directionOf(Qt::Key_Home, Qt::NoModifier), 0);
}

TEST(PictureKeys, pageKeysGoThroughTheParts)
{
    EXPECT_EQ(picturekeys::directionOf(Qt::Key_PageDown, Qt::NoModifier), 1);
    EXPECT_EQ(picturekeys::directionOf(Qt::Key_PageUp, Qt::NoModifier), -1);
    EXPECT_EQ(picturekeys::directionOf(Qt::Key_PageUp, Qt::ControlModifier), 0);
}
