#include "imageview/ImageViewFixture.h"

#include <QCursor>

#include <limits>
#include <utility>
#include <vector>

// Cursors and the hover timer.

namespace {

constexpr auto zoomInKeys = Qt::ControlModifier | Qt::AltModifier;
constexpr auto trimKeys = Qt::ControlModifier | Qt::MetaModifier;

struct KeysAndCursor
{
    Qt::KeyboardModifiers keys;
    int mode;
    QPoint hotSpot;
};
const std::vector<KeysAndCursor> pictureCursors{
    {zoomInKeys, 3, {9, 9}},
    {zoomInKeys | Qt::ShiftModifier, 4, {9, 9}},
    {trimKeys, 5, {7, 7}},
    {trimKeys | Qt::ShiftModifier, 6, {7, 7}},
};

class GraphImageViewCursorTest : public ImageViewTest
{
protected:
    void showPicture(bool axisSetting)
    {
        show();
        around.axisSetting = axisSetting;
        install(400, 300);
        view->rescaleImageWith(1, true);
        pointAt({100, 50});
    }
};

} // namespace

TEST_F(GraphImageViewCursorTest, eachModeShowsItsCursorWhileHovering)
{
    showPicture(true);
    QCursor before(Qt::ArrowCursor);
    for (const KeysAndCursor &expected : pictureCursors) {
        around.held = expected.keys;
        view->mouseCheckRoutine();
        EXPECT_EQ(view->mouseDownMode(), expected.mode);
        EXPECT_EQ(view->cursor().shape(), Qt::BitmapCursor);
        EXPECT_EQ(view->cursor().hotSpot(), expected.hotSpot) << expected.mode;
        EXPECT_NE(view->cursor(), before) << expected.mode;
        before = view->cursor();
    }
}

TEST_F(GraphImageViewCursorTest, eachModeShowsItsCursorWhileDragging)
{
    showPicture(true);
    for (const KeysAndCursor &expected : pictureCursors) {
        press({100, 50}, expected.keys);
        drag({20, 20}, expected.keys);
        view->setCursor(Qt::CrossCursor);
        view->mouseCheckRoutine(); // the keys are up and the mode stays
        EXPECT_EQ(view->cursor().shape(), Qt::BitmapCursor) << expected.mode;
        EXPECT_EQ(view->cursor().hotSpot(), expected.hotSpot) << expected.mode;
        EXPECT_EQ(view->mouseDownMode(), expected.mode);
        release();
        EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor) << expected.mode;
        EXPECT_EQ(view->mouseDownMode(), 0);
    }
}

TEST_F(GraphImageViewCursorTest, aDragThatLeavesTheViewKeepsItsCursor)
{
    showPicture(true);
    press({100, 50}, trimKeys);
    drag({-300, 20}, trimKeys);
    pointAt({-200, 70});
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().hotSpot(), QPoint(7, 7));
    EXPECT_EQ(view->mouseDownMode(), 5);
    EXPECT_EQ(around.count("drawGuide"), 0);
}

TEST_F(GraphImageViewCursorTest, aDragInPlainDigitizingLeavesTheCursorAlone)
{
    showPicture(false);
    press({100, 50});
    drag({20, 20});
    EXPECT_EQ(view->mouseDownMode(), 0);
    view->setCursor(Qt::CrossCursor);
    pointAt({-200, 70});
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::CrossCursor);
}

TEST_F(GraphImageViewCursorTest, goingFromModeToModeChangesTheCursorOnceEach)
{
    showPicture(true);
    around.held = zoomInKeys;
    view->mouseCheckRoutine();
    view->setCursor(Qt::CrossCursor);
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::CrossCursor); // the mode is the same
    around.held = trimKeys;
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().hotSpot(), QPoint(7, 7));
    around.held = Qt::NoModifier;
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(view->mouseDownMode(), 1);
}

TEST_F(GraphImageViewCursorTest, leavingTheViewResetsEachCursor)
{
    showPicture(true);
    for (const KeysAndCursor &expected : pictureCursors) {
        around.held = expected.keys;
        pointAt({100, 50});
        view->mouseCheckRoutine();
        ASSERT_EQ(view->cursor().shape(), Qt::BitmapCursor);
        around.calls.clear();
        pointAt({-1, 50});
        view->mouseCheckRoutine();
        EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
        EXPECT_EQ(view->mouseDownMode(), 0);
        EXPECT_EQ(around.count("clearGuide"), 1);
    }
}

TEST_F(GraphImageViewCursorTest, outsideInModeZeroTheCursorIsLeftAlone)
{
    showPicture(false);
    view->setCursor(Qt::CrossCursor);
    pointAt({-1, 50});
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::CrossCursor);
}

TEST_F(GraphImageViewCursorTest, optionWinsOverControl)
{
    showPicture(true);
    around.held = trimKeys | Qt::AltModifier;
    view->mouseCheckRoutine();
    EXPECT_EQ(view->mouseDownMode(), 3);
}

TEST_F(GraphImageViewCursorTest, aForcedModeShowsItsCursorAndKeysShowTheirs)
{
    showPicture(false);
    around.inForce = someConverter();
    view->setForcedMode(ZoomOutMode);
    view->mouseCheckRoutine();
    EXPECT_EQ(view->mouseDownMode(), 4);
    EXPECT_EQ(view->cursor().hotSpot(), QPoint(9, 9));
    EXPECT_TRUE(around.guidePositions.empty());
    around.held = Qt::ControlModifier;
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::OpenHandCursor);
    around.held = Qt::NoModifier;
    view->setForcedMode({});
    view->mouseCheckRoutine();
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(around.guidePositions.size(), 1U);
}

TEST_F(GraphImageViewCursorTest, aPressKeepsItsModeUntilTheReleaseWhateverKeysAreHeld)
{
    showPicture(true);
    press({100, 50}, trimKeys);
    around.held = zoomInKeys;
    view->mouseCheckRoutine();
    EXPECT_EQ(view->mouseDownMode(), 5);
    pointAt({-20, 50});
    view->mouseCheckRoutine();
    EXPECT_EQ(view->mouseDownMode(), 5);
    release();
    EXPECT_EQ(view->mouseDownMode(), 0);
}

TEST_F(GraphImageViewCursorTest, theTimerTicksInThePreferredInterval)
{
    showPicture(false);
    around.interval = 0.05;
    view->startMouseChecking();
    EXPECT_EQ(view->mouseCheckTimer().interval(), 50);
    around.interval = 0.2;
    view->prefsChanged();
    EXPECT_TRUE(view->mouseCheckTimer().isActive());
    EXPECT_EQ(view->mouseCheckTimer().interval(), 200);
}

TEST_F(GraphImageViewCursorTest, aStoredIntervalOfNoUseLeavesTheComputerRoomToBreathe)
{
    showPicture(false);
    for (const double interval : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN(), 1e300}) {
        around.interval = interval;
        view->startMouseChecking();
        EXPECT_TRUE(view->mouseCheckTimer().isActive()) << interval;
        EXPECT_GE(view->mouseCheckTimer().interval(), 1) << interval;
        view->stopMouseChecking();
    }
}

TEST_F(GraphImageViewCursorTest, aRunningTimerIsLeftAlone)
{
    showPicture(false);
    view->startMouseChecking();
    const int before = view->mouseCheckTimer().timerId();
    around.interval = 0.01;
    view->startMouseChecking();
    EXPECT_EQ(view->mouseCheckTimer().timerId(), before);
    EXPECT_EQ(view->mouseCheckTimer().interval(), 200);
}

TEST_F(GraphImageViewCursorTest, theTimerRunsOnlyWithAPicture)
{
    show();
    view->startMouseChecking();
    EXPECT_FALSE(view->mouseCheckTimer().isActive());
    install(400, 300);
    view->setButtonStates();
    EXPECT_TRUE(view->mouseCheckTimer().isActive());
    view->windowWillClose();
    EXPECT_FALSE(view->mouseCheckTimer().isActive());
}

TEST_F(GraphImageViewCursorTest, theTimerStopsWithThePicture)
{
    show();
    const ArchiveDictionary withoutPicture = view->dataForSave();
    install(400, 300);
    view->setButtonStates();
    ASSERT_TRUE(view->mouseCheckTimer().isActive());
    view->loadFromData(&withoutPicture);
    EXPECT_FALSE(view->mouseCheckTimer().isActive());
}
