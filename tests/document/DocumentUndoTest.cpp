#include "document/TestDocument.h"

#include "axes/CurrentAxes.h"
#include "capture/DataSeries.h"
#include "capture/DataTableView.h"

#include <gtest/gtest.h>

// What counts as a change, and what undo takes back, across the components.

TEST(DocumentUndo, aDocumentMadeFromAPictureIsModifiedAtOnce)
{
    const TestDocument test;
    EXPECT_TRUE(test.document->isDocumentEdited());
}

TEST(DocumentUndo, clickThenUndoLeavesTheDocumentModified)
{
    TestDocument test;
    test.digitize();
    test.markSaved();
    test.click(250, 200);
    ASSERT_EQ(test.document->dataSeries().points(0).size(), 1U);
    test.command("undo");
    EXPECT_TRUE(test.document->dataSeries().points(0).empty());
    EXPECT_TRUE(test.document->isDocumentEdited());
}

TEST(DocumentUndo, deleteThenUndoLeavesTheDocumentUnmodified)
{
    TestDocument test;
    test.digitize();
    test.click(250, 200);
    test.document->dataTableView().selectAll();
    test.markSaved();
    test.command("delete");
    ASSERT_TRUE(test.document->dataSeries().points(0).empty());
    ASSERT_TRUE(test.document->isDocumentEdited());
    test.command("undo");
    EXPECT_EQ(test.document->dataSeries().points(0).size(), 1U);
    EXPECT_FALSE(test.document->isDocumentEdited());
}

TEST(DocumentUndo, redoAddsThePointAgain)
{
    TestDocument test;
    test.digitize();
    test.click(250, 200);
    test.command("undo");
    test.command("redo");
    EXPECT_EQ(test.document->dataSeries().points(0).size(), 1U);
}

TEST(DocumentUndo, theMenuNamesTheAction)
{
    TestDocument test;
    test.digitize();
    test.click(250, 200);
    EXPECT_EQ(test.action("undo")->text(),
              qtTrId("document.command.undoNamed").arg(qtTrId("actionDataAppend")));
}

TEST(DocumentUndo, theNameIsShownForRedoToo)
{
    TestDocument test;
    test.digitize();
    test.click(250, 200);
    test.command("undo");
    EXPECT_EQ(test.action("redo")->text(),
              qtTrId("document.command.redoNamed").arg(qtTrId("actionDataAppend")));
}

TEST(DocumentUndo, rotateThenUndoRestoresTheAnchorsNotTheRotation)
{
    TestDocument test;
    const FloatPoint before = test.document->currentAxes().anchor2Point();
    test.command("imageRotateCcw");
    ASSERT_NE(test.document->currentAxes().anchor2Point(), before);
    test.command("undo");
    EXPECT_EQ(test.document->currentAxes().anchor2Point(), before);
    EXPECT_EQ(test.document->graphView().imageRotation(), 90.0F);
}

TEST(DocumentUndo, aDragIsOneStep)
{
    TestDocument test;
    const FloatPoint before = test.document->currentAxes().anchor1Point();
    test.drag({100, 80}, {130, 110});
    ASSERT_EQ(test.document->currentAxes().anchor1Point(), (FloatPoint{130, 110}));
    test.command("undo");
    EXPECT_EQ(test.document->currentAxes().anchor1Point(), before);
    EXPECT_FALSE(test.document->undoManager().canUndo());
}

TEST(DocumentUndo, aDragThatHitsNothingLeavesAStepAndAModifiedDocument)
{
    TestDocument test;
    test.markSaved();
    ASSERT_FALSE(test.document->undoManager().canUndo());
    test.drag({10, 10}, {30, 20});
    EXPECT_TRUE(test.document->undoManager().canUndo());
    EXPECT_TRUE(test.document->isDocumentEdited());
}

TEST(DocumentUndo, digitizingDropsTheUndoOfTheAxes)
{
    TestDocument test;
    test.drag({100, 80}, {130, 110});
    test.digitize();
    EXPECT_FALSE(test.document->undoManager().canUndo());
}

TEST(DocumentUndo, settingAxesDropsTheUndoOfTheData)
{
    TestDocument test;
    test.digitize();
    test.click(250, 200);
    test.setAxes();
    EXPECT_FALSE(test.document->undoManager().canUndo());
    EXPECT_EQ(test.document->dataSeries().points(0).size(), 1U);
}

TEST(DocumentUndo, changingTheTabDoesNotMarkTheDocument)
{
    TestDocument test;
    test.markSaved();
    test.digitize();
    test.setAxes();
    EXPECT_FALSE(test.document->isDocumentEdited());
}

TEST(DocumentUndo, theDrawerDoesNotMarkTheDocument)
{
    TestDocument test;
    test.markSaved();
    QTest::mouseClick(test.ui().drawerOpenButton, Qt::LeftButton);
    EXPECT_FALSE(test.document->isDocumentEdited());
}

TEST(DocumentUndo, choosingAnotherSeriesMarksTheDocument)
{
    TestDocument test;
    test.digitize();
    test.markSaved();
    test.command("moveToNextSeries");
    EXPECT_TRUE(test.document->isDocumentEdited());
}

TEST(DocumentUndo, theDrawModeDoesNotMarkTheDocument)
{
    TestDocument test;
    test.digitize();
    test.markSaved();
    test.command("setDrawLines");
    EXPECT_FALSE(test.document->isDocumentEdited());
}

TEST(DocumentUndo, theWindowShowsThatTheDocumentIsModified)
{
    TestDocument test;
    test.markSaved();
    EXPECT_FALSE(test.document->window().isWindowModified());
    test.drag({100, 80}, {130, 110});
    EXPECT_TRUE(test.document->window().isWindowModified());
}

TEST(DocumentUndo, whatReplacesAnUndoneSavedStateIsAChangeThoughTheCountIsTheSame)
{
    TestDocument test;
    test.markSaved();
    test.document->updateChangeCount(ChangeKind::Undone);
    test.document->updateChangeCount(ChangeKind::Done);
    EXPECT_TRUE(test.document->isDocumentEdited());
    test.document->updateChangeCount(ChangeKind::Undone);
    test.document->updateChangeCount(ChangeKind::Redone);
    EXPECT_TRUE(test.document->isDocumentEdited());
    test.markSaved();
    EXPECT_FALSE(test.document->isDocumentEdited());
}
