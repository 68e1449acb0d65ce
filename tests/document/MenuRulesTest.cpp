#include "document/MenuRules.h"

#include <gtest/gtest.h>

using namespace menurules;

namespace {

State digitizing()
{
    State state;
    state.hasImage = true;
    state.inAxisSettingMode = false;
    return state;
}

State settingAxes()
{
    State state;
    state.hasImage = true;
    state.inAxisSettingMode = true;
    return state;
}

} // namespace

TEST(MenuRules, aTagWithoutRuleIsAlwaysEnabled)
{
    EXPECT_TRUE(validateMenuItem(0, State{}));
    EXPECT_TRUE(validateMenuItem(4711, State{}));
}

TEST(MenuRules, commandsOnSelectedSeriesNeedTheShownTable)
{
    State state;
    state.numSelectedSeries = 2;
    for (const int tag : {7001, 7003, 7103}) {
        state.tableShown = false;
        EXPECT_FALSE(validateMenuItem(tag, state)) << tag;
        state.tableShown = true;
        EXPECT_TRUE(validateMenuItem(tag, state)) << tag;
    }
}

TEST(MenuRules, commandsOnSelectedSeriesNeedASelection)
{
    State state;
    state.tableShown = true;
    for (const int tag : {7001, 7003, 7103})
        EXPECT_FALSE(validateMenuItem(tag, state)) << tag;
}

TEST(MenuRules, pasteNeedsAPasteboardThatIsAccepted)
{
    State state;
    EXPECT_FALSE(validateMenuItem(7002, state));
    state.acceptsPasteboard = true;
    EXPECT_TRUE(validateMenuItem(7002, state));
}

TEST(MenuRules, axisCommandsNeedAxisSettingMode)
{
    EXPECT_TRUE(validateMenuItem(7090, State{}));
    EXPECT_FALSE(validateMenuItem(7090, digitizing()));
}

TEST(MenuRules, pictureCommandsNeedAPicture)
{
    for (const int tag : {7100, 7101, 8103, 8104}) {
        EXPECT_FALSE(validateMenuItem(tag, State{})) << tag;
        EXPECT_TRUE(validateMenuItem(tag, digitizing())) << tag;
    }
}

TEST(MenuRules, saveAllNeedsASeriesWithPoints)
{
    State state;
    EXPECT_FALSE(validateMenuItem(7102, state));
    state.numValidSeries = 1;
    EXPECT_TRUE(validateMenuItem(7102, state));
}

TEST(MenuRules, lockXNeedsDigitizingAndAFreeX)
{
    State state = digitizing();
    EXPECT_TRUE(validateMenuItem(8000, state));
    state.autoXMode = 1;
    EXPECT_FALSE(validateMenuItem(8000, state));
    state.autoXMode = 2;
    EXPECT_TRUE(validateMenuItem(8000, state));
    state.currentSeries = 1;
    EXPECT_FALSE(validateMenuItem(8000, state));
    EXPECT_FALSE(validateMenuItem(8000, settingAxes()));
}

TEST(MenuRules, lockYNeedsDigitizing)
{
    State state = digitizing();
    state.autoXMode = 1;
    EXPECT_TRUE(validateMenuItem(8001, state));
    EXPECT_FALSE(validateMenuItem(8001, settingAxes()));
}

TEST(MenuRules, nextSeriesStopsAtTheLast)
{
    State state = digitizing();
    state.currentSeries = 8;
    EXPECT_TRUE(validateMenuItem(8020, state));
    state.currentSeries = 9;
    EXPECT_FALSE(validateMenuItem(8020, state));
    EXPECT_FALSE(validateMenuItem(8020, settingAxes()));
}

TEST(MenuRules, previousSeriesStopsAtTheFirst)
{
    State state = digitizing();
    state.currentSeries = 1;
    EXPECT_TRUE(validateMenuItem(8021, state));
    state.currentSeries = 0;
    EXPECT_FALSE(validateMenuItem(8021, state));
    state = settingAxes();
    state.currentSeries = 1;
    EXPECT_FALSE(validateMenuItem(8021, state));
}

TEST(MenuRules, axisCommandsOnThePictureNeedBoth)
{
    State withoutPicture;
    for (const int tag : {8030, 8031, 8110, 8111}) {
        EXPECT_TRUE(validateMenuItem(tag, settingAxes())) << tag;
        EXPECT_FALSE(validateMenuItem(tag, digitizing())) << tag;
        EXPECT_FALSE(validateMenuItem(tag, withoutPicture)) << tag;
    }
}

TEST(MenuRules, wholePictureIsNotForPolarAxes)
{
    State state = settingAxes();
    state.axisType = 2;
    EXPECT_FALSE(validateMenuItem(8031, state));
    EXPECT_TRUE(validateMenuItem(8030, state));
}

TEST(MenuRules, zoomCommandsAskTheView)
{
    State state = digitizing();
    for (const int tag : {8100, 8101, 8102})
        EXPECT_FALSE(validateMenuItem(tag, state)) << tag;
    state.canZoomToActual = true;
    EXPECT_TRUE(validateMenuItem(8100, state));
    EXPECT_FALSE(validateMenuItem(8101, state));
    state.canZoomIn = true;
    EXPECT_TRUE(validateMenuItem(8101, state));
    EXPECT_FALSE(validateMenuItem(8102, state));
    state.canZoomOut = true;
    EXPECT_TRUE(validateMenuItem(8102, state));
}
