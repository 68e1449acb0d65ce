#include "imageview/ImageViewFixture.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QSignalSpy>

#include <algorithm>

namespace {

class GraphImageViewMouseTest : public ImageViewTest
{
protected:
    void showPicture(int width, int height, bool axisSetting)
    {
        show();
        around.axisSetting = axisSetting;
        install(width, height);
        view->rescaleImageWith(1, true);
        around.calls.clear();
    }
};

using Calls = std::vector<std::string>;
using Points = std::vector<FloatPoint>;

} // namespace

TEST_F(GraphImageViewMouseTest, aPressAddsThePoint)
{
    showPicture(400, 300, false);
    press({100, 50});
    EXPECT_EQ(around.appended, (Points{{100, 250}}));
    release();
    EXPECT_EQ(around.appended.size(), 1U);
}

TEST_F(GraphImageViewMouseTest, aPointIsTakenWithTheScale)
{
    showPicture(400, 300, false);
    view->rescaleImageWith(0.5F, true);
    press({100, 50});
    EXPECT_EQ(around.appended, (Points{{200, 200}}));
}

TEST_F(GraphImageViewMouseTest, heightsCountFromTheFloatHeight)
{
    showPicture(300, 200, false);
    const float height = view->scaledImageSize().height;
    EXPECT_NE(height, static_cast<float>(view->height()));
    press({10, 10});
    EXPECT_EQ(around.appended, (Points{{10, height - 10}}));
}

TEST_F(GraphImageViewMouseTest, everyPressOfADoubleClickAddsAPoint)
{
    showPicture(400, 300, false);
    QTest::mouseClick(view, Qt::LeftButton, {}, {100, 50});
    QTest::mouseDClick(view, Qt::LeftButton, {}, {100, 50});
    EXPECT_EQ(around.appended.size(), 2U);
}

TEST_F(GraphImageViewMouseTest, onlyTheLeftButtonCounts)
{
    showPicture(400, 300, false);
    QTest::mouseClick(view, Qt::RightButton, {}, {100, 50});
    QTest::mouseClick(view, Qt::MiddleButton, {}, {100, 50});
    EXPECT_TRUE(around.appended.empty());
}

TEST_F(GraphImageViewMouseTest, draggingAfterAPressAddsNothingMore)
{
    showPicture(400, 300, false);
    press({100, 50});
    drag({10, 10});
    drag({10, 10});
    release();
    EXPECT_EQ(around.appended.size(), 1U);
    EXPECT_EQ(around.count("clearGuide"), 2);
}

TEST_F(GraphImageViewMouseTest, aClickWithCommandScrollsInsteadOfAddingAPoint)
{
    showPicture(1000, 800, false);
    press({100, 50}, Qt::ControlModifier);
    release(Qt::ControlModifier);
    EXPECT_TRUE(around.appended.empty());
}

TEST_F(GraphImageViewMouseTest, aClickOnTheAxisPageAddsNothing)
{
    showPicture(400, 300, true);
    press({100, 50});
    release();
    EXPECT_TRUE(around.appended.empty());
    EXPECT_EQ(around.calls.size(), static_cast<std::size_t>(around.count("drawAxis")));
}

TEST_F(GraphImageViewMouseTest, withoutAPictureAPressDoesNothing)
{
    show();
    around.axisSetting = false;
    press({100, 50});
    drag({5, 5});
    release();
    EXPECT_TRUE(around.appended.empty());
}

TEST_F(GraphImageViewMouseTest, thePressThatBringsTheWindowToTheFrontAddsNoPoint)
{
    showPicture(400, 300, false);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    press({100, 50});
    release();
    EXPECT_TRUE(around.appended.empty());
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    press({100, 50});
    EXPECT_EQ(around.appended.size(), 1U);
}

// Most window managers activate the window that is clicked before they hand on the press.
TEST_F(GraphImageViewMouseTest, aPressFromBeforeTheWindowBecameActiveAddsNoPoint)
{
    showPicture(400, 300, false);
    QElapsedTimer clock;
    clock.start();
    const auto before = static_cast<quint64>(clock.msecsSinceReference());
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(view, &activation);
    const auto pressAt = [this](quint64 time) {
        QMouseEvent event(QEvent::MouseButtonPress, {100, 50}, view->mapToGlobal(QPointF(100, 50)),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(view, &event);
        release();
    };
    pressAt(before);
    EXPECT_TRUE(around.appended.empty());
    // The window system's clock has 32 bits.
    pressAt(before & 0xFFFFFFFFU);
    EXPECT_TRUE(around.appended.empty());
    pressAt(static_cast<quint64>(clock.msecsSinceReference() + clock.elapsed()) + 20);
    EXPECT_EQ(around.appended.size(), 1U);
}

TEST_F(GraphImageViewMouseTest, thePictureFollowsTheHand)
{
    for (const bool axisSetting : {true, false}) {
        showPicture(1000, 800, axisSetting);
        area->scrollPoint({300, 200});
        press({500, 400}, Qt::ControlModifier);
        drag({-30, 0}, Qt::ControlModifier);
        EXPECT_EQ(area->visibleOrigin(), (FloatPoint{330, 200}));
        drag({0, 40}, Qt::ControlModifier);
        EXPECT_EQ(area->visibleOrigin(), (FloatPoint{330, 240}));
        release(Qt::ControlModifier);
        EXPECT_TRUE(around.appended.empty());
    }
}

TEST_F(GraphImageViewMouseTest, aHandThatRestsDoesNotScroll)
{
    showPicture(1000, 800, true);
    area->scrollPoint({300, 200});
    press({500, 400}, Qt::ControlModifier);
    drag({-37, 21}, Qt::ControlModifier);
    const FloatPoint origin = area->visibleOrigin();
    for (int i = 0; i < 5; ++i) {
        drag({0, 0}, Qt::ControlModifier);
        EXPECT_EQ(area->visibleOrigin(), origin);
    }
}

TEST_F(GraphImageViewMouseTest, theHandStopsAtTheEdges)
{
    showPicture(1000, 800, true);
    area->scrollPoint({0, 0});
    press({100, 700}, Qt::ControlModifier);
    drag({5000, -5000}, Qt::ControlModifier);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{0, 0}));
    drag({-10000, 10000}, Qt::ControlModifier);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{600, 500}));
}

TEST_F(GraphImageViewMouseTest, commandAndControlOnTheDigitizingPageIsTheHand)
{
    showPicture(1000, 800, false);
    area->scrollPoint({300, 200});
    press({500, 400}, Qt::ControlModifier | Qt::MetaModifier);
    drag({-30, 0}, Qt::ControlModifier | Qt::MetaModifier);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{330, 200}));
}

TEST_F(GraphImageViewMouseTest, theSpaceBarMakesTheHand)
{
    showPicture(1000, 800, false);
    area->scrollPoint({300, 200});
    view->setFocus();
    QTest::keyPress(view, Qt::Key_Space);
    press({500, 400});
    drag({-30, 0});
    release();
    QTest::keyRelease(view, Qt::Key_Space);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{330, 200}));
    EXPECT_TRUE(around.appended.empty());
    press({500, 400});
    EXPECT_EQ(around.appended.size(), 1U);
}

TEST_F(GraphImageViewMouseTest, aSpaceBarThatComesUpElsewhereMakesNoHand)
{
    showPicture(1000, 800, false);
    view->setFocus();
    QTest::keyPress(view, Qt::Key_Space);
    fitWidth->setFocus();
    press({500, 400});
    EXPECT_EQ(around.appended.size(), 1U);
}

TEST_F(GraphImageViewMouseTest, anAnchorDragRunsFromTheFirstMoveToTheRelease)
{
    showPicture(400, 300, true);
    const QSignalSpy ended(view, &GraphImageView::anchorDragEnded);
    press({100, 50});
    EXPECT_FALSE(view->isTrackingAnchorDrag());
    drag({3, 4});
    EXPECT_TRUE(view->isTrackingAnchorDrag());
    drag({1, 1});
    release();
    EXPECT_FALSE(view->isTrackingAnchorDrag());
    EXPECT_EQ(ended.count(), 1);
    EXPECT_EQ(around.dragStart, (FloatPoint{100, 250}));
    EXPECT_EQ(around.dragPositions, (Points{{103, 246}, {104, 245}, {104, 245}}));
    std::erase(around.calls, "drawAxis");
    EXPECT_EQ(around.calls, (Calls{"clearGuide", "registerUndoOfAnchors", "dragAnchor",
                                   "continueDrag", "endDrag"}));
}

TEST_F(GraphImageViewMouseTest, keysHeldDuringAnAnchorDragMakeNoHand)
{
    showPicture(400, 300, true);
    pointAt({100, 50});
    press({100, 50});
    drag({3, 4});
    around.held = Qt::ControlModifier;
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(view->mouseDownMode(), 1);
    release();
}

TEST_F(GraphImageViewMouseTest, aReleaseAfterAnAnchorDragIsEaten)
{
    showPicture(400, 300, true);
    press({100, 50});
    drag({3, 4});
    view->setCursor(Qt::CrossCursor);
    release();
    EXPECT_EQ(view->cursor().shape(), Qt::CrossCursor);
    EXPECT_EQ(view->mouseDownMode(), 0);
}

TEST_F(GraphImageViewMouseTest, aDragIsOneUndoStep)
{
    showPicture(400, 300, true);
    press({100, 50});
    drag({3, 4});
    drag({3, 4});
    drag({3, 4});
    release();
    around.undo.closeGroup();
    EXPECT_TRUE(around.undo.canUndo());
    EXPECT_EQ(around.undo.undoActionName(), "Move Axes");
    around.undo.undo();
    EXPECT_FALSE(around.undo.canUndo());
    EXPECT_EQ(around.count("setAnchors"), 1);
}

TEST_F(GraphImageViewMouseTest, aDragThatHitsNothingLeavesAnUndoStepAllTheSame)
{
    showPicture(400, 300, true);
    around.anchorIsHit = false;
    const QSignalSpy counted(&around.undo, &UndoManager::changeCounted);
    press({100, 50});
    drag({3, 4});
    drag({3, 4});
    EXPECT_FALSE(view->isTrackingAnchorDrag());
    view->setCursor(Qt::CrossCursor);
    release();
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(around.count("registerUndoOfAnchors"), 1);
    EXPECT_EQ(around.count("dragAnchor"), 1);
    around.undo.closeGroup();
    EXPECT_TRUE(around.undo.canUndo());
    EXPECT_EQ(counted.count(), 1);
}

TEST_F(GraphImageViewMouseTest, aPressWithoutADragRegistersNothing)
{
    showPicture(400, 300, true);
    press({100, 50});
    release();
    EXPECT_FALSE(around.undo.canUndo());
}

TEST_F(GraphImageViewMouseTest, keysDuringADragActAfterIt)
{
    showPicture(1000, 800, true);
    area->scrollPoint({300, 200});
    press({500, 400});
    drag({3, 4});
    QTest::keyClick(view, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{300, 200}));
    release();
    ASSERT_TRUE(QTest::qWaitFor([&] { return area->visibleOrigin() == FloatPoint{320, 200}; }));
}

TEST_F(GraphImageViewMouseTest, theModifiersOfThePressDecideTheWholeDrag)
{
    showPicture(1000, 800, false);
    area->scrollPoint({300, 200});
    press({500, 400}, Qt::ControlModifier);
    drag({-30, 0});
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{330, 200}));
}

TEST_F(GraphImageViewMouseTest, hoveringOverTheAxisPageShowsTheArrow)
{
    showPicture(400, 300, true);
    pointAt({100, 50});
    view->setCursor(Qt::CrossCursor);
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(view->mouseDownMode(), 1);
    view->setCursor(Qt::CrossCursor);
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::CrossCursor); // only while the mode is not 1 yet
}

TEST_F(GraphImageViewMouseTest, theArrowIsSetAtEachLookWhileDigitizing)
{
    showPicture(400, 300, false);
    pointAt({100, 50});
    view->mouseCheckRoutine();
    view->setCursor(Qt::CrossCursor);
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(GraphImageViewMouseTest, theCursorFollowsTheKeysWhileThePointerRests)
{
    showPicture(400, 300, false);
    const QSignalSpy modes(view, &GraphImageView::mouseDownModeChanged);
    pointAt({100, 50});
    around.held = Qt::ControlModifier;
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::OpenHandCursor);
    EXPECT_EQ(view->mouseDownMode(), 2);
    view->setCursor(Qt::CrossCursor);
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::CrossCursor); // a new cursor only for a new mode
    around.held = Qt::NoModifier;
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(view->mouseDownMode(), 0);
    EXPECT_EQ(modes.count(), 2);
}

TEST_F(GraphImageViewMouseTest, aDragKeepsItsCursor)
{
    showPicture(1000, 800, false);
    pointAt({500, 400});
    press({500, 400}, Qt::ControlModifier);
    drag({-30, 0}, Qt::ControlModifier);
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::OpenHandCursor);
    EXPECT_EQ(view->mouseDownMode(), 2);
    release();
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(view->mouseDownMode(), 0);
}

TEST_F(GraphImageViewMouseTest, hoveringWhileDigitizingDrawsTheGuide)
{
    showPicture(400, 300, false);
    around.inForce = someConverter();
    pointAt({100, 50});
    view->mouseCheckRoutine();
    EXPECT_EQ(around.guidePositions, (Points{{100, 250}}));
}

TEST_F(GraphImageViewMouseTest, thereIsNoGuideWithoutAConverterOrWithKeysOrWhileSettingAxes)
{
    showPicture(400, 300, false);
    pointAt({100, 50});
    view->mouseCheckRoutine();
    around.inForce = someConverter();
    around.held = Qt::ControlModifier;
    view->mouseCheckRoutine();
    around.held = Qt::NoModifier;
    around.axisSetting = true;
    view->mouseCheckRoutine();
    EXPECT_TRUE(around.guidePositions.empty());
}

TEST_F(GraphImageViewMouseTest, leavingTheViewClearsTheGuideAndSetsTheArrow)
{
    showPicture(400, 300, false);
    pointAt({100, 50});
    around.held = Qt::ControlModifier;
    view->mouseCheckRoutine();
    around.calls.clear();
    pointAt({100, -3});
    view->mouseCheckRoutine();
    EXPECT_EQ(around.count("clearGuide"), 1);
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(view->mouseDownMode(), 0);
}

TEST_F(GraphImageViewMouseTest, onlyTheVisiblePartCountsAsInside)
{
    showPicture(1000, 800, false);
    around.inForce = someConverter();
    area->scrollPoint({300, 200});
    // The clip's corners, and one pixel beyond each.
    const QPoint corner = area->viewport()->mapToGlobal(QPoint(0, 0));
    for (const QPoint inside : {QPoint(0, 0), QPoint(399, 0), QPoint(0, 299), QPoint(399, 299)}) {
        around.guidePositions.clear();
        around.pointer = corner + inside;
        view->mouseCheckRoutine();
        EXPECT_EQ(around.guidePositions.size(), 1U) << inside.x() << " " << inside.y();
    }
    for (const QPoint outside : {QPoint(-1, 0), QPoint(400, 0), QPoint(0, 300), QPoint(5, -1)}) {
        around.guidePositions.clear();
        around.pointer = corner + outside;
        view->mouseCheckRoutine();
        EXPECT_TRUE(around.guidePositions.empty()) << outside.x() << " " << outside.y();
    }
}

TEST_F(GraphImageViewMouseTest, tellsWhereInThePictureThePointerIs)
{
    showPicture(400, 300, false);
    view->rescaleImageWith(0.5F, true);
    std::vector<std::optional<FloatPoint>> hovers;
    QObject::connect(view, &GraphImageView::hoverChanged,
                     [&](std::optional<FloatPoint> p) { hovers.push_back(p); });
    pointAt({100, 50});
    view->mouseCheckRoutine();
    view->mouseCheckRoutine();
    pointAt({-10, 50});
    view->mouseCheckRoutine();
    ASSERT_EQ(hovers.size(), 2U);
    EXPECT_EQ(hovers[0], (FloatPoint{200, 200}));
    EXPECT_EQ(hovers[1], std::nullopt);
}

TEST_F(GraphImageViewMouseTest, theGuideIsWhereAClickOnASharpScreenWillBe)
{
    showPicture(400, 300, false);
    around.inForce = someConverter();
    ASSERT_TRUE(view->hasMouseTracking()); // else there are no moves without a button
    const QPointF sharp = view->mapToGlobal(QPointF(100.25, 49.75));
    mouse(QEvent::MouseMove, sharp, Qt::NoModifier, Qt::NoButton);
    around.pointer = sharp.toPoint() + QPoint(0, -1); // windows stand on whole points only
    view->mouseCheckRoutine();
    mouse(QEvent::MouseButtonPress, sharp);
    EXPECT_EQ(around.guidePositions, (Points{{100.25F, 250.25F}}));
    EXPECT_EQ(around.appended, (Points{{100.25F, 250.25F}}));
}

TEST_F(GraphImageViewMouseTest, aPointerThatWentOnSinceTheLastMoveIsWhereTheDesktopSays)
{
    showPicture(400, 300, false);
    around.inForce = someConverter();
    mouse(QEvent::MouseMove, view->mapToGlobal(QPointF(100.25, 49.75)), Qt::NoModifier,
          Qt::NoButton);
    pointAt({102, 50});
    view->mouseCheckRoutine();
    EXPECT_EQ(around.guidePositions, (Points{{102, 250}}));
}

TEST_F(GraphImageViewMouseTest, thePointerIsLookedAtInThePreferredInterval)
{
    showPicture(400, 300, false);
    around.inForce = someConverter();
    around.interval = 0.01;
    pointAt({100, 50});
    view->startMouseChecking();
    EXPECT_TRUE(QTest::qWaitFor([&] { return around.guidePositions.size() >= 3; }));
}

TEST_F(GraphImageViewMouseTest, aNewIntervalTakesEffectWithTheNewPreferences)
{
    showPicture(400, 300, false);
    around.inForce = someConverter();
    pointAt({100, 50});
    around.interval = 1000;
    view->startMouseChecking();
    around.interval = 0.01;
    view->startMouseChecking(); // a running timer is left alone
    view->prefsChanged();
    EXPECT_TRUE(QTest::qWaitFor([&] { return around.guidePositions.size() >= 2; }));
}

TEST_F(GraphImageViewMouseTest, newPreferencesStartNoTimer)
{
    showPicture(400, 300, false);
    view->stopMouseChecking();
    around.calls.clear();
    view->prefsChanged();
    view->stopMouseChecking();
    EXPECT_EQ(around.count("clearGuide"), 0);
}

TEST_F(GraphImageViewMouseTest, stoppingClearsTheGuideOnce)
{
    showPicture(400, 300, false);
    view->startMouseChecking();
    around.calls.clear();
    view->stopMouseChecking();
    view->stopMouseChecking();
    EXPECT_EQ(around.count("clearGuide"), 1);
}

TEST_F(GraphImageViewMouseTest, withoutAPictureStartingMeansStopping)
{
    show();
    view->startMouseChecking();
    around.calls.clear();
    view->stopMouseChecking();
    EXPECT_EQ(around.count("clearGuide"), 0);
}

TEST_F(GraphImageViewMouseTest, theAxisPageDrawsPictureAndAxes)
{
    showPicture(400, 300, true);
    const QImage drawn = view->grab().toImage();
    EXPECT_EQ(drawn.pixelColor(200, 100), QColor(Qt::blue));
    // The axes' square at (10, 20) to (14, 24), y upwards.
    EXPECT_EQ(drawn.pixelColor(10, 276), QColor(Qt::red));
    EXPECT_EQ(drawn.pixelColor(13, 279), QColor(Qt::red));
    EXPECT_EQ(drawn.pixelColor(10, 275), QColor(Qt::blue));
    EXPECT_EQ(drawn.pixelColor(10, 280), QColor(Qt::blue));
    EXPECT_GE(around.count("drawAxis"), 1);
    EXPECT_EQ(around.count("strokeGuide"), 0);
}

TEST_F(GraphImageViewMouseTest, theDigitizingPageDrawsGuideThenMarkers)
{
    showPicture(400, 300, false);
    around.calls.clear();
    view->grab();
    EXPECT_EQ(around.calls, (Calls{"strokeGuide", "drawMarkers"}));
}

TEST_F(GraphImageViewMouseTest, withoutAPictureTheViewIsWhite)
{
    show();
    const QImage drawn = view->grab().toImage();
    EXPECT_EQ(drawn.pixelColor(2, 2), QColor(Qt::white));
    EXPECT_EQ(drawn.size(), QSize(400, 300));
}
