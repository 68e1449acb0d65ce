#include "capture/MarkerPreview.h"
#include "support/StartingLineStyle.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

PlotStyle blueSquare() { return {.color = {0, 0, 1, 1}, .size = 10, .thickness = 2, .shape = 0}; }

/// What the preview shows at 60 x 30 on white.
QImage shown(MarkerPreview &preview)
{
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    preview.setPalette(palette);
    preview.setAutoFillBackground(true);
    preview.resize(60, 30);
    QImage canvas(60, 30, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    preview.render(&canvas);
    return canvas;
}

constexpr QRgb blue = qRgb(0, 0, 255);
constexpr QRgb white = qRgb(255, 255, 255);

} // namespace

TEST(MarkerPreview, beginsWithNoColourAndNothingToDraw)
{
    MarkerPreview preview;
    EXPECT_FALSE(preview.color().has_value());
    EXPECT_EQ(preview.markerSize(), 7.0F);
    EXPECT_EQ(preview.thickness(), 1.5F);
    EXPECT_EQ(preview.shape(), 0);
    EXPECT_FALSE(preview.marker());
    EXPECT_FALSE(preview.line());
    QImage blank(60, 30, QImage::Format_RGB32);
    blank.fill(Qt::white);
    EXPECT_EQ(shown(preview), blank);
}

TEST(MarkerPreview, mode0ShowsTheMarker)
{
    MarkerPreview preview;
    preview.setPreview(blueSquare(), 0);
    EXPECT_TRUE(preview.marker());
    EXPECT_FALSE(preview.line());
}

TEST(MarkerPreview, mode1ShowsBoth)
{
    MarkerPreview preview;
    preview.setPreview(blueSquare(), 1);
    EXPECT_TRUE(preview.marker());
    EXPECT_TRUE(preview.line());
}

TEST(MarkerPreview, mode2ShowsTheLine)
{
    MarkerPreview preview;
    preview.setPreview(blueSquare(), 2);
    EXPECT_FALSE(preview.marker());
    EXPECT_TRUE(preview.line());
}

TEST(MarkerPreview, anotherModeKeepsTheFlagsAndTakesTheStyle)
{
    for (const int mode : {5, -1, 3}) {
        MarkerPreview preview;
        preview.setPreview(blueSquare(), 2);
        preview.setPreview({.color = {1, 0, 0, 1}, .size = 4, .thickness = 3, .shape = 2}, mode);
        EXPECT_FALSE(preview.marker());
        EXPECT_TRUE(preview.line());
        EXPECT_EQ(preview.color(), (DeviceColor{1, 0, 0, 1}));
        EXPECT_EQ(preview.markerSize(), 4.0F);
        EXPECT_EQ(preview.thickness(), 3.0F);
        EXPECT_EQ(preview.shape(), 2);
    }
}

TEST(MarkerPreview, drawsTheMarkerInTheMiddle)
{
    MarkerPreview preview;
    preview.setPreview(blueSquare(), 0);
    const QImage canvas = shown(preview);
    EXPECT_EQ(canvas.pixel(30, 15), blue);
    EXPECT_EQ(canvas.pixel(24, 15), blue);
    EXPECT_EQ(canvas.pixel(35, 15), blue);
    EXPECT_EQ(canvas.pixel(23, 15), white);
    EXPECT_EQ(canvas.pixel(36, 15), white);
    EXPECT_EQ(canvas.pixel(5, 15), white);
}

TEST(MarkerPreview, drawsTheLineWithItsMargins)
{
    const StartingLineStyle atStart;
    MarkerPreview preview;
    preview.setPreview(blueSquare(), 2);
    const QImage canvas = shown(preview);
    EXPECT_EQ(canvas.pixel(3, 15), blue);
    EXPECT_EQ(canvas.pixel(3, 14), blue);
    EXPECT_EQ(canvas.pixel(56, 14), blue);
    EXPECT_EQ(canvas.pixel(2, 15), white);
    EXPECT_EQ(canvas.pixel(57, 15), white);
    EXPECT_EQ(canvas.pixel(30, 16), white);
    EXPECT_EQ(canvas.pixel(30, 13), white);
}

TEST(MarkerPreview, anUnknownShapeShowsTheLineOnly)
{
    MarkerPreview preview;
    PlotStyle unknown = blueSquare();
    unknown.shape = 9;
    preview.setPreview(unknown, 1);
    const QImage canvas = shown(preview);
    EXPECT_EQ(canvas.pixel(30, 15), blue);
    EXPECT_EQ(canvas.pixel(30, 18), white);
}

TEST(MarkerPreview, openShapesLetTheBackgroundThrough)
{
    MarkerPreview preview;
    PlotStyle open = blueSquare();
    open.shape = 3;
    preview.setPreview(open, 0);
    const QImage canvas = shown(preview);
    EXPECT_EQ(canvas.pixel(30, 15), white);
    EXPECT_EQ(canvas.pixel(25, 15), blue);
}

TEST(MarkerPreview, drawsOverItsFrame)
{
    MarkerPreview preview;
    preview.setFrameStyle(QFrame::Box | QFrame::Plain);
    preview.setPreview(blueSquare(), 0);
    const QImage canvas = shown(preview);
    EXPECT_NE(canvas.pixel(0, 15), white);
    EXPECT_EQ(canvas.pixel(30, 15), blue);
}

TEST(MarkerPreview, hasANameForThoseWhoDoNotSeeIt)
{
    const MarkerPreview preview;
    EXPECT_FALSE(preview.accessibleName().isEmpty());
    EXPECT_FALSE(preview.accessibleName().startsWith("capture."));
}
