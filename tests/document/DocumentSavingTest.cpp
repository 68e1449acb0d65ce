#include "document/TestDocument.h"

#include "axes/CurrentAxes.h"
#include "capture/CursorGuide.h"
#include "capture/DataSeries.h"
#include "document/SampleRoots.h"
#include "platform/GeometryText.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

#include <gtest/gtest.h>

#include <random>

using documentarchive::unarchived;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void putContent(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

/// A document with two points that nobody has saved.
class DocumentSavingTest : public testing::Test
{
protected:
    DocumentSavingTest()
    {
        test.digitize();
        test.click(120, 100);
        test.click(200, 150);
    }

    [[nodiscard]] QString path(const char *name = "chart.crvgrab") const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }
    [[nodiscard]] RecordingSheets &sheets() const { return *test.services.sheets; }
    [[nodiscard]] const MyDocument &document() const { return *test.document; }

    void saveAs(const QString &where)
    {
        test.command("saveDocumentAs");
        EXPECT_TRUE(test.services.panels->confirm(where));
    }

    [[nodiscard]] static int pointsIn(const QString &where)
    {
        const auto reading = unarchived(contentOf(where));
        EXPECT_TRUE(reading.isWhole());
        const ArchiveDictionary *series = reading.root.dictionaryForKey("DataSeries Data");
        const ArchiveArray *lists =
            series == nullptr ? nullptr : series->arrayForKey("Data Series");
        return lists == nullptr
                   ? -1
                   : static_cast<int>(std::get<ArchiveArray>(lists->at(0).value).size());
    }

    void waitUntilRead() const
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !document().isReading(); }, 30'000));
    }

    TestDocument test;

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(DocumentSavingTest, anUntitledDocumentAsksWhere)
{
    document().window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&document().window()));
    QTest::keyClick(&document().window(), Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(test.services.panels->isAsking());
    EXPECT_EQ(test.services.panels->proposedName(), document().displayName() + ".crvgrab");
    test.services.panels->confirm(path());
    EXPECT_EQ(pointsIn(path()), 2);
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_EQ(document().displayName(), "chart.crvgrab");
    EXPECT_EQ(document().window().windowFilePath(), path());
    EXPECT_TRUE(document().window().windowTitle().contains("chart.crvgrab[*]"));
    EXPECT_EQ(document().recentFiles(), QStringList{path()});
}

TEST_F(DocumentSavingTest, aSavedDocumentIsSavedAgainWithoutAsking)
{
    saveAs(path());
    test.click(300, 250);
    EXPECT_TRUE(document().window().isWindowModified());
    test.command("saveDocument");
    EXPECT_EQ(pointsIn(path()), 3);
    EXPECT_FALSE(document().window().isWindowModified());
    EXPECT_TRUE(sheets().presented().empty());
}

TEST_F(DocumentSavingTest, aPicturesDocumentIsSavedBesideItWithoutAsking)
{
    test.document->setFileUrl(QUrl::fromLocalFile(path()));
    test.command("saveDocument");
    EXPECT_EQ(pointsIn(path()), 2);
    EXPECT_TRUE(sheets().presented().empty());
}

TEST_F(DocumentSavingTest, aPicturesDocumentAsksBeforeItReplacesAnother)
{
    putContent(path(), "other work");
    test.document->setFileUrl(QUrl::fromLocalFile(path()));
    test.command("saveDocument");
    ASSERT_EQ(sheets().waitingCount(), 1U);
    EXPECT_EQ(contentOf(path()), "other work");
    sheets().answerFirst(SheetAnswer::Alternate);
    EXPECT_EQ(contentOf(path()), "other work");
    EXPECT_TRUE(document().isDocumentEdited());
    test.command("saveDocument");
    sheets().answerFirst(SheetAnswer::Other);
    EXPECT_EQ(pointsIn(path()), 2);
}

TEST_F(DocumentSavingTest, aFileChangedBySomeoneElseIsNoticed)
{
    saveAs(path());
    putContent(path(), "someone else's work");
    test.click(300, 250);
    test.command("saveDocument");
    ASSERT_EQ(sheets().waitingCount(), 1U);
    EXPECT_EQ(sheets().presented().back().informativeText, qtTrId("document.save.changedText"));
    sheets().answerFirst(SheetAnswer::Default);
    EXPECT_EQ(test.services.panels->proposedName(), path());
    test.services.panels->confirm(path("mine.crvgrab"));
    EXPECT_EQ(contentOf(path()), "someone else's work");
    EXPECT_EQ(pointsIn(path("mine.crvgrab")), 3);
}

TEST_F(DocumentSavingTest, aVanishedFileIsWrittenAgain)
{
    saveAs(path());
    ASSERT_TRUE(QFile::remove(path()));
    test.command("saveDocument");
    EXPECT_EQ(pointsIn(path()), 2);
}

TEST_F(DocumentSavingTest, aFailedSaveSaysWhyAndKeepsTheDocument)
{
    putContent(path("file"), "old");
    saveAs(path("file/chart.crvgrab"));
    ASSERT_EQ(sheets().waitingCount(), 1U);
    EXPECT_TRUE(
        sheets().presented().back().informativeText.contains(qtTrId("platform.file.folderGone")));
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_EQ(document().dataSeries().maxRows(), 2);
    EXPECT_TRUE(document().fileUrl().isEmpty());
    EXPECT_EQ(contentOf(path("file")), "old");
}

TEST_F(DocumentSavingTest, revertingShowsTheFileAgain)
{
    EXPECT_FALSE(test.action("revertDocumentToSaved")->isEnabled());
    saveAs(path());
    EXPECT_FALSE(test.action("revertDocumentToSaved")->isEnabled());
    test.click(300, 250);
    test.command("revertDocumentToSaved");
    sheets().answerFirst(SheetAnswer::Alternate);
    EXPECT_EQ(document().dataSeries().maxRows(), 3);
    test.command("revertDocumentToSaved");
    sheets().answerFirst(SheetAnswer::Default);
    waitUntilRead();
    EXPECT_EQ(document().dataSeries().maxRows(), 2);
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_FALSE(test.action("undo")->isEnabled());
    test.command("saveDocument");
    EXPECT_TRUE(sheets().waitingCount() == 0);
}

TEST_F(DocumentSavingTest, aFileThatAnotherProgramChangedIsShownAgainWithoutAQuestion)
{
    saveAs(path());
    const QByteArray twoPoints = contentOf(path());
    test.click(300, 250);
    test.command("saveDocument");
    auto *fileMenu = test.document->window().menuBar()->actions().constFirst()->menu();
    Q_EMIT fileMenu->aboutToShow();
    EXPECT_FALSE(test.action("revertDocumentToSaved")->isEnabled());
    putContent(path(), twoPoints);
    Q_EMIT fileMenu->aboutToShow();
    ASSERT_TRUE(test.action("revertDocumentToSaved")->isEnabled());
    test.command("revertDocumentToSaved");
    EXPECT_TRUE(sheets().waitingCount() == 0);
    waitUntilRead();
    EXPECT_EQ(document().dataSeries().maxRows(), 2);
    Q_EMIT fileMenu->aboutToShow();
    EXPECT_FALSE(test.action("revertDocumentToSaved")->isEnabled());
    ASSERT_TRUE(QFile::remove(path()));
    Q_EMIT fileMenu->aboutToShow();
    EXPECT_FALSE(test.action("revertDocumentToSaved")->isEnabled());
}

TEST_F(DocumentSavingTest, revertingLeadsToWhatOpeningShows)
{
    // Six digits are written of an anchor, and opening makes the converter from them.
    test.setAxes();
    QTest::mouseClick(test.ui().digitizingTabButton, Qt::LeftButton);
    ArchiveDictionary root = document().rootDictionary();
    ArchiveDictionary axes = *root.dictionaryForKey("CurrentAxes Data");
    axes.set("Anchor Position 2", {std::string("{1234.56789, 17}")});
    root.set("CurrentAxes Data", {axes});
    saveAs(path());
    putContent(path(), documentarchive::archivedData(root));
    test.click(300, 250);
    test.command("revertDocumentToSaved");
    sheets().answerFirst();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !document().isDocumentEdited(); }));
    TestServices services;
    MyDocument opened(services);
    ASSERT_TRUE(
        opened.loadDataRepresentation(contentOf(path()), QStringLiteral("Curvegrab X Document")));
    opened.showWindow();
    ASSERT_NE(opened.cursorGuide().converter(), nullptr);
    EXPECT_TRUE(document().cursorGuide().converter()->isEqualConverterAs(
        *opened.cursorGuide().converter()));
}

TEST_F(DocumentSavingTest, revertingToADamagedFileChangesNothing)
{
    saveAs(path());
    test.click(300, 250);
    putContent(path(), "damaged");
    test.command("revertDocumentToSaved");
    sheets().answerFirst();
    waitUntilRead();
    EXPECT_EQ(sheets().waitingCount(), 1U);
    EXPECT_EQ(document().dataSeries().maxRows(), 3);
    EXPECT_TRUE(document().isDocumentEdited());
}

TEST_F(DocumentSavingTest, aCancelledRevertingChangesNothing)
{
    saveAs(path());
    test.click(300, 250);
    test.command("revertDocumentToSaved");
    sheets().answerFirst();
    ASSERT_TRUE(document().isReading());
    // What is clicked meanwhile is not taken.
    test.click(250, 200);
    auto *panel = document().window().findChild<QWidget *>(QStringLiteral("readingProgress"),
                                                           Qt::FindDirectChildrenOnly);
    ASSERT_NE(panel, nullptr);
    QTest::keyClick(panel, Qt::Key_Escape);
    EXPECT_FALSE(document().isReading());
    QCoreApplication::processEvents();
    EXPECT_EQ(document().dataSeries().maxRows(), 3);
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_TRUE(document().window().centralWidget()->isEnabled());
    EXPECT_TRUE(sheets().waitingCount() == 0);
}

TEST_F(DocumentSavingTest, closingWhileRevertingAsksAboutTheChangesThatAreStillThere)
{
    saveAs(path());
    test.click(300, 250);
    test.command("revertDocumentToSaved");
    sheets().answerFirst();
    EXPECT_FALSE(test.document->window().close());
    EXPECT_EQ(sheets().waitingCount(), 1U);
    EXPECT_EQ(document().dataSeries().maxRows(), 3);
}

TEST_F(DocumentSavingTest, closingAModifiedDocumentAsks)
{
    EXPECT_FALSE(test.document->window().close());
    EXPECT_FALSE(test.document->window().close());
    EXPECT_EQ(sheets().waitingCount(), 1U);
    EXPECT_EQ(test.services.closedDocuments, 0);
    sheets().answerFirst(SheetAnswer::Alternate);
    EXPECT_EQ(test.services.closedDocuments, 0);
    EXPECT_FALSE(test.document->window().close());
    EXPECT_EQ(sheets().waitingCount(), 1U);
}

TEST_F(DocumentSavingTest, closingWithoutSavingDropsTheChanges)
{
    test.command("performClose");
    sheets().answerFirst(SheetAnswer::Other);
    EXPECT_EQ(test.services.closedDocuments, 1);
}

TEST_F(DocumentSavingTest, closingWithSavingClosesAfterTheSave)
{
    saveAs(path());
    test.click(300, 250);
    test.document->window().close();
    sheets().answerFirst(SheetAnswer::Default);
    EXPECT_EQ(pointsIn(path()), 3);
    EXPECT_EQ(test.services.closedDocuments, 1);
}

TEST_F(DocumentSavingTest, closingWithASaveThatFailsKeepsTheWindow)
{
    putContent(path("file"), "old");
    test.document->window().close();
    sheets().answerFirst(SheetAnswer::Default);
    test.services.panels->confirm(path("file/chart.crvgrab"));
    EXPECT_EQ(test.services.closedDocuments, 0);
    EXPECT_TRUE(test.document->window().isVisible());
    sheets().answerFirst();
    EXPECT_FALSE(test.document->window().close());
    EXPECT_EQ(sheets().waitingCount(), 1U);
}

TEST(DocumentSaving, aDocumentThatIsNotModifiedClosesWithoutAsking)
{
    TestDocument test{QSize(0, 0)};
    EXPECT_TRUE(test.document->window().close());
    EXPECT_TRUE(test.services.sheets->presented().empty());
}

TEST(DocumentSaving, aLargePictureIsEncodedOnceAndInTheBackground)
{
    TestDocument test(QSize(3000, 2000));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("large.crvgrab"));
    test.document->setFileUrl(QUrl::fromLocalFile(path));
    test.document->saveDocument();
    EXPECT_FALSE(QFile::exists(path));
    // What is done meanwhile is in the file too.
    test.digitize();
    test.click(120, 100);
    ASSERT_TRUE(QTest::qWaitFor([&test] { return !test.document->isDocumentEdited(); }, 60'000));
    EXPECT_TRUE(unarchived(contentOf(path)).isWhole());
    test.click(200, 150);
    test.document->saveDocument();
    EXPECT_FALSE(test.document->isDocumentEdited());
    EXPECT_EQ(test.document->dataSeries().maxRows(), 2);
}

TEST(DocumentSaving, closingDuringASaveWaitsForItAndAsksNothing)
{
    TestDocument test(QSize(3000, 2000));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("large.crvgrab"));
    test.document->setFileUrl(QUrl::fromLocalFile(path));
    test.document->saveDocument();
    EXPECT_FALSE(test.document->window().close());
    ASSERT_TRUE(QTest::qWaitFor([&test] { return test.services.closedDocuments == 1; }, 60'000));
    EXPECT_TRUE(unarchived(contentOf(path)).isWhole());
    EXPECT_TRUE(test.services.sheets->presented().empty());
}

TEST(DocumentSaving, closingDuringASaveThatFailsKeepsTheWindow)
{
    TestDocument test(QSize(3000, 2000));
    const QTemporaryDir folder;
    putContent(folder.filePath(QStringLiteral("file")), "old");
    test.document->setFileUrl(
        QUrl::fromLocalFile(folder.filePath(QStringLiteral("file/large.crvgrab"))));
    test.document->saveDocument();
    EXPECT_FALSE(test.document->window().close());
    ASSERT_TRUE(
        QTest::qWaitFor([&test] { return test.services.sheets->waitingCount() == 1; }, 60'000));
    test.services.sheets->answerFirst();
    EXPECT_EQ(test.services.closedDocuments, 0);
    EXPECT_FALSE(test.document->window().close());
    EXPECT_EQ(test.services.sheets->presented().back().message,
              qtTrId("document.close.title").arg(test.document->displayName()));
}

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

/// A document around a picture that takes seconds to be encoded.
class LongSave : public testing::Test
{
protected:
    LongSave()
        : test(QSize(0, 0))
        , path(m_folder.filePath(QStringLiteral("long.crvgrab")))
    {
        test.document->graphView().replaceImageWithImageRep(noise({2500, 2000}));
        test.document->setFileUrl(QUrl::fromLocalFile(path));
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

    bool pictureIsEncoded()
    {
        return QTest::qWaitFor([this] { return test.document->graphView().pictureIsEncoded(); },
                               60'000);
    }

private:
    QTemporaryDir m_folder;

protected:
    TestDocument test;
    QString path;
};

/// A document around a picture whose file takes a while to be written.
class LargeDocument : public testing::Test
{
protected:
    LargeDocument()
        : test(QSize(0, 0))
        , path(m_folder.filePath(QStringLiteral("large.crvgrab")))
    {
        test.document->graphView().replaceImageWithImageRep(noise({1600, 1200}));
        test.digitize();
        test.document->setFileUrl(QUrl::fromLocalFile(path));
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return test.document->graphView().pictureIsEncoded(); }, 60'000));
    }

    bool isSaved()
    {
        return QTest::qWaitFor([this] { return test.document->fileStamp().has_value(); }, 60'000);
    }

    TestDocument test;

private:
    QTemporaryDir m_folder;

protected:
    QString path;
};

} // namespace

TEST_F(LongSave, tellsWhatItIsDoingUntilItIsDone)
{
    EXPECT_FALSE(progress().isVisible());
    const int height = test.ui().statusBar->height();
    ASSERT_TRUE(showsProgress());
    EXPECT_EQ(progress().findChild<QLabel *>()->text(),
              qtTrId("document.saving.preparing").arg(QStringLiteral("long.crvgrab")));
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

TEST_F(LongSave, cancelledTakesBackTheClosingThatWaitedForIt)
{
    EXPECT_FALSE(test.document->window().close());
    ASSERT_TRUE(showsProgress());
    cancel();
    ASSERT_TRUE(pictureIsEncoded());
    QCoreApplication::processEvents();
    EXPECT_EQ(test.services.closedDocuments, 0);
    EXPECT_FALSE(test.document->window().close());
    EXPECT_EQ(test.services.sheets->waitingCount(), 1U);
}

TEST_F(LongSave, anotherOneAfterACancelledOneIsWrittenOnce)
{
    ASSERT_TRUE(showsProgress());
    cancel();
    test.document->saveDocument();
    test.services.sheets->answerFirst(SheetAnswer::Other);
    EXPECT_EQ(contentOf(path), "old");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !test.document->isDocumentEdited(); }, 60'000));
    EXPECT_TRUE(unarchived(contentOf(path)).isWhole());
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
class FirstSave : public testing::Test
{
protected:
    FirstSave()
        : test(QSize(0, 0))
        , path(m_folder.filePath(QStringLiteral("first.crvgrab")))
    {
        test.document->graphView().replaceImageWithImageRep(noise({2500, 2000}));
        test.document->setFileUrl(QUrl::fromLocalFile(path));
        test.setAxes();
        test.document->saveDocument();
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

TEST_F(DocumentSavingTest, takesWhatStandsInTheFieldThatIsBeingEdited)
{
    test.setAxes();
    test.document->setFileUrl(QUrl::fromLocalFile(path()));
    TextField *field = test.ui().maxXTextField;
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("250"));
    test.command("saveDocument");
    const auto root = unarchived(contentOf(path())).root;
    EXPECT_EQ(root.dictionaryForKey("CurrentAxes Data")->doubleForKey("Max X Value"), 250);
}

TEST_F(DocumentSavingTest, closingAsksAboutWhatStandsInTheFieldThatIsBeingEdited)
{
    test.setAxes();
    test.markSaved();
    TextField *field = test.ui().maxXTextField;
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("250"));
    test.document->window().close();
    EXPECT_EQ(sheets().waitingCount(), 1U);
}
