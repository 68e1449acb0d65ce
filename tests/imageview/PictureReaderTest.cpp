#include "imageview/PictureReader.h"

#include "imageview/PictureMemory.h"
#include "imageview/SamplePng.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr std::uint64_t gibibyte = std::uint64_t{1} << 30U;

QImage chart(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.fillRect(0, 0, width / 2, height / 2, Qt::red);
    for (int x = 0; x < width; x += 7)
        painter.drawLine(x, height / 2, width, (x * 31) % height);
    return image;
}

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, format);
    writer.setQuality(95);
    EXPECT_TRUE(writer.write(image)) << format;
    return bytes;
}

/// A JPEG with an EXIF orientation put behind its start marker.
QByteArray withOrientation(const QByteArray &jpeg, char orientation)
{
    QByteArray exif("Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0", 25);
    exif.append(orientation);
    exif.append(QByteArray("\0\0\0\0\0\0", 6));
    const auto length = static_cast<quint32>(exif.size() + 2);
    QByteArray segment("\xff\xe1");
    segment += bigEndian(length).mid(2) + exif;
    return jpeg.left(2) + segment + jpeg.mid(2);
}

/// 2 x 1 pixels, red and blue.
QByteArray smallGif()
{
    return QByteArray::fromHex("474946383961020001008000"
                               "00ff00000000ff2c0000000002000100000202440a"
                               "00"
                               "3b");
}

class PictureReaderTest : public ::testing::Test
{
protected:
    QString file(const QString &name, const QByteArray &bytes) const
    {
        const QString path = m_folder.filePath(name);
        QFile target(path);
        EXPECT_TRUE(target.open(QIODevice::WriteOnly));
        target.write(bytes);
        return path;
    }
    PictureReading read(const QString &path) const { return m_reader.read(path); }
    std::optional<PictureProblem> problemOf(const QString &name, const QByteArray &bytes) const
    {
        const PictureReading reading = read(file(name, bytes));
        EXPECT_NE(reading.picture.has_value(), reading.problem.has_value());
        return reading.problem;
    }

    QTemporaryDir m_folder;
    PictureReader m_reader{4 * gibibyte};
};

} // namespace

TEST_F(PictureReaderTest, readsEveryFormatThatCanBeWrittenHere)
{
    const QImage image = chart(400, 300);
    for (const QByteArray &format : QImageWriter::supportedImageFormats()) {
        if (format == "xbm" || format == "pbm" || format == "wbmp" || format == "cur" ||
            format == "icns" || format == "ico")
            continue; // they hold icons of fixed sizes or two colours
        const PictureReading reading =
            read(file(QStringLiteral("chart.") + QString::fromLatin1(format),
                      encoded(image, format.constData())));
        ASSERT_TRUE(reading.picture) << format.constData();
        EXPECT_EQ(reading.picture->size(), (FloatSize{400, 300})) << format.constData();
        EXPECT_LT(qGreen(reading.picture->pixels().pixel(100, 75)), 160) << format.constData();
        EXPECT_EQ(reading.pixelSize, QSize(400, 300)) << format.constData();
    }
}

TEST_F(PictureReaderTest, readsThePromisedFormats)
{
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const char *format : {"png", "jpeg", "tiff", "bmp", "gif", "webp", "svg"})
        EXPECT_TRUE(formats.contains(format)) << format;
}

TEST_F(PictureReaderTest, readsGif)
{
    const PictureReading reading = read(file("a.gif", smallGif()));
    ASSERT_TRUE(reading.picture);
    EXPECT_EQ(reading.picture->size(), (FloatSize{20, 10}));
    EXPECT_EQ(reading.picture->pixels().pixelColor(1, 5), QColor(Qt::red));
    EXPECT_EQ(reading.picture->pixels().pixelColor(18, 5), QColor(Qt::blue));
}

TEST_F(PictureReaderTest, readsSvgOnWhite)
{
    const PictureReading reading =
        read(file("a.svg", R"(<svg xmlns="http://www.w3.org/2000/svg" width="400" height="300">
                    <rect x="100" y="100" width="50" height="50" fill="#00ff00"/></svg>)"));
    ASSERT_TRUE(reading.picture);
    EXPECT_EQ(reading.picture->size(), (FloatSize{400, 300}));
    EXPECT_EQ(reading.picture->pixels().pixelColor(125, 125), QColor(Qt::green));
    EXPECT_EQ(reading.picture->pixels().pixelColor(5, 5), QColor(Qt::white));
}

TEST_F(PictureReaderTest, theContentDecidesNotTheFileName)
{
    EXPECT_EQ(problemOf("really-png.jpg", encoded(chart(400, 300), "png")), std::nullopt);
    EXPECT_EQ(problemOf("no-suffix", encoded(chart(400, 300), "jpg")), std::nullopt);
    EXPECT_EQ(problemOf("upper.PNG", encoded(chart(400, 300), "png")), std::nullopt);
}

TEST_F(PictureReaderTest, picturesStandAsTheCameraWasHeld)
{
    // The red quarter is at the top left of the stored pixels, 400 x 300.
    const QByteArray jpeg = encoded(chart(400, 300), "jpg");
    struct Case
    {
        char orientation;
        QSize size;
        QPoint red;
    };
    const QPoint topLeft(20, 20);
    for (const Case &c : {Case{1, {400, 300}, topLeft}, Case{2, {400, 300}, {380, 20}},
                          Case{3, {400, 300}, {380, 280}}, Case{4, {400, 300}, {20, 280}},
                          Case{5, {300, 400}, topLeft}, Case{6, {300, 400}, {280, 20}},
                          Case{7, {300, 400}, {280, 380}}, Case{8, {300, 400}, {20, 380}}}) {
        const PictureReading reading =
            read(file("photo.jpg", withOrientation(jpeg, c.orientation)));
        ASSERT_TRUE(reading.picture) << int{c.orientation};
        EXPECT_EQ(reading.picture->pixels().size(), c.size) << int{c.orientation};
        const QColor corner = reading.picture->pixels().pixelColor(c.red);
        EXPECT_GT(corner.red(), 230) << int{c.orientation};
        EXPECT_LT(corner.green(), 40) << int{c.orientation};
    }
}

TEST_F(PictureReaderTest, storedResolutionDoesNotCount)
{
    QImage image = chart(400, 300);
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(11811);
    EXPECT_EQ(read(file("scan@2x.png", encoded(image, "png"))).picture->size(),
              (FloatSize{400, 300}));
}

TEST_F(PictureReaderTest, aMissingFileIsMissing)
{
    EXPECT_EQ(read(m_folder.filePath("nowhere.png")).problem, PictureProblem::Missing);
}

TEST_F(PictureReaderTest, aFolderIsAFolder)
{
    EXPECT_EQ(read(m_folder.path()).problem, PictureProblem::Folder);
}

TEST_F(PictureReaderTest, aSpecialFileIsUnreadable)
{
    EXPECT_EQ(read("/dev/null").problem, PictureProblem::Unreadable);
}

TEST_F(PictureReaderTest, anEmptyFileIsEmpty)
{
    EXPECT_EQ(problemOf("empty.png", {}), PictureProblem::Empty);
}

TEST_F(PictureReaderTest, otherFilesAreNoPictures)
{
    EXPECT_EQ(problemOf("notes.txt", "x\ty\n1\t2\n"), PictureProblem::NotAPicture);
    EXPECT_EQ(problemOf("notes.png", "x\ty\n1\t2\n"), PictureProblem::NotAPicture);
    EXPECT_EQ(problemOf("zeros.png", QByteArray(5000, '\0')), PictureProblem::NotAPicture);
    EXPECT_EQ(problemOf("page.html", "<html><body></body></html>"), PictureProblem::NotAPicture);
}

TEST_F(PictureReaderTest, pageDescriptionsAreNeverReadAsBitmaps)
{
    const QByteArray pdf = "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
                           "trailer<</Root 1 0 R>>\n%%EOF\n";
    EXPECT_EQ(problemOf("page.pdf", pdf), PictureProblem::PdfUnderOtherName);
    EXPECT_EQ(problemOf("PAGE.PDF", pdf), PictureProblem::PdfUnderOtherName);
    EXPECT_EQ(problemOf("page.png", "junk " + pdf), PictureProblem::PdfUnderOtherName);
}

TEST_F(PictureReaderTest, incompleteFilesAreDamaged)
{
    for (const char *format : {"png", "jpg", "bmp", "tiff", "webp", "ppm", "pgm"}) {
        const QByteArray whole = encoded(chart(400, 300), format);
        for (const qsizetype length :
             {whole.size() / 3, whole.size() / 2, whole.size() * 9 / 10, whole.size() - 40}) {
            const auto problem = problemOf("cut", whole.left(length));
            EXPECT_EQ(problem, PictureProblem::Damaged) << format << " " << length;
        }
    }
}

TEST_F(PictureReaderTest, anIncompleteGifIsDamaged)
{
    EXPECT_EQ(problemOf("cut.gif", smallGif().left(smallGif().size() - 6)),
              PictureProblem::Damaged);
}

TEST_F(PictureReaderTest, filesCutAnywhereGiveAProblemAndNoCrash)
{
    for (const char *format : {"png", "jpg", "bmp", "webp"}) {
        const QByteArray whole = encoded(chart(40, 30), format);
        for (qsizetype length = 0; length < whole.size() - 16; length += 13)
            EXPECT_TRUE(problemOf("cut", whole.left(length))) << format << " " << length;
    }
}

TEST_F(PictureReaderTest, aPngWithAWrongChecksumIsDamaged)
{
    QByteArray bytes = encoded(chart(400, 300), "png");
    bytes[bytes.size() / 2] = static_cast<char>(bytes[bytes.size() / 2] ^ 0x55);
    EXPECT_EQ(problemOf("flipped.png", bytes), PictureProblem::Damaged);
}

TEST_F(PictureReaderTest, aBrokenSvgIsDamaged)
{
    EXPECT_EQ(problemOf("broken.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"400\" "
                                      "height=\"300\"><rect x=\"1"),
              PictureProblem::Damaged);
}

TEST_F(PictureReaderTest, bytesAfterTheEndDoNoHarm)
{
    EXPECT_EQ(problemOf("a.jpg", encoded(chart(400, 300), "jpg") + "trailer"), std::nullopt);
    EXPECT_EQ(problemOf("a.png", encoded(chart(400, 300), "png") + "trailer"), std::nullopt);
}

TEST_F(PictureReaderTest, aPictureLargerThanMemoryIsRefusedBeforeItIsDecoded)
{
    const PictureReading reading = read(file("huge.png", pngHeader(100'000, 100'000)));
    EXPECT_EQ(reading.problem, PictureProblem::TooLarge);
    EXPECT_EQ(reading.pixelSize, QSize(100'000, 100'000));
}

TEST_F(PictureReaderTest, theMemoryThatIsFreeIsTheLimit)
{
    const QString path = file("a.png", encoded(chart(1000, 1000), "png"));
    EXPECT_EQ(PictureReader(3'000'000).read(path).problem, PictureProblem::TooLarge);
    EXPECT_EQ(PictureReader(3'000'000).probe(path).problem, PictureProblem::TooLarge);
    EXPECT_TRUE(PictureReader(10'000'000).read(path).picture);
}

TEST_F(PictureReaderTest, noMemoryIsEnoughForAThousandMegapixels)
{
    const QString path = file("huge.png", pngHeader(60'000, 60'000));
    EXPECT_EQ(PictureReader(1000 * gibibyte).probe(path).problem, PictureProblem::TooLarge);
}

TEST_F(PictureReaderTest, thisComputerTellsItsMemory)
{
    EXPECT_GT(picturememory::available(), std::uint64_t{50'000'000});
}

TEST_F(PictureReaderTest, aDrawingOfAHostileSizeIsMadeToFit)
{
    const PictureReading reading = read(
        file("wide.svg", R"(<svg xmlns="http://www.w3.org/2000/svg" width="2000000" height="20000">
                    <rect width="2000000" height="20000" fill="red"/></svg>)"));
    ASSERT_TRUE(reading.picture);
    EXPECT_EQ(reading.picture->size(), (FloatSize{8192, 81}));
}

TEST_F(PictureReaderTest, aDrawingWithoutASizeIsRefused)
{
    for (const char *size : {"width=\"0\" height=\"0\"", "width=\"-5\" height=\"10\"",
                             "width=\"nan\" height=\"nan\"", "width=\"1e99\" height=\"1e99\""}) {
        const QByteArray svg =
            QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" ") + size + "/>";
        const PictureReading reading = read(file("odd.svg", svg));
        if (reading.picture)
            EXPECT_LE(reading.picture->size().width, 8192) << size;
        else
            EXPECT_TRUE(reading.problem) << size;
    }
}

TEST_F(PictureReaderTest, loadsScansBeyondTheUsualLimitOfTheToolkit)
{
    QImage scan(6000, 6000, QImage::Format_RGBA64);
    scan.fill(QColor(10, 20, 30));
    scan.convertTo(QImage::Format_RGBA8888);
    const QString path = m_folder.filePath("scan.bmp");
    {
        // An uncompressed file, so that the test is quick.
        QImageWriter writer(path, "bmp");
        ASSERT_TRUE(writer.write(scan));
    }
    scan = {};
    QImageReader::setAllocationLimit(128);
    const PictureReading reading = read(path);
    ASSERT_TRUE(reading.picture);
    EXPECT_EQ(reading.picture->size(), (FloatSize{6000, 6000}));
    EXPECT_EQ(reading.picture->pixels().pixelColor(5999, 5999), QColor(10, 20, 30));
}

TEST_F(PictureReaderTest, aStoppedReadingIsCancelled)
{
    std::stop_source stop;
    stop.request_stop();
    const QString path = file("a.png", encoded(chart(400, 300), "png"));
    EXPECT_FALSE(m_reader.read(path, stop.get_token()).picture);
}

TEST_F(PictureReaderTest, progressReachesTheEnd)
{
    std::atomic<int> percent{0};
    const QString path = file("a.jpg", encoded(chart(400, 300), "jpg"));
    EXPECT_TRUE(m_reader.read(path, {}, &percent).picture);
    EXPECT_EQ(percent.load(), 100);
}

TEST_F(PictureReaderTest, explanationsNameTheFileAndTheSize)
{
    const PictureReading missing{{}, PictureProblem::Missing, {}};
    EXPECT_TRUE(
        pictureproblem::explanation(missing, QString("/a/chart 1.png")).contains("“chart 1.png”"));
    const PictureReading large{{}, PictureProblem::TooLarge, {100'000, 90'000}};
    const QString text = pictureproblem::explanation(large, QString("/a/%2.png"));
    EXPECT_TRUE(text.contains("“%2.png”")) << text.toStdString();
    EXPECT_TRUE(text.contains("100000 × 90000")) << text.toStdString();
}
