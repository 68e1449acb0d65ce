#include "document/FileContent.h"
#include "document/TestDocument.h"

#include "capture/CursorGuide.h"
#include "capture/DataSeries.h"
#include "capture/DataTableView.h"

#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

#include <gtest/gtest.h>

using documentarchive::unarchived;
using filecontent::contentOf;
using filecontent::putContent;

namespace {

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

    /// Of three points that are not all saved, none goes, and the user is told why.
    void expectThatRevertingChangesNothing()
    {
        test.command("revertDocumentToSaved");
        sheets().answerFirst();
        waitUntilRead();
        EXPECT_EQ(sheets().waitingCount(), 1U);
        EXPECT_EQ(document().dataSeries().maxRows(), 3);
        EXPECT_TRUE(document().isDocumentEdited());
    }

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
    expectThatRevertingChangesNothing();
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

TEST_F(DocumentSavingTest, aFileThatTheDocumentIsPointedAtIsNotTakenForItsOwn)
{
    saveAs(path());
    putContent(path("other.crvgrab"), "other work");
    test.document->setFileUrl(QUrl::fromLocalFile(path("other.crvgrab")));
    test.command("saveDocument");
    ASSERT_EQ(sheets().waitingCount(), 1U);
    EXPECT_EQ(sheets().presented().back().informativeText, qtTrId("document.save.existsText"));
}

TEST_F(DocumentSavingTest, closingGoesOnAfterASaveUnderAnotherName)
{
    saveAs(path());
    putContent(path(), "someone else's work");
    test.click(300, 250);
    test.command("performClose");
    sheets().answerFirst(SheetAnswer::Default); // save
    sheets().answerFirst(SheetAnswer::Default); // but under another name
    ASSERT_TRUE(test.services.panels->confirm(path("mine.crvgrab")));
    EXPECT_EQ(pointsIn(path("mine.crvgrab")), 3);
    EXPECT_EQ(test.services.closedDocuments, 1);
}

TEST_F(DocumentSavingTest, revertingToAFileThatIsGoneChangesNothing)
{
    saveAs(path());
    test.click(300, 250);
    ASSERT_TRUE(QFile::remove(path()));
    expectThatRevertingChangesNothing();
}

TEST_F(DocumentSavingTest, withoutAFileThereIsNothingToRevertTo)
{
    test.document->revertDocumentToSaved();
    EXPECT_EQ(sheets().waitingCount(), 0U);
    EXPECT_FALSE(document().isReading());
    EXPECT_EQ(document().dataSeries().maxRows(), 2);
}

TEST_F(DocumentSavingTest, revertingForgetsWhatWasDoneToTheAxes)
{
    test.setAxes();
    saveAs(path());
    test.drag({100, 80}, {130, 110});
    ASSERT_TRUE(test.action("undo")->isEnabled());
    test.command("revertDocumentToSaved");
    sheets().answerFirst();
    waitUntilRead();
    EXPECT_FALSE(test.action("undo")->isEnabled());
}

TEST_F(DocumentSavingTest, revertingForgetsWhatWasDeletedWhileSettingAxes)
{
    test.setAxes();
    saveAs(path());
    test.document->dataTableView().selectAll();
    test.command("delete");
    ASSERT_EQ(document().dataSeries().maxRows(), 0);
    ASSERT_TRUE(test.action("undo")->isEnabled());
    test.command("revertDocumentToSaved");
    sheets().answerFirst();
    waitUntilRead();
    EXPECT_EQ(document().dataSeries().maxRows(), 2);
    EXPECT_FALSE(test.action("undo")->isEnabled());
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

TEST(DocumentSaving, aCancelledSaveWritesNothingOnceThePictureIsEncoded)
{
    TestDocument test(QSize(3000, 2000));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("large.crvgrab"));
    test.document->setFileUrl(QUrl::fromLocalFile(path));
    test.document->saveDocument();
    ASSERT_FALSE(test.document->graphView().pictureIsEncoded());
    test.ui().statusBar->findChild<QToolButton *>(QStringLiteral("cancelSavingButton"))->click();
    ASSERT_TRUE(
        QTest::qWaitFor([&test] { return test.document->graphView().pictureIsEncoded(); }, 60'000));
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(test.document->isDocumentEdited());
}
