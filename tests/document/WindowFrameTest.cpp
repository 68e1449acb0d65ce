#include "document/WindowFrame.h"

#include <gtest/gtest.h>

using windowframe::placed;
using windowframe::restored;
using windowframe::standardSize;

TEST(WindowFrame, standardSizeLeavesTheFixedMargins)
{
    EXPECT_EQ(standardSize({600, 400}, {300, 200}), (FloatSize{637, 607}));
}

TEST(WindowFrame, standardSizeIsRaisedToTheMinimum)
{
    EXPECT_EQ(standardSize({600, 400}, {700, 500}), (FloatSize{700, 607}));
    EXPECT_EQ(standardSize({600, 400}, {600, 800}), (FloatSize{637, 800}));
}

TEST(WindowFrame, theBottomLeftCornerStays)
{
    const QRect frame = placed({100, 300, 400, 200}, {500, 350}, {0, 0, 1280, 1024});
    EXPECT_EQ(frame, QRect(100, 150, 500, 350));
}

TEST(WindowFrame, theTitleBarNeverLeavesTheScreen)
{
    const QRect frame = placed({100, 100, 400, 200}, {500, 700}, {0, 0, 1280, 1024});
    EXPECT_EQ(frame.top(), 0);
    EXPECT_EQ(frame.height(), 700);
}

TEST(WindowFrame, aFrameLargerThanTheScreenTakesTheScreen)
{
    EXPECT_EQ(placed({100, 100, 400, 200}, {3000, 2000}, {0, 20, 1280, 1000}),
              QRect(0, 20, 1280, 1000));
}

TEST(WindowFrame, aFrameBesideTheScreenIsBroughtBack)
{
    EXPECT_EQ(placed({1200, 300, 400, 200}, {400, 200}, {0, 0, 1280, 1024}),
              QRect(880, 300, 400, 200));
}

TEST(WindowFrame, aStoredFrameThatSticksOutALittleStays)
{
    const QList<QRect> screens{{0, 0, 1280, 1024}};
    for (const QRect &frame : {QRect(-190, 300, 400, 200), QRect(1070, 300, 400, 200),
                               QRect(100, 930, 400, 180), QRect(0, 0, 1280, 1024)})
        EXPECT_EQ(restored(frame, {300, 100}, screens), frame);
}

TEST(WindowFrame, aStoredFrameThatIsHalfGoneIsBroughtBack)
{
    const QList<QRect> screens{{0, 0, 1280, 1024}};
    EXPECT_EQ(restored({-200, 300, 400, 200}, {300, 100}, screens), QRect(0, 300, 400, 200));
    EXPECT_EQ(restored({1100, 300, 400, 200}, {300, 100}, screens), QRect(880, 300, 400, 200));
    EXPECT_EQ(restored({100, 934, 400, 180}, {300, 100}, screens), QRect(100, 844, 400, 180));
}

TEST(WindowFrame, aStoredFrameWhoseTitleIsAboveTheScreenIsBroughtBack)
{
    EXPECT_EQ(restored({100, -1, 400, 200}, {300, 100}, {{0, 0, 1280, 1024}}),
              QRect(100, 0, 400, 200));
}

TEST(WindowFrame, aStoredFrameLargerThanTheScreenTakesTheScreen)
{
    EXPECT_EQ(restored({10, 10, 1300, 200}, {300, 100}, {{0, 0, 1280, 1024}}),
              QRect(0, 10, 1280, 200));
}

TEST(WindowFrame, aStoredFrameIsBroughtBackOntoTheScreenThatShowsMostOfIt)
{
    const QList<QRect> screens{{0, 0, 1280, 1024}, {1280, 0, 1600, 1200}};
    EXPECT_EQ(restored({1180, 300, 1700, 200}, {300, 100}, screens), QRect(1280, 300, 1600, 200));
    EXPECT_EQ(restored({1240, -50, 400, 200}, {300, 100}, screens), QRect(1280, 0, 400, 200));
}

TEST(WindowFrame, aStoredFrameOfImpossibleNumbersIsFarAwayOnTheSideThatItNames)
{
    const QRect screen(0, 0, 1280, 1024);
    EXPECT_GT(windowframe::fromBottomLeft({{1e30F, 0}, {400, 200}}, screen).left(), screen.right());
    EXPECT_LT(windowframe::fromBottomLeft({{-1e30F, 0}, {400, 200}}, screen).left(), -1000);
    EXPECT_LT(windowframe::fromBottomLeft({{0, 1e30F}, {400, 200}}, screen).top(), -1000);
    EXPECT_GT(windowframe::fromBottomLeft({{0, 0}, {1e30F, 200}}, screen).width(), screen.width());
}
