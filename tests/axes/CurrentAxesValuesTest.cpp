#include "axes/CurrentAxesFixture.h"

#include "platform/Texts.h"

namespace {

using Messages = std::vector<QString>;

QString text(const char *key) { return texts::localized(key); }

} // namespace

class CurrentAxesValues : public CurrentAxesFixture
{};

TEST_F(CurrentAxesValues, awakeReadsTheControls)
{
    outlets.logXCheck->setChecked(true);
    outlets.thetaRangePopup->setCurrentIndex(3);
    controls.clockwise->setChecked(true);
    outlets.minXTextField->setText(QStringLiteral("12abc"));
    axes.awakeFromNib();
    EXPECT_EQ(axes.axisType(), 0);
    EXPECT_EQ(axes.minXValue(), 12);
    EXPECT_EQ(axes.maxXValue(), 10);
    EXPECT_EQ(axes.minYValue(), 0);
    EXPECT_EQ(axes.maxYValue(), 20);
    EXPECT_TRUE(axes.logX());
    EXPECT_FALSE(axes.logY());
    EXPECT_EQ(axes.thetaRange(), 3);
    EXPECT_FALSE(axes.rotCCW());
    EXPECT_TRUE(axes.validImage());
    EXPECT_EQ(document.changeCount(), 0);
}

TEST_F(CurrentAxesValues, typedValuesAreStored)
{
    enter(outlets.minXTextField, "1.5");
    enter(outlets.maxXTextField, "1,75");
    enter(outlets.minYTextField, "-3e2x");
    enter(outlets.maxYTextField, "12abc");
    EXPECT_EQ(axes.minXValue(), 1.5);
    EXPECT_EQ(axes.maxXValue(), 1.75);
    EXPECT_EQ(axes.minYValue(), -300);
    EXPECT_EQ(axes.maxYValue(), 12);
    EXPECT_TRUE(messages().empty());
}

TEST_F(CurrentAxesValues, everyEditMarksTheDocumentEvenWithoutAChange)
{
    enter(outlets.minXTextField, "0");
    EXPECT_EQ(document.changeCount(), 1);
    QTest::keyClick(outlets.minXTextField, Qt::Key_Return);
    EXPECT_EQ(document.changeCount(), 2);
}

TEST_F(CurrentAxesValues, valueIsTakenWhenTheFocusLeavesItsField)
{
    showWindow();
    outlets.maxXTextField->setFocus();
    outlets.maxXTextField->selectAll();
    QTest::keyClicks(outlets.maxXTextField, QStringLiteral("42"));
    outlets.minYTextField->setFocus();
    EXPECT_EQ(axes.maxXValue(), 42);
    EXPECT_EQ(document.changeCount(), 1);
}

TEST_F(CurrentAxesValues, minimumAboveMaximumRaisesTheMaximum)
{
    enter(outlets.maxXTextField, "3");
    enter(outlets.minXTextField, "5");
    EXPECT_EQ(axes.maxXValue(), 15);
    EXPECT_EQ(outlets.maxXTextField->text(), QStringLiteral("15"));
    EXPECT_EQ(messages(), Messages{text("SmallMax")});
}

TEST_F(CurrentAxesValues, maximumBelowMinimumLowersTheMinimum)
{
    enter(outlets.minYTextField, "5");
    enter(outlets.maxYTextField, "3");
    EXPECT_EQ(axes.minYValue(), -7);
    EXPECT_EQ(outlets.minYTextField->text(), QStringLiteral("-7"));
    EXPECT_EQ(messages(), Messages{text("LargeMin")});
}

TEST_F(CurrentAxesValues, negativeLogMinimumIsAcceptedAndReplaced)
{
    enter(outlets.minXTextField, "1");
    QTest::keyClick(outlets.logXCheck, Qt::Key_Space);
    enter(outlets.minXTextField, "-5");
    EXPECT_EQ(axes.minXValue(), 0.1);
    EXPECT_EQ(outlets.minXTextField->text(), QStringLiteral("0.1"));
    EXPECT_EQ(messages(), Messages{text("InvalidLog")});
}

TEST_F(CurrentAxesValues, logFlagOfTheOtherAxisDoesNotCount)
{
    enter(outlets.minXTextField, "1");
    QTest::keyClick(outlets.logXCheck, Qt::Key_Space);
    enter(outlets.minYTextField, "-5");
    EXPECT_EQ(axes.minYValue(), -5);
    EXPECT_TRUE(messages().empty());
}

TEST_F(CurrentAxesValues, twoMessagesAreAskedForAtOnceInTheirOrder)
{
    enter(outlets.minXTextField, "0.01");
    enter(outlets.maxXTextField, "0.05");
    QTest::keyClick(outlets.logXCheck, Qt::Key_Space);
    enter(outlets.minXTextField, "0");
    EXPECT_EQ(axes.minXValue(), 0.1);
    EXPECT_EQ(axes.maxXValue(), 1.0);
    EXPECT_EQ(outlets.maxXTextField->text(), QStringLiteral("1"));
    EXPECT_EQ(messages(), (Messages{text("InvalidLog"), text("SmallMax")}));
    EXPECT_EQ(document.sheets().waitingCount(), 2U);
}

TEST_F(CurrentAxesValues, replacedValuesStandWhenTheSheetIsShown)
{
    log.clear();
    enter(outlets.minXTextField, "50");
    // Nothing waits for an answer: the action has gone to its end.
    EXPECT_EQ(document.sheets().waitingCount(), 1U);
    EXPECT_EQ(axes.maxXValue(), 60);
    EXPECT_EQ(outlets.maxXTextField->text(), QStringLiteral("60"));
    EXPECT_EQ(log, CallLog{"change"});
}

TEST_F(CurrentAxesValues, sheetHasItsTitleAndOneButton)
{
    enter(outlets.minXTextField, "50");
    ASSERT_EQ(document.sheets().presented().size(), 1U);
    const Sheet &sheet = document.sheets().presented().front();
    EXPECT_EQ(sheet.message, text("InvalidSetting"));
    EXPECT_EQ(sheet.defaultButton, text("OK"));
    EXPECT_TRUE(sheet.alternateButton.isEmpty());
}

TEST_F(CurrentAxesValues, endOfTheSheetFocusesTheReplacedFieldWithItsTextSelected)
{
    showWindow();
    outlets.minXTextField->setFocus();
    enter(outlets.minXTextField, "50");
    EXPECT_TRUE(outlets.minXTextField->hasFocus());
    ASSERT_TRUE(document.sheets().answerFirst());
    EXPECT_TRUE(outlets.maxXTextField->hasFocus());
    EXPECT_EQ(outlets.maxXTextField->selectedText(), QStringLiteral("60"));
}

TEST_F(CurrentAxesValues, everySheetFocusesItsOwnFieldInTurn)
{
    showWindow();
    enter(outlets.minXTextField, "0.01");
    enter(outlets.maxXTextField, "0.05");
    QTest::keyClick(outlets.logXCheck, Qt::Key_Space);
    enter(outlets.minXTextField, "0");
    outlets.sortCheck->setFocus();
    ASSERT_TRUE(document.sheets().answerFirst());
    EXPECT_TRUE(outlets.minXTextField->hasFocus());
    ASSERT_TRUE(document.sheets().answerFirst());
    EXPECT_TRUE(outlets.maxXTextField->hasFocus());
}

TEST_F(CurrentAxesValues, endOfTheSheetBringsTheAxisPageBackBeforeFocusing)
{
    showWindow();
    enter(outlets.minXTextField, "50");
    document.leaveAxisSettingMode();
    outlets.sortCheck->setFocus();
    log.clear();
    ASSERT_TRUE(document.sheets().answerFirst());
    EXPECT_EQ(log, CallLog{"forceAxisSettingMode"});
    EXPECT_TRUE(document.isInAxisSettingMode());
    EXPECT_TRUE(outlets.maxXTextField->hasFocus());
}

TEST_F(CurrentAxesValues, endOfTheSheetStaysOnTheAxisPage)
{
    enter(outlets.minXTextField, "50");
    log.clear();
    ASSERT_TRUE(document.sheets().answerFirst());
    EXPECT_TRUE(log.empty());
}

TEST_F(CurrentAxesValues, messageWithoutFieldLeavesTheFocus)
{
    showWindow();
    outlets.sortCheck->setFocus();
    axes.showBadValueMessage("InvalidLog", nullptr);
    ASSERT_TRUE(document.sheets().answerFirst());
    EXPECT_TRUE(outlets.sortCheck->hasFocus());
}

TEST_F(CurrentAxesValues, logSwitchedOnReplacesTheMinimum)
{
    enter(outlets.minXTextField, "-1");
    enter(outlets.maxXTextField, "50");
    QTest::keyClick(outlets.logXCheck, Qt::Key_Space);
    EXPECT_TRUE(axes.logX());
    EXPECT_FALSE(axes.logY());
    EXPECT_EQ(axes.minXValue(), 0.1);
    EXPECT_EQ(axes.maxXValue(), 50);
    EXPECT_EQ(outlets.minXTextField->text(), QStringLiteral("0.1"));
    EXPECT_EQ(messages(), Messages{text("InvalidLog")});
}

TEST_F(CurrentAxesValues, logSwitchedOnWithTwoBadValuesPointsAtTheMaximum)
{
    showWindow();
    enter(outlets.minYTextField, "-2");
    enter(outlets.maxYTextField, "-1");
    QTest::keyClick(outlets.logYCheck, Qt::Key_Space);
    EXPECT_TRUE(axes.logY());
    EXPECT_EQ(axes.minYValue(), 0.1);
    EXPECT_EQ(axes.maxYValue(), 100);
    EXPECT_EQ(outlets.maxYTextField->text(), QStringLiteral("100"));
    EXPECT_EQ(messages(), Messages{text("InvalidLog")});
    ASSERT_TRUE(document.sheets().answerFirst());
    EXPECT_TRUE(outlets.maxYTextField->hasFocus());
}

TEST_F(CurrentAxesValues, logSwitchedOffChangesNoValue)
{
    enter(outlets.minXTextField, "1");
    QTest::keyClick(outlets.logXCheck, Qt::Key_Space);
    QTest::keyClick(outlets.logXCheck, Qt::Key_Space);
    EXPECT_FALSE(axes.logX());
    EXPECT_EQ(axes.minXValue(), 1);
    EXPECT_EQ(axes.maxXValue(), 10);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(document.changeCount(), 3);
}

TEST_F(CurrentAxesValues, logCheckSetByTheProgramIsNoAction)
{
    outlets.logXCheck->setChecked(true);
    outlets.thetaRangePopup->setCurrentIndex(2);
    outlets.axisTypePopup->setCurrentIndex(2);
    controls.clockwise->setChecked(true);
    outlets.minXTextField->setDoubleValue(77);
    EXPECT_FALSE(axes.logX());
    EXPECT_EQ(axes.thetaRange(), 0);
    EXPECT_EQ(axes.axisType(), 0);
    EXPECT_TRUE(axes.rotCCW());
    EXPECT_EQ(axes.minXValue(), 0);
    EXPECT_EQ(document.changeCount(), 0);
}

TEST_F(CurrentAxesValues, thetaRangeFollowsItsPopup)
{
    choose(outlets.thetaRangePopup, 2);
    EXPECT_EQ(axes.thetaRange(), 2);
    EXPECT_GT(document.changeCount(), 0);
    EXPECT_TRUE(messages().empty());
}

TEST_F(CurrentAxesValues, rotationDirectionFollowsItsRadioButtons)
{
    showWindow();
    click(controls.clockwise);
    EXPECT_FALSE(axes.rotCCW());
    EXPECT_EQ(document.changeCount(), 1);
    click(controls.counterClockwise);
    EXPECT_TRUE(axes.rotCCW());
    EXPECT_EQ(document.changeCount(), 2);
}

TEST_F(CurrentAxesValues, rotationDirectionFollowsTheArrowKeys)
{
    showWindow();
    controls.counterClockwise->setFocus();
    QTest::keyClick(controls.counterClockwise, Qt::Key_Down);
    EXPECT_TRUE(controls.clockwise->isChecked());
    EXPECT_FALSE(axes.rotCCW());
    EXPECT_EQ(document.changeCount(), 1);
}
