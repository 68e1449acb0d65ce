#include "imageview/PictureReadAhead.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

namespace {

class PictureReadAheadTest : public testing::Test
{
protected:
    [[nodiscard]] QString picture(int width, int height) const
    {
        QImage pixels(width, height, QImage::Format_RGB32);
        pixels.fill(Qt::red);
        const QString path = m_folder.filePath(QStringLiteral("a.png"));
        EXPECT_TRUE(pixels.save(path));
        return path;
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(PictureReadAheadTest, givesThePicture)
{
    const auto ahead = PictureReadAhead::begin(picture(30, 20));
    ASSERT_NE(ahead, nullptr);
    const PictureReading reading = ahead->result();
    ASSERT_TRUE(reading.picture);
    EXPECT_EQ(reading.pixelSize, QSize(30, 20));
}

TEST_F(PictureReadAheadTest, givesTheProblemOfAFileThatIsNoPicture)
{
    const auto ahead = PictureReadAhead::begin(m_folder.filePath(QStringLiteral("none.png")));
    EXPECT_EQ(ahead->result().problem, PictureProblem::Missing);
}

TEST_F(PictureReadAheadTest, leavesPdfFilesAlone)
{
    EXPECT_EQ(PictureReadAhead::begin(QStringLiteral("/charts/a.pdf")), nullptr);
    EXPECT_EQ(PictureReadAhead::begin(QStringLiteral("/charts/a.PDF")), nullptr);
}
