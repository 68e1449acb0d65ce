#include "imageview/PictureMemory.h"

#include "imageview/PictureReader.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>

#include <optional>

namespace {

/// A picture file that takes a good four million bytes to decode.
class PictureMemoryTest : public testing::Test
{
protected:
    PictureMemoryTest()
    {
        QImage pixels(1000, 1000, QImage::Format_RGB32);
        pixels.fill(Qt::red);
        EXPECT_TRUE(pixels.save(path));
    }

    [[nodiscard]] std::optional<picturememory::Claim> claim(std::uint64_t bytes) const
    {
        return picturememory::claim(QImageReader(path), bytes);
    }

private:
    QTemporaryDir m_folder;

protected:
    const QString path = m_folder.filePath(QStringLiteral("a.png"));
    static constexpr std::uint64_t enoughForOne = 5'000'000;
};

} // namespace

TEST_F(PictureMemoryTest, isClaimedByOneAtATime)
{
    {
        const auto first = claim(enoughForOne);
        EXPECT_TRUE(first.has_value());
        EXPECT_FALSE(claim(enoughForOne).has_value());
        EXPECT_TRUE(claim(2 * enoughForOne).has_value());
    }
    EXPECT_TRUE(claim(enoughForOne).has_value());
}

TEST_F(PictureMemoryTest, isNotClaimedForWhatNeverFits)
{
    EXPECT_FALSE(claim(100'000).has_value());
    EXPECT_FALSE(picturememory::claim(QImageReader(QStringLiteral("none.png")), enoughForOne));
}

TEST_F(PictureMemoryTest, thatIsClaimedIsNotThereForAnotherPicture)
{
    const PictureReader reader(enoughForOne);
    {
        const auto other = claim(enoughForOne);
        EXPECT_EQ(reader.read(path).problem, PictureProblem::TooLarge);
    }
    EXPECT_TRUE(reader.read(path).picture.has_value());
}
