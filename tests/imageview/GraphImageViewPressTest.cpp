#include "imageview/ImageViewFixture.h"

#include <QDialog>
#include <QSignalSpy>

#include <vector>

// What a press began and no release ends.

namespace {

constexpr auto zoomInKeys = Qt::ControlModifier | Qt::AltModifier;
constexpr auto trimKeys = Qt::ControlModifier | Qt::MetaModifier;

class GraphImageViewPressTest : public ImageViewTest
{
protected:
    void showPicture(bool axisSetting)
    {
        show();
        around.axisSetting = axisSetting;
        install(1000, 800);
        view->rescaleImageWith(1, true);
        area->scrollPoint({300, 200});
        around.calls.clear();
    }
    /// A sheet comes, which takes the release, and goes.
    void openAndCloseSheet()
    {
        QDialog sheet(&window);
        sheet.open();
        sheet.close();
    }
    /// Whether the keys choose the mode again, as between presses.
    bool keysChooseTheMode()
    {
        pointAt({500, 400});
        around.held = Qt::ControlModifier;
        view->mouseCheckRoutine();
        around.held = Qt::NoModifier;
        return view->mouseDownMode() == HandMode;
    }
};

} // namespace

TEST_F(GraphImageViewPressTest, aSheetEndsAnAnchorDragWhereItIs)
{
    showPicture(true);
    const QSignalSpy ended(view, &GraphImageView::anchorDragEnded);
    press({500, 400});
    drag({3, 4});
    drag({1, 1});
    openAndCloseSheet();
    EXPECT_FALSE(view->isTrackingAnchorDrag());
    EXPECT_EQ(ended.count(), 1);
    EXPECT_EQ(around.count("endDrag"), 1);
    EXPECT_EQ(around.dragPositions.back(), (FloatPoint{504, 395}));
    drag({9, 9});
    EXPECT_EQ(around.dragPositions.back(), (FloatPoint{504, 395}));
    EXPECT_TRUE(keysChooseTheMode());
}

TEST_F(GraphImageViewPressTest, aSheetRightAfterTheFirstMoveEndsTheDragThere)
{
    showPicture(true);
    press({500, 400});
    drag({3, 4});
    openAndCloseSheet();
    EXPECT_EQ(around.dragPositions, (std::vector<FloatPoint>{{503, 396}, {503, 396}}));
}

TEST_F(GraphImageViewPressTest, aSheetTakesTheRectangleAway)
{
    showPicture(true);
    for (const Qt::KeyboardModifiers keys :
         {Qt::KeyboardModifiers(zoomInKeys), Qt::KeyboardModifiers(trimKeys)}) {
        press({500, 400}, keys);
        drag({30, 40}, keys);
        openAndCloseSheet();
        release(keys);
        EXPECT_EQ(view->imageScale(), 1.0F);
        EXPECT_TRUE(around.sheetsShown.empty());
        EXPECT_TRUE(keysChooseTheMode());
    }
}

TEST_F(GraphImageViewPressTest, aSheetLetsTheHandGo)
{
    showPicture(true);
    press({500, 400}, Qt::ControlModifier);
    drag({-30, 0}, Qt::ControlModifier);
    openAndCloseSheet();
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(view->mouseDownMode(), DigitizeMode);
    drag({-30, 0}, Qt::ControlModifier);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{330, 200}));
}

TEST_F(GraphImageViewPressTest, aPressThatBringsUpASheetCountsAndIsOver)
{
    showPicture(false);
    QDialog sheet(&window);
    sheet.open(); // of the field that the press took the focus from
    press({500, 400});
    EXPECT_EQ(around.appended.size(), 1U);
    sheet.close();
    EXPECT_TRUE(keysChooseTheMode());
    press({500, 400});
    drag({3, 4});
    EXPECT_EQ(around.appended.size(), 2U);
    EXPECT_EQ(view->mouseDownMode(), DigitizeMode);
    release();
}

TEST_F(GraphImageViewPressTest, aSheetThatHasGoneLetsPressesLast)
{
    showPicture(true);
    openAndCloseSheet();
    press({500, 400});
    drag({3, 4});
    EXPECT_TRUE(view->isTrackingAnchorDrag());
    release();
}

TEST_F(GraphImageViewPressTest, anotherPictureEndsADragOfTheOldOne)
{
    showPicture(true);
    press({500, 400});
    drag({3, 4});
    install(1000, 800);
    EXPECT_FALSE(view->isTrackingAnchorDrag());
    drag({3, 4});
    release();
    EXPECT_EQ(around.count("continueDrag"), 0);
    EXPECT_EQ(around.count("dragAnchor"), 0);
}

TEST_F(GraphImageViewPressTest, theDragOfTheOldPictureEndsBeforeTheAnchorsAreReset)
{
    showPicture(true);
    press({500, 400});
    drag({3, 4});
    around.calls.clear();
    QImage pixels(400, 300, QImage::Format_RGB32);
    pixels.fill(Qt::red);
    view->replaceImageWithImageRep(pixels);
    ASSERT_GE(around.calls.size(), 2U);
    EXPECT_EQ(around.calls[0], "endDrag");
    EXPECT_EQ(around.calls[1], "resetPosition:view");
}

TEST_F(GraphImageViewPressTest, theWheelDoesNotZoomUnderADrag)
{
    showPicture(true);
    const auto wheel = [this] { Q_EMIT area->zoomRequested(1.2, {100, 100}); };
    press({500, 400});
    drag({3, 4});
    wheel();
    EXPECT_EQ(view->imageScale(), 1.0F);
    release();
    wheel();
    EXPECT_EQ(view->imageScale(), 1.2F);
}
