#include "document/TestDocument.h"

#include "axes/CurrentAxes.h"
#include "capture/CursorGuide.h"
#include "capture/DataSeries.h"

#include <QLabel>

#include <gtest/gtest.h>

// The picture of a whole document, used by keyboard.

namespace {

constexpr FloatPoint maxXAnchor{400, 80}; // of a picture of 500 x 400

class DocumentKeyboard : public ::testing::Test
{
protected:
    void key(int key, Qt::KeyboardModifiers modifierFlags = Qt::NoModifier)
    {
        QTest::keyClick(&test.document->graphView(), static_cast<Qt::Key>(key), modifierFlags);
        test.endEvent();
    }

    /// Puts the mouse on a point in view coordinates.
    void pointAt(int x, int y)
    {
        test.services.desktop->pointer =
            test.document->graphView().mapToGlobal(test.widgetPosition(x, y));
        test.document->graphView().mouseCheckRoutine();
    }

    /// Whole-picture axes read out pixels.
    void readOutPixels()
    {
        test.command("wholePosition");
        test.digitize();
    }

    /// Chooses the anchor of the X maximum.
    void chooseMaxX()
    {
        key(Qt::Key_PageDown);
        key(Qt::Key_PageDown);
    }

    [[nodiscard]] FloatPoint maxX() const { return test.document->currentAxes().anchor2Point(); }
    [[nodiscard]] bool isEdited() const { return test.document->isDocumentEdited(); }
    [[nodiscard]] QString hint() const
    {
        return test.document->window().findChild<QLabel *>(QStringLiteral("statusHint"))->text();
    }

    TestDocument test;
};

} // namespace

TEST_F(DocumentKeyboard, returnTakesThePointToAFractionOfAPixel)
{
    readOutPixels();
    pointAt(100, 50);
    key(Qt::Key_Right, Qt::AltModifier);
    key(Qt::Key_Up, Qt::ShiftModifier);
    key(Qt::Key_Return);
    const auto &points = test.document->dataSeries().points(0);
    ASSERT_EQ(points.size(), 1U);
    EXPECT_NEAR(points.at(0).X(), 100.1, 1e-3);
    EXPECT_NEAR(points.at(0).Y(), 60, 1e-3);
}

TEST_F(DocumentKeyboard, theLiveValuesFollowTheKeys)
{
    readOutPixels();
    pointAt(100, 50);
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_TRUE(test.document->cursorGuide().showGuide());
    EXPECT_NEAR(test.ui().currentXTextField->doubleValue(), 100.1, 1e-3);
}

TEST_F(DocumentKeyboard, returnKeepsALockedValue)
{
    readOutPixels();
    pointAt(100, 50);
    test.document->lockUnlockX();
    key(Qt::Key_Right, Qt::ShiftModifier);
    key(Qt::Key_Return);
    const auto &points = test.document->dataSeries().points(0);
    ASSERT_EQ(points.size(), 1U);
    EXPECT_NEAR(points.at(0).X(), 100, 1e-3);
}

TEST_F(DocumentKeyboard, returnTakesTheComputedXInTurn)
{
    readOutPixels();
    QTest::keyClick(test.ui().autoXModePopUp, Qt::Key_Down);
    pointAt(100, 50);
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    key(Qt::Key_Return);
    const auto &points = test.document->dataSeries().points(0);
    ASSERT_EQ(points.size(), 2U);
    const double step = test.ui().stepXTextField->doubleValue();
    EXPECT_NEAR(points.at(1).X() - points.at(0).X(), step, 1e-3);
}

TEST_F(DocumentKeyboard, aCapturedPointIsUndone)
{
    readOutPixels();
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    test.command("undo");
    EXPECT_TRUE(test.document->dataSeries().points(0).empty());
}

TEST_F(DocumentKeyboard, arrowsMoveTheChosenAnchor)
{
    chooseMaxX();
    key(Qt::Key_Right);
    key(Qt::Key_Right, Qt::ShiftModifier);
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_NEAR(maxX().x, maxXAnchor.x + 11.1F, 1e-3);
    EXPECT_EQ(maxX().y, maxXAnchor.y);
}

TEST_F(DocumentKeyboard, aRunOfKeysIsUndoneAtOnce)
{
    chooseMaxX();
    for (int i = 0; i < 5; ++i)
        key(Qt::Key_Right);
    test.command("undo");
    EXPECT_EQ(maxX(), maxXAnchor);
}

TEST_F(DocumentKeyboard, aMoveAfterASaveIsAChange)
{
    chooseMaxX();
    key(Qt::Key_Right);
    test.markSaved();
    key(Qt::Key_Right);
    EXPECT_TRUE(isEdited());
    test.command("undo");
    EXPECT_EQ(maxX(), (FloatPoint{maxXAnchor.x + 1, maxXAnchor.y}));
    EXPECT_FALSE(isEdited());
}

TEST_F(DocumentKeyboard, aMoveAfterAChangeOfPagesCanBeUndone)
{
    chooseMaxX();
    key(Qt::Key_Right);
    test.digitize();
    test.setAxes();
    chooseMaxX();
    key(Qt::Key_Right);
    EXPECT_TRUE(test.document->undoManager().canUndo());
}

TEST_F(DocumentKeyboard, otherAxesHaveOtherParts)
{
    chooseMaxX();
    test.command("choosePolarAxes");
    key(Qt::Key_Right); // moves what is no more
    EXPECT_EQ(test.document->graphView().keyboardPart(), 0);
    EXPECT_FALSE(test.document->undoManager().canUndo());
}

TEST_F(DocumentKeyboard, theStatusLineNamesTheChosenPart)
{
    chooseMaxX();
    EXPECT_TRUE(hint().startsWith(qtTrId("axes.part.maxx"))) << hint().toStdString();
    key(Qt::Key_Escape);
    EXPECT_EQ(hint(), qtTrId("document.status.keysAxes"));
    key(Qt::Key_Escape);
    pointAt(101, 51);
    EXPECT_FALSE(hint().startsWith(qtTrId("document.status.keysAxes")));
}

TEST_F(DocumentKeyboard, theStatusLineTellsTheKeysOfDigitizing)
{
    readOutPixels();
    key(Qt::Key_Right);
    EXPECT_EQ(hint(), qtTrId("document.status.keysDigitize").arg(1));
}

TEST_F(DocumentKeyboard, aCommandGoesFromAFieldToThePicture)
{
    test.ui().minXTextField->setFocus(Qt::TabFocusReason);
    test.command("goToPicture");
    EXPECT_EQ(test.document->window().focusWidget(), &test.document->graphView());
    EXPECT_EQ(test.action("goToPicture")->shortcut(), QKeySequence(Qt::Key_F6));
}

TEST_F(DocumentKeyboard, theCommandShowsThatThePictureHasTheKeysAlready)
{
    QMainWindow &window = test.document->window();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    test.document->graphView().setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(test.document->graphView().isUsedByKeyboard());
    test.command("goToPicture");
    EXPECT_TRUE(test.document->graphView().isUsedByKeyboard());
}

TEST_F(DocumentKeyboard, theStatusLineTellsNoKeysOfThePictureInAField)
{
    QMainWindow &window = test.document->window();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    test.command("goToPicture");
    chooseMaxX();
    ASSERT_TRUE(hint().startsWith(qtTrId("axes.part.maxx")));
    test.ui().minXTextField->setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(hint().startsWith(qtTrId("axes.part.maxx"))) << hint().toStdString();
    test.document->graphView().setFocus(Qt::PopupFocusReason);
    EXPECT_TRUE(hint().startsWith(qtTrId("axes.part.maxx"))) << hint().toStdString();
}

TEST_F(DocumentKeyboard, theStatusLineTellsTheKeysOfTheTrimTool)
{
    test.command("chooseTrimTool");
    key(Qt::Key_Right);
    EXPECT_EQ(hint(), qtTrId("document.status.keysTrim"));
}
