#include "imageview/PictureOpener.h"

#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class PictureOpenerTest : public ::testing::Test
{
protected:
    PictureOpenerTest()
    {
        host.resize(500, 400);
        host.show();
        opener = std::make_unique<PictureOpener>(host);
    }
    QString picture(const QString &name, int width, int height)
    {
        QImage pixels(width, height, QImage::Format_RGB32);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                pixels.setPixel(x, y, qRgb((x * 89 ^ y * 57) % 256, x * y % 256, (x + y) % 256));
        const QString path = folder.filePath(name);
        EXPECT_TRUE(pixels.save(path, "png", 100));
        return path;
    }
    QWidget *panel() const { return host.findChild<QWidget *>("readingProgress"); }

    QTemporaryDir folder;
    QWidget host;
    std::unique_ptr<PictureOpener> opener;
};

} // namespace

TEST_F(PictureOpenerTest, smallPicturesComeAtOnce)
{
    const auto reading = opener->open(picture("a.png", 400, 300), {});
    ASSERT_TRUE(reading);
    EXPECT_TRUE(reading->picture);
}

TEST_F(PictureOpenerTest, takesWhatWasReadBefore)
{
    const QString path = picture("a.png", 400, 300);
    auto ahead = PictureReadAhead::begin(path);
    ASSERT_TRUE(ahead->result().picture);
    // The first look finds the new size; the picture is the one that was read.
    picture("a.png", 40, 30);
    opener->expect(std::move(ahead));
    const auto reading = opener->open(path, {});
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->pixelSize, QSize(400, 300));
}

TEST_F(PictureOpenerTest, takesALargePictureWhileItIsReadBefore)
{
    std::optional<PictureReading> later;
    const QString path = picture("a.png", 2200, 2000);
    opener->expect(PictureReadAhead::begin(path));
    EXPECT_FALSE(opener->open(path, [&](const PictureReading &reading) { later = reading; }));
    ASSERT_TRUE(QTest::qWaitFor([&] { return later.has_value(); }, 30'000));
    EXPECT_TRUE(later->picture);
}

TEST_F(PictureOpenerTest, cancelAlsoGivesUpWhatWasBegunBefore)
{
    std::optional<PictureReading> later;
    const QString path = picture("a.png", 2200, 2000);
    opener->expect(PictureReadAhead::begin(path));
    EXPECT_FALSE(opener->open(path, [&](const PictureReading &reading) { later = reading; }));
    opener->cancel();
    ASSERT_TRUE(later);
    EXPECT_EQ(later->problem, PictureProblem::Cancelled);
}

TEST_F(PictureOpenerTest, whatWasReadBeforeIsNotTakenForAnotherFile)
{
    opener->expect(PictureReadAhead::begin(picture("a.png", 400, 300)));
    const auto reading = opener->open(picture("b.png", 40, 30), {});
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->pixelSize, QSize(40, 30));
}

TEST_F(PictureOpenerTest, whatWasReadBeforeIsTakenOnce)
{
    const QString path = picture("a.png", 400, 300);
    opener->expect(PictureReadAhead::begin(path));
    ASSERT_TRUE(opener->open(path, {}));
    picture("a.png", 40, 30);
    EXPECT_EQ(opener->open(path, {})->pixelSize, QSize(40, 30));
}

TEST_F(PictureOpenerTest, problemsOfTheBeginningComeAtOnce)
{
    const auto reading = opener->open(folder.filePath("none.png"), {});
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->problem, PictureProblem::Missing);
}

TEST_F(PictureOpenerTest, largePicturesComeLater)
{
    std::optional<PictureReading> later;
    const QString path = picture("a.png", 2200, 2000);
    EXPECT_FALSE(opener->open(path, [&](const PictureReading &reading) { later = reading; }));
    EXPECT_FALSE(later);
    ASSERT_TRUE(QTest::qWaitFor([&] { return later.has_value(); }, 30'000));
    EXPECT_TRUE(later->picture);
    EXPECT_FALSE(panel()->isVisible());
}

TEST_F(PictureOpenerTest, givingUpKeepsThePictureAway)
{
    int told = 0;
    std::optional<PictureProblem> problem;
    EXPECT_FALSE(opener->open(picture("a.png", 2200, 2000), [&](const PictureReading &reading) {
        ++told;
        problem = reading.problem;
    }));
    opener->cancel();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(problem, PictureProblem::Cancelled);
    opener.reset(); // the thread has ended now
    EXPECT_EQ(told, 1);
}

TEST_F(PictureOpenerTest, closingInTheMiddleOfReadingIsSafe)
{
    EXPECT_FALSE(opener->open(picture("a.png", 2200, 2000),
                              [](const PictureReading &) { FAIL() << "nobody is there"; }));
    opener.reset();
}
