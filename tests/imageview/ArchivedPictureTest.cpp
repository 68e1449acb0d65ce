#include "imageview/ArchivedPicture.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace {

Picture sample(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x * 7 % 256, y * 5 % 256, (x + y) % 256));
    return *Picture::fromImageRep(image);
}

std::shared_ptr<const ArchivedPicture> again(const ArchivedPicture &picture)
{
    SequentialEncoder encoder;
    picture.encodeWithCoder(encoder);
    SequentialDecoder decoder(encoder.items());
    return ArchivedPicture::initWithCoder(decoder);
}

ArchivedBytes bytesOf(const ArchivedPicture &picture)
{
    SequentialEncoder encoder;
    picture.encodeWithCoder(encoder);
    return std::get<ArchivedBytes>(encoder.items().at(0));
}

} // namespace

TEST(ArchivedPicture, keepsEveryPixel)
{
    const Picture picture = sample(400, 300);
    const auto archived = ArchivedPicture::archived(picture);
    const auto read = again(*archived)->picture();
    ASSERT_TRUE(read);
    EXPECT_EQ(read->pixels(), picture.pixels());
    EXPECT_EQ(read->size(), picture.size());
}

TEST(ArchivedPicture, keepsASizeWithFractions)
{
    const Picture picture = sample(300, 200);
    EXPECT_NE(picture.size().height, 214);
    EXPECT_EQ(again(*ArchivedPicture::archived(picture))->picture()->size(), picture.size());
}

TEST(ArchivedPicture, keepsGrayGray)
{
    QImage image(400, 300, QImage::Format_Grayscale8);
    image.fill(99);
    const auto archived = ArchivedPicture::archived(*Picture::fromImageRep(image));
    EXPECT_EQ(archived->picture()->pixels().format(), QImage::Format_Grayscale8);
}

TEST(ArchivedPicture, isAPngFileOfTheClassNSImage)
{
    const auto archived = ArchivedPicture::archived(sample(400, 300));
    EXPECT_EQ(archived->className(), "NSImage");
    const ArchivedBytes bytes = bytesOf(*archived);
    EXPECT_EQ(QByteArray(reinterpret_cast<const char *>(bytes->data()), 4), "\x89PNG");
}

TEST(ArchivedPicture, bytesAreSharedNotCopied)
{
    const auto archived = ArchivedPicture::archived(sample(400, 300));
    EXPECT_EQ(bytesOf(*archived), bytesOf(*again(*archived)));
}

TEST(ArchivedPicture, cutBytesGiveNoPicture)
{
    const ArchivedBytes whole = bytesOf(*ArchivedPicture::archived(sample(40, 30)));
    for (std::size_t length = 0; length < whole->size() - 12; length += 11) {
        const auto cut = std::make_shared<const std::vector<std::byte>>(
            whole->begin(), whole->begin() + static_cast<std::ptrdiff_t>(length));
        EXPECT_FALSE(ArchivedPicture(cut).picture()) << length;
    }
}

TEST(ArchivedPicture, aChunkThatIsShorterThanItSaysGivesNoPicture)
{
    std::vector<std::byte> bytes = *bytesOf(*ArchivedPicture::archived(sample(40, 30)));
    constexpr std::size_t secondChunk = 8 + 25; // behind the signature and the header
    bytes.at(secondChunk) = std::byte{0x20};    // half a gigabyte
    const ArchivedPicture damaged(std::make_shared<const std::vector<std::byte>>(bytes));
    EXPECT_FALSE(damaged.size());
    EXPECT_FALSE(damaged.picture());
}

TEST(ArchivedPicture, anotherKindOfFileGivesNoPicture)
{
    const std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>";
    std::vector<std::byte> bytes;
    for (const char c : text)
        bytes.push_back(static_cast<std::byte>(c));
    EXPECT_FALSE(ArchivedPicture(std::make_shared<const std::vector<std::byte>>(bytes)).picture());
}

TEST(ArchivedPicture, aCoderWithoutBytesGivesNothing)
{
    SequentialEncoder encoder;
    encoder.encodeInt(3);
    SequentialDecoder decoder(encoder.items());
    EXPECT_EQ(ArchivedPicture::initWithCoder(decoder), nullptr);
}
