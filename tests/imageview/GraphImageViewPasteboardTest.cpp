#include "imageview/ImageViewFixture.h"
#include "imageview/SamplePng.h"

#include "platform/Texts.h"

#include <QBuffer>
#include <QFile>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>

namespace {

QImage plain(int width, int height, QColor colour = Qt::red)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(colour);
    return image;
}

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return bytes;
}

class PasteboardTest : public ImageViewTest
{
protected:
    PasteboardTest() { install(500, 400); }

    QUrl saved(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return QUrl::fromLocalFile(file.fileName());
    }

    void expectKept() const
    {
        EXPECT_EQ(view->imageSize(), (FloatSize{500, 400}));
        EXPECT_EQ(around.count("resetPosition:view"), 0);
    }
    void expectSheet(const char *key) const
    {
        ASSERT_EQ(around.sheetsShown.size(), 1U);
        EXPECT_EQ(around.sheetsShown[0].message, texts::localized("ErrorOccurred"));
        const QString start = texts::localized(key).section('%', 0, 0);
        EXPECT_TRUE(around.sheetsShown[0].informativeText.startsWith(start))
            << around.sheetsShown[0].informativeText.toStdString();
    }

    QMimeData pasteboard;

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(PasteboardTest, picturesAreAcceptedOnTheAxisPageOnly)
{
    pasteboard.setImageData(plain(400, 300));
    EXPECT_TRUE(view->acceptPasteboard(&pasteboard));
    around.axisSetting = false;
    EXPECT_FALSE(view->acceptPasteboard(&pasteboard));
}

TEST_F(PasteboardTest, noPasteboardIsRefused)
{
    EXPECT_FALSE(view->acceptPasteboard(nullptr));
    EXPECT_FALSE(view->replaceImageWithPasteboard(nullptr));
    expectKept();
}

TEST_F(PasteboardTest, theFirstFileIsOpened)
{
    pasteboard.setUrls({saved(QStringLiteral("Größe 100%.png"), encoded(plain(330, 200), "png")),
                        saved("b.png", encoded(plain(440, 200), "png"))});
    EXPECT_TRUE(view->replaceImageWithPasteboard(&pasteboard));
    EXPECT_EQ(view->imageSize(), (FloatSize{330, 200}));
}

TEST_F(PasteboardTest, aFileComesBeforeAnImage)
{
    pasteboard.setImageData(plain(440, 200));
    pasteboard.setUrls({saved("a.png", encoded(plain(330, 200), "png"))});
    EXPECT_TRUE(view->replaceImageWithPasteboard(&pasteboard));
    EXPECT_EQ(view->imageSize(), (FloatSize{330, 200}));
}

TEST_F(PasteboardTest, aFileThatCannotBeReadKeepsThePicture)
{
    pasteboard.setUrls({saved("a.png", "no picture")});
    pasteboard.setImageData(plain(440, 200));
    EXPECT_FALSE(view->replaceImageWithPasteboard(&pasteboard));
    expectKept();
    ASSERT_EQ(around.sheetsShown.size(), 1U);
    EXPECT_TRUE(around.sheetsShown[0].informativeText.contains("“a.png”"));
}

TEST_F(PasteboardTest, aPageDescriptionInCapitalsIsRefusedByTheLoader)
{
    pasteboard.setUrls({saved("A.PDF", "%PDF-1.4\n1 0 obj\n<< /Type /Catalog >>\nendobj\n")});
    ASSERT_TRUE(view->acceptPasteboard(&pasteboard));
    EXPECT_FALSE(view->replaceImageWithPasteboard(&pasteboard));
    expectKept();
    ASSERT_EQ(around.sheetsShown.size(), 1U);
    EXPECT_TRUE(around.sheetsShown[0].informativeText.contains("“A.PDF”"));
}

TEST_F(PasteboardTest, theUsualFormsOfImagesAreRead)
{
    for (const char *format : {"png", "tiff", "bmp", "webp", "jpeg"}) {
        QMimeData offered;
        offered.setData(QStringLiteral("image/") + format, encoded(plain(330, 200), format));
        EXPECT_TRUE(view->replaceImageWithPasteboard(&offered)) << format;
        EXPECT_EQ(view->imageSize(), (FloatSize{330, 200})) << format;
        install(500, 400);
    }
}

TEST_F(PasteboardTest, drawingsAreRead)
{
    pasteboard.setData("image/svg+xml",
                       R"(<svg xmlns="http://www.w3.org/2000/svg" width="330" height="200"/>)");
    EXPECT_TRUE(view->replaceImageWithPasteboard(&pasteboard));
    EXPECT_EQ(view->imageSize(), (FloatSize{330, 200}));
}

TEST_F(PasteboardTest, theImageOfAWebPageIsTakenNotItsText)
{
    pasteboard.setHtml("<img src='https://example.org/a.png'>");
    pasteboard.setUrls({QUrl("https://example.org/a.png")});
    pasteboard.setText("https://example.org/a.png");
    pasteboard.setData("image/png", encoded(plain(330, 200), "png"));
    EXPECT_TRUE(view->replaceImageWithPasteboard(&pasteboard));
    EXPECT_EQ(view->imageSize(), (FloatSize{330, 200}));
}

TEST_F(PasteboardTest, anImageOfThisProgramIsTaken)
{
    pasteboard.setImageData(plain(330, 200));
    EXPECT_TRUE(view->replaceImageWithPasteboard(&pasteboard));
    EXPECT_EQ(view->imageSize(), (FloatSize{330, 200}));
}

TEST_F(PasteboardTest, smallImagesAreEnlargedAndTransparentOnesLieOnWhite)
{
    pasteboard.setData("image/png", encoded(plain(100, 50, QColor(0, 0, 0, 0)), "png"));
    EXPECT_TRUE(view->replaceImageWithPasteboard(&pasteboard));
    EXPECT_EQ(view->imageSize(), (FloatSize{320, 160}));
    EXPECT_EQ(view->grab().toImage().pixelColor(20, 20), QColor(Qt::white));
}

TEST_F(PasteboardTest, aNewPictureTakesTheUndoOfTheOldOneAlong)
{
    pasteboard.setImageData(plain(330, 200));
    view->replaceImageWithPasteboard(&pasteboard);
    EXPECT_EQ(around.count("removeUndoOfDataSeries"), 1);
    EXPECT_EQ(around.count("removeUndoOfCurrentAxes"), 1);
}

TEST_F(PasteboardTest, aDamagedImageSaysSoAndKeepsThePicture)
{
    const QByteArray whole = encoded(plain(330, 200), "png");
    pasteboard.setData("image/png", whole.left(whole.size() - 30));
    EXPECT_FALSE(view->replaceImageWithPasteboard(&pasteboard));
    expectKept();
    expectSheet("imageview.pasted.damaged");
}

TEST_F(PasteboardTest, bytesThatAreNoImageSaySo)
{
    pasteboard.setData("image/png", "no picture");
    EXPECT_FALSE(view->replaceImageWithPasteboard(&pasteboard));
    expectKept();
    expectSheet("imageview.pasted.not-a-picture");
}

TEST_F(PasteboardTest, aPasteboardWithoutAnImageSaysSo)
{
    pasteboard.setText("text");
    EXPECT_FALSE(view->replaceImageWithPasteboard(&pasteboard));
    expectKept();
    expectSheet("imageview.pasted.not-a-picture");
}

TEST_F(PasteboardTest, anImageBeyondEveryMemorySaysItsSize)
{
    pasteboard.setData("image/png", pngHeader(100'000, 100'000));
    EXPECT_FALSE(view->replaceImageWithPasteboard(&pasteboard));
    expectKept();
    expectSheet("imageview.pasted.too-large");
    EXPECT_TRUE(around.sheetsShown[0].informativeText.contains("100000 × 100000"));
}

TEST_F(PasteboardTest, aLargeImageIsReadWithoutHoldingUpTheWindow)
{
    pasteboard.setData("image/bmp", encoded(plain(2200, 2000), "bmp"));
    const QSignalSpy opened(view, &GraphImageView::fileOpened);
    EXPECT_TRUE(view->replaceImageWithPasteboard(&pasteboard));
    expectKept();
    ASSERT_TRUE(QTest::qWaitFor([&opened] { return !opened.isEmpty(); }, 30'000));
    EXPECT_TRUE(opened[0][0].toBool());
    EXPECT_EQ(view->imageSize(), (FloatSize{2200, 2000}));
}
