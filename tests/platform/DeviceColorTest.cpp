#include "platform/DeviceColor.h"
#include "platform/NamedColors.h"

#include <gtest/gtest.h>

#include <limits>

TEST(DeviceColor, theScreenColourHasTheSameComponents)
{
    EXPECT_EQ((DeviceColor{1, 0, 0.2F, 0.6F}).screenColor(), QColor(255, 0, 51, 153));
}

TEST(DeviceColor, componentsOutsideTheUnitAreBroughtToItsEnds)
{
    EXPECT_EQ((DeviceColor{2, -1, 0, 7}).screenColor(), QColor(255, 0, 0, 255));
}

TEST(DeviceColor, aComponentThatIsNoNumberIsDrawnAsZero)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ((DeviceColor{nan, 1, 0, 1}).screenColor(), QColor(0, 255, 0, 255));
}

TEST(DeviceColor, anotherAlphaLeavesTheRest)
{
    EXPECT_EQ(namedcolors::orange.withAlpha(0.1F), (DeviceColor{1, 0.5F, 0, 0.1F}));
}

TEST(NamedColors, areTheDeviceColoursOfTheirNames)
{
    EXPECT_EQ(namedcolors::orange, (DeviceColor{1, 0.5F, 0, 1}));
    EXPECT_EQ(namedcolors::magenta, (DeviceColor{1, 0, 1, 1}));
    EXPECT_EQ(namedcolors::green, (DeviceColor{0, 1, 0, 1}));
    EXPECT_EQ(namedcolors::brown, (DeviceColor{0.6F, 0.4F, 0.2F, 1}));
    EXPECT_EQ(namedcolors::purple, (DeviceColor{0.5F, 0, 0.5F, 1}));
    EXPECT_EQ(namedcolors::red, (DeviceColor{1, 0, 0, 1}));
    EXPECT_EQ(namedcolors::white, (DeviceColor{1, 1, 1, 1}));
    EXPECT_EQ(namedcolors::gray, (DeviceColor{0.5F, 0.5F, 0.5F, 1}));
}
