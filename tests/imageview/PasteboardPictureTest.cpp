#include "imageview/PasteboardPicture.h"

#include "imageview/PictureReader.h"
#include "imageview/PictureSuffixes.h"

#include <QBuffer>
#include <QImage>
#include <QMimeData>
#include <QSysInfo>
#include <QUrl>

#include <gtest/gtest.h>

namespace {

constexpr std::uint64_t enoughMemory = std::uint64_t{1} << 30U;

std::optional<QString> firstFileOf(const QByteArray &uriList)
{
    QMimeData pasteboard;
    pasteboard.setData("text/uri-list", uriList);
    return pasteboardpicture::firstFile(pasteboard);
}

bool isOffered(const QByteArray &uriList)
{
    QMimeData pasteboard;
    pasteboard.setData("text/uri-list", uriList);
    return pasteboardpicture::isOffered(pasteboard);
}

QByteArray encoded(const char *format)
{
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return bytes;
}

} // namespace

TEST(PasteboardPicture, fileNamesMayHoldBlanksAndLettersOfAnyLanguage)
{
    EXPECT_EQ(firstFileOf("file:///a/my%20chart.png"), "/a/my chart.png");
    EXPECT_EQ(firstFileOf("file:///a/my chart.png"), "/a/my chart.png");
    EXPECT_EQ(firstFileOf("file:///a/%C3%9Cbersicht%20%E5%9B%BE.png"),
              QString("/a/Übersicht 图.png"));
    EXPECT_EQ(firstFileOf(QByteArray("file:///a/Übersicht.png")), QString("/a/Übersicht.png"));
    EXPECT_EQ(firstFileOf("file:///a/100%25%23.png"), "/a/100%#.png");
}

TEST(PasteboardPicture, listsOfAddressesMayHaveCommentsAndCarriageReturns)
{
    EXPECT_EQ(firstFileOf("# dragged\r\n\r\nfile:///a/b.png\r\nfile:///a/c.png\r\n"), "/a/b.png");
}

TEST(PasteboardPicture, anAddressOfTheWebIsNoFile)
{
    EXPECT_FALSE(firstFileOf("http://example.org/a.png\r\nhttps://example.org/b.png"));
    EXPECT_EQ(firstFileOf("http://example.org/a.png\r\nfile:///a/b.png"), "/a/b.png");
}

TEST(PasteboardPicture, theNameOfThisComputerBelongsToNoPath)
{
    EXPECT_EQ(firstFileOf("file://localhost/a/b.png"), "/a/b.png");
    EXPECT_EQ(firstFileOf("file://" + QSysInfo::machineHostName().toUtf8() + "/a/b.png"),
              "/a/b.png");
}

TEST(PasteboardPicture, everyExtensionOfPicturesIsOfferedInAnyCase)
{
    for (const QString &suffix : picturesuffixes::all()) {
        EXPECT_TRUE(isOffered("file:///a/b." + suffix.toLatin1())) << suffix.toStdString();
        EXPECT_TRUE(isOffered("file:///a/b." + suffix.toUpper().toLatin1()))
            << suffix.toStdString();
    }
}

TEST(PasteboardPicture, pageDescriptionsAreOffered)
{
    EXPECT_TRUE(isOffered("file:///a/b.pdf"));
    EXPECT_TRUE(isOffered("file:///a/b.PDF"));
}

TEST(PasteboardPicture, otherFilesAreNotOffered)
{
    for (const char *list : {"file:///a/b.txt", "file:///a/png", "file:///a/.png",
                             "file:///a/b.png.zip", "file:///a/folder.png/", "file:///"})
        EXPECT_FALSE(isOffered(list)) << list;
}

TEST(PasteboardPicture, onlyTheFirstFileCounts)
{
    EXPECT_TRUE(isOffered("file:///a/b.png\r\nfile:///a/c.txt"));
    EXPECT_FALSE(isOffered("file:///a/c.txt\r\nfile:///a/b.png"));
}

TEST(PasteboardPicture, aFirstFileThatIsNoPictureHidesAnImage)
{
    QMimeData pasteboard;
    pasteboard.setUrls({QUrl::fromLocalFile("/a/table.csv")});
    pasteboard.setData("image/png", encoded("png"));
    EXPECT_FALSE(pasteboardpicture::isOffered(pasteboard));
}

TEST(PasteboardPicture, theImageBesideAnAddressOfTheWebIsOffered)
{
    QMimeData pasteboard;
    pasteboard.setHtml("<img src='https://example.org/a.png'>");
    pasteboard.setUrls({QUrl("https://example.org/a.html")});
    EXPECT_FALSE(pasteboardpicture::isOffered(pasteboard));
    pasteboard.setData("image/png", encoded("png"));
    EXPECT_TRUE(pasteboardpicture::isOffered(pasteboard));
}

TEST(PasteboardPicture, everyKindOfImageIsOffered)
{
    for (const char *format :
         {"image/png", "image/tiff", "image/webp", "image/svg+xml", "image/x-new", "IMAGE/PNG"}) {
        QMimeData pasteboard;
        pasteboard.setData(format, "data");
        EXPECT_TRUE(pasteboardpicture::isOffered(pasteboard)) << format;
    }
    QMimeData ofThisProgram;
    ofThisProgram.setImageData(QImage(4, 4, QImage::Format_RGB32));
    EXPECT_TRUE(pasteboardpicture::isOffered(ofThisProgram));
}

TEST(PasteboardPicture, textIsNoPicture)
{
    QMimeData pasteboard;
    EXPECT_FALSE(pasteboardpicture::isOffered(pasteboard));
    pasteboard.setText("/a/b.png");
    EXPECT_FALSE(pasteboardpicture::isOffered(pasteboard));
}

TEST(PasteboardPicture, formsThatKeepEveryPixelComeFirst)
{
    QMimeData pasteboard;
    for (const char *format : {"image/svg+xml", "text/html", "image/jpeg", "image/bmp",
                               "image/webp", "image/tiff", "image/png"})
        pasteboard.setData(format, "data");
    EXPECT_EQ(pasteboardpicture::imageFormats(pasteboard),
              (QStringList{"image/png", "image/tiff", "image/bmp", "image/jpeg", "image/webp",
                           "image/svg+xml"}));
}

TEST(PasteboardPicture, aFormThatCannotBeReadGivesWayToTheNext)
{
    const PictureReader reader(enoughMemory);
    QMimeData pasteboard;
    pasteboard.setData("image/png", "no picture");
    pasteboard.setData("image/bmp", encoded("bmp"));
    const auto source = pasteboardpicture::imageSource(pasteboard, reader);
    ASSERT_TRUE(source);
    EXPECT_TRUE(reader.read(*source).picture);
}

TEST(PasteboardPicture, whereNoFormCanBeReadTheFirstTellsTheProblem)
{
    const PictureReader reader(enoughMemory);
    QMimeData pasteboard;
    pasteboard.setData("image/webp", "");
    pasteboard.setData("image/png", "no picture");
    const auto source = pasteboardpicture::imageSource(pasteboard, reader);
    ASSERT_TRUE(source);
    EXPECT_EQ(reader.read(*source).problem, PictureProblem::NotAPicture);
}

TEST(PasteboardPicture, whatIsTooLargeIsNotTriedInOtherForms)
{
    const PictureReader reader(1000);
    QMimeData pasteboard;
    pasteboard.setData("image/png", encoded("png"));
    pasteboard.setData("image/svg+xml",
                       R"(<svg xmlns="http://www.w3.org/2000/svg" width="4" height="3"/>)");
    const auto source = pasteboardpicture::imageSource(pasteboard, reader);
    ASSERT_TRUE(source);
    EXPECT_EQ(reader.read(*source).problem, PictureProblem::TooLarge);
}

TEST(PasteboardPicture, formatsWithoutASignatureAreBelievedByTheirKind)
{
    const PictureReader reader(enoughMemory);
    const QByteArray xbm = "#define a_width 8\n#define a_height 2\n"
                           "static char a_bits[] = {\n0x55, 0xaa };\n";
    EXPECT_TRUE(reader.read(PictureSource::handedOver(xbm, "image/x-xbitmap")).picture);
    EXPECT_EQ(reader.read(PictureSource::handedOver(xbm, "image/png")).problem,
              PictureProblem::NotAPicture);
}

TEST(PasteboardPicture, aPageDescriptionIsNoImageWhateverItIsCalled)
{
    const PictureReader reader(enoughMemory);
    const QByteArray page = "%PDF-1.4\n1 0 obj\n";
    EXPECT_FALSE(reader.read(PictureSource::handedOver(page, "image/pdf")).picture);
}
