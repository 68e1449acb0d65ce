#include "imageview/MouseCursors.h"

#include "imageview/MouseDownMode.h"

#include <QPixmap>

#include <gtest/gtest.h>

#include <vector>

namespace {

const std::vector<int> modes{ZoomInMode, ZoomOutMode, TrimMode, MeasureMode};

/// The pixels of the cursor of a mode.
QImage pixelsOf(int mode, qreal pixelRatio = 1)
{
    MouseCursors cursors;
    return cursors.cursorOfMode(mode, pixelRatio).pixmap().toImage();
}

int countOf(const QImage &image, QRgb color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == color ? 1 : 0;
    return count;
}

} // namespace

TEST(MouseCursors, theHotSpotsAreThoseOfThePictures)
{
    MouseCursors cursors;
    EXPECT_EQ(cursors.cursorOfMode(ZoomInMode, 1).hotSpot(), QPoint(9, 9));
    EXPECT_EQ(cursors.cursorOfMode(ZoomOutMode, 1).hotSpot(), QPoint(9, 9));
    EXPECT_EQ(cursors.cursorOfMode(TrimMode, 1).hotSpot(), QPoint(7, 7));
    EXPECT_EQ(cursors.cursorOfMode(MeasureMode, 1).hotSpot(), QPoint(7, 7));
}

TEST(MouseCursors, eachModeHasItsOwnPicture)
{
    for (const int mode : modes)
        for (const int other : modes)
            EXPECT_EQ(pixelsOf(mode) == pixelsOf(other), mode == other) << mode << " " << other;
}

TEST(MouseCursors, eachIsSeenOnLightAndOnDarkPictures)
{
    for (const int mode : modes) {
        EXPECT_GT(countOf(pixelsOf(mode, 2), qRgb(0, 0, 0)), 20) << mode;
        EXPECT_GT(countOf(pixelsOf(mode, 2), qRgb(255, 255, 255)), 20) << mode;
        EXPECT_EQ(qAlpha(pixelsOf(mode).pixel(pixelsOf(mode).width() - 1, 0)), 0) << mode;
    }
}

TEST(MouseCursors, theHotSpotLiesInTheMiddleOfTheCross)
{
    for (const int mode : {ZoomInMode, TrimMode, MeasureMode}) {
        MouseCursors cursors;
        const QPoint middle = cursors.cursorOfMode(mode, 1).hotSpot() * 4;
        const QImage image = cursors.cursorOfMode(mode, 4).pixmap().toImage();
        for (int way = 0; way < 8; ++way)
            for (const QPoint step :
                 {QPoint(way, 0), QPoint(-1 - way, 0), QPoint(0, way), QPoint(0, -1 - way)})
                EXPECT_EQ(image.pixel(middle + step), qRgb(0, 0, 0)) << mode << " " << way;
    }
}

TEST(MouseCursors, sharperScreensGetMorePixels)
{
    for (const int mode : modes) {
        MouseCursors cursors;
        const QSize normal = cursors.cursorOfMode(mode, 1).pixmap().size();
        const QPixmap sharp = cursors.cursorOfMode(mode, 2).pixmap();
        EXPECT_EQ(sharp.size(), normal * 2) << mode;
        EXPECT_EQ(sharp.devicePixelRatio(), 2.0) << mode;
        EXPECT_NE(sharp.toImage(), pixelsOf(mode).scaled(normal * 2)) << mode;
    }
}
