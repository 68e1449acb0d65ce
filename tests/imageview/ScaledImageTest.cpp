#include "imageview/ScaledImage.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace {

/// A picture with a different colour in each corner: red, green, blue and yellow from the top left
/// in reading order.
Picture cornered(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.fillRect(0, 0, 80, 80, Qt::red);
    painter.fillRect(width - 80, 0, 80, 80, Qt::green);
    painter.fillRect(0, height - 80, 80, 80, Qt::blue);
    painter.fillRect(width - 80, height - 80, 80, 80, Qt::yellow);
    painter.end();
    return *Picture::fromImageRep(image);
}

QImage shown(ScaledImage &image, qreal pixelsPerPoint = 1)
{
    const QSize size(static_cast<int>(std::ceil(image.size().width)),
                     static_cast<int>(std::ceil(image.size().height)));
    QImage canvas(size * pixelsPerPoint, QImage::Format_RGB32);
    canvas.setDevicePixelRatio(pixelsPerPoint);
    canvas.fill(Qt::magenta);
    QPainter painter(&canvas);
    image.draw(painter, QRect(QPoint(), size), QRect(QPoint(), size));
    return canvas;
}

std::vector<QColor> corners(const QImage &canvas)
{
    const int right = canvas.width() - 5;
    const int bottom = canvas.height() - 5;
    return {canvas.pixelColor(5, 5), canvas.pixelColor(right, 5), canvas.pixelColor(5, bottom),
            canvas.pixelColor(right, bottom)};
}

} // namespace

TEST(ScaledImage, drawsUprightAtEveryScale)
{
    const std::vector<QColor> upright{Qt::red, Qt::green, Qt::blue, Qt::yellow};
    for (const float scale : {0.125F, 0.25F, 0.3F, 0.5F, 0.70710677F, 1.0F, 1.5F, 2.0F, 5.0F}) {
        ScaledImage image(cornered(800, 600), scale, 0);
        EXPECT_EQ(corners(shown(image)), upright) << scale;
    }
}

TEST(ScaledImage, aSideIsTheFloatProductWithTheScale)
{
    const ScaledImage image(*Picture::fromImageRep(QImage(300, 200, QImage::Format_RGB32)), 0.5F,
                            0);
    EXPECT_EQ(image.size(), (FloatSize{160, static_cast<float>(200 * (320.0 / 300)) * 0.5F}));
}

TEST(ScaledImage, sidesAreExchangedAt90And270)
{
    const Picture picture = cornered(400, 300);
    EXPECT_EQ(ScaledImage(picture, 0.5F, 0).size(), (FloatSize{200, 150}));
    EXPECT_EQ(ScaledImage(picture, 0.5F, 90).size(), (FloatSize{150, 200}));
    EXPECT_EQ(ScaledImage(picture, 0.5F, 180).size(), (FloatSize{200, 150}));
    EXPECT_EQ(ScaledImage(picture, 0.5F, 270).size(), (FloatSize{150, 200}));
}

TEST(ScaledImage, positiveRotationIsCounterClockwise)
{
    for (const float scale : {0.25F, 0.5F, 1.0F, 2.0F}) {
        ScaledImage quarter(cornered(800, 600), scale, 90);
        EXPECT_EQ(corners(shown(quarter)),
                  (std::vector<QColor>{Qt::green, Qt::yellow, Qt::red, Qt::blue}));
        ScaledImage half(cornered(800, 600), scale, 180);
        EXPECT_EQ(corners(shown(half)),
                  (std::vector<QColor>{Qt::yellow, Qt::blue, Qt::green, Qt::red}));
        ScaledImage threeQuarters(cornered(800, 600), scale, 270);
        EXPECT_EQ(corners(shown(threeQuarters)),
                  (std::vector<QColor>{Qt::blue, Qt::red, Qt::yellow, Qt::green}));
    }
}

TEST(ScaledImage, rotationKeepsEveryPixelAtScale1)
{
    QImage pixels(400, 333, QImage::Format_RGB32);
    for (int y = 0; y < 333; ++y)
        for (int x = 0; x < 400; ++x)
            pixels.setPixel(x, y, qRgb(x % 256, y % 256, x / 2));
    ScaledImage image(*Picture::fromImageRep(pixels), 1, 90);
    const QImage canvas = shown(image);
    EXPECT_EQ(canvas.pixel(0, 0), pixels.pixel(399, 0));
    EXPECT_EQ(canvas.pixel(332, 399), pixels.pixel(0, 332));
    EXPECT_EQ(canvas.pixel(100, 50), pixels.pixel(349, 100));
}

TEST(ScaledImage, drawsOnlyWhatIsDirty)
{
    ScaledImage image(cornered(400, 300), 1, 0);
    QImage canvas(400, 300, QImage::Format_RGB32);
    canvas.fill(Qt::magenta);
    QPainter painter(&canvas);
    image.draw(painter, QRect(10, 10, 20, 20), QRect(0, 0, 400, 300));
    painter.end();
    EXPECT_EQ(canvas.pixelColor(10, 10), QColor(Qt::red));
    EXPECT_EQ(canvas.pixelColor(29, 29), QColor(Qt::red));
    EXPECT_EQ(canvas.pixelColor(9, 10), QColor(Qt::magenta));
    EXPECT_EQ(canvas.pixelColor(30, 29), QColor(Qt::magenta));
}

TEST(ScaledImage, scrolledPartsAreAsTheWhole)
{
    const Picture picture = cornered(2000, 1500);
    for (const float rotation : {0.0F, 90.0F, 180.0F, 270.0F}) {
        ScaledImage image(picture, 0.37F, rotation);
        const QImage whole = shown(image);
        ScaledImage scrolled(picture, 0.37F, rotation);
        QImage canvas(whole.size(), QImage::Format_RGB32);
        QPainter painter(&canvas);
        const QRect all(QPoint(), whole.size());
        // A window of 300 x 200 that moves over the picture, in overlapping steps.
        for (int y = 0; y < whole.height(); y += 90) {
            for (int x = 0; x < whole.width(); x += 70) {
                const QRect visible = QRect(x, y, 300, 200).intersected(all);
                scrolled.draw(painter, visible, visible);
            }
        }
        painter.end();
        EXPECT_EQ(canvas, whole) << rotation;
    }
}

TEST(ScaledImage, aFineScreenGetsAllPixels)
{
    QImage pixels(400, 300, QImage::Format_RGB32);
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 400; ++x)
            pixels.setPixel(x, y, (x + y) % 2 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    ScaledImage image(*Picture::fromImageRep(pixels), 0.5F, 0);
    const QImage canvas = shown(image, 2);
    EXPECT_EQ(canvas.pixel(10, 10), qRgb(0, 0, 0));
    EXPECT_EQ(canvas.pixel(11, 10), qRgb(255, 255, 255));
    EXPECT_EQ(canvas.pixel(399, 299), qRgb(0, 0, 0));
}

TEST(ScaledImage, aScreenOfAnotherFinenessGetsNewPixels)
{
    ScaledImage image(cornered(800, 600), 0.5F, 0);
    const QImage coarse = shown(image, 1);
    const QImage fine = shown(image, 2);
    EXPECT_EQ(corners(coarse), corners(fine));
    EXPECT_EQ(shown(image, 1), coarse);
}

TEST(ScaledImage, grayPicturesAreDrawn)
{
    QImage pixels(400, 300, QImage::Format_Grayscale8);
    pixels.fill(120);
    for (const float rotation : {0.0F, 90.0F}) {
        ScaledImage image(*Picture::fromImageRep(pixels), 0.5F, rotation);
        EXPECT_EQ(shown(image).pixelColor(50, 50), QColor(120, 120, 120));
    }
}

TEST(ScaledImage, onePixelIsDrawn)
{
    QImage pixel(1, 1, QImage::Format_RGB32);
    pixel.fill(Qt::red);
    for (const float scale : {0.125F, 1.0F, 2.0F}) {
        ScaledImage image(*Picture::fromImageRep(pixel), scale, 270);
        EXPECT_EQ(shown(image).pixelColor(0, 0), QColor(Qt::red));
    }
}
