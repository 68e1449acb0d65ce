#include "document/TableDrawer.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class TableDrawerTest : public ::testing::Test
{
protected:
    TableDrawerTest()
    {
        auto *row = new QHBoxLayout(&window);
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(new QWidget, 1);
        drawer = new TableDrawer(&window);
        content = new QLabel(QStringLiteral("table"));
        drawer->setContent(content);
        row->addWidget(drawer);
        window.resize(500, 300);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    QWidget *handle() const { return drawer->findChild<QWidget *>("drawerHandle"); }

    QWidget window;
    TableDrawer *drawer = nullptr;
    QLabel *content = nullptr;
};

} // namespace

TEST_F(TableDrawerTest, startsClosed)
{
    EXPECT_FALSE(drawer->isOpen());
    EXPECT_FALSE(content->isVisible());
}

TEST_F(TableDrawerTest, openingWidensTheWindow)
{
    drawer->open();
    EXPECT_TRUE(content->isVisible());
    EXPECT_EQ(window.width(), 500 + drawer->contentWidth());
}

TEST_F(TableDrawerTest, closingGivesTheWidthBack)
{
    drawer->open();
    drawer->close();
    EXPECT_EQ(window.width(), 500);
    EXPECT_FALSE(content->isVisible());
}

TEST_F(TableDrawerTest, openingTellsOnce)
{
    const QSignalSpy opened(drawer, &TableDrawer::didOpen);
    drawer->open();
    drawer->open();
    EXPECT_EQ(opened.count(), 1);
}

TEST_F(TableDrawerTest, hidingTheWindowIsNoClosing)
{
    drawer->open();
    const QSignalSpy closed(drawer, &TableDrawer::didClose);
    window.hide();
    EXPECT_TRUE(drawer->isOpen());
    EXPECT_EQ(closed.count(), 0);
}

TEST_F(TableDrawerTest, aClickOnTheHandleToggles)
{
    QTest::mouseClick(handle(), Qt::LeftButton);
    EXPECT_TRUE(drawer->isOpen());
    QTest::mouseClick(handle(), Qt::LeftButton);
    EXPECT_FALSE(drawer->isOpen());
}

TEST_F(TableDrawerTest, draggingTheHandleChangesTheWidthInsideTheWindow)
{
    drawer->open();
    const int windowWidth = window.width();
    const int before = drawer->contentWidth();
    QTest::mousePress(handle(), Qt::LeftButton, Qt::NoModifier, QPoint(4, 100));
    QTest::mouseMove(handle(), QPoint(-16, 100));
    QTest::mouseMove(handle(), QPoint(-36, 100));
    QTest::mouseRelease(handle(), Qt::LeftButton, Qt::NoModifier, QPoint(-36, 100));
    EXPECT_GT(drawer->contentWidth(), before);
    EXPECT_EQ(window.width(), windowWidth);
    EXPECT_TRUE(drawer->isOpen());
}

TEST_F(TableDrawerTest, theClosedDrawerTakesNothingOfTheWindow)
{
    EXPECT_EQ(drawer->widthInWindow(), 0);
    drawer->open();
    EXPECT_EQ(drawer->widthInWindow(), drawer->contentWidth());
}

TEST_F(TableDrawerTest, theSmallestWidthOfTheWindowFollowsTheDrawer)
{
    window.setMinimumWidth(400);
    drawer->open();
    EXPECT_EQ(window.minimumWidth(), 400 + drawer->contentWidth());
    drawer->setContentWidth(150);
    EXPECT_EQ(window.minimumWidth(), 550);
    drawer->close();
    EXPECT_EQ(window.minimumWidth(), 400);
}

TEST_F(TableDrawerTest, closingANarrowWindowGivesTheWidthBackAtOnce)
{
    window.setMinimumWidth(500);
    drawer->open();
    drawer->close();
    EXPECT_EQ(window.width(), 500);
}

TEST_F(TableDrawerTest, theHandleLeavesTheWindowItsSmallestWidth)
{
    window.setMinimumWidth(490);
    drawer->open();
    const int before = drawer->contentWidth();
    QTest::mousePress(handle(), Qt::LeftButton, Qt::NoModifier, QPoint(4, 100));
    QTest::mouseMove(handle(), QPoint(-96, 100));
    QTest::mouseRelease(handle(), Qt::LeftButton, Qt::NoModifier, QPoint(-96, 100));
    EXPECT_EQ(drawer->contentWidth(), before + 10);
    EXPECT_EQ(window.width(), 500 + before);
}

TEST_F(TableDrawerTest, atTheEdgeOfTheScreenTheWindowMovesRatherThanLosingItsControls)
{
    window.setMinimumWidth(500);
    const QRect available = window.screen()->availableGeometry();
    window.move(available.right() - 510, available.top());
    drawer->open();
    EXPECT_EQ(window.width(), 500 + drawer->contentWidth());
    EXPECT_EQ(window.geometry().right(), available.right());
}
