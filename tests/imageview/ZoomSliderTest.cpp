#include "imageview/ZoomSlider.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

TEST(ZoomSlider, keepsTheRealLogarithm)
{
    ZoomSlider slider;
    slider.setDoubleValue(-0.5000000247);
    EXPECT_EQ(slider.doubleValue(), -0.5000000247);
}

TEST(ZoomSlider, spansTheZoomLimits)
{
    ZoomSlider slider;
    slider.setDoubleValue(-3);
    EXPECT_EQ(slider.value(), slider.minimum());
    slider.setDoubleValue(1);
    EXPECT_EQ(slider.value(), slider.maximum());
}

TEST(ZoomSlider, aValueBeyondTheSpanIsKeptThoughTheKnobStops)
{
    ZoomSlider slider;
    slider.setDoubleValue(2.32);
    EXPECT_EQ(slider.doubleValue(), 2.32);
    EXPECT_EQ(slider.value(), slider.maximum());
}

TEST(ZoomSlider, settingItByProgramSendsNoAction)
{
    ZoomSlider slider;
    const QSignalSpy moved(&slider, &ZoomSlider::moved);
    slider.setDoubleValue(-1);
    slider.setDoubleValue(0.5);
    EXPECT_EQ(moved.count(), 0);
}

TEST(ZoomSlider, keysSendTheActionWithTheNewValue)
{
    ZoomSlider slider;
    slider.setDoubleValue(0);
    double seen = 99;
    QObject::connect(&slider, &ZoomSlider::moved, [&] { seen = slider.doubleValue(); });
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(seen, 0.125);
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(seen, -3);
}

TEST(ZoomSlider, draggingTheKnobSendsTheAction)
{
    ZoomSlider slider;
    slider.resize(400, 30);
    slider.setDoubleValue(-3);
    const QSignalSpy moved(&slider, &ZoomSlider::moved);
    QTest::mousePress(&slider, Qt::LeftButton, {}, {6, 15});
    QTest::mouseMove(&slider, {200, 15});
    QMouseEvent move(QEvent::MouseMove, QPointF(200, 15), slider.mapToGlobal(QPointF(200, 15)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&slider, &move);
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, {200, 15});
    EXPECT_GE(moved.count(), 1);
    EXPECT_NEAR(slider.doubleValue(), -1, 0.3);
}

TEST(ZoomSlider, aMoveToTheSamePlaceKeepsTheRealValue)
{
    ZoomSlider slider;
    slider.setDoubleValue(-0.5000000247);
    slider.setSliderPosition(slider.sliderPosition());
    slider.triggerAction(QAbstractSlider::SliderMove);
    EXPECT_EQ(slider.doubleValue(), -0.5000000247);
}
