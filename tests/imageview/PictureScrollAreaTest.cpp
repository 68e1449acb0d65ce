#include "imageview/PictureScrollArea.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace {

class PictureScrollAreaTest : public ::testing::Test
{
protected:
    PictureScrollAreaTest()
        : area(new PictureScrollArea(&window))
        , view(new QWidget)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(area);
        area->setFrameShape(QFrame::NoFrame);
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setDocumentView(view);
        window.resize(400, 300);
    }
    void show()
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    void wheel(QPoint angle, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               QPoint pixels = QPoint())
    {
        const QPointF position(100, 50);
        QWheelEvent event(position, area->viewport()->mapToGlobal(position), pixels, angle,
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(area->viewport(), &event);
    }

    QWidget window;
    PictureScrollArea *area;
    QWidget *view;
};

} // namespace

TEST_F(PictureScrollAreaTest, theOriginIsTheBottomLeftOfTheClip)
{
    show();
    area->setDocumentSize({1000, 800});
    area->scrollPoint({120, 70});
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{120, 70}));
    // 70 points of the view are below the clip, 800 - 300 - 70 above it.
    EXPECT_EQ(view->geometry(), QRect(-120, -430, 1000, 800));
}

TEST_F(PictureScrollAreaTest, scrollingIsLimitedToTheDocument)
{
    show();
    area->setDocumentSize({1000, 800});
    area->scrollPoint({5000, 5000});
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{600, 500}));
    area->scrollPoint({-5, -9});
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{0, 0}));
}

TEST_F(PictureScrollAreaTest, theNewDocumentSizeLimitsTheScroll)
{
    show();
    area->setDocumentSize({1000, 800});
    area->setDocumentSize({2000, 1600});
    area->scrollPoint({1500, 1200});
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{1500, 1200}));
    area->setDocumentSize({500, 400});
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{100, 100}));
}

TEST_F(PictureScrollAreaTest, originsKeepTheirFractions)
{
    show();
    area->setDocumentSize({1000.25F, 800.5F});
    area->scrollPoint({12.25F, 7.5F});
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{12.25F, 7.5F}));
    EXPECT_EQ(view->size(), QSize(1001, 801));
}

TEST_F(PictureScrollAreaTest, aSmallerDocumentStandsInTheMiddleAtOriginZero)
{
    show();
    area->setDocumentSize({100, 50});
    area->scrollPoint({30, 30});
    EXPECT_EQ(view->geometry(), QRect(150, 125, 100, 50));
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{0, 0}));
    EXPECT_EQ(area->visibleRect(), (FloatRect{{0, 0}, {100, 50}}));
}

TEST_F(PictureScrollAreaTest, theVisibleRectIsThePartInTheClip)
{
    show();
    area->setDocumentSize({1000, 200});
    area->scrollPoint({250, 0});
    EXPECT_EQ(area->visibleRect(), (FloatRect{{250, 0}, {400, 200}}));
}

TEST_F(PictureScrollAreaTest, anOriginWantedBeforeTheWindowIsShownComesTrue)
{
    area->setDocumentSize({2000, 2000});
    area->scrollPoint({700, 650});
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{700, 650}));
    show();
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{700, 650}));
    EXPECT_EQ(view->pos(), QPoint(-700, -1050));
    EXPECT_EQ(area->horizontalScrollBar()->value(), 700);
}

TEST_F(PictureScrollAreaTest, anOriginWantedBeforehandSurvivesALateLayout)
{
    area->setDocumentSize({2000, 2000});
    area->scrollPoint({1500, 0});
    window.resize(900, 800);
    show();
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{1100, 0}));
    window.resize(400, 300); // the window manager has its own mind
    QTest::qWait(0);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{1500, 0}));
}

TEST_F(PictureScrollAreaTest, scrollBarsShowAndSetTheOrigin)
{
    show();
    area->setDocumentSize({1000, 800});
    area->scrollPoint({120, 70});
    EXPECT_EQ(area->horizontalScrollBar()->value(), 120);
    EXPECT_EQ(area->verticalScrollBar()->value(), 430);
    area->verticalScrollBar()->setSliderPosition(0);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{120, 500}));
    area->horizontalScrollBar()->setSliderPosition(600);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{600, 500}));
}

TEST_F(PictureScrollAreaTest, theWheelScrolls)
{
    show();
    area->setDocumentSize({1000, 800});
    area->scrollPoint({100, 100});
    wheel({0, -120});
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{100, 40}));
    wheel({0, 120});
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{100, 100}));
    wheel({-120, 0});
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{160, 100}));
}

TEST_F(PictureScrollAreaTest, theWheelScrollsSidewaysWithShift)
{
    show();
    area->setDocumentSize({1000, 800});
    area->scrollPoint({100, 100});
    wheel({0, -120}, Qt::ShiftModifier);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{160, 100}));
}

TEST_F(PictureScrollAreaTest, touchPadsScrollByPoints)
{
    show();
    area->setDocumentSize({1000, 800});
    area->scrollPoint({100, 100});
    wheel({0, -30}, Qt::NoModifier, {3, -7});
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{97, 93}));
}

TEST_F(PictureScrollAreaTest, theWheelWithControlAsksForAZoomAboutThePointer)
{
    show();
    area->setDocumentSize({1000, 800});
    QSignalSpy zooms(area, &PictureScrollArea::zoomRequested);
    wheel({0, 480}, Qt::ControlModifier);
    ASSERT_EQ(zooms.count(), 1);
    EXPECT_EQ(zooms[0][0].toDouble(), 2);
    EXPECT_EQ(zooms[0][1].toPointF().toPoint(), QPoint(100, 50));
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{0, 0}));
}

TEST_F(PictureScrollAreaTest, keysScroll)
{
    show();
    area->setDocumentSize({1000, 800});
    area->scrollPoint({100, 100});
    QTest::keyClick(area, Qt::Key_Right);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{120, 100}));
    QTest::keyClick(area, Qt::Key_Up);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{120, 120}));
    QTest::keyClick(area, Qt::Key_PageUp);
    EXPECT_EQ(area->visibleOrigin(), (FloatPoint{120, 420}));
}

TEST_F(PictureScrollAreaTest, withoutADocumentTheViewFillsTheClip)
{
    show();
    EXPECT_EQ(view->geometry(), QRect(0, 0, 400, 300));
    window.resize(500, 350);
    QTest::qWait(0);
    EXPECT_EQ(view->geometry(), QRect(0, 0, 500, 350));
}

TEST_F(PictureScrollAreaTest, barsComeOnlyWhenTheyAreNeeded)
{
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    show();
    area->setDocumentSize({400, 300});
    EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
    EXPECT_FALSE(area->verticalScrollBar()->isVisible());
    area->setDocumentSize({401, 300});
    EXPECT_TRUE(QTest::qWaitFor([&] { return area->horizontalScrollBar()->isVisible(); }));
    area->setDocumentSize({400, 300});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !area->horizontalScrollBar()->isVisible(); }));
    EXPECT_EQ(view->geometry(), QRect(0, 0, 400, 300));
}
