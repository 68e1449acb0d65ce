#include "imageview/SubImage.h"

#include <QTransform>

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// A picture whose pixels tell their column and row.
QImage numbered(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x, y, 7));
    return image;
}

Picture numberedPicture(int width, int height)
{
    return *Picture::fromPixels(numbered(width, height),
                                {static_cast<float>(width), static_cast<float>(height)});
}

/// What an eye sees of `image` turned by `rotation` degrees counter-clockwise, pixel by pixel.
QImage seenTurned(const QImage &image, int rotation)
{
    const bool aside = rotation == 90 || rotation == 270;
    QImage turned(aside ? image.size().transposed() : image.size(), image.format());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int right = image.width() - 1 - x;
            const int up = image.height() - 1 - y;
            const QPoint place = rotation == 0     ? QPoint(x, y)
                                 : rotation == 90  ? QPoint(y, right)
                                 : rotation == 180 ? QPoint(right, up)
                                                   : QPoint(up, x);
            turned.setPixel(place, image.pixel(x, y));
        }
    }
    return turned;
}

class SubImageTest : public ::testing::TestWithParam<int>
{
protected:
    /// The picture as it is seen, and the part of it `fromLeft` and `fromTop` whole pixels in.
    QImage seen() const { return seenTurned(numbered(60, 40), GetParam()); }
    QImage seen(int fromLeft, int fromTop, int width, int height) const
    {
        return seen().copy(fromLeft, fromTop, width, height);
    }
    std::optional<Picture> cut(FloatRect area) const
    {
        return subimage::cut(numberedPicture(60, 40), static_cast<float>(GetParam()), area);
    }
    /// The area of the turned picture that many points from its left and upper edge.
    FloatRect area(float fromLeft, float fromTop, float width, float height) const
    {
        const auto whole = static_cast<float>(seen().height());
        return {{fromLeft, whole - fromTop - height}, {width, height}};
    }
};

} // namespace

TEST_P(SubImageTest, theWholePictureIsWhatIsSeen)
{
    const QImage whole = seen();
    const auto part =
        cut(area(0, 0, static_cast<float>(whole.width()), static_cast<float>(whole.height())));
    ASSERT_TRUE(part);
    EXPECT_EQ(part->pixels(), whole);
}

TEST_P(SubImageTest, aPartIsWhatTheRectangleShows)
{
    const auto part = cut(area(3, 5, 21, 11));
    ASSERT_TRUE(part);
    EXPECT_EQ(part->size(), (FloatSize{21, 11}));
    EXPECT_EQ(part->pixels(), seen(3, 5, 21, 11));
}

TEST_P(SubImageTest, aSinglePixelIsEnough)
{
    const auto part = cut(area(30, 17, 1, 1));
    ASSERT_TRUE(part);
    EXPECT_EQ(part->pixels(), seen(30, 17, 1, 1));
}

TEST_P(SubImageTest, fractionsKeepTheSizeAndTakeWholePixels)
{
    const auto part = cut(area(3.4F, 5.3F, 10.25F, 8.5F));
    ASSERT_TRUE(part);
    EXPECT_NEAR(part->size().width, 10.25F, 1e-4F);
    EXPECT_NEAR(part->size().height, 8.5F, 1e-4F);
    EXPECT_EQ(part->pixels(), seen(3, 5, 11, 9));
}

TEST_P(SubImageTest, theNearestPixelsAreTaken)
{
    const auto part = cut(area(3.6F, 5.7F, 10, 8));
    ASSERT_TRUE(part);
    EXPECT_EQ(part->pixels(), seen(4, 6, 10, 8));
}

TEST_P(SubImageTest, aFractionAtTheFarEdgeTakesNoPixelBeyondIt)
{
    const QImage whole = seen();
    const auto width = static_cast<float>(whole.width());
    const auto height = static_cast<float>(whole.height());
    const auto part = cut(area(width - 9.4F, height - 7.4F, 9.4F, 7.4F));
    ASSERT_TRUE(part);
    EXPECT_EQ(part->pixels(), seen(whole.width() - 10, whole.height() - 8, 10, 8));
}

TEST_P(SubImageTest, roundingErrorsAddNoPixel)
{
    const auto part = cut(area(3.0001F, 5, 20.0001F, 11.0002F));
    ASSERT_TRUE(part);
    EXPECT_EQ(part->size(), (FloatSize{20, 11}));
}

TEST_P(SubImageTest, lessThanAPixelIsOnePixel)
{
    const auto part = cut(area(30.2F, 17.2F, 0.25F, 0.5F));
    ASSERT_TRUE(part);
    EXPECT_EQ(part->pixels(), seen(30, 17, 1, 1));
}

TEST_P(SubImageTest, whatLiesOutsideIsCutOff)
{
    const auto part = cut(area(-10, -7, 25, 20));
    ASSERT_TRUE(part);
    EXPECT_EQ(part->pixels(), seen(0, 0, 15, 13));
}

TEST_P(SubImageTest, nothingIsLeftOfAnEmptyOrForeignArea)
{
    EXPECT_FALSE(cut(area(3, 5, 0, 11)));
    EXPECT_FALSE(cut(area(3, 5, 21, 0)));
    EXPECT_FALSE(cut(area(-30, 5, 20, 11)));
    EXPECT_FALSE(cut(area(3, 200, 20, 11)));
    EXPECT_FALSE(cut({{3, 5}, {std::nanf(""), 11}}));
}

TEST_P(SubImageTest, graysStayGrays)
{
    QImage gray(60, 40, QImage::Format_Grayscale8);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 60; ++x)
            gray.scanLine(y)[x] = static_cast<uchar>((x * 41 + y) % 256);
    const Picture picture = *Picture::fromPixels(gray, {60, 40});
    const auto part = subimage::cut(picture, static_cast<float>(GetParam()), area(3, 5, 21, 11));
    ASSERT_TRUE(part);
    EXPECT_EQ(part->pixels().format(), QImage::Format_Grayscale8);
    EXPECT_EQ(
        part->pixels().convertToFormat(QImage::Format_RGB32),
        seenTurned(gray.convertToFormat(QImage::Format_RGB32), GetParam()).copy(3, 5, 21, 11));
}

INSTANTIATE_TEST_SUITE_P(AllRotations, SubImageTest, ::testing::Values(0, 90, 180, 270));

TEST(SubImage, aPictureOfFractionalHeightIsMeasuredFromItsTop)
{
    const Picture picture = *Picture::fromPixels(numbered(60, 40), {60, 39.25F});
    const auto upright = subimage::cut(picture, 0, {{0, 29.25F}, {60, 10}});
    ASSERT_TRUE(upright);
    EXPECT_EQ(upright->pixels(), numbered(60, 40).copy(0, 0, 60, 10));
    const auto turned = subimage::cut(picture, 180, {{0, 0}, {60, 10}});
    ASSERT_TRUE(turned);
    EXPECT_EQ(turned->pixels(), seenTurned(numbered(60, 40).copy(0, 0, 60, 10), 180));
}

TEST(SubImage, theWholeOfAPictureOfFractionalHeightStaysTheWhole)
{
    const Picture picture = *Picture::fromPixels(numbered(60, 40), {60, 39.25F});
    const auto part = subimage::cut(picture, 0, {{0, 0}, {60, 39.25F}});
    ASSERT_TRUE(part);
    EXPECT_EQ(part->size(), (FloatSize{60, 39.25F}));
    EXPECT_EQ(part->pixels(), picture.pixels());
}

TEST(SubImage, otherRotationsCountAsUpright)
{
    const auto part = subimage::cut(numberedPicture(60, 40), 45, {{3, 10}, {20, 12}});
    ASSERT_TRUE(part);
    EXPECT_EQ(part->pixels(), numbered(60, 40).copy(3, 18, 20, 12));
}
