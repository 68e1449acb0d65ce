#include "imageview/PageSlider.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

TEST(PageSlider, holdsTheNegatedPageSoThatPageOneIsOnTop)
{
    PageSlider slider;
    slider.setNumberOfPages(12);
    slider.setPage(1);
    EXPECT_EQ(slider.integerValue(), -1);
    EXPECT_EQ(slider.value(), slider.maximum());
    slider.setPage(12);
    EXPECT_EQ(slider.integerValue(), -12);
    EXPECT_EQ(slider.value(), slider.minimum());
    EXPECT_EQ(slider.orientation(), Qt::Vertical);
}

TEST(PageSlider, twelvePagesHaveTwelveMarksAndNothingBetween)
{
    PageSlider slider;
    slider.setNumberOfPages(12);
    EXPECT_EQ(slider.numberOfTickMarks(), 12);
    EXPECT_TRUE(slider.allowsTickMarkValuesOnly());
    EXPECT_EQ((slider.maximum() - slider.minimum()) / slider.tickInterval() + 1, 12);
}

TEST(PageSlider, twentyPagesAreTheLastWithAMarkEach)
{
    PageSlider slider;
    slider.setNumberOfPages(20);
    EXPECT_EQ(slider.numberOfTickMarks(), 20);
    EXPECT_TRUE(slider.allowsTickMarkValuesOnly());
    slider.setNumberOfPages(21);
    EXPECT_EQ(slider.numberOfTickMarks(), 20);
    EXPECT_FALSE(slider.allowsTickMarkValuesOnly());
}

TEST(PageSlider, twentyFivePagesHaveTwentyMarks)
{
    PageSlider slider;
    slider.setNumberOfPages(25);
    EXPECT_EQ(slider.numberOfTickMarks(), 20);
    EXPECT_EQ((slider.maximum() - slider.minimum()) / slider.tickInterval() + 1, 20);
}

TEST(PageSlider, betweenMarksTheFractionIsDropped)
{
    PageSlider slider;
    slider.setNumberOfPages(25);
    const QSignalSpy moved(&slider, &PageSlider::moved);
    slider.setSliderDown(true);
    slider.setSliderPosition(-3700);
    EXPECT_EQ(moved.count(), 1);
    EXPECT_EQ(slider.integerValue(), -3);
}

TEST(PageSlider, withFewPagesTheKnobSnapsToTheirMarks)
{
    PageSlider slider;
    slider.setNumberOfPages(12);
    slider.setSliderDown(true);
    slider.setSliderPosition(-3700);
    EXPECT_DOUBLE_EQ(slider.doubleValue(), -4);
}

TEST(PageSlider, showingAPageIsNoMove)
{
    PageSlider slider;
    slider.setNumberOfPages(12);
    const QSignalSpy moved(&slider, &PageSlider::moved);
    slider.setPage(7);
    EXPECT_EQ(moved.count(), 0);
}
