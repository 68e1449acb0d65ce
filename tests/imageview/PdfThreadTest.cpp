#include "imageview/PdfThread.h"

#include "imageview/PdfFiles.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

class PdfThreadTest : public testing::Test
{
protected:
    void open(const QString &path, const QString &password = {})
    {
        thread = std::make_unique<PdfThread>(path);
        thread->open(password, [this](const PdfOpening &reached) {
            opening = reached;
            openedIn = QThread::currentThread();
        });
    }
    void expectOpened()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return openedIn != nullptr; }, 10'000));
    }
    void preview(int page)
    {
        thread->preview(page, 1, [this, page](const QImage &image) {
            EXPECT_FALSE(image.isNull());
            previewed.push_back(page);
        });
    }

    QTemporaryDir folder;
    std::unique_ptr<PdfThread> thread;
    PdfOpening opening;
    QThread *openedIn = nullptr;
    std::vector<int> previewed;
};

} // namespace

TEST_F(PdfThreadTest, tellsHowManyPagesThereAreInTheAskingThread)
{
    open(pdffiles::stored("letter-12.pdf"));
    EXPECT_EQ(openedIn, nullptr);
    expectOpened();
    EXPECT_EQ(openedIn, QThread::currentThread());
    EXPECT_FALSE(opening.problem);
    EXPECT_EQ(opening.numberOfPages, 12);
}

TEST_F(PdfThreadTest, anotherPasswordOpensTheSameFile)
{
    open(pdffiles::stored("locked-aes.pdf"));
    expectOpened();
    EXPECT_EQ(opening.problem, PictureProblem::NeedsPassword);
    openedIn = nullptr;
    thread->open("geheim", [this](const PdfOpening &reached) {
        opening = reached;
        openedIn = QThread::currentThread();
    });
    expectOpened();
    EXPECT_FALSE(opening.problem);
}

TEST_F(PdfThreadTest, ofManyPreviewsTheNewestIsPaintedNext)
{
    open(pdffiles::stored("letter-25.pdf"));
    for (int page = 1; page <= 25; ++page)
        preview(page);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !previewed.empty(); }, 10'000));
    EXPECT_EQ(previewed, std::vector<int>{25}) << "the file was not even open when they were asked";
}

TEST_F(PdfThreadTest, theChosenPageIsPaintedBeforeAPreviewThatWaits)
{
    open(pdffiles::stored("letter-12.pdf"));
    preview(3);
    PictureReading chosen;
    thread->readPage(2, 1, [&](const PictureReading &reading) {
        EXPECT_TRUE(previewed.empty());
        chosen = reading;
    });
    ASSERT_TRUE(QTest::qWaitFor([this] { return !previewed.empty(); }, 10'000));
    ASSERT_TRUE(chosen.picture);
    EXPECT_EQ(chosen.picture->size(), (FloatSize{612, 792}));
}

TEST_F(PdfThreadTest, afterItsEndNobodyIsTold)
{
    open(pdffiles::stored("letter-12.pdf"));
    expectOpened();
    openedIn = nullptr;
    preview(3);
    thread->open({}, [this](const PdfOpening &) { openedIn = QThread::currentThread(); });
    thread.reset();
    open(pdffiles::stored("letter-1.pdf"));
    expectOpened();
    EXPECT_EQ(opening.numberOfPages, 1);
    EXPECT_TRUE(previewed.empty());
}

TEST_F(PdfThreadTest, endingDoesNotWaitForASlowPage)
{
    open(pdffiles::written(folder.filePath("slow.pdf"), pdffiles::slow(1)));
    expectOpened();
    QElapsedTimer time;
    time.start();
    bool painted = false;
    thread->readPage(1, 1, [&painted](const PictureReading &) { painted = true; });
    ASSERT_TRUE(QTest::qWaitFor([&painted] { return painted; }, 20'000));
    const qint64 timeOfAPage = time.restart();
    thread->readPage(1, 1, [](const PictureReading &) {});
    thread.reset();
    EXPECT_LT(time.elapsed(), timeOfAPage / 2);
}
