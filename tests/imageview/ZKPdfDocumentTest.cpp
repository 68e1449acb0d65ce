#include "imageview/ZKPdfDocument.h"
#include "imageview/PdfFiles.h"
#include "platform/Modules.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <ostream>

namespace {

constexpr std::uint64_t enoughMemory = std::uint64_t{1} << 30U;

std::unique_ptr<ZKPdfDocument> opened(const QString &name, const QString &password = {})
{
    return ZKPdfDocument::zkPdfDocumentWithFile(pdffiles::stored(name), password);
}

/// Where the marks of the page's corners are on its picture at scale 3, as read.
struct Corners
{
    const char *file;
    QRect page;                   ///< pixels
    int mark;                     ///< pixels along a side
    std::array<QColor, 4> colors; ///< top left, top right, bottom left, bottom right
};

void PrintTo(const Corners &corners, std::ostream *out) { *out << corners.file; }

class PageCorners : public testing::TestWithParam<Corners>
{};

const QColor red(Qt::red);
const QColor green(Qt::green);
const QColor blue(Qt::blue);
const QColor black(Qt::black);
const QColor white(Qt::white);

class ZKPdfDocumentTest : public testing::Test
{
protected:
    std::unique_ptr<ZKPdfDocument> documentOf(const QByteArray &bytes) const
    {
        return ZKPdfDocument::zkPdfDocumentWithFile(
            pdffiles::written(folder.filePath("file.pdf"), bytes));
    }
    FloatSize sizeOf(const QByteArray &entries) const
    {
        const auto picture = documentOf(pdffiles::withPage(entries))->getImageOfPage(1);
        return picture ? picture->size() : FloatSize{};
    }

    QTemporaryDir folder;
};

} // namespace

TEST_P(PageCorners, lieWhereTheDrawingTransformPutsThem)
{
    const Corners &expected = GetParam();
    const auto picture = opened(expected.file)->getImageOfPage(1, 3);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->size(), (FloatSize{900, 600}));
    const QImage &pixels = picture->pixels();
    const QRect &page = expected.page;
    const int near = 1;
    const int far = expected.mark - 2;
    const std::array<QPoint, 4> corners{page.topLeft(), page.topRight(), page.bottomLeft(),
                                        page.bottomRight()};
    for (std::size_t i = 0; i < 4; ++i) {
        const int right = i % 2 == 0 ? 1 : -1;
        const int down = i < 2 ? 1 : -1;
        for (const int in : {near, far})
            EXPECT_EQ(pixels.pixelColor(corners[i] + QPoint(right * in, down * in)),
                      expected.colors[i])
                << "corner " << i << ", " << in << " pixels inside";
        const int beyond = expected.mark + 2;
        EXPECT_EQ(pixels.pixelColor(corners[i] + QPoint(right * beyond, down * near)), white);
        EXPECT_EQ(pixels.pixelColor(corners[i] + QPoint(right * near, down * beyond)), white);
    }
    if (page.left() > 0) {
        EXPECT_EQ(pixels.pixelColor(page.left() - 2, 2), white);
        EXPECT_EQ(pixels.pixelColor(page.right() + 2, 2), white);
    }
}

INSTANTIATE_TEST_SUITE_P(
    ZKPdfDocument, PageCorners,
    testing::Values(
        Corners{"crop-rotate-0.pdf", {0, 0, 900, 600}, 60, {blue, black, red, green}},
        Corners{"user-unit.pdf", {0, 0, 900, 600}, 60, {blue, black, red, green}},
        Corners{"crop-rotate-180.pdf", {0, 0, 900, 600}, 60, {green, red, black, blue}},
        Corners{"crop-rotate-90.pdf", {250, 0, 400, 600}, 40, {red, blue, green, black}},
        Corners{"crop-rotate-450.pdf", {250, 0, 400, 600}, 40, {red, blue, green, black}},
        Corners{"inherited-boxes.pdf", {250, 0, 400, 600}, 40, {red, blue, green, black}},
        Corners{"crop-rotate-270.pdf", {250, 0, 400, 600}, 40, {black, green, blue, red}},
        Corners{"crop-rotate--90.pdf", {250, 0, 400, 600}, 40, {black, green, blue, red}}));

TEST_F(ZKPdfDocumentTest, aCropBoxBeyondThePaperEndsWithIt)
{
    const auto picture = opened("crop-beyond-paper.pdf")->getImageOfPage(1);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->size(), (FloatSize{200, 240}));
    EXPECT_EQ(picture->pixels().pixelColor(140, 190), green);
    EXPECT_EQ(picture->pixels().pixelColor(10, 190), white);
}

TEST_F(ZKPdfDocumentTest, withoutACropBoxThePaperCounts)
{
    EXPECT_EQ(sizeOf("/MediaBox [10 20 110 70]"), (FloatSize{100, 50}));
}

TEST_F(ZKPdfDocumentTest, withoutAnyBoxThePaperIsLetter)
{
    EXPECT_EQ(sizeOf(""), (FloatSize{612, 792}));
}

TEST_F(ZKPdfDocumentTest, anEmptyCropBoxIsNone)
{
    EXPECT_EQ(sizeOf("/MediaBox [0 0 100 50] /CropBox [5 5 5 5]"), (FloatSize{100, 50}));
}

TEST_F(ZKPdfDocumentTest, boxesMayNameTheirCornersInAnyOrder)
{
    EXPECT_EQ(sizeOf("/MediaBox [110 20 10 70] /CropBox [90 60 30 30]"), (FloatSize{60, 30}));
}

TEST_F(ZKPdfDocumentTest, aCropBoxOffThePaperShowsNothing)
{
    const auto document =
        documentOf(pdffiles::withPage("/MediaBox [0 0 100 50] /CropBox [200 200 300 300]"));
    EXPECT_EQ(document->readPage(1, 1, enoughMemory).problem, PictureProblem::Damaged);
    EXPECT_TRUE(document->previewOfPage(1, 1).isNull());
}

TEST_F(ZKPdfDocumentTest, anglesBetweenQuarterTurnsDoNotTurn)
{
    const auto picture =
        documentOf(pdffiles::withPage("/MediaBox [0 0 200 100] /Rotate 45", "0 0 200 100 re f"))
            ->getImageOfPage(1);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->pixels().pixelColor(2, 50), black);
}

TEST_F(ZKPdfDocumentTest, paperIsOpaqueWhite)
{
    const auto picture = documentOf(pdffiles::withPage("/MediaBox [0 0 20 10]"))->getImageOfPage(1);
    ASSERT_TRUE(picture);
    EXPECT_FALSE(picture->pixels().hasAlphaChannel());
    EXPECT_EQ(picture->pixels().pixelColor(10, 5), white);
    EXPECT_EQ(documentOf(pdffiles::withPage("/MediaBox [0 0 20 10]"))
                  ->previewOfPage(1, 1)
                  .pixelColor(10, 5),
              white);
}

TEST_F(ZKPdfDocumentTest, whatShinesThroughShowsThePaper)
{
    const auto picture =
        documentOf(pdffiles::withPage("/MediaBox [0 0 20 10] "
                                      "/Resources << /ExtGState << /Half << /ca 0.5 >> >> >>",
                                      "/Half gs 0 0 20 10 re f"))
            ->getImageOfPage(1);
    ASSERT_TRUE(picture);
    EXPECT_NEAR(picture->pixels().pixelColor(10, 5).red(), 128, 2);
}

TEST_F(ZKPdfDocumentTest, letterPaperAtScaleFourIs2448By3168)
{
    const auto picture = opened("letter-1.pdf")->getImageOfPage(1, 4);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->size(), (FloatSize{2448, 3168}));
}

TEST_F(ZKPdfDocumentTest, withoutAScaleAPageHasItsOwnSize)
{
    const auto picture = opened("plot-cairo.pdf")->getImageOfPage(1);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->size(), (FloatSize{288, 216}));
}

TEST_F(ZKPdfDocumentTest, countsItsPages)
{
    EXPECT_EQ(opened("letter-1.pdf")->numberOfPages(), 1);
    EXPECT_EQ(opened("letter-12.pdf")->numberOfPages(), 12);
    EXPECT_EQ(opened("letter-25.pdf")->numberOfPages(), 25);
}

TEST_F(ZKPdfDocumentTest, pagesThatThereAreNotGiveNothing)
{
    const auto document = opened("letter-12.pdf");
    EXPECT_FALSE(document->getImageOfPage(0));
    EXPECT_FALSE(document->getImageOfPage(13));
    EXPECT_TRUE(document->previewOfPage(13, 1).isNull());
}

TEST_F(ZKPdfDocumentTest, previewsHaveThePixelsOfTheScreen)
{
    const QImage preview = opened("plot-cairo.pdf")->previewOfPage(1, 2);
    EXPECT_EQ(preview.size(), QSize(576, 432));
    EXPECT_EQ(preview.deviceIndependentSize(), QSizeF(288, 216));
}

TEST_F(ZKPdfDocumentTest, previewsOfPostersAreNoLargerThanScreens)
{
    const auto document = documentOf(pdffiles::withPage("/MediaBox [0 0 14400 7200]"));
    EXPECT_EQ(document->previewOfPage(1, 1).size(), QSize(2000, 1000));
}

TEST_F(ZKPdfDocumentTest, pagesThatNeedTooMuchMemoryAreRefusedBeforeTheyArePainted)
{
    const auto document = documentOf(pdffiles::withPage("/MediaBox [0 0 14400 14400]"));
    const PictureReading reading = document->readPage(1, 8, ~std::uint64_t{0});
    EXPECT_EQ(reading.problem, PictureProblem::PageTooLarge);
    EXPECT_EQ(reading.pixelSize, QSize(115200, 115200));
    EXPECT_EQ(document->readPage(1, 1, 1'000'000).problem, PictureProblem::PageTooLarge);
}

TEST_F(ZKPdfDocumentTest, lockedFilesOpenWithTheirPasswordOnly)
{
    for (const char *name : {"locked-aes.pdf", "locked-rc4.pdf"}) {
        EXPECT_EQ(opened(name)->problem(), PictureProblem::NeedsPassword) << name;
        EXPECT_EQ(opened(name, "falsch")->problem(), PictureProblem::NeedsPassword) << name;
        EXPECT_EQ(opened(name, "falsch")->numberOfPages(), 0) << name;
        const auto document = opened(name, "geheim");
        EXPECT_FALSE(document->problem()) << name;
        const auto picture = document->getImageOfPage(1);
        ASSERT_TRUE(picture) << name;
        EXPECT_EQ(picture->pixels().pixelColor(60, 250), red) << name;
    }
}

TEST_F(ZKPdfDocumentTest, filesThatOnlyTheirOwnerMayChangeOpenWithoutAPassword)
{
    EXPECT_EQ(opened("owner-locked.pdf")->numberOfPages(), 1);
}

TEST_F(ZKPdfDocumentTest, aFileWithoutPagesIsToldApart)
{
    EXPECT_EQ(opened("no-pages.pdf")->problem(), PictureProblem::NoPages);
}

TEST_F(ZKPdfDocumentTest, filesThatAreNoPdfAreToldApart)
{
    EXPECT_EQ(opened("none.pdf")->problem(), PictureProblem::Missing);
    EXPECT_EQ(ZKPdfDocument::zkPdfDocumentWithFile(folder.path())->problem(),
              PictureProblem::Folder);
    EXPECT_EQ(documentOf("")->problem(), PictureProblem::Empty);
    EXPECT_EQ(documentOf("A letter, not a document.\n")->problem(), PictureProblem::NotAPdf);
    EXPECT_EQ(documentOf("%PDF-1.7\nand nothing more\n%%EOF")->problem(), PictureProblem::Damaged);
}

TEST_F(ZKPdfDocumentTest, aFileCutAnywhereIsDamaged)
{
    for (const char *name : {"plot-cairo.pdf", "letter-12.pdf", "crop-rotate-90.pdf",
                             "linearized.pdf", "locked-aes.pdf"}) {
        QFile file(pdffiles::stored(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray whole = file.readAll();
        for (int tenth = 1; tenth < 10; ++tenth) {
            const auto document = documentOf(whole.left(whole.size() * tenth / 10));
            EXPECT_EQ(document->problem(), PictureProblem::Damaged) << name << ", " << tenth;
            EXPECT_FALSE(document->getImageOfPage(1)) << name << ", " << tenth;
        }
    }
}

TEST_F(ZKPdfDocumentTest, smallDamageOfAWholeFileIsMended)
{
    QByteArray bytes = pdffiles::withPage("/MediaBox [0 0 100 50]");
    bytes.replace("startxref\n", "startxref\n7");
    EXPECT_EQ(documentOf(bytes)->numberOfPages(), 1);
}

TEST_F(ZKPdfDocumentTest, aTreeThatHangsOnItselfIsDamaged)
{
    const QByteArray page = "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 100 50] >>";
    EXPECT_EQ(
        documentOf(pdffiles::withObjects({"<< /Type /Pages /Kids [2 0 R 3 0 R] /Count 9 >>", page}))
            ->problem(),
        PictureProblem::Damaged);
    EXPECT_EQ(documentOf(pdffiles::withObjects(
                             {"<< /Type /Pages /Kids [4 0 R 3 0 R] /Count 2 >>", page,
                              "<< /Type /Pages /Kids [2 0 R] /Parent 2 0 R /Count 1 >>"}))
                  ->problem(),
              PictureProblem::Damaged);
}

TEST_F(ZKPdfDocumentTest, aTreeThatDoublesAtEveryForkIsDamaged)
{
    QList<QByteArray> objects;
    for (int i = 0; i < 60; ++i) {
        const QByteArray next = QByteArray::number(i + 3) + " 0 R";
        objects += "<< /Type /Pages /Count 2 /Kids [" + next + " " + next + "] >>";
    }
    objects += "<< /Type /Page /MediaBox [0 0 100 50] >>";
    EXPECT_EQ(documentOf(pdffiles::withObjects(objects))->problem(), PictureProblem::Damaged);
}

TEST_F(ZKPdfDocumentTest, aTreeDeeperThanAnyoneMakesIsDamaged)
{
    QList<QByteArray> objects;
    for (int i = 0; i < 20'000; ++i)
        objects += "<< /Type /Pages /Count 1 /Kids [" + QByteArray::number(i + 3) + " 0 R] >>";
    objects += "<< /Type /Page /MediaBox [0 0 100 50] >>";
    EXPECT_EQ(documentOf(pdffiles::withObjects(objects))->problem(), PictureProblem::Damaged);
}

TEST_F(ZKPdfDocumentTest, onePageMayBeUsedSeveralTimes)
{
    const auto document = documentOf(
        pdffiles::withObjects({"<< /Type /Pages /Kids [3 0 R 3 0 R 3 0 R] /Count 3 >>",
                               "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 100 50] >>"}));
    EXPECT_EQ(document->numberOfPages(), 3);
    EXPECT_TRUE(document->getImageOfPage(3));
}

TEST_F(ZKPdfDocumentTest, pagesTakeTheNearestBoxAboveThem)
{
    const auto document = documentOf(pdffiles::withObjects(
        {"<< /Type /Pages /Kids [3 0 R 5 0 R] /Count 2 /MediaBox [0 0 100 50] >>",
         "<< /Type /Pages /Parent 2 0 R /Kids [4 0 R] /Count 1 /MediaBox [0 0 70 30] >>",
         "<< /Type /Page /Parent 3 0 R >>", "<< /Type /Page /Parent 2 0 R >>"}));
    ASSERT_EQ(document->numberOfPages(), 2);
    EXPECT_EQ(document->getImageOfPage(1)->size(), (FloatSize{70, 30}));
    EXPECT_EQ(document->getImageOfPage(2)->size(), (FloatSize{100, 50}));
}

TEST_F(ZKPdfDocumentTest, withoutItsModuleTellsSo)
{
    const QString modulesOfProgram = modules::folder();
    modules::setFolder(folder.path());
    const auto document = opened("letter-25.pdf");
    modules::setFolder(modulesOfProgram);
    EXPECT_EQ(document->problem(), PictureProblem::PdfModuleMissing);
    EXPECT_EQ(document->numberOfPages(), 0);
    EXPECT_FALSE(document->getImageOfPage(1));
}
