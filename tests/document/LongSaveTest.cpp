#include "document/FileContent.h"
#include "document/TestDocument.h"

#include "axes/CurrentAxes.h"
#include "platform/GeometryText.h"

#include <QLabel>
#include <QToolButton>

#include <gtest/gtest.h>

#include <random>

using documentarchive::unarchived;
using filecontent::contentOf;
using filecontent::putContent;

namespace {

/// A picture that is as hard to encode as can be.
QImage noise(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    std::mt19937 random(3);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = 0xff000000U | static_cast<QRgb>(random() & 0xffffffU);
    }
    return image;
}

/// A document around a picture of noise, which is long to encode and large on the disk.
class NoisyDocument : public testing::Test
{
protected:
    explicit NoisyDocument(QSize pictureSize)
        : test(QSize(0, 0))
        , path(m_folder.filePath(QStringLiteral("noisy.crvgrab")))
    {
        test.document->graphView().replaceImageWithImageRep(noise(pictureSize));
        test.document->setFileUrl(QUrl::fromLocalFile(path));
    }

    bool pictureIsEncoded()
    {
        return QTest::qWaitFor([this] { return test.document->graphView().pictureIsEncoded(); },
                               60'000);
    }

    TestDocument test;

private:
    QTemporaryDir m_folder;

protected:
    QString path;
};

/// A save that takes seconds, since the picture is not encoded yet; a file is there already.
class LongSave : public NoisyDocument
{
protected:
    LongSave()
        : NoisyDocument({4000, 3000})
    {
        putContent(path, "old");
        test.document->saveDocument();
        test.services.sheets->answerFirst(SheetAnswer::Other);
    }

    [[nodiscard]] QWidget &progress() const
    {
        return *test.ui().statusBar->findChild<QWidget *>(QStringLiteral("savingProgress"));
    }

    bool showsProgress()
    {
        return QTest::qWaitFor([this] { return progress().isVisible(); });
    }

    void cancel() const
    {
        QTest::mouseClick(progress().findChild<QToolButton *>(), Qt::LeftButton);
    }
};

/// A document around a picture whose file takes a while to be written.
class LargeDocument : public NoisyDocument
{
protected:
    LargeDocument()
        : NoisyDocument({1600, 1200})
    {
        test.digitize();
        EXPECT_TRUE(pictureIsEncoded());
    }

    bool isSaved()
    {
        return QTest::qWaitFor([this] { return test.document->fileStamp().has_value(); }, 60'000);
    }
};

} // namespace

TEST_F(LongSave, tellsWhatItIsDoingUntilItIsDone)
{
    EXPECT_FALSE(progress().isVisible());
    const int height = test.ui().statusBar->height();
    ASSERT_TRUE(showsProgress());
    EXPECT_EQ(progress().findChild<QLabel *>()->text(),
              qtTrId("document.saving.preparing").arg(QStringLiteral("noisy.crvgrab")));
    EXPECT_EQ(test.ui().statusBar->height(), height);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !test.document->isDocumentEdited(); }, 60'000));
    EXPECT_FALSE(progress().isVisible());
    EXPECT_TRUE(unarchived(contentOf(path)).isWhole());
}

TEST_F(LongSave, cancelledLeavesTheFileAndTheDocumentAsTheyWere)
{
    ASSERT_TRUE(showsProgress());
    cancel();
    EXPECT_FALSE(progress().isVisible());
    ASSERT_TRUE(pictureIsEncoded());
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_TRUE(test.document->isDocumentEdited());
    EXPECT_EQ(test.services.sheets->waitingCount(), 0U);
    // The next one takes up what was done.
    test.document->saveDocument();
    test.services.sheets->answerFirst(SheetAnswer::Other);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !test.document->isDocumentEdited(); }, 60'000));
    EXPECT_TRUE(unarchived(contentOf(path)).isWhole());
}

TEST_F(LongSave, isCancelledByEscape)
{
    ASSERT_TRUE(showsProgress());
    QTest::keyClick(&test.document->graphView(), Qt::Key_Escape);
    EXPECT_FALSE(progress().isVisible());
    ASSERT_TRUE(pictureIsEncoded());
    EXPECT_EQ(contentOf(path), "old");
}

TEST_F(LongSave, cancelledTakesBackTheClosingThatWaitedForIt)
{
    EXPECT_FALSE(test.document->window().close());
    ASSERT_TRUE(showsProgress());
    cancel();
    ASSERT_TRUE(pictureIsEncoded());
    QCoreApplication::processEvents();
    EXPECT_EQ(test.services.closedDocuments, 0);
    EXPECT_FALSE(test.document->window().close());
    ASSERT_EQ(test.services.sheets->waitingCount(), 1U);
    test.services.sheets->answerFirst(SheetAnswer::Alternate);
    test.document->saveDocument();
    test.services.sheets->answerFirst(SheetAnswer::Other);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !test.document->isDocumentEdited(); }, 60'000));
    EXPECT_EQ(test.services.closedDocuments, 0);
}

TEST_F(LongSave, anotherOneAfterACancelledOneGoesToItsOwnFileOnly)
{
    ASSERT_TRUE(showsProgress());
    cancel();
    test.document->saveDocumentAs();
    const QString other = path + QStringLiteral(".other.crvgrab");
    ASSERT_TRUE(test.services.panels->confirm(other));
    EXPECT_FALSE(QFile::exists(other));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !test.document->isDocumentEdited(); }, 60'000));
    EXPECT_TRUE(unarchived(contentOf(other)).isWhole());
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_TRUE(test.services.sheets->waitingCount() == 0);
}

TEST_F(LargeDocument, thePictureIsEncodedBeforeAnybodyAsks)
{
    test.document->saveDocument();
    EXPECT_TRUE(isSaved());
    EXPECT_FALSE(test.document->isDocumentEdited());
    EXPECT_TRUE(unarchived(contentOf(path)).isWhole());
}

TEST_F(LargeDocument, whatIsDoneWhileTheFileIsWrittenIsNotSaved)
{
    test.document->saveDocument();
    test.document->updateChangeCount(ChangeKind::Done);
    ASSERT_TRUE(isSaved());
    EXPECT_TRUE(test.document->isDocumentEdited());
    test.document->updateChangeCount(ChangeKind::Undone);
    EXPECT_FALSE(test.document->isDocumentEdited());
    test.document->updateChangeCount(ChangeKind::Undone);
    EXPECT_TRUE(test.document->isDocumentEdited());
}

TEST_F(LargeDocument, whatIsUndoneAndReplacedWhileTheFileIsWrittenIsNotSaved)
{
    test.document->saveDocument();
    test.document->updateChangeCount(ChangeKind::Undone);
    test.document->updateChangeCount(ChangeKind::Done);
    ASSERT_TRUE(isSaved());
    EXPECT_TRUE(test.document->isDocumentEdited());
}

TEST_F(LargeDocument, closingWithASaveAsksAgainAboutWhatWasDoneMeanwhile)
{
    test.document->window().close();
    test.services.sheets->answerFirst(SheetAnswer::Default);
    test.click(120, 100);
    ASSERT_TRUE(isSaved());
    EXPECT_EQ(test.services.closedDocuments, 0);
    EXPECT_EQ(test.services.sheets->waitingCount(), 1U);
}

TEST_F(LargeDocument, aFileThatIsBeingWrittenIsNotGivenUp)
{
    test.document->saveDocument();
    EXPECT_FALSE(test.document->window().close());
    test.ui().statusBar->findChild<QToolButton *>(QStringLiteral("cancelSavingButton"))->click();
    EXPECT_TRUE(QTest::qWaitFor([this] { return test.services.closedDocuments == 1; }, 60'000));
    EXPECT_TRUE(unarchived(contentOf(path)).isWhole());
}

TEST_F(LargeDocument, closingWaitsForTheSaveOfADocumentThatIsNotModified)
{
    test.markSaved();
    test.document->saveDocument();
    EXPECT_FALSE(test.document->window().close());
    EXPECT_TRUE(QTest::qWaitFor([this] { return test.services.closedDocuments == 1; }, 60'000));
    EXPECT_TRUE(unarchived(contentOf(path)).isWhole());
    EXPECT_TRUE(test.services.sheets->presented().empty());
}

TEST_F(LargeDocument, anAnchorMovedOnByKeysWhileTheFileIsWrittenIsNotSaved)
{
    CurrentAxes &axes = test.document->currentAxes();
    axes.movePart(1, {1, 0});
    test.endEvent();
    test.document->saveDocument();
    axes.movePart(1, {1, 0});
    test.endEvent();
    ASSERT_TRUE(isSaved());
    EXPECT_TRUE(test.document->isDocumentEdited());
}

TEST_F(LargeDocument, aSecondSaveComesAfterTheFirst)
{
    test.document->saveDocument();
    test.click(120, 100);
    test.document->saveDocument();
    ASSERT_TRUE(isSaved());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !test.document->isDocumentEdited(); }, 60'000));
    const auto root = unarchived(contentOf(path)).root;
    const ArchiveDictionary *series = root.dictionaryForKey("DataSeries Data");
    EXPECT_EQ(std::get<ArchiveArray>(series->arrayForKey("Data Series")->at(0).value).size(), 1U);
}

TEST_F(LargeDocument, asksBeforeItReplacesTheFileOfAnotherDocumentWithTheSameName)
{
    TestDocument other(QSize(0, 0));
    other.document->graphView().replaceImageWithImageRep(noise({1600, 1200}));
    other.document->setFileUrl(QUrl::fromLocalFile(path));
    ASSERT_TRUE(QTest::qWaitFor([&other] { return other.document->graphView().pictureIsEncoded(); },
                                60'000));
    test.document->saveDocument();
    other.document->saveDocument();
    ASSERT_TRUE(isSaved());
    ASSERT_TRUE(
        QTest::qWaitFor([&other] { return other.services.sheets->waitingCount() == 1U; }, 60'000));
    EXPECT_EQ(durablefile::stampOf(path), test.document->fileStamp());
    EXPECT_TRUE(other.document->isDocumentEdited());
}

namespace {

/// A document that is being saved for the first time; its picture is not encoded yet.
class FirstSave : public NoisyDocument
{
protected:
    FirstSave()
        : NoisyDocument({2500, 2000})
    {
        test.setAxes();
        test.document->saveDocument();
    }
};

} // namespace

TEST_F(FirstSave, asksAboutAFileThatCameWhileThePictureWasEncoded)
{
    putContent(path, "another one's");
    ASSERT_TRUE(pictureIsEncoded());
    EXPECT_EQ(contentOf(path), "another one's");
    EXPECT_EQ(test.services.sheets->waitingCount(), 1U);
    EXPECT_TRUE(test.document->isDocumentEdited());
    test.services.sheets->answerFirst(SheetAnswer::Other);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !test.document->isDocumentEdited(); }, 60'000));
    EXPECT_TRUE(unarchived(contentOf(path)).isWhole());
}

TEST_F(FirstSave, waitsForAnAnchorThatIsOnItsWay)
{
    const FloatPoint anchor = test.document->currentAxes().anchor1Point();
    const float scale = test.document->graphView().imageScale();
    const QPoint start(static_cast<int>(anchor.x * scale), static_cast<int>(anchor.y * scale));
    QWidget *view = &test.document->graphView();
    const auto at = [&](QPoint way) {
        return test.widgetPosition(start.x() + way.x(), start.y() + way.y());
    };
    QTest::mousePress(view, Qt::LeftButton, Qt::NoModifier, at({0, 0}));
    QTest::mouseMove(view, at({10, 10}));
    QTest::mouseMove(view, at({20, 20}));
    ASSERT_TRUE(test.document->graphView().isTrackingAnchorDrag());
    ASSERT_TRUE(pictureIsEncoded());
    QCoreApplication::processEvents();
    EXPECT_FALSE(QFile::exists(path));
    QTest::mouseMove(view, at({30, 30}));
    QTest::mouseRelease(view, Qt::LeftButton, Qt::NoModifier, at({30, 30}));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !test.document->isDocumentEdited(); }, 60'000));
    const auto root = unarchived(contentOf(path)).root;
    EXPECT_EQ(root.dictionaryForKey("CurrentAxes Data")->stringForKey("Anchor Position 1"),
              geometrytext::stringFromPoint(test.document->currentAxes().anchor1Point()));
}
