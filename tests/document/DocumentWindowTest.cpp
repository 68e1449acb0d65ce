#include "document/TestDocument.h"

#include "capture/DataSeries.h"
#include "document/TableDrawer.h"

#include <QLabel>

#include <gtest/gtest.h>

TEST(DocumentWindow, aNewDocumentShowsTheTable)
{
    const TestDocument test{QSize(0, 0)};
    EXPECT_EQ(test.document->drawerOpenButtonState(), 0);
    EXPECT_TRUE(test.ui().dataTableDrawer->isOpen());
}

TEST(DocumentWindow, theTableCommandIsTitledAfterTheDrawer)
{
    TestDocument test;
    EXPECT_EQ(test.services.showHideTable.text(), qtTrId("HideTable"));
    test.document->showHideDataTable();
    EXPECT_EQ(test.services.showHideTable.text(), qtTrId("ShowTable"));
}

TEST(DocumentWindow, closingTheDrawerByItsHandleSetsButtonAndTitle)
{
    TestDocument test;
    QTest::mouseClick(test.ui().dataTableDrawer->findChild<QWidget *>("drawerHandle"),
                      Qt::LeftButton);
    EXPECT_EQ(test.document->drawerOpenButtonState(), 1);
    EXPECT_FALSE(test.ui().drawerOpenButton->isChecked());
    EXPECT_EQ(test.services.showHideTable.text(), qtTrId("ShowTable"));
}

TEST(DocumentWindow, theFrameSizeLeavesTheOpenDrawerOut)
{
    TestDocument test;
    const FloatSize open = test.document->windowFrameSize();
    test.document->showHideDataTable();
    EXPECT_EQ(test.document->windowFrameSize(), open);
}

TEST(DocumentWindow, theStandardFrameLeavesTheFixedMargins)
{
    const TestDocument test({900, 600});
    const FloatSize standard = test.document->windowWillUseStandardFrame();
    EXPECT_EQ(standard, (FloatSize{937, 807}));
}

TEST(DocumentWindow, aPictureAtTheStandardFrameIsSeenWhole)
{
    const TestDocument test({700, 400});
    QCoreApplication::processEvents();
    const FloatSize clip = test.ui().pictureScrollArea->clipSize();
    EXPECT_GE(clip.width, 700);
    EXPECT_GE(clip.height, 400);
}

TEST(DocumentWindow, withoutPictureThePlaceholderStandsForTheTab)
{
    const TestDocument test{QSize(0, 0)};
    EXPECT_TRUE(test.ui().noImageTab->isVisible());
    EXPECT_FALSE(test.ui().actionSelectionTab->isVisible());
}

TEST(DocumentWindow, withAPictureTheTabShows)
{
    const TestDocument test;
    EXPECT_FALSE(test.ui().noImageTab->isVisible());
    EXPECT_TRUE(test.ui().actionSelectionTab->isVisible());
}

TEST(DocumentWindow, controlsKeepTheirPlaceWhenTheKindOfAxesChanges)
{
    TestDocument test;
    const QRect before = test.ui().yAxisBox->geometry();
    test.command("choosePolarAxes");
    QCoreApplication::processEvents();
    EXPECT_EQ(test.ui().yAxisBox->geometry(), before);
}

TEST(DocumentWindow, theWindowKeepsItsHeightWhenThePageChanges)
{
    TestDocument test;
    const int before = test.ui().actionSelectionTab->height();
    test.digitize();
    QCoreApplication::processEvents();
    EXPECT_EQ(test.ui().actionSelectionTab->height(), before);
}

TEST(DocumentWindow, closingAModifiedDocumentWithPointsAsks)
{
    TestDocument test;
    test.digitize();
    test.click(100, 50);
    EXPECT_FALSE(test.document->window().close());
    EXPECT_EQ(test.services.sheets->presented().size(), 1U);
    EXPECT_EQ(test.services.closedDocuments, 0);
}

TEST(DocumentWindow, anAgreedCloseCloses)
{
    TestDocument test;
    test.digitize();
    test.click(100, 50);
    test.document->window().close();
    test.services.sheets->answerFirst(SheetAnswer::Default);
    EXPECT_EQ(test.services.closedDocuments, 1);
}

TEST(DocumentWindow, aCancelledCloseKeepsTheDocument)
{
    TestDocument test;
    test.digitize();
    test.click(100, 50);
    test.document->window().close();
    test.services.sheets->answerFirst(SheetAnswer::Alternate);
    EXPECT_TRUE(test.document->window().isVisible());
    EXPECT_EQ(test.document->dataSeries().currentIndex(), 1);
}

TEST(DocumentWindow, aDocumentWithoutPointsClosesWithoutAsking)
{
    TestDocument test;
    EXPECT_TRUE(test.document->window().close());
    EXPECT_TRUE(test.services.sheets->presented().empty());
}

TEST(DocumentWindow, theStatusLineSaysWhatAClickWillDo)
{
    TestDocument test;
    test.digitize();
    QTest::mouseMove(&test.document->graphView(), {50, 50});
    test.services.desktop->pointer = test.document->graphView().mapToGlobal(QPoint(50, 50));
    test.document->graphView().mouseCheckRoutine();
    const auto *hint = test.document->window().findChild<QLabel *>("statusHint");
    EXPECT_EQ(hint->text(), qtTrId("document.status.addPoint").arg(1));
}

TEST(DocumentWindow, theStatusLineShowsThePositions)
{
    TestDocument test;
    test.command("wholePosition");
    test.digitize();
    test.services.desktop->pointer = test.document->graphView().mapToGlobal(QPoint(50, 100));
    test.document->graphView().mouseCheckRoutine();
    const auto *picture = test.document->window().findChild<QLabel *>("statusPicture");
    const auto *graph = test.document->window().findChild<QLabel *>("statusGraph");
    EXPECT_EQ(picture->text(), qtTrId("document.status.picture").arg("50", "300"));
    EXPECT_EQ(graph->text(), qtTrId("document.status.graph").arg("50", "300"));
}
