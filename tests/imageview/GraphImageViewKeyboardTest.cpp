#include "imageview/ImageViewFixture.h"

#include "imageview/KeyboardCross.h"

#include <QSignalSpy>

namespace {

class GraphImageViewKeyboardTest : public ImageViewTest
{
protected:
    void showPicture(int width, int height, bool axisSetting)
    {
        around.axisSetting = axisSetting;
        around.inForce = someConverter();
        show();
        install(width, height);
        view->setFocus(Qt::OtherFocusReason);
        around.calls.clear();
    }

    void key(int key, Qt::KeyboardModifiers modifierFlags = Qt::NoModifier)
    {
        QTest::keyClick(view, static_cast<Qt::Key>(key), modifierFlags);
    }

    /// The pointer in picture points; far away without one.
    QPointF pointer() const { return view->keyboardPointer().value_or(QPointF(-999, -999)); }

    void expectPointer(double x, double y) const
    {
        EXPECT_NEAR(pointer().x(), x, 1e-9);
        EXPECT_NEAR(pointer().y(), y, 1e-9);
    }

    QWidget *focusFrame() const { return area->findChild<QWidget *>(QStringLiteral("focusFrame")); }
};

} // namespace

TEST_F(GraphImageViewKeyboardTest, aKeyTakesThePointerOverWhereTheMouseHasLeftIt)
{
    showPicture(400, 300, false);
    pointAt({100, 200});
    key(Qt::Key_Right);
    expectPointer(101, 100);
}

TEST_F(GraphImageViewKeyboardTest, aKeyBeginsInTheMiddleOfWhatIsSeenWithoutAMouse)
{
    showPicture(1000, 800, false);
    area->scrollPoint({300, 200});
    key(Qt::Key_Up);
    expectPointer(500, 351);
}

TEST_F(GraphImageViewKeyboardTest, stepsAreOneTenAndATenthOfAPicturePixelAtEveryScale)
{
    showPicture(400, 300, false);
    view->rescaleImageWith(0.5F, true);
    pointAt({100, 100}); // of 200 x 150
    key(Qt::Key_Right);
    key(Qt::Key_Right, Qt::ShiftModifier);
    key(Qt::Key_Down, Qt::AltModifier);
    expectPointer(211, 99.9);
}

TEST_F(GraphImageViewKeyboardTest, thePointerStaysOnThePicture)
{
    showPicture(400, 300, false);
    pointAt({5, 5});
    key(Qt::Key_Left, Qt::ShiftModifier);
    key(Qt::Key_Up, Qt::ShiftModifier);
    expectPointer(0, 300);
}

TEST_F(GraphImageViewKeyboardTest, theGuideIsAtTheKeyboardsPointerAtOnce)
{
    showPicture(400, 300, false);
    pointAt({100, 200});
    key(Qt::Key_Right, Qt::AltModifier);
    ASSERT_FALSE(around.guidePositions.empty());
    EXPECT_NEAR(around.guidePositions.back().x, 100.1, 1e-4);
    EXPECT_NEAR(around.guidePositions.back().y, 100, 1e-4);
}

TEST_F(GraphImageViewKeyboardTest, returnCapturesAFractionOfAPixel)
{
    showPicture(400, 300, false);
    pointAt({100, 200});
    key(Qt::Key_Right, Qt::AltModifier);
    key(Qt::Key_Up, Qt::AltModifier);
    key(Qt::Key_Return);
    ASSERT_EQ(around.appended.size(), 1U);
    EXPECT_NEAR(around.appended[0].x, 100.1, 1e-4);
    EXPECT_NEAR(around.appended[0].y, 100.1, 1e-4);
}

TEST_F(GraphImageViewKeyboardTest, returnWithoutAPointerOfTheKeyboardCapturesNothing)
{
    showPicture(400, 300, false);
    pointAt({100, 200});
    key(Qt::Key_Return);
    EXPECT_TRUE(around.appended.empty());
}

TEST_F(GraphImageViewKeyboardTest, returnOnTheAxisPageCapturesNothing)
{
    showPicture(400, 300, true);
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    EXPECT_TRUE(around.appended.empty());
}

TEST_F(GraphImageViewKeyboardTest, returnWithAZoomToolZoomsAsAClickDoes)
{
    showPicture(400, 300, false);
    view->setForcedMode(ZoomInMode);
    key(Qt::Key_Right);
    const float before = view->imageScale();
    key(Qt::Key_Enter);
    EXPECT_GT(view->imageScale(), before);
    EXPECT_TRUE(around.appended.empty());
}

TEST_F(GraphImageViewKeyboardTest, returnBeginsAndEndsTheRectangleOfTheTrimTool)
{
    showPicture(400, 300, true);
    view->setForcedMode(TrimMode);
    pointAt({100, 200});
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    for (int i = 0; i < 5; ++i)
        key(Qt::Key_Right, Qt::ShiftModifier);
    for (int i = 0; i < 3; ++i)
        key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_TRUE(around.sheetsShown.empty());
    key(Qt::Key_Return);
    EXPECT_EQ(around.sheetsShown.size(), 1U);
    around.answerSheet(SheetAnswer::Default);
    EXPECT_EQ(view->imageSize(), (FloatSize{50, 30}));
}

TEST_F(GraphImageViewKeyboardTest, escGivesTheRectangleUp)
{
    showPicture(400, 300, true);
    view->setForcedMode(TrimMode);
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    key(Qt::Key_Right, Qt::ShiftModifier);
    key(Qt::Key_Up, Qt::ShiftModifier);
    key(Qt::Key_Escape);
    EXPECT_TRUE(view->keyboardPointer());
    key(Qt::Key_Right);
    EXPECT_EQ(view->zoomAreaRect().size, (FloatSize{0, 0}));
    EXPECT_TRUE(around.sheetsShown.empty());
}

TEST_F(GraphImageViewKeyboardTest, theMouseGivesTheRectangleUpWhenItMoves)
{
    showPicture(400, 300, true);
    view->setForcedMode(TrimMode);
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    key(Qt::Key_Up, Qt::ShiftModifier);
    QTest::mouseMove(view, {50, 60});
    EXPECT_FALSE(view->keyboardPointer());
    key(Qt::Key_Right);
    key(Qt::Key_Return); // begins another one
    EXPECT_TRUE(around.sheetsShown.empty());
}

TEST_F(GraphImageViewKeyboardTest, theViewScrollsWithThePointer)
{
    showPicture(1000, 800, false);
    area->scrollPoint({0, 0});
    pointAt(QPoint(380, 790)); // near the right edge of the 400 x 300 that are seen
    key(Qt::Key_Right, Qt::ShiftModifier);
    expectPointer(390, 10);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{22, 0})); // 32 points of surroundings
}

TEST_F(GraphImageViewKeyboardTest, theMouseTakesThePointerBackWhenItMoves)
{
    showPicture(400, 300, false);
    pointAt({100, 200});
    key(Qt::Key_Right);
    view->mouseCheckRoutine();
    EXPECT_TRUE(view->keyboardPointer());
    pointAt({50, 200});
    view->mouseCheckRoutine();
    EXPECT_FALSE(view->keyboardPointer());
    EXPECT_EQ(around.guidePositions.back(), (FloatPoint{50, 100}));
}

TEST_F(GraphImageViewKeyboardTest, aClickCapturesWhereTheMouseIs)
{
    showPicture(400, 300, false);
    pointAt({100, 200});
    key(Qt::Key_Right, Qt::ShiftModifier);
    press({50, 100});
    release();
    ASSERT_EQ(around.appended.size(), 1U);
    EXPECT_EQ(around.appended[0], (FloatPoint{50, 200}));
    EXPECT_FALSE(view->keyboardPointer());
}

TEST_F(GraphImageViewKeyboardTest, escLeavesThePointerToTheMouse)
{
    showPicture(400, 300, false);
    key(Qt::Key_Right);
    key(Qt::Key_Escape);
    EXPECT_FALSE(view->keyboardPointer());
}

TEST_F(GraphImageViewKeyboardTest, withControlTheArrowsScroll)
{
    showPicture(1000, 800, false);
    area->scrollPoint({300, 200});
    key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{320, 200}));
    EXPECT_FALSE(view->keyboardPointer());
}

TEST_F(GraphImageViewKeyboardTest, theCrossIsDrawnAboutThePointer)
{
    showPicture(400, 300, false);
    pointAt({100, 200});
    key(Qt::Key_Right);
    const QImage shot = view->grab().toImage();
    EXPECT_EQ(shot.pixelColor(101, 200), QColor(Qt::blue)); // its middle is free
    const int arm = static_cast<int>(keyboardcross::reach) - 4;
    EXPECT_LT(shot.pixelColor(101 + arm, 200).blue(), 100);
    EXPECT_GT(shot.pixelColor(101 + arm, 201).green(), 100); // the bright border
    key(Qt::Key_Escape);
    EXPECT_EQ(view->grab().toImage().pixelColor(101 + arm, 200), QColor(Qt::blue));
}

TEST_F(GraphImageViewKeyboardTest, pageDownChoosesAPartAndPointsAtIt)
{
    showPicture(400, 300, true);
    const QSignalSpy changed(view, &GraphImageView::keyboardChanged);
    key(Qt::Key_PageDown);
    EXPECT_EQ(view->keyboardPart(), 1);
    expectPointer(20, 30);
    EXPECT_GT(changed.count(), 0);
}

TEST_F(GraphImageViewKeyboardTest, arrowsMoveTheChosenPartAndThePointerWithIt)
{
    showPicture(400, 300, true);
    key(Qt::Key_PageDown);
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(around.count("movePart"), 1);
    expectPointer(30, 30);
}

TEST_F(GraphImageViewKeyboardTest, escEndsTheChoiceAndKeepsThePointer)
{
    showPicture(400, 300, true);
    key(Qt::Key_PageDown);
    around.calls.clear();
    key(Qt::Key_Escape);
    EXPECT_EQ(view->keyboardPart(), 0);
    EXPECT_TRUE(view->keyboardPointer());
    EXPECT_EQ(around.count("endMovesOfPart"), 1);
    key(Qt::Key_Right);
    EXPECT_EQ(around.count("movePart"), 0);
}

TEST_F(GraphImageViewKeyboardTest, pageDownWhileDigitizingScrolls)
{
    showPicture(1000, 800, false);
    area->scrollPoint({300, 500});
    key(Qt::Key_PageDown);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{300, 200}));
    EXPECT_EQ(view->keyboardPart(), 0);
}

TEST_F(GraphImageViewKeyboardTest, anotherPageEndsTheChoice)
{
    showPicture(400, 300, true);
    key(Qt::Key_PageDown);
    around.axisSetting = false;
    view->settingModeChanged();
    EXPECT_EQ(view->keyboardPart(), 0);
}

TEST_F(GraphImageViewKeyboardTest, aNewPictureLeavesThePointerToTheMouse)
{
    showPicture(400, 300, true);
    key(Qt::Key_PageDown);
    install(50, 40);
    EXPECT_FALSE(view->keyboardPointer());
    EXPECT_EQ(view->keyboardPart(), 0);
}

TEST_F(GraphImageViewKeyboardTest, turningThePictureLeavesThePointerToTheMouse)
{
    showPicture(400, 300, true);
    key(Qt::Key_Right);
    view->imageRotateCw();
    EXPECT_FALSE(view->keyboardPointer());
}

TEST_F(GraphImageViewKeyboardTest, keysWithoutAPictureDoNothing)
{
    around.axisSetting = true;
    show();
    key(Qt::Key_Right);
    key(Qt::Key_PageDown);
    EXPECT_FALSE(view->keyboardPointer());
}

TEST_F(GraphImageViewKeyboardTest, aFrameShowsThatTheKeyboardIsUsedHere)
{
    showPicture(400, 300, false);
    EXPECT_FALSE(focusFrame()->isVisible());
    key(Qt::Key_Right);
    EXPECT_TRUE(focusFrame()->isVisible());
    press({50, 100});
    release();
    EXPECT_FALSE(focusFrame()->isVisible());
    view->clearFocus();
    view->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(focusFrame()->isVisible());
    view->clearFocus();
    EXPECT_FALSE(focusFrame()->isVisible());
}

TEST_F(GraphImageViewKeyboardTest, theFrameFollowsTheSizeOfTheArea)
{
    showPicture(400, 300, false);
    key(Qt::Key_Right);
    window.resize(350, 250);
    ASSERT_TRUE(QTest::qWaitFor([&] { return area->viewport()->width() == 350; }));
    EXPECT_EQ(focusFrame()->geometry(), area->viewport()->rect());
}
