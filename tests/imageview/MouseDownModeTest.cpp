#include "imageview/MouseDownMode.h"

#include <gtest/gtest.h>

namespace {

constexpr auto command = Qt::ControlModifier;
constexpr auto option = Qt::AltModifier;
constexpr auto control = Qt::MetaModifier;
constexpr auto shift = Qt::ShiftModifier;

int onAxisPage(Qt::KeyboardModifiers keys) { return mousedownmode::modeFor(keys, true); }
int onDigitizingPage(Qt::KeyboardModifiers keys) { return mousedownmode::modeFor(keys, false); }

} // namespace

TEST(MouseDownMode, withoutCommandThePageDecides)
{
    EXPECT_EQ(onAxisPage(Qt::NoModifier), 1);
    EXPECT_EQ(onDigitizingPage(Qt::NoModifier), 0);
    EXPECT_EQ(onAxisPage(option | control | shift), 1);
    EXPECT_EQ(onDigitizingPage(option | control | shift), 0);
}

TEST(MouseDownMode, commandIsTheHand)
{
    EXPECT_EQ(onAxisPage(command), 2);
    EXPECT_EQ(onDigitizingPage(command), 2);
    EXPECT_EQ(onAxisPage(command | shift), 2);
    EXPECT_EQ(onDigitizingPage(command | shift), 2);
}

TEST(MouseDownMode, commandAndOptionZoomInAndWithShiftOut)
{
    for (const bool axisPage : {true, false}) {
        EXPECT_EQ(mousedownmode::modeFor(command | option, axisPage), 3);
        EXPECT_EQ(mousedownmode::modeFor(command | option | shift, axisPage), 4);
    }
}

TEST(MouseDownMode, optionWinsOverControl)
{
    EXPECT_EQ(onAxisPage(command | option | control), 3);
    EXPECT_EQ(onAxisPage(command | option | control | shift), 4);
}

TEST(MouseDownMode, commandAndControlTrimOnTheAxisPageOnly)
{
    EXPECT_EQ(onAxisPage(command | control), 5);
    EXPECT_EQ(onAxisPage(command | control | shift), 6);
    EXPECT_EQ(onDigitizingPage(command | control), 2);
    EXPECT_EQ(onDigitizingPage(command | control | shift), 2);
}

TEST(MouseDownMode, otherKeysDoNotMatter)
{
    EXPECT_EQ(onAxisPage(command | Qt::KeypadModifier), 2);
    EXPECT_EQ(onDigitizingPage(Qt::KeypadModifier), 0);
}
