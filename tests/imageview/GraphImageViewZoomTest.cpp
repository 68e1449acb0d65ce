#include "imageview/ImageViewFixture.h"

#include <QApplication>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

class GraphImageViewZoomTest : public ImageViewTest
{
protected:
    void showPicture(int width, int height)
    {
        show();
        install(width, height);
        view->rescaleImageWith(1, true);
        around.calls.clear();
        around.changes = 0;
    }
    /// As the window system sends it: only such events go on to the widgets behind.
    void wheelWithControl(QPointF position, int angle)
    {
        QWheelEvent event(position, view->mapToGlobal(position), QPoint(), QPoint(0, angle),
                          Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(view, &event);
    }
    FloatPoint centreInPicture() const
    {
        const FloatRect visible = area->visibleRect();
        return {(visible.origin.x + visible.size.width / 2) / view->imageScale(),
                (visible.origin.y + visible.size.height / 2) / view->imageScale()};
    }
};

} // namespace

TEST_F(GraphImageViewZoomTest, aStepIsTheSquareRootOfTwo)
{
    showPicture(1000, 800);
    view->zoomIn();
    EXPECT_EQ(view->imageScale(), static_cast<float>(1.4142135623730951));
    view->zoomToActualSize();
    view->zoomOut();
    EXPECT_EQ(view->imageScale(), 0.70710677F);
}

TEST_F(GraphImageViewZoomTest, zoomingInStopsAtTwo)
{
    showPicture(1000, 800);
    view->rescaleImageWith(1.5F, true);
    EXPECT_TRUE(view->canZoomIn());
    view->zoomIn();
    EXPECT_EQ(view->imageScale(), 2);
    EXPECT_FALSE(view->canZoomIn());
}

TEST_F(GraphImageViewZoomTest, eightStepsOutLandOnTheLimitAndStay)
{
    showPicture(1000, 800);
    view->rescaleImageWith(2, true);
    for (int step = 0; step < 7; ++step)
        view->zoomOut();
    EXPECT_TRUE(view->canZoomOut());
    view->zoomOut();
    EXPECT_EQ(view->imageScale(), 0.125F);
    EXPECT_FALSE(view->canZoomOut());
    view->zoomOut();
    EXPECT_EQ(view->imageScale(), 0.125F);
}

TEST_F(GraphImageViewZoomTest, sixStepsOutFromActualSizeReachTheLimit)
{
    showPicture(1000, 800);
    for (int step = 0; step < 6; ++step)
        view->zoomOut();
    EXPECT_EQ(view->imageScale(), 0.125F);
}

TEST_F(GraphImageViewZoomTest, commandsAreTestedWithExactScales)
{
    showPicture(1000, 800);
    view->rescaleImageWith(0.12500001F, true);
    EXPECT_TRUE(view->canZoomOut());
    view->rescaleImageWith(1.9999999F, true);
    EXPECT_TRUE(view->canZoomIn());
    view->rescaleImageWith(0.99999994F, true);
    EXPECT_TRUE(view->canZoomToActual());
    view->zoomToActualSize();
    EXPECT_FALSE(view->canZoomToActual());
}

TEST_F(GraphImageViewZoomTest, withoutAPictureNothingZooms)
{
    show();
    view->zoomIn();
    view->zoomOut();
    view->zoomToActualSize();
    view->zoomToFitWidth();
    view->zoomToFitHeight();
    view->imageScaleChanged();
    EXPECT_EQ(view->imageScale(), 0.1F);
    EXPECT_TRUE(around.calls.empty());
    EXPECT_FALSE(view->canZoomIn());
    EXPECT_FALSE(view->canZoomOut());
    EXPECT_FALSE(view->canZoomToActual());
}

TEST_F(GraphImageViewZoomTest, fitWidthTakesTheWindowLessItsMargin)
{
    showPicture(1000, 500);
    around.frameSize = {637, 407};
    QTest::mouseClick(fitWidth, Qt::LeftButton);
    EXPECT_EQ(view->imageScale(), 0.6F);
    QTest::mouseClick(fitHeight, Qt::LeftButton);
    EXPECT_EQ(view->imageScale(), 0.4F);
}

TEST_F(GraphImageViewZoomTest, fittingATurnedPictureExchangesItsSides)
{
    showPicture(1000, 500);
    around.frameSize = {637, 407};
    view->imageRotateCcw();
    view->zoomToFitWidth();
    EXPECT_EQ(view->imageScale(), 600.0F / 500.0F);
    view->zoomToFitHeight();
    EXPECT_EQ(view->imageScale(), 200.0F / 1000.0F);
}

TEST_F(GraphImageViewZoomTest, aRescaleGoesThroughTheStepsInOrder)
{
    showPicture(1000, 800);
    view->zoomIn();
    EXPECT_EQ(around.calls, (std::vector<std::string>{"makeAnchorRects", "updateChangeCount"}));
}

TEST_F(GraphImageViewZoomTest, onTheDigitizingPageTheGuideIsRebuiltAtThePointer)
{
    showPicture(1000, 800);
    around.axisSetting = false;
    around.inForce = someConverter();
    view->rescaleImageWith(0.5F, true);
    around.pointer = view->mapToGlobal(QPoint(100, 150));
    around.calls.clear();
    view->zoomToActualSize();
    EXPECT_EQ(around.calls,
              (std::vector<std::string>{"makeAnchorRects", "forceDrawGuide", "updateChangeCount"}));
    const QPoint inView = view->mapFromGlobal(around.pointer);
    EXPECT_EQ(around.guidePositions.back(),
              (FloatPoint{static_cast<float>(inView.x()), 800 - static_cast<float>(inView.y())}));
}

TEST_F(GraphImageViewZoomTest, onTheDigitizingPageWithoutAConverterThereIsNoGuide)
{
    showPicture(1000, 800);
    around.axisSetting = false;
    view->zoomIn();
    EXPECT_EQ(around.count("forceDrawGuide"), 0);
}

TEST_F(GraphImageViewZoomTest, theSameScaleByCommandStillRunsAndMarks)
{
    showPicture(1000, 800);
    view->zoomToActualSize();
    EXPECT_EQ(around.changes, 1);
    EXPECT_EQ(around.count("makeAnchorRects"), 1);
}

TEST_F(GraphImageViewZoomTest, theSameScaleBySliderDoesNothing)
{
    showPicture(1000, 800);
    view->rescaleImageWith(0.70710677F, true);
    around.calls.clear();
    view->imageScaleChanged();
    EXPECT_TRUE(around.calls.empty());
    slider->triggerAction(QAbstractSlider::SliderMove);
    EXPECT_TRUE(around.calls.empty());
    EXPECT_EQ(view->imageScale(), 0.70710677F);
}

TEST_F(GraphImageViewZoomTest, theSliderHoldsTheRealLogarithm)
{
    showPicture(1000, 800);
    view->zoomOut();
    EXPECT_NEAR(slider->doubleValue(), -0.5000000247, 1e-10);
}

TEST_F(GraphImageViewZoomTest, theSliderSetsTheScaleAndIsNotSetBack)
{
    showPicture(1000, 800);
    QTest::keyClick(slider, Qt::Key_Left);
    EXPECT_EQ(slider->doubleValue(), -0.125);
    EXPECT_EQ(view->imageScale(), static_cast<float>(std::pow(2.0, -0.125)));
    EXPECT_EQ(around.changes, 1);
    QTest::keyClick(slider, Qt::Key_Home);
    EXPECT_EQ(view->imageScale(), 0.125F);
    QTest::keyClick(slider, Qt::Key_End);
    EXPECT_EQ(view->imageScale(), 2);
}

TEST_F(GraphImageViewZoomTest, theOriginComesFromTheOldScaleAndTheLimitedNewOne)
{
    showPicture(2000, 1600);
    // The point (500, 400) in the middle of a clip of 400 x 300, at scale 2 instead of 9.
    view->rescaleImageWith(9, {500, 400}, true);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{800, 650}));
    view->rescaleImageWith(1, {1200, 1000}, true);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{400, 350}));
}

TEST_F(GraphImageViewZoomTest, theNewSizeLimitsTheScrollNotTheOldOne)
{
    showPicture(1000, 800);
    view->rescaleImageWith(2, {900, 700}, true);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{1600, 1250}));
}

TEST_F(GraphImageViewZoomTest, theAnchorsAreLaidOutBetweenTheNewSizeAndTheScroll)
{
    showPicture(1000, 800);
    area->scrollPoint({10, 20});
    FloatSize size;
    FloatPoint origin;
    around.whenAnchorRectsAreMade = [&] {
        size = view->scaledImageSize();
        origin = area->visibleOrigin();
    };
    view->rescaleImageWith(2, {500, 400}, true);
    EXPECT_EQ(size, (FloatSize{2000, 1600}));
    EXPECT_EQ(origin, (FloatPoint{10, 20}));
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{800, 650}));
}

TEST_F(GraphImageViewZoomTest, theMiddleStaysInTheMiddle)
{
    showPicture(2000, 1600);
    area->scrollPoint({700, 500});
    const FloatPoint before = centreInPicture();
    for (const float scale : {1.3F, 2.0F, 0.8F, 1.0F}) {
        view->rescaleImageWith(scale, true);
        EXPECT_NEAR(centreInPicture().x, before.x, 0.01);
        EXPECT_NEAR(centreInPicture().y, before.y, 0.01);
    }
}

TEST_F(GraphImageViewZoomTest, theEdgesLimitTheScroll)
{
    showPicture(1000, 800);
    area->scrollPoint({0, 0});
    view->rescaleImageWith(0.5F, true);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{0, 0}));
    EXPECT_EQ(area->documentSize(), (FloatSize{500, 400}));
}

TEST_F(GraphImageViewZoomTest, theWheelZoomsAboutThePointer)
{
    showPicture(2000, 1600);
    area->scrollPoint({700, 500});
    const QPointF pointer(130, 210);
    const auto pictureAtPointer = [&] {
        const QPointF p = view->mapFrom(area->viewport(), pointer);
        return QPointF(p.x(), static_cast<qreal>(view->scaledImageSize().height) - p.y()) /
               static_cast<qreal>(view->imageScale());
    };
    const QPointF before = pictureAtPointer();
    for (const int angle : {120, 120, -360, 240}) {
        wheelWithControl(view->mapFrom(area->viewport(), pointer), angle);
        EXPECT_NEAR(pictureAtPointer().x(), before.x(), 1);
        EXPECT_NEAR(pictureAtPointer().y(), before.y(), 1);
    }
    EXPECT_EQ(around.changes, 4);
}

TEST_F(GraphImageViewZoomTest, theWheelAtTheLimitMarksNothing)
{
    showPicture(1000, 800);
    view->rescaleImageWith(2, true);
    around.changes = 0;
    wheelWithControl({10, 10}, 120);
    EXPECT_EQ(around.changes, 0);
}
