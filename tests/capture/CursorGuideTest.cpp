#include "capture/CursorGuide.h"

#include "GuideFixture.h"

namespace {

using CursorGuideDataPoint = CursorGuideFixture;
using CursorGuideModes = CursorGuideFixture;
using CursorGuideLocks = CursorGuideFixture;

} // namespace

// --- The point that a click captures

TEST_F(CursorGuideDataPoint, isTheGraphValueAtTheUnscaledPosition)
{
    guide.setConverter(tenths());
    const FloatPoint point = guide.dataPointAt({100, 60}, 2);
    EXPECT_FLOAT_EQ(point.x, 5);
    EXPECT_FLOAT_EQ(point.y, 3);
}

TEST_F(CursorGuideDataPoint, withoutConverterIsZero)
{
    EXPECT_EQ(guide.dataPointAt({100, 60}, 2), (FloatPoint{0, 0}));
}

TEST_F(CursorGuideDataPoint, takesTheLockedXNarrowedToFloat)
{
    guide.setConverter(tenths());
    click(lockXCheck);
    currentX->setStringValue("0.1");
    const FloatPoint point = guide.dataPointAt({100, 60}, 1);
    EXPECT_EQ(double(point.x), 0.10000000149011612);
    EXPECT_FLOAT_EQ(point.y, 6);
}

TEST_F(CursorGuideDataPoint, takesTheLockedYNarrowedToFloat)
{
    guide.setConverter(tenths());
    click(lockYCheck);
    currentY->setStringValue("16777217");
    const FloatPoint point = guide.dataPointAt({100, 60}, 1);
    EXPECT_FLOAT_EQ(point.x, 10);
    EXPECT_EQ(point.y, 16777216.0F);
}

TEST_F(CursorGuideDataPoint, takesTheNumberThatALockedFieldBeginsWith)
{
    guide.setConverter(tenths());
    click(lockXCheck);
    click(lockYCheck);
    currentX->setStringValue(" 12abc");
    currentY->setStringValue("rubbish");
    EXPECT_EQ(guide.dataPointAt({100, 60}, 1), (FloatPoint{12, 0}));
}

TEST_F(CursorGuideDataPoint, ofTheSteppedModeIsWhatTheFieldShows)
{
    guide.setConverter(tenths());
    initialX->setStringValue("123456");
    chooseMode(1);
    EXPECT_EQ(currentX->text(), "1.2346e+05");
    EXPECT_EQ(guide.dataPointAt({0, 0}, 1).x, 123460.0F);
}

// --- The automatic X

TEST_F(CursorGuideModes, steppedXCountsThePointsOfTheSeries)
{
    guide.setConverter(tenths());
    initialX->setStringValue("0");
    stepX->setStringValue("0.5");
    chooseMode(1);
    series.points = 3;
    guide.setAutoXValue();
    EXPECT_EQ(currentX->text(), "       1.5");
    EXPECT_EQ(guide.dataPointAt({333, 222}, 1).x, 1.5F);
}

TEST_F(CursorGuideModes, steppedXIsComputedInDoubles)
{
    initialX->setStringValue("-0.3");
    stepX->setStringValue("0.1");
    chooseMode(1);
    series.points = 3;
    guide.setAutoXValue();
    // 3 * 0.1 - 0.3 in doubles is not quite zero.
    EXPECT_EQ(currentX->text(), "5.5511e-17");
}

TEST_F(CursorGuideModes, steppedLocksXAndItsControls)
{
    chooseMode(1);
    EXPECT_EQ(guide.autoXMode(), 1);
    EXPECT_TRUE(initialX->isEnabled());
    EXPECT_TRUE(stepX->isEnabled());
    EXPECT_TRUE(lockXCheck->isChecked());
    EXPECT_FALSE(lockXCheck->isEnabled());
    EXPECT_TRUE(guide.lockX());
}

TEST_F(CursorGuideModes, steppedShowsXInAFieldThatCannotBeTypedIn)
{
    click(lockXCheck);
    chooseMode(1);
    EXPECT_TRUE(currentX->isReadOnly());
    EXPECT_TRUE(currentX->isEnabled());
    EXPECT_EQ(currentX->property("bezel").toString(), "rounded");
}

TEST_F(CursorGuideModes, steppedMarksForTheLockAndForTheMode)
{
    chooseMode(1);
    EXPECT_EQ(document.edits, 2);
}

TEST_F(CursorGuideModes, noneFreesXAndLeavesTheLookOfTheField)
{
    click(lockXCheck);
    chooseMode(0);
    EXPECT_FALSE(guide.lockX());
    EXPECT_FALSE(lockXCheck->isChecked());
    EXPECT_TRUE(lockXCheck->isEnabled());
    EXPECT_FALSE(initialX->isEnabled());
    EXPECT_FALSE(stepX->isEnabled());
    EXPECT_FALSE(currentX->isReadOnly());
    EXPECT_EQ(currentX->property("bezel").toString(), "square");
}

TEST_F(CursorGuideModes, noneMarksOnce)
{
    chooseMode(0);
    EXPECT_EQ(document.edits, 1);
}

TEST_F(CursorGuideModes, noneComputesNoX)
{
    guide.setConverter(tenths());
    guide.drawGuide({20, 20}, 1);
    currentX->setStringValue("7");
    guide.setAutoXValue();
    EXPECT_EQ(currentX->text(), "7");
    EXPECT_FALSE(guide.forceRefresh());
}

TEST_F(CursorGuideModes, equalLeavesXFreeInTheFirstSeries)
{
    series.series = 0;
    series.firstX = 42;
    currentX->setStringValue("7");
    chooseMode(2);
    EXPECT_FALSE(guide.lockX());
    EXPECT_FALSE(lockXCheck->isChecked());
    EXPECT_TRUE(lockXCheck->isEnabled());
    EXPECT_EQ(currentX->text(), "7");
    EXPECT_TRUE(guide.forceRefresh());
}

TEST_F(CursorGuideModes, equalLocksXToTheFirstSeriesInTheOthers)
{
    series.firstX = 2.5;
    chooseMode(2);
    series.series = 1;
    guide.seriesChanged();
    EXPECT_TRUE(guide.lockX());
    EXPECT_TRUE(lockXCheck->isChecked());
    EXPECT_FALSE(lockXCheck->isEnabled());
    EXPECT_TRUE(currentX->isReadOnly());
    EXPECT_EQ(currentX->text(), "       2.5");
    EXPECT_EQ(guide.dataPointAt({9, 9}, 1).x, 2.5F);
}

TEST_F(CursorGuideModes, equalDisablesTheStepFields)
{
    chooseMode(1);
    chooseMode(2);
    EXPECT_FALSE(initialX->isEnabled());
    EXPECT_FALSE(stepX->isEnabled());
}

TEST_F(CursorGuideModes, equalFreesXAgainBackInTheFirstSeries)
{
    series.series = 3;
    chooseMode(2);
    series.series = 0;
    guide.seriesChanged();
    EXPECT_FALSE(guide.lockX());
    EXPECT_FALSE(lockXCheck->isChecked());
    EXPECT_TRUE(lockXCheck->isEnabled());
}

TEST_F(CursorGuideModes, equalTitlesTheLockCommandAfterTheSeries)
{
    guide.setConverter(tenths());
    chooseMode(2);
    EXPECT_EQ(menu.x, texts::localized("LockXValue"));
    series.series = 1;
    guide.seriesChanged();
    EXPECT_EQ(menu.x, texts::localized("UnlockXValue"));
    series.series = 0;
    guide.seriesChanged();
    EXPECT_EQ(menu.x, texts::localized("LockXValue"));
}

TEST_F(CursorGuideModes, equalMarksForTheLockTheSeriesAndTheMode)
{
    series.series = 1;
    chooseMode(2);
    EXPECT_EQ(document.edits, 3);
}

TEST_F(CursorGuideModes, anotherSeriesMarksTheDocumentInEveryMode)
{
    guide.seriesChanged();
    EXPECT_EQ(document.edits, 1);
}

TEST_F(CursorGuideModes, anotherSeriesUpdatesTheSteppedX)
{
    stepX->setStringValue("2");
    chooseMode(1);
    series.points = 4;
    guide.seriesChanged();
    EXPECT_EQ(currentX->text(), "         8");
    EXPECT_TRUE(guide.lockX());
}

TEST_F(CursorGuideModes, followTheUsersChoiceInThePopUp)
{
    autoXModePopUp->setFocus();
    QTest::keyClick(autoXModePopUp, Qt::Key_Down);
    EXPECT_EQ(guide.autoXMode(), 1);
    EXPECT_TRUE(guide.lockX());
}

TEST_F(CursorGuideModes, doNotFollowAChoiceByProgram)
{
    autoXModePopUp->setCurrentIndex(1);
    EXPECT_EQ(guide.autoXMode(), 0);
    EXPECT_EQ(document.edits, 0);
}

TEST_F(CursorGuideModes, enteringTheInitialValueUpdatesXAndMarksOnce)
{
    chooseMode(1);
    document.edits = 0;
    initialX->clear();
    QTest::keyClicks(initialX, "12");
    QTest::keyClick(initialX, Qt::Key_Return);
    EXPECT_EQ(currentX->text(), "        12");
    EXPECT_EQ(document.edits, 1);
}

TEST_F(CursorGuideModes, enteringTheStepUpdatesXAndMarksOnce)
{
    chooseMode(1);
    series.points = 2;
    document.edits = 0;
    stepX->clear();
    QTest::keyClicks(stepX, "0,25");
    QTest::keyClick(stepX, Qt::Key_Return);
    EXPECT_EQ(currentX->text(), "       0.5");
    EXPECT_EQ(document.edits, 1);
}

// --- The locks

TEST_F(CursorGuideLocks, lockedXCanBeTyped)
{
    click(lockXCheck);
    EXPECT_TRUE(guide.lockX());
    EXPECT_FALSE(currentX->isReadOnly());
    EXPECT_TRUE(currentX->hasFrame());
    EXPECT_EQ(currentX->property("bezel").toString(), "square");
    EXPECT_EQ(document.edits, 1);
}

TEST_F(CursorGuideLocks, unlockedXCannotBeTyped)
{
    click(lockXCheck);
    click(lockXCheck);
    EXPECT_FALSE(guide.lockX());
    EXPECT_TRUE(currentX->isReadOnly());
    EXPECT_TRUE(currentX->isEnabled());
    EXPECT_FALSE(currentX->hasFrame());
    EXPECT_EQ(currentX->property("bezel").toString(), "rounded");
    EXPECT_EQ(document.edits, 2);
}

TEST_F(CursorGuideLocks, lockOfYTouchesYOnly)
{
    click(lockYCheck);
    EXPECT_TRUE(guide.lockY());
    EXPECT_FALSE(guide.lockX());
    EXPECT_FALSE(currentY->isReadOnly());
    EXPECT_TRUE(currentX->isReadOnly());
    click(lockYCheck);
    EXPECT_FALSE(guide.lockY());
    EXPECT_TRUE(currentY->isReadOnly());
}

TEST_F(CursorGuideLocks, fieldKeepsItsHeightWhenItsFrameGoes)
{
    const int unlocked = currentX->height();
    click(lockXCheck);
    QTest::qWait(0);
    EXPECT_EQ(currentX->height(), unlocked);
}

TEST_F(CursorGuideLocks, unlockedFieldKeepsTheTextColourOfTheWindow)
{
    QPalette dark;
    dark.setColor(QPalette::Text, Qt::yellow);
    window.setPalette(dark);
    EXPECT_EQ(currentX->palette().color(QPalette::Text), QColor(Qt::yellow));
}

TEST_F(CursorGuideLocks, aCheckStateSetByProgramIsNoAction)
{
    lockXCheck->setChecked(true);
    EXPECT_FALSE(guide.lockX());
    EXPECT_EQ(document.edits, 0);
}

TEST_F(CursorGuideLocks, enteringALockedValueMarksTheDocument)
{
    click(lockXCheck);
    click(lockYCheck);
    document.edits = 0;
    QTest::keyClicks(currentX, "5");
    QTest::keyClick(currentX, Qt::Key_Return);
    EXPECT_EQ(document.edits, 1);
    QTest::keyClicks(currentY, "6");
    QTest::keyClick(currentY, Qt::Key_Return);
    EXPECT_EQ(document.edits, 2);
}

TEST_F(CursorGuideLocks, menuCommandsFlipTheChecks)
{
    guide.simulateLockX();
    EXPECT_TRUE(lockXCheck->isChecked());
    EXPECT_TRUE(guide.lockX());
    guide.simulateLockX();
    EXPECT_FALSE(lockXCheck->isChecked());
    EXPECT_FALSE(guide.lockX());
    guide.simulateLockY();
    EXPECT_TRUE(lockYCheck->isChecked());
    EXPECT_TRUE(guide.lockY());
    guide.simulateLockY();
    EXPECT_FALSE(lockYCheck->isChecked());
    EXPECT_FALSE(guide.lockY());
}

TEST_F(CursorGuideLocks, titlesWithoutConverterSayLockEvenWhenLocked)
{
    click(lockXCheck);
    click(lockYCheck);
    EXPECT_EQ(menu.x, texts::localized("LockXValue"));
    EXPECT_EQ(menu.y, texts::localized("LockYValue"));
}

TEST_F(CursorGuideLocks, titlesOfStraightAxesFollowTheLocks)
{
    guide.setConverter(tenths());
    guide.lockStateChanged();
    EXPECT_EQ(menu.x, texts::localized("LockXValue"));
    EXPECT_EQ(menu.y, texts::localized("LockYValue"));
    click(lockXCheck);
    EXPECT_EQ(menu.x, texts::localized("UnlockXValue"));
    EXPECT_EQ(menu.y, texts::localized("LockYValue"));
    click(lockYCheck);
    EXPECT_EQ(menu.y, texts::localized("UnlockYValue"));
}

TEST_F(CursorGuideLocks, titlesOfPolarAxesFollowTheLocks)
{
    guide.setConverter(degrees());
    guide.lockStateChanged();
    EXPECT_EQ(menu.x, texts::localized("LockTValue"));
    EXPECT_EQ(menu.y, texts::localized("LockRValue"));
    click(lockXCheck);
    click(lockYCheck);
    EXPECT_EQ(menu.x, texts::localized("UnlockTValue"));
    EXPECT_EQ(menu.y, texts::localized("UnlockRValue"));
}

TEST_F(CursorGuideLocks, titlesHaveTexts)
{
    for (const char *key : {"LockXValue", "UnlockXValue", "LockTValue", "UnlockTValue",
                            "LockYValue", "UnlockYValue", "LockRValue", "UnlockRValue"})
        EXPECT_NE(texts::localized(key), QString::fromLatin1(key));
}
