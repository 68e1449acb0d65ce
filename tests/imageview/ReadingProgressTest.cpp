#include "imageview/ReadingProgress.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

TEST(ReadingProgress, isHiddenUntilItIsAskedFor)
{
    QWidget host;
    const ReadingProgress progress(host);
    host.show();
    EXPECT_FALSE(progress.isVisible());
}

TEST(ReadingProgress, namesTheFileAndShowsHowFarItIs)
{
    QWidget host;
    host.resize(500, 400);
    host.show();
    ReadingProgress progress(host);
    progress.showFor("scan.png");
    progress.setPercent(40);
    EXPECT_TRUE(progress.isVisible());
    EXPECT_TRUE(progress.findChild<QLabel *>()->text().contains("scan.png"));
    EXPECT_EQ(progress.findChild<QProgressBar *>()->value(), 40);
}

TEST(ReadingProgress, staysInTheMiddle)
{
    QWidget host;
    host.resize(500, 400);
    host.show();
    ReadingProgress progress(host);
    progress.showFor("scan.png");
    host.resize(800, 700);
    QTest::qWait(0);
    EXPECT_NEAR(progress.geometry().center().x(), 400, 2);
    EXPECT_NEAR(progress.geometry().center().y(), 350, 2);
}

TEST(ReadingProgress, itsButtonStops)
{
    QWidget host;
    host.show();
    ReadingProgress progress(host);
    progress.showFor("scan.png");
    const QSignalSpy cancelled(&progress, &ReadingProgress::cancelled);
    QTest::mouseClick(progress.findChild<QPushButton *>("cancelReadingButton"), Qt::LeftButton);
    EXPECT_EQ(cancelled.count(), 1);
}
