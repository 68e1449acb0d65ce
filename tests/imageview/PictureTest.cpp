#include "imageview/Picture.h"

#include <QColor>

#include <gtest/gtest.h>

namespace {

QImage filled(int width, int height, QImage::Format format, const QColor &color)
{
    QImage image(width, height, format);
    image.fill(color);
    return image;
}

FloatSize sizeOf(int width, int height)
{
    const auto picture =
        Picture::fromImageRep(filled(width, height, QImage::Format_RGB32, Qt::red));
    return picture ? picture->size() : FloatSize{};
}

} // namespace

TEST(Picture, smallOnesAreEnlargedUntilTheLongerSideIs320)
{
    EXPECT_EQ(sizeOf(100, 50), (FloatSize{320, 160}));
    EXPECT_EQ(sizeOf(50, 100), (FloatSize{160, 320}));
    EXPECT_EQ(sizeOf(319, 1), (FloatSize{320, static_cast<float>(320.0 / 319)}));
}

TEST(Picture, enlargementIsAtMostTenfold)
{
    EXPECT_EQ(sizeOf(20, 10), (FloatSize{200, 100}));
    EXPECT_EQ(sizeOf(1, 1), (FloatSize{10, 10}));
}

TEST(Picture, largerOnesKeepTheirSize)
{
    EXPECT_EQ(sizeOf(400, 50), (FloatSize{400, 50}));
    EXPECT_EQ(sizeOf(320, 1), (FloatSize{320, 1}));
}

TEST(Picture, aSizeInPointsMayHaveFractions)
{
    const auto picture = Picture::fromImageRep(filled(300, 200, QImage::Format_RGB32, Qt::red));
    EXPECT_EQ(picture->size(), (FloatSize{320, static_cast<float>(200 * (320.0 / 300))}));
    EXPECT_EQ(picture->pixels().size(), QSize(320, 214));
}

TEST(Picture, a301PixelSideBecomesExactly320)
{
    const auto picture = Picture::fromImageRep(filled(301, 301, QImage::Format_RGB32, Qt::red));
    EXPECT_EQ(picture->size(), (FloatSize{320, 320}));
    EXPECT_EQ(picture->pixels().size(), QSize(320, 320));
}

TEST(Picture, enlargedPixelsFillThePicture)
{
    const auto picture =
        Picture::fromImageRep(filled(20, 10, QImage::Format_RGB32, QColor(10, 200, 30)));
    for (const QPoint p : {QPoint(2, 2), QPoint(197, 97), QPoint(100, 50)})
        EXPECT_EQ(picture->pixels().pixelColor(p), QColor(10, 200, 30));
}

TEST(Picture, transparencyIsLaidOnWhite)
{
    const auto clear =
        Picture::fromImageRep(filled(400, 10, QImage::Format_ARGB32, QColor(0, 0, 0, 0)));
    EXPECT_EQ(clear->pixels().pixelColor(5, 5), QColor(Qt::white));
    const auto half =
        Picture::fromImageRep(filled(400, 10, QImage::Format_ARGB32, QColor(255, 0, 0, 51)));
    EXPECT_EQ(half->pixels().pixelColor(5, 5), QColor(255, 204, 204));
    EXPECT_EQ(half->pixels().format(), QImage::Format_RGB32);
}

TEST(Picture, transparencyOfSmallOnesIsLaidOnWhite)
{
    const auto picture =
        Picture::fromImageRep(filled(40, 40, QImage::Format_ARGB32, QColor(255, 0, 0, 51)));
    EXPECT_EQ(picture->pixels().pixelColor(100, 100), QColor(255, 204, 204));
}

TEST(Picture, storedResolutionDoesNotCount)
{
    QImage image = filled(400, 300, QImage::Format_RGB32, Qt::red);
    image.setDotsPerMeterX(11811); // 300 dots per inch
    image.setDotsPerMeterY(11811);
    image.setDevicePixelRatio(2);
    EXPECT_EQ(Picture::fromImageRep(image)->size(), (FloatSize{400, 300}));
    QImage small = filled(100, 50, QImage::Format_RGB32, Qt::red);
    small.setDevicePixelRatio(2);
    const auto picture = Picture::fromImageRep(small);
    EXPECT_EQ(picture->size(), (FloatSize{320, 160}));
    EXPECT_EQ(picture->pixels().pixelColor(315, 155), QColor(Qt::red));
}

TEST(Picture, grayScansKeepOneBytePerPixel)
{
    const auto gray =
        Picture::fromImageRep(filled(400, 300, QImage::Format_Grayscale8, QColor(90, 90, 90)));
    EXPECT_EQ(gray->pixels().format(), QImage::Format_Grayscale8);
    QImage bilevel(400, 300, QImage::Format_Mono);
    bilevel.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    bilevel.fill(1);
    const auto fax = Picture::fromImageRep(bilevel);
    EXPECT_EQ(fax->pixels().format(), QImage::Format_Grayscale8);
    EXPECT_EQ(fax->pixels().pixelColor(7, 7), QColor(Qt::black));
}

TEST(Picture, colourTablesAreResolved)
{
    QImage indexed(400, 300, QImage::Format_Indexed8);
    indexed.setColorTable({qRgb(1, 2, 3), qRgba(0, 0, 0, 0)});
    indexed.fill(0);
    indexed.setPixel(0, 0, 1);
    const auto picture = Picture::fromImageRep(indexed);
    EXPECT_EQ(picture->pixels().pixelColor(9, 9), QColor(1, 2, 3));
    EXPECT_EQ(picture->pixels().pixelColor(0, 0), QColor(Qt::white));
}

TEST(Picture, deepColoursBecomeEightBits)
{
    const auto picture =
        Picture::fromImageRep(filled(400, 300, QImage::Format_RGBA64, QColor(12, 34, 56)));
    EXPECT_EQ(picture->pixels().pixelColor(9, 9), QColor(12, 34, 56));
}

TEST(Picture, noPixelsGiveNoPicture) { EXPECT_FALSE(Picture::fromImageRep(QImage())); }

TEST(Picture, pixelsMustHaveTheSizeRoundedUp)
{
    const QImage pixels = filled(320, 214, QImage::Format_RGB32, Qt::red);
    EXPECT_TRUE(Picture::fromPixels(pixels, {320, 213.3F}));
    EXPECT_FALSE(Picture::fromPixels(pixels, {320, 212.9F}));
    EXPECT_FALSE(Picture::fromPixels(pixels, {321, 214}));
}

TEST(Picture, reducedCopiesTakeLessThanATenthOfThePicture)
{
    const auto picture = Picture::fromImageRep(filled(4000, 3000, QImage::Format_RGB32, Qt::red));
    const qsizetype copies =
        picture->reducedPixels(0).sizeInBytes() + picture->reducedPixels(1).sizeInBytes();
    EXPECT_LT(copies, picture->pixels().sizeInBytes() / 10);
    EXPECT_EQ(picture->reducedPixels(0).size(), QSize(1000, 750));
    EXPECT_EQ(picture->reducedPixels(1).size(), QSize(500, 375));
}

TEST(Picture, theCallersPixelsStayAsTheyWere)
{
    const QImage image = filled(400, 300, QImage::Format_ARGB32, QColor(255, 0, 0, 51));
    const QImage copy = image.copy();
    const auto picture = Picture::fromImageRep(image);
    EXPECT_TRUE(picture);
    EXPECT_EQ(image, copy);
}
