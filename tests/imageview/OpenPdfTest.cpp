#include "imageview/ChoosePdfView.h"
#include "imageview/ImageViewFixture.h"
#include "imageview/PdfFiles.h"
#include "imageview/PictureSuffixes.h"

#include <QDialog>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWindow>

namespace {

class OpenPdfTest : public ImageViewTest
{
protected:
    OpenPdfTest()
    {
        QObject::connect(view, &GraphImageView::fileOpened, view, [this](bool taken) {
            ++ends;
            wasTaken = taken;
        });
    }
    bool open(const QString &path) { return view->openImageFile(QUrl::fromLocalFile(path)); }
    bool waitForEnd() const
    {
        return QTest::qWaitFor([this] { return ends > 0; }, 20'000);
    }
    QDialog *panel() const { return window.findChild<QDialog *>("choosePagePanel"); }
    bool waitForPanel() const
    {
        return QTest::qWaitFor([this] { return panel() != nullptr && panel()->isVisible(); },
                               20'000);
    }
    void click(const char *button) const
    {
        QTest::mouseClick(panel()->findChild<QWidget *>(QString::fromLatin1(button)),
                          Qt::LeftButton);
    }
    /// The progress panels that are up.
    int progressCount() const
    {
        int count = 0;
        for (const QWidget *progress : window.findChildren<QWidget *>("readingProgress"))
            count += progress->isVisible() ? 1 : 0;
        return count;
    }
    QString slowFile(int pages)
    {
        around.scaleOfPages = 1;
        return pdffiles::written(folder.filePath("slow.pdf"), pdffiles::slow(pages));
    }

    QTemporaryDir folder;
    int ends = 0;
    bool wasTaken = false;
};

} // namespace

TEST_F(OpenPdfTest, aFileOfOnePageOpensWithoutThePanelAtThePreferredScale)
{
    EXPECT_TRUE(open(pdffiles::stored("letter-1.pdf")));
    EXPECT_FALSE(view->hasImage());
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(wasTaken);
    EXPECT_EQ(panel(), nullptr);
    EXPECT_EQ(view->imageSize(), (FloatSize{2448, 3168}));
}

TEST_F(OpenPdfTest, theScaleIsThatOfThePreferences)
{
    around.scaleOfPages = 1.5F;
    open(pdffiles::stored("plot-cairo.pdf"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(view->imageSize(), (FloatSize{432, 324}));
}

TEST_F(OpenPdfTest, ofSeveralPagesTheUserChoosesOne)
{
    around.scaleOfPages = 1;
    open(pdffiles::stored("letter-12.pdf"));
    ASSERT_TRUE(waitForPanel());
    EXPECT_EQ(panel()->findChild<QLabel *>("currentPageText")->text(), "Page 1 of 12");
    const auto *preview = panel()->findChild<ChoosePdfView *>("pageView");
    ASSERT_TRUE(QTest::qWaitFor([preview] { return !preview->page().isNull(); }, 10'000));
    EXPECT_EQ(preview->page().deviceIndependentSize(), QSizeF(612, 792));
    click("nextButton");
    click("openButton");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(view->imageSize(), (FloatSize{612, 792}));
}

TEST_F(OpenPdfTest, cancellingThePanelKeepsThePicture)
{
    install(400, 300);
    open(pdffiles::stored("letter-12.pdf"));
    ASSERT_TRUE(waitForPanel());
    click("cancelButton");
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(wasTaken);
    EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
    EXPECT_TRUE(around.sheetsShown.empty());
}

TEST_F(OpenPdfTest, evenNothingDropsTheUndoActions)
{
    install(400, 300);
    open(pdffiles::stored("letter-12.pdf"));
    ASSERT_TRUE(waitForPanel());
    click("cancelButton");
    EXPECT_EQ(around.count("removeUndoOfDataSeries"), 1);
    EXPECT_EQ(around.count("removeUndoOfCurrentAxes"), 1);
    EXPECT_EQ(around.count("resetPosition:view"), 0);
}

TEST_F(OpenPdfTest, filesThatGiveNoPageAreToldAndKeepThePicture)
{
    install(400, 300);
    const QStringList paths{folder.filePath("none.pdf"), pdffiles::stored("no-pages.pdf"),
                            pdffiles::written(folder.filePath("empty.pdf"), ""),
                            pdffiles::written(folder.filePath("text.pdf"), "Just a text."),
                            pdffiles::written(folder.filePath("huge.pdf"),
                                              pdffiles::withPage("/MediaBox [0 0 144000 144000]"))};
    for (const QString &path : paths) {
        ends = 0;
        around.sheetsShown.clear();
        open(path);
        ASSERT_TRUE(waitForEnd());
        EXPECT_FALSE(wasTaken) << path.toStdString();
        ASSERT_EQ(around.sheetsShown.size(), 1U) << path.toStdString();
        EXPECT_TRUE(around.sheetsShown[0].informativeText.contains(QFileInfo(path).fileName()));
        EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
    }
}

TEST_F(OpenPdfTest, onlyTheExtensionInLowerCaseIsAPdf)
{
    install(400, 300);
    for (const char *name : {"A.PDF", "A.Pdf"}) {
        around.sheetsShown.clear();
        ASSERT_TRUE(QFile::copy(pdffiles::stored("plot-cairo.pdf"), folder.filePath(name)));
        EXPECT_FALSE(open(folder.filePath(name)));
        ASSERT_EQ(around.sheetsShown.size(), 1U);
        EXPECT_TRUE(around.sheetsShown[0].informativeText.contains(QString::fromLatin1(name)));
        EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
    }
}

TEST_F(OpenPdfTest, aDroppedPdfIsOpenedToo)
{
    show();
    around.scaleOfPages = 1;
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(pdffiles::stored("plot-cairo.pdf"))});
    const QPointF middle(200, 150);
    QDragEnterEvent enter(middle.toPoint(), Qt::CopyAction, &dragged, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(window.windowHandle(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(middle, Qt::CopyAction, &dragged, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.windowHandle(), &drop);
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(wasTaken);
    EXPECT_EQ(view->imageSize(), (FloatSize{288, 216}));
}

TEST_F(OpenPdfTest, anImagePastedMeanwhileTakesThePlaceOfTheFile)
{
    open(pdffiles::stored("letter-1.pdf"));
    QMimeData pasteboard;
    pasteboard.setImageData(QImage(350, 300, QImage::Format_RGB32));
    EXPECT_TRUE(view->replaceImageWithPasteboard(&pasteboard));
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(wasTaken);
    EXPECT_EQ(view->imageSize(), (FloatSize{350, 300}));
}

TEST_F(OpenPdfTest, anotherPdfTakesThePlaceOfTheOneBeingRead)
{
    open(slowFile(1));
    open(pdffiles::stored("plot-cairo.pdf"));
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(wasTaken);
    ends = 0;
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(wasTaken);
    EXPECT_EQ(view->imageSize(), (FloatSize{288, 216}));
}

TEST_F(OpenPdfTest, closingTheWindowClosesThePanel)
{
    open(pdffiles::stored("letter-12.pdf"));
    ASSERT_TRUE(waitForPanel());
    view->windowWillClose();
    EXPECT_FALSE(panel()->isVisible());
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(wasTaken);
}

TEST_F(OpenPdfTest, aSecondFileUsesTheSamePanelFromItsFirstPage)
{
    open(pdffiles::stored("letter-12.pdf"));
    ASSERT_TRUE(waitForPanel());
    const QDialog *first = panel();
    click("nextButton");
    click("cancelButton");
    open(pdffiles::stored("letter-25.pdf"));
    ASSERT_TRUE(waitForPanel());
    EXPECT_EQ(panel(), first);
    EXPECT_EQ(panel()->findChild<QLabel *>("currentPageText")->text(), "Page 1 of 25");
    click("cancelButton");
}

TEST_F(OpenPdfTest, pdfIsAmongTheSuffixesOfPictures)
{
    EXPECT_EQ(picturesuffixes::all().count("pdf"), 1);
}

TEST_F(OpenPdfTest, namesMayHaveBlanksAndForeignLetters)
{
    around.scaleOfPages = 2;
    const QString path = folder.filePath(QString::fromUtf8("Übung 5 – Kurve.pdf"));
    ASSERT_TRUE(QFile::copy(pdffiles::stored("plot-cairo.pdf"), path));
    open(path);
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(wasTaken);
}

TEST_F(OpenPdfTest, aLockedFileAsksUntilThePasswordIsRight)
{
    const auto asking = [this] { return around.passwords.isAsking(); };
    open(pdffiles::stored("locked-aes.pdf"));
    ASSERT_TRUE(QTest::qWaitFor(asking, 10'000));
    EXPECT_TRUE(around.passwords.asked()[0].message.contains("locked-aes.pdf"));
    around.passwords.answer("falsch");
    ASSERT_TRUE(QTest::qWaitFor(asking, 10'000));
    ASSERT_EQ(around.passwords.asked().size(), 2U);
    EXPECT_NE(around.passwords.asked()[0].informativeText,
              around.passwords.asked()[1].informativeText);
    around.passwords.answer("geheim");
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(wasTaken);
    EXPECT_EQ(view->imageSize(), (FloatSize{1600, 1200}));
}

TEST_F(OpenPdfTest, withoutThePasswordThePictureStays)
{
    install(400, 300);
    open(pdffiles::stored("locked-rc4.pdf"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return around.passwords.isAsking(); }, 10'000));
    around.passwords.answer({});
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(wasTaken);
    EXPECT_TRUE(around.sheetsShown.empty());
    EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
}

TEST_F(OpenPdfTest, anAnswerForAFileThatWasGivenUpIsNoLongerHeard)
{
    open(pdffiles::stored("locked-aes.pdf"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return around.passwords.isAsking(); }, 10'000));
    install(400, 300);
    QImage(350, 300, QImage::Format_RGB32).save(folder.filePath("small.png"));
    open(folder.filePath("small.png"));
    EXPECT_EQ(ends, 1);
    around.passwords.answer("geheim");
    EXPECT_EQ(view->imageSize(), (FloatSize{350, 300}));
    EXPECT_EQ(ends, 1);
}

TEST_F(OpenPdfTest, aSlowPageShowsProgressAndCanBeCancelled)
{
    show();
    install(400, 300);
    open(slowFile(1));
    EXPECT_EQ(progressCount(), 0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return progressCount() == 1; }, 10'000));
    EXPECT_EQ(ends, 0);
    for (QWidget *button : window.findChildren<QWidget *>("cancelReadingButton"))
        if (button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(wasTaken);
    EXPECT_EQ(progressCount(), 0);
    EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
}

TEST_F(OpenPdfTest, aSlowPageThatWasChosenShowsProgressAndCanBeCancelled)
{
    show();
    install(400, 300);
    open(slowFile(2));
    ASSERT_TRUE(waitForPanel());
    click("openButton");
    EXPECT_EQ(ends, 0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return progressCount() == 1; }, 10'000));
    for (QWidget *button : window.findChildren<QWidget *>("cancelReadingButton"))
        if (button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(wasTaken);
    EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
}

TEST_F(OpenPdfTest, turningSlowPagesNeverWaits)
{
    open(slowFile(9));
    ASSERT_TRUE(waitForPanel());
    QElapsedTimer time;
    time.start();
    for (int page = 2; page <= 9; ++page)
        click("nextButton");
    EXPECT_EQ(panel()->findChild<QLabel *>("currentPageText")->text(), "Page 9 of 9");
    click("cancelButton");
    EXPECT_EQ(ends, 1);
    EXPECT_LT(time.elapsed(), 1000);
}
