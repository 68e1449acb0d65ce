#include "imageview/Resampling.h"

#include <QColor>

#include <gtest/gtest.h>

namespace {

/// Pixels whose red is the column and whose green is the row.
QImage grid(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x, y, 77));
    return image;
}

} // namespace

TEST(Resampling, copiesPixelsOneByOneAtTheSameScale)
{
    const QImage part = resampling::resampled(grid(20, 20), {3, 1, 10}, {5, 1, 4});
    EXPECT_EQ(part, grid(20, 20).copy(3, 5, 10, 4));
}

TEST(Resampling, averagesTheCoveredArea)
{
    const QImage half = resampling::resampled(grid(20, 20), {0, 2, 10}, {0, 2, 10});
    // Columns 4 and 5, rows 6 and 7: the mean 4.5 and 6.5 is rounded up.
    EXPECT_EQ(half.pixelColor(2, 3), QColor(5, 7, 77));
}

TEST(Resampling, thinLinesFadeButNeverVanish)
{
    QImage image(1000, 10, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int y = 0; y < 10; ++y)
        image.setPixel(503, y, qRgb(0, 0, 0));
    for (const double step : {1.3, 2.0, 3.3, 7.7}) {
        const int count = static_cast<int>(1000 / step);
        const QImage reduced = resampling::resampled(image, {0, step, count}, {0, 1, 10});
        int darkness = 0;
        for (int x = 0; x < count; ++x)
            darkness += 255 - qRed(reduced.pixel(x, 5));
        EXPECT_NEAR(darkness, 255 / step, 3) << step;
    }
}

TEST(Resampling, oneColourStaysTheSameAtEveryScale)
{
    QImage image(50, 50, QImage::Format_RGB32);
    image.fill(QColor(255, 254, 1));
    for (const double step : {0.37, 0.5, 1.0, 1.1, 2.7, 4.0, 11.3}) {
        const int count = static_cast<int>(50 / step);
        const QImage result = resampling::resampled(image, {0.3, step, count}, {-0.4, step, count});
        for (int y = 0; y < count; ++y)
            for (int x = 0; x < count; ++x)
                ASSERT_EQ(result.pixelColor(x, y), QColor(255, 254, 1)) << step;
    }
}

TEST(Resampling, enlargingMixesNeighbours)
{
    QImage image(2, 1, QImage::Format_RGB32);
    image.setPixel(0, 0, qRgb(0, 0, 0));
    image.setPixel(1, 0, qRgb(200, 200, 200));
    const QImage enlarged = resampling::resampled(image, {0, 0.5, 4}, {0, 1, 1});
    EXPECT_EQ(qRed(enlarged.pixel(0, 0)), 0);
    EXPECT_EQ(qRed(enlarged.pixel(1, 0)), 50);
    EXPECT_EQ(qRed(enlarged.pixel(2, 0)), 150);
    EXPECT_EQ(qRed(enlarged.pixel(3, 0)), 200);
}

TEST(Resampling, continuesTheLastPixelsBeyondTheEdges)
{
    const QImage result = resampling::resampled(grid(10, 10), {-2, 1, 14}, {-1, 1, 12});
    EXPECT_EQ(result.pixelColor(0, 0), QColor(0, 0, 77));
    EXPECT_EQ(result.pixelColor(13, 11), QColor(9, 9, 77));
    EXPECT_EQ(result.pixelColor(5, 4), QColor(3, 3, 77));
    const QImage reduced = resampling::resampled(grid(10, 10), {8, 4, 3}, {0, 1, 10});
    EXPECT_EQ(qRed(reduced.pixel(2, 0)), 9);
}

TEST(Resampling, grayStaysGray)
{
    QImage image(8, 8, QImage::Format_Grayscale8);
    image.fill(100);
    image.setPixelColor(0, 0, Qt::white);
    const QImage half = resampling::resampled(image, {0, 2, 4}, {0, 2, 4});
    EXPECT_EQ(half.format(), QImage::Format_Grayscale8);
    EXPECT_EQ(qRed(half.pixel(3, 3)), 100);
    EXPECT_EQ(qRed(half.pixel(0, 0)), 139); // (255 + 3 * 100) / 4
}

TEST(Resampling, theWholeMayBecomeOnePixel)
{
    const QImage image = resampling::resampled(grid(10, 10), {0, 10, 1}, {0, 10, 1});
    EXPECT_NEAR(qRed(image.pixel(0, 0)), 4.5, 0.6);
}
