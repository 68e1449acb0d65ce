#include "document/TestDocument.h"

#include "axes/CurrentAxes.h"
#include "capture/CursorGuide.h"
#include "capture/DataSeries.h"
#include "capture/MarkerPreview.h"

#include <gtest/gtest.h>

// The cursor guide among the real series, axes and menus.

namespace {

/// Whole-picture axes read out pixels; the X axis begins at 5 instead of 0.
void readOutPixelsFromFive(TestDocument &test)
{
    test.command("wholePosition");
    TextField *field = test.ui().minXTextField;
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("5"));
    QTest::keyClick(field, Qt::Key_Return);
    test.digitize();
}

void chooseWithTheKeyboard(QComboBox *popup, int index)
{
    while (popup->currentIndex() < index)
        QTest::keyClick(popup, Qt::Key_Down);
    while (popup->currentIndex() > index)
        QTest::keyClick(popup, Qt::Key_Up);
}

/// Lets the pointer rest over a point in view coordinates until the picture was looked at once.
void hover(TestDocument &test, int x, int y)
{
    test.services.desktop->pointer =
        test.document->graphView().mapToGlobal(test.widgetPosition(x, y));
    test.document->graphView().mouseCheckRoutine();
}

} // namespace

TEST(DocumentGuide, hoveringShowsTheValuesThatAClickTakes)
{
    TestDocument test;
    test.digitize();
    hover(test, 100, 50);
    EXPECT_TRUE(test.document->cursorGuide().showGuide());
    const double shownX = test.ui().currentXTextField->doubleValue();
    const double shownY = test.ui().currentYTextField->doubleValue();
    test.click(100, 50);
    const auto &point = test.document->dataSeries().points(0).at(0);
    EXPECT_NEAR(shownX, point.X(), 1e-3);
    EXPECT_NEAR(shownY, point.Y(), 1e-3);
}

TEST(DocumentGuide, staysHiddenOverARestingPointerWhenTheWindowComesBack)
{
    TestDocument test;
    test.digitize();
    test.document->windowDidBecomeKey();
    hover(test, 100, 50);
    test.document->windowDidResignKey();
    EXPECT_FALSE(test.document->cursorGuide().showGuide());
    test.document->windowDidBecomeKey();
    hover(test, 100, 50);
    EXPECT_FALSE(test.document->cursorGuide().showGuide());
    hover(test, 101, 50);
    EXPECT_TRUE(test.document->cursorGuide().showGuide());
}

TEST(DocumentGuide, comesBackOverARestingPointerWithAPointAtAComputedX)
{
    TestDocument test;
    test.digitize();
    chooseWithTheKeyboard(test.ui().autoXModePopUp, 1);
    hover(test, 100, 50);
    test.document->cursorGuide().clearGuide();
    hover(test, 100, 50);
    ASSERT_FALSE(test.document->cursorGuide().showGuide());
    test.click(100, 50); // computes the X of the next point
    hover(test, 100, 50);
    EXPECT_TRUE(test.document->cursorGuide().showGuide());
}

TEST(DocumentGuide, theKeyDocumentTitlesTheSharedLockCommands)
{
    TestDocument test;
    test.digitize();
    test.document->lockUnlockX();
    test.services.lockUnlockX.setText(QStringLiteral("another document's"));
    test.services.lockUnlockY.setText(QStringLiteral("another document's"));
    test.document->windowDidBecomeKey();
    EXPECT_EQ(test.services.lockUnlockX.text(), qtTrId("UnlockXValue"));
    EXPECT_EQ(test.services.lockUnlockY.text(), qtTrId("LockYValue"));
}

TEST(DocumentGuide, previewShowsTheStyleAndModeOfTheCurrentSeries)
{
    TestDocument test;
    test.digitize();
    chooseWithTheKeyboard(test.ui().markerDrawPopup, 2);
    const MarkerPreview &preview = *test.ui().markerPreview;
    EXPECT_FALSE(preview.marker());
    EXPECT_TRUE(preview.line());
    const auto colour = preview.color();
    test.command("moveToNextSeries");
    EXPECT_TRUE(preview.marker());
    EXPECT_FALSE(preview.line());
    EXPECT_NE(preview.color(), colour);
}

TEST(DocumentGuide, equalXTakesTheXOfTheFirstSeriesAtTheSameIndex)
{
    TestDocument test;
    readOutPixelsFromFive(test);
    test.click(100, 50);
    const double firstX = test.document->dataSeries().points(0).at(0).X();
    chooseWithTheKeyboard(test.ui().autoXModePopUp, 2);
    EXPECT_FALSE(test.document->cursorGuide().lockX());
    test.command("moveToNextSeries");
    EXPECT_TRUE(test.document->cursorGuide().lockX());
    EXPECT_FALSE(test.ui().lockXCheck->isEnabled());
    test.click(300, 200);
    ASSERT_EQ(test.document->dataSeries().points(1).size(), 1U);
    // Five digits, as the field shows them.
    EXPECT_NEAR(test.document->dataSeries().points(1).at(0).X(), firstX, 1e-4 * firstX);
}

TEST(DocumentGuide, equalXBeyondTheFirstSeriesIsTheMinimumOfTheAxes)
{
    TestDocument test;
    readOutPixelsFromFive(test);
    test.click(100, 50);
    chooseWithTheKeyboard(test.ui().autoXModePopUp, 2);
    test.command("moveToNextSeries");
    test.click(300, 200);
    EXPECT_EQ(test.ui().currentXTextField->text(), QStringLiteral("         5"));
    test.click(300, 250);
    ASSERT_EQ(test.document->dataSeries().points(1).size(), 2U);
    EXPECT_EQ(test.document->dataSeries().points(1).at(1).X(), 5);
}

TEST(DocumentGuide, steppedXGoesOnWithEveryClick)
{
    TestDocument test;
    readOutPixelsFromFive(test);
    TextField *step = test.ui().stepXTextField;
    chooseWithTheKeyboard(test.ui().autoXModePopUp, 1);
    step->selectAll();
    QTest::keyClicks(step, QStringLiteral("0.5"));
    QTest::keyClick(step, Qt::Key_Return);
    for (const int x : {300, 100, 200, 400})
        test.click(x, 50);
    const auto &points = test.document->dataSeries().points(0);
    ASSERT_EQ(points.size(), 4U);
    EXPECT_EQ(points.at(2).X(), 1);
    EXPECT_EQ(points.at(3).X(), 1.5);
    EXPECT_EQ(test.ui().currentXTextField->text(), QStringLiteral("         2"));
}

TEST(DocumentGuide, locksTitleTheCommandsAfterTheKindOfAxes)
{
    TestDocument test;
    test.digitize();
    EXPECT_EQ(test.services.lockUnlockX.text(), qtTrId("LockXValue"));
    test.document->lockUnlockX();
    EXPECT_EQ(test.services.lockUnlockX.text(), qtTrId("UnlockXValue"));
    test.setAxes();
    test.command("choosePolarAxes");
    test.digitize();
    EXPECT_EQ(test.services.lockUnlockX.text(), qtTrId("UnlockTValue"));
    EXPECT_EQ(test.services.lockUnlockY.text(), qtTrId("LockRValue"));
}

TEST(DocumentGuide, changedAxesReachTheGuideOnlyWithTheDigitizingPage)
{
    TestDocument test;
    test.digitize();
    const auto before = test.document->cursorGuide().converter();
    test.setAxes();
    test.drag({250, 200}, {260, 210});
    EXPECT_EQ(test.document->cursorGuide().converter(), before);
    test.digitize();
    EXPECT_NE(test.document->cursorGuide().converter(), before);
}
