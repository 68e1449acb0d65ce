#include "imageview/ImageViewFixture.h"

// Zooming and trimming by a dragged rectangle, on a clip of 400 x 300.

namespace {

constexpr auto zoomInKeys = Qt::ControlModifier | Qt::AltModifier;
constexpr auto zoomOutKeys = Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier;
constexpr auto trimKeys = Qt::ControlModifier | Qt::MetaModifier;
constexpr auto measureKeys = Qt::ControlModifier | Qt::MetaModifier | Qt::ShiftModifier;

constexpr double root = 1.4142135623730951;

/// A picture whose pixels are all different.
QImage numbered(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, x / 256 * 16 + y / 256));
    return image;
}

class GraphImageViewTrimTest : public ImageViewTest
{
protected:
    void showPicture(const QImage &pixels, bool axisSetting)
    {
        show();
        around.axisSetting = axisSetting;
        ASSERT_TRUE(view->replaceImageWithImageRep(pixels));
        view->stopMouseChecking();
        view->rescaleImageWith(1, true);
        area->scrollPoint({0, 0});
        around.calls.clear();
        around.changes = 0;
    }
    void showPicture(int width, int height, bool axisSetting = true)
    {
        QImage pixels(width, height, QImage::Format_RGB32);
        pixels.fill(Qt::blue);
        showPicture(pixels, axisSetting);
    }

    /// The widget position of a view point; heights of these tests are whole.
    QPoint at(int x, int y) const
    {
        return {x, static_cast<int>(view->scaledImageSize().height) - y};
    }
    /// Presses at one view point, drags to another one in two moves, and does not release.
    void dragTo(QPoint from, QPoint to, Qt::KeyboardModifiers keys)
    {
        press(at(from.x(), from.y()), keys);
        drag({1, 1}, keys);
        drag(QPointF(to.x() - from.x() - 1, from.y() - to.y() - 1), keys);
    }
    void dragArea(QPoint from, QPoint to, Qt::KeyboardModifiers keys)
    {
        dragTo(from, to, keys);
        release(keys);
    }
    /// The view point in the middle of the clip, in picture points.
    FloatPoint middle() const
    {
        const FloatRect visible = area->visibleRect();
        return {(visible.origin.x + visible.size.width / 2) / view->imageScale(),
                (visible.origin.y + visible.size.height / 2) / view->imageScale()};
    }
    /// The picture's own pixels, drawn at scale 1.
    QImage shownPixels()
    {
        view->rescaleImageWith(1, true);
        around.axisSetting = false; // no axes over it
        return view->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
};

} // namespace

// Zooming

TEST_F(GraphImageViewTrimTest, aClickZoomsInByTheStepAboutItsPoint)
{
    for (const bool axisSetting : {true, false}) {
        showPicture(1000, 800, axisSetting);
        press(at(500, 400), zoomInKeys);
        EXPECT_EQ(view->imageScale(), 1.0F); // not before the release
        release(zoomInKeys);
        EXPECT_EQ(view->imageScale(), static_cast<float>(root));
        EXPECT_NEAR(middle().x, 500, 0.01F);
        EXPECT_NEAR(middle().y, 400, 0.01F);
        EXPECT_NEAR(slider->doubleValue(), 0.5, 0.01);
        EXPECT_TRUE(around.appended.empty());
    }
}

TEST_F(GraphImageViewTrimTest, aClickZoomsOutByTheStepAboutItsPoint)
{
    showPicture(2000, 1600);
    press(at(1000, 700), zoomOutKeys);
    release(zoomOutKeys);
    EXPECT_EQ(view->imageScale(), static_cast<float>(1 / root));
    EXPECT_NEAR(middle().x, 1000, 0.01F);
    EXPECT_NEAR(middle().y, 700, 0.01F);
}

TEST_F(GraphImageViewTrimTest, clicksStopAtTheEndsOfTheScale)
{
    showPicture(1000, 800);
    view->rescaleImageWith(0.125F, true);
    press(at(50, 50), zoomOutKeys);
    release(zoomOutKeys);
    EXPECT_EQ(view->imageScale(), 0.125F);
    view->rescaleImageWith(2, true);
    press({50, 50}, zoomInKeys);
    release(zoomInKeys);
    EXPECT_EQ(view->imageScale(), 2.0F);
}

TEST_F(GraphImageViewTrimTest, aRectangleFillsTheClipByItsSmallerRatio)
{
    showPicture(3000, 2000);
    view->rescaleImageWith(0.5F, true);
    area->scrollPoint({0, 0});
    dragArea({100, 80}, {300, 180}, zoomInKeys); // half as wide and a third as high as the clip
    EXPECT_EQ(view->imageScale(), 1.0F);
    EXPECT_NEAR(middle().x, 400, 0.01F);
    EXPECT_NEAR(middle().y, 260, 0.01F);
}

TEST_F(GraphImageViewTrimTest, theClipShrinksIntoARectangleByItsLargerRatio)
{
    showPicture(3000, 2000);
    dragArea({100, 280}, {300, 205}, zoomOutKeys); // a half and a quarter of the clip
    EXPECT_EQ(view->imageScale(), 0.5F);
}

TEST_F(GraphImageViewTrimTest, aShrunkenClipHasTheRectanglesCentre)
{
    showPicture(3000, 2000);
    area->scrollPoint({1300, 900});
    dragArea({1400, 1000}, {1600, 1150}, zoomOutKeys);
    EXPECT_EQ(view->imageScale(), 0.5F);
    EXPECT_NEAR(middle().x, 1500, 0.01F);
    EXPECT_NEAR(middle().y, 1075, 0.01F);
}

TEST_F(GraphImageViewTrimTest, aDragBackToItsStartZoomsToTheEnd)
{
    showPicture(1000, 800);
    press(at(200, 100), zoomInKeys);
    drag({20, 20}, zoomInKeys);
    drag({-20, -20}, zoomInKeys);
    release(zoomInKeys);
    EXPECT_EQ(view->imageScale(), 2.0F);
    press(at(200, 100), zoomOutKeys);
    drag({20, 20}, zoomOutKeys);
    drag({-20, -20}, zoomOutKeys);
    release(zoomOutKeys);
    EXPECT_EQ(view->imageScale(), 0.125F);
}

TEST_F(GraphImageViewTrimTest, aRectangleWithoutHeightZoomsByItsWidth)
{
    showPicture(3000, 2000);
    view->rescaleImageWith(0.5F, true);
    area->scrollPoint({0, 0});
    press(at(100, 80), zoomInKeys);
    drag({200, 0}, zoomInKeys);
    release(zoomInKeys);
    EXPECT_EQ(view->imageScale(), 1.0F);
}

TEST_F(GraphImageViewTrimTest, theKeysOfThePressDecideTheZoom)
{
    showPicture(1000, 800);
    pointAt(at(200, 100));
    press(at(200, 100), zoomInKeys);
    around.held = Qt::NoModifier;
    view->mouseCheckRoutine();
    release();
    EXPECT_EQ(view->imageScale(), static_cast<float>(root));
}

// The rectangle

TEST_F(GraphImageViewTrimTest, theRectangleFollowsTheDragAndStopsAtThePicture)
{
    showPicture(400, 300);
    press(at(100, 80), trimKeys);
    EXPECT_EQ(view->prevDelta(), FloatPoint{});
    drag({30, -20}, trimKeys);
    EXPECT_EQ(view->zoomAreaRect(), (FloatRect{{100, 80}, {30, 20}}));
    EXPECT_EQ(view->prevDelta(), (FloatPoint{30, 20}));
    drag({-60, 50}, trimKeys);
    EXPECT_EQ(view->zoomAreaRect(), (FloatRect{{70, 50}, {30, 30}}));
    drag({-500, 0}, trimKeys);
    EXPECT_EQ(view->zoomAreaRect(), (FloatRect{{0, 50}, {100, 30}}));
    drag({3000, -3000}, trimKeys);
    EXPECT_EQ(view->zoomAreaRect(), (FloatRect{{100, 80}, {300, 220}}));
    EXPECT_EQ(around.count("clearGuide"), 4);
}

TEST_F(GraphImageViewTrimTest, aNewPressStartsFromNoWay)
{
    showPicture(400, 300);
    dragTo({100, 80}, {150, 120}, zoomInKeys);
    QTest::keyClick(view, Qt::Key_Escape);
    release();
    press(at(10, 10), zoomInKeys);
    EXPECT_EQ(view->prevDelta(), FloatPoint{});
}

TEST_F(GraphImageViewTrimTest, theRectangleIsDashedFiveOnFourOff)
{
    showPicture(400, 300);
    dragTo({50, 50}, {250, 200}, zoomInKeys);
    const QImage drawn = view->grab().toImage();
    const QRgb gray = drawn.pixel(51, 250);
    EXPECT_NEAR(qRed(gray), 128, 1);
    EXPECT_EQ(qRed(gray), qGreen(gray));
    EXPECT_EQ(qRed(gray), qBlue(gray));
    for (int x = 52; x < 248; ++x) {
        const QRgb expected = (x - 50) % 9 < 5 ? gray : qRgb(0, 0, 255);
        EXPECT_EQ(drawn.pixel(x, 249), expected) << x; // the line is two points wide
        EXPECT_EQ(drawn.pixel(x, 250), expected) << x;
        EXPECT_EQ(drawn.pixel(x, 248), qRgb(0, 0, 255)) << x;
        EXPECT_EQ(drawn.pixel(x, 251), qRgb(0, 0, 255)) << x;
    }
}

TEST_F(GraphImageViewTrimTest, onlyModesAboveTheHandDrawARectangle)
{
    showPicture(400, 300);
    const QImage before = view->grab().toImage();
    dragTo({50, 50}, {250, 200}, Qt::ControlModifier);
    EXPECT_EQ(view->grab().toImage(), before);
    release();
    for (const Qt::KeyboardModifiers keys :
         {Qt::KeyboardModifiers(zoomInKeys), Qt::KeyboardModifiers(zoomOutKeys),
          Qt::KeyboardModifiers(trimKeys), Qt::KeyboardModifiers(measureKeys)}) {
        press(at(50, 50), keys);
        EXPECT_EQ(view->grab().toImage(), before);
        drag({200, -150}, keys);
        EXPECT_NE(view->grab().toImage(), before);
        QTest::keyClick(view, Qt::Key_Escape);
        EXPECT_EQ(view->grab().toImage(), before);
        release(keys);
    }
}

TEST_F(GraphImageViewTrimTest, escapeCancelsTheDrag)
{
    showPicture(1000, 800);
    for (const Qt::KeyboardModifiers keys :
         {Qt::KeyboardModifiers(zoomInKeys), Qt::KeyboardModifiers(zoomOutKeys),
          Qt::KeyboardModifiers(trimKeys), Qt::KeyboardModifiers(measureKeys)}) {
        dragTo({100, 80}, {300, 200}, keys);
        QTest::keyClick(view, Qt::Key_Escape);
        EXPECT_EQ(view->mouseDownMode(), 0);
        EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
        drag({5, 5}, keys);
        release(keys);
        EXPECT_EQ(view->imageScale(), 1.0F);
        EXPECT_TRUE(around.sheetsShown.empty());
    }
}

TEST_F(GraphImageViewTrimTest, escapeCancelsAClickThatIsNotReleasedYet)
{
    showPicture(1000, 800);
    press(at(100, 80), zoomInKeys);
    QTest::keyClick(view, Qt::Key_Escape);
    release(zoomInKeys);
    EXPECT_EQ(view->imageScale(), 1.0F);
}

TEST_F(GraphImageViewTrimTest, aPictureThatChangesUnderTheDragEndsIt)
{
    showPicture(1000, 800);
    dragTo({100, 80}, {300, 200}, trimKeys);
    view->imageRotateCw();
    release(trimKeys);
    EXPECT_TRUE(around.sheetsShown.empty());
    EXPECT_EQ(view->mouseDownMode(), 0);

    dragTo({100, 80}, {300, 200}, trimKeys);
    around.axisSetting = false;
    view->settingModeChanged();
    around.sheetsShown.clear();
    release(trimKeys);
    EXPECT_TRUE(around.sheetsShown.empty());
}

// Trimming

TEST_F(GraphImageViewTrimTest, aTrimAsksFirst)
{
    showPicture(400, 300);
    dragArea({50, 60}, {250, 200}, trimKeys);
    ASSERT_EQ(around.sheetsShown.size(), 1U);
    const Sheet &sheet = around.sheetsShown.front();
    EXPECT_EQ(sheet.message, qtTrId("Trimming"));
    EXPECT_EQ(sheet.informativeText, qtTrId("TrimmingMsg"));
    EXPECT_EQ(sheet.defaultButton, qtTrId("Trim"));
    EXPECT_EQ(sheet.alternateButton, qtTrId("Cancel"));
    EXPECT_NE(sheet.message, "Trimming");
    EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
    EXPECT_EQ(view->mouseDownMode(), 0);
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(GraphImageViewTrimTest, theRectangleIsSeenUntilTheAnswer)
{
    showPicture(400, 300);
    const QImage before = view->grab().toImage();
    dragTo({50, 60}, {250, 200}, trimKeys);
    const QImage dragged = view->grab().toImage();
    release(trimKeys);
    EXPECT_EQ(view->grab().toImage(), dragged);
    around.answerSheet(SheetAnswer::Alternate);
    EXPECT_EQ(view->grab().toImage(), before);
    EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
    EXPECT_EQ(around.changes, 0);
}

TEST_F(GraphImageViewTrimTest, anAgreedTrimIsANewPicture)
{
    showPicture(numbered(400, 300), true);
    dragArea({50, 60}, {250, 200}, trimKeys);
    around.calls.clear();
    around.answerSheet(SheetAnswer::Default);
    EXPECT_EQ(view->imageSize(), (FloatSize{200, 140}));
    EXPECT_EQ(around.count("resetPosition:view"), 1);
    EXPECT_EQ(around.count("zoomWindow"), 1);
    EXPECT_EQ(around.count("removeUndoOfDataSeries"), 1);
    EXPECT_EQ(around.count("removeUndoOfCurrentAxes"), 1);
    EXPECT_GE(around.changes, 1);
    EXPECT_EQ(shownPixels(), numbered(400, 300).copy(50, 100, 200, 140));
}

TEST_F(GraphImageViewTrimTest, whatTheRectangleShowedIsTheNewPictureInEveryRotation)
{
    for (int quarters = 0; quarters < 4; ++quarters) {
        showPicture(numbered(400, 300), true);
        for (int i = 0; i < quarters; ++i)
            view->imageRotateCcw();
        const QImage seen = shownPixels();
        around.axisSetting = true;
        const FloatPoint origin = area->visibleOrigin();
        const int height = static_cast<int>(view->scaledImageSize().height);
        ASSERT_EQ(origin, FloatPoint{});
        dragArea({30, 40}, {230, 210}, trimKeys);
        around.answerSheet(SheetAnswer::Default);
        EXPECT_EQ(view->imageRotation(), 0.0F);
        EXPECT_EQ(view->imageSize(), (FloatSize{200, 170}));
        EXPECT_EQ(shownPixels(), seen.copy(30, height - 210, 200, 170)) << quarters;
    }
}

TEST_F(GraphImageViewTrimTest, theScaleDoesNotMatterForThePixels)
{
    for (const float scale : {0.5F, 2.0F}) {
        showPicture(numbered(400, 300), true);
        view->rescaleImageWith(scale, true);
        area->scrollPoint({0, 0});
        dragArea({20, 30}, {120, 130}, trimKeys);
        around.answerSheet(SheetAnswer::Default);
        const int left = static_cast<int>(20 / scale);
        const int side = static_cast<int>(100 / scale);
        const int top = 300 - static_cast<int>(130 / scale);
        EXPECT_EQ(view->imageSize(),
                  (FloatSize{static_cast<float>(side), static_cast<float>(side)}));
        EXPECT_EQ(shownPixels(), numbered(400, 300).copy(left, top, side, side)) << scale;
    }
}

TEST_F(GraphImageViewTrimTest, aRectangleBeyondThePictureIsCutToIt)
{
    showPicture(numbered(400, 300), true);
    dragArea({300, 200}, {900, 900}, trimKeys);
    around.answerSheet(SheetAnswer::Default);
    EXPECT_EQ(shownPixels(), numbered(400, 300).copy(300, 0, 100, 100));
}

TEST_F(GraphImageViewTrimTest, theWholePictureStaysTheSameAtAnOddScale)
{
    showPicture(numbered(400, 300), true);
    view->rescaleImageWith(0.7F, true);
    press({1, view->height() - 1}, trimKeys);
    drag({-10, 10}, trimKeys);
    release(trimKeys);
    press({0, view->height() - 1}, trimKeys);
    drag({900, -900}, trimKeys);
    drag({0, 0}, trimKeys);
    const FloatRect dragged = view->zoomAreaRect();
    EXPECT_EQ(dragged.size.width, view->scaledImageSize().width);
    release(trimKeys);
    around.answerSheet(SheetAnswer::Default);
    EXPECT_EQ(view->imageSize().width, 400.0F);
}

TEST_F(GraphImageViewTrimTest, thereIsNothingToTrimWithoutWidthOrHeight)
{
    showPicture(400, 300);
    for (const QPointF way : {QPointF(50, 0), QPointF(0, 50)}) {
        press(at(100, 80), trimKeys);
        drag(way, trimKeys);
        release(trimKeys);
        EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
    }
    press(at(100, 80), trimKeys);
    release(trimKeys);
    EXPECT_TRUE(around.sheetsShown.empty());
}

TEST_F(GraphImageViewTrimTest, aClickAfterADragDoesNotTrimItsRectangle)
{
    showPicture(400, 300);
    dragArea({50, 60}, {250, 200}, trimKeys);
    around.answerSheet(SheetAnswer::Alternate);
    press(at(100, 80), trimKeys);
    release(trimKeys);
    EXPECT_EQ(around.sheetsShown.size(), 1U);
}

TEST_F(GraphImageViewTrimTest, whileDigitizingTheSameKeysScroll)
{
    showPicture(1000, 800, false);
    area->scrollPoint({300, 200});
    press({500, 400}, trimKeys);
    drag({-30, 0}, trimKeys);
    release(trimKeys);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{330, 200}));
    EXPECT_TRUE(around.sheetsShown.empty());
}

TEST_F(GraphImageViewTrimTest, measuringChangesNothingButLeavesTheRectangleInPicturePoints)
{
    showPicture(400, 300);
    view->rescaleImageWith(0.5F, true);
    around.changes = 0;
    dragArea({20, 30}, {120, 100}, measureKeys);
    EXPECT_TRUE(around.sheetsShown.empty());
    EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
    EXPECT_EQ(around.changes, 0);
    EXPECT_EQ(view->zoomAreaRect(), (FloatRect{{40, 60}, {200, 140}}));
    EXPECT_EQ(view->mouseDownMode(), 0);
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(GraphImageViewTrimTest, aMeasuredRectangleWithoutHeightIsLeftAlone)
{
    showPicture(400, 300);
    view->rescaleImageWith(0.5F, true);
    press(at(20, 30), measureKeys);
    drag({50, 0}, measureKeys);
    release(measureKeys);
    EXPECT_EQ(view->zoomAreaRect(), (FloatRect{{20, 30}, {50, 0}}));
}

TEST_F(GraphImageViewTrimTest, anotherPictureBeforeTheAnswerIsNotTrimmed)
{
    showPicture(400, 300);
    dragArea({50, 60}, {250, 200}, trimKeys);
    install(500, 400);
    around.answerSheet(SheetAnswer::Default);
    EXPECT_EQ(view->imageSize(), (FloatSize{500, 400}));
}

TEST_F(GraphImageViewTrimTest, anAnswerAfterTheWindowHasClosedDoesNothing)
{
    showPicture(400, 300);
    dragArea({50, 60}, {250, 200}, trimKeys);
    view->windowWillClose();
    around.answerSheet(SheetAnswer::Default);
    EXPECT_FALSE(view->hasImage());
}

// Forced modes

TEST_F(GraphImageViewTrimTest, aForcedModeNeedsNoKeys)
{
    showPicture(1000, 800, false);
    view->setForcedMode(ZoomInMode);
    press(at(500, 400));
    release();
    EXPECT_EQ(view->imageScale(), static_cast<float>(root));
    EXPECT_TRUE(around.appended.empty());
    EXPECT_EQ(view->mosueDownMode(Qt::NoModifier), 0); // keys and page alone
}

TEST_F(GraphImageViewTrimTest, keysOverrideAForcedMode)
{
    showPicture(1000, 800);
    view->setForcedMode(TrimMode);
    area->scrollPoint({300, 200});
    press({500, 400}, Qt::ControlModifier);
    drag({-30, 0}, Qt::ControlModifier);
    release();
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{330, 200}));
}

TEST_F(GraphImageViewTrimTest, keysThatChooseNothingLeaveTheForcedMode)
{
    showPicture(1000, 800);
    view->setForcedMode(ZoomInMode);
    press(at(500, 400), Qt::ShiftModifier | Qt::AltModifier | Qt::MetaModifier);
    release();
    EXPECT_EQ(view->imageScale(), static_cast<float>(root));
}

TEST_F(GraphImageViewTrimTest, trimmingIsNotForcedWhileDigitizing)
{
    showPicture(400, 300, false);
    view->setForcedMode(TrimMode);
    EXPECT_EQ(view->forcedMode(), std::nullopt);
    around.axisSetting = true;
    view->setForcedMode(TrimMode);
    EXPECT_EQ(view->forcedMode(), TrimMode);
    around.axisSetting = false;
    around.made = someConverter();
    view->settingModeChanged();
    EXPECT_EQ(view->forcedMode(), std::nullopt);
}

TEST_F(GraphImageViewTrimTest, theOtherForcedModesStayWhenThePageChanges)
{
    showPicture(400, 300);
    view->setForcedMode(ZoomOutMode);
    around.axisSetting = false;
    around.made = someConverter();
    view->settingModeChanged();
    EXPECT_EQ(view->forcedMode(), ZoomOutMode);
}
