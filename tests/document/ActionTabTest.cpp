#include "document/ActionTab.h"

#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class ActionTabTest : public ::testing::Test
{
protected:
    ActionTabTest()
    {
        for (QToolButton *button : {&axes, &digitizing}) {
            button->setCheckable(true);
            button->setAutoExclusive(true);
            button->setParent(&tab);
        }
        pages.setParent(&tab);
        pages.addWidget(new QWidget);
        pages.addWidget(new QWidget);
        tab.setTabs(&axes, &digitizing, &pages);
    }

    ActionTab tab;
    QToolButton axes;
    QToolButton digitizing;
    QStackedWidget pages;
};

} // namespace

TEST_F(ActionTabTest, startsOnAxisSetting)
{
    EXPECT_EQ(tab.indexOfSelectedTab(), ActionTab::axisSetting);
}

TEST_F(ActionTabTest, aClickSelectsThePageAndSaysSo)
{
    const QSignalSpy selected(&tab, &ActionTab::didSelectTab);
    QTest::mouseClick(&digitizing, Qt::LeftButton);
    EXPECT_EQ(tab.indexOfSelectedTab(), ActionTab::digitizing);
    ASSERT_EQ(selected.count(), 1);
    EXPECT_EQ(selected.at(0).at(0).toInt(), ActionTab::digitizing);
}

TEST_F(ActionTabTest, selectingByProgramSaysSoToo)
{
    const QSignalSpy selected(&tab, &ActionTab::didSelectTab);
    tab.selectTab(ActionTab::digitizing);
    EXPECT_EQ(selected.count(), 1);
}

TEST_F(ActionTabTest, selectingByProgramChecksTheButton)
{
    tab.selectTab(ActionTab::digitizing);
    EXPECT_TRUE(digitizing.isChecked());
    EXPECT_FALSE(axes.isChecked());
}

TEST_F(ActionTabTest, selectingTheSelectedTabDoesNothing)
{
    const QSignalSpy selected(&tab, &ActionTab::didSelectTab);
    tab.selectTab(ActionTab::axisSetting);
    QTest::mouseClick(&axes, Qt::LeftButton);
    EXPECT_EQ(selected.count(), 0);
}

TEST_F(ActionTabTest, anIndexWithoutTabIsIgnored)
{
    tab.selectTab(7);
    EXPECT_EQ(tab.indexOfSelectedTab(), ActionTab::axisSetting);
}
