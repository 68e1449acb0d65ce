#include "imageview/RawPicture.h"

#include "imageview/PictureReader.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr std::uint64_t plenty = 1U << 30U;

class RawPictureTest : public testing::Test
{
protected:
    static Picture sample(QImage::Format format, FloatSize size = {400, 300})
    {
        QImage image(400, 300, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, qRgb(x * 7 % 256, y * 5 % 256, (x + y) % 256));
        return *Picture::fromPixels(image.convertToFormat(format), size);
    }

    void put(const Picture &picture) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(rawpicture::write(picture, file));
    }

    void expectTheSame(const Picture &picture) const
    {
        put(picture);
        EXPECT_TRUE(rawpicture::isRaw(path()));
        const auto read = rawpicture::read(path(), plenty);
        ASSERT_TRUE(std::holds_alternative<Picture>(read));
        const auto &same = std::get<Picture>(read);
        EXPECT_EQ(same.pixels(), picture.pixels());
        EXPECT_EQ(same.pixels().format(), picture.pixels().format());
        EXPECT_EQ(same.size(), picture.size());
    }

    /// Why there is no picture in the file; nothing if there is one.
    [[nodiscard]] std::optional<PictureProblem> problem(std::uint64_t memoryLimit = plenty) const
    {
        const auto read = rawpicture::read(path(), memoryLimit);
        const auto *found = std::get_if<PictureProblem>(&read);
        return found != nullptr ? std::optional(*found) : std::nullopt;
    }

    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("1.picture")); }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(RawPictureTest, keepsEveryPixel) { expectTheSame(sample(QImage::Format_RGB32)); }

TEST_F(RawPictureTest, keepsGrayGray) { expectTheSame(sample(QImage::Format_Grayscale8)); }

TEST_F(RawPictureTest, keepsASizeWithFractions)
{
    expectTheSame(sample(QImage::Format_RGB32, {399.7F, 299.0001F}));
}

TEST_F(RawPictureTest, cutBytesGiveNoPicture)
{
    put(sample(QImage::Format_RGB32));
    QFile file(path());
    for (qint64 length = file.size() - 1; length > 0; length = length / 3) {
        ASSERT_TRUE(file.resize(length));
        EXPECT_EQ(problem(), PictureProblem::Damaged) << length;
    }
}

TEST_F(RawPictureTest, aPictureThatDoesNotFitIsNotRead)
{
    put(sample(QImage::Format_RGB32));
    EXPECT_EQ(problem(100'000), PictureProblem::TooLarge);
}

TEST_F(RawPictureTest, otherFilesAreNotRaw)
{
    QFile file(path());
    EXPECT_FALSE(rawpicture::isRaw(path()));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("\x89PNG\r\n\x1a\n");
    file.close();
    EXPECT_FALSE(rawpicture::isRaw(path()));
    EXPECT_EQ(problem(), PictureProblem::Damaged);
}

TEST_F(RawPictureTest, aDeviceThatTakesNothingIsTold)
{
    QBuffer closed;
    EXPECT_FALSE(rawpicture::write(sample(QImage::Format_RGB32), closed));
}

TEST_F(RawPictureTest, tellsHowFarItHasCome)
{
    put(sample(QImage::Format_RGB32));
    std::atomic<int> percent = 0;
    const auto read = rawpicture::read(path(), plenty, {}, &percent);
    EXPECT_TRUE(std::holds_alternative<Picture>(read));
    EXPECT_EQ(percent, 100);
}

TEST_F(RawPictureTest, leavesOffWhenNobodyWantsIt)
{
    put(sample(QImage::Format_RGB32));
    std::stop_source stop;
    stop.request_stop();
    const auto read = rawpicture::read(path(), plenty, stop.get_token());
    EXPECT_TRUE(std::holds_alternative<PictureProblem>(read));
}
