#include "axes/CurrentAxesFixture.h"

#include "archiving/ArchiveTree.h"
#include "platform/Texts.h"

#include <variant>

class CurrentAxesStorage : public CurrentAxesFixture
{};

TEST_F(CurrentAxesStorage, keysStandInTheirOrder)
{
    std::vector<std::string> keys;
    const ArchiveDictionary data = axes.dataForSave();
    for (const auto &[key, value] : data.entries())
        keys.push_back(key);
    const std::vector<std::string> expected{
        "Anchor Position 1", "Anchor Position 2", "Anchor Position 3", "Anchor Position 4",
        "Axis Type",         "Min X Value",       "Max X Value",       "Min Y Value",
        "Max Y Value",       "Log X Axis",        "Log Y Axis",        "Theta Range",
        "CCW Direction"};
    EXPECT_EQ(keys, expected);
}

TEST_F(CurrentAxesStorage, valuesAreSavedInTheirTypes)
{
    axes.setAnchors({{12, 30.5F}, {1, 2}, {3, 4}, {5, 6}});
    choose(outlets.axisTypePopup, 1);
    enter(outlets.maxXTextField, "1234567.89");
    choose(outlets.thetaRangePopup, 3);
    const ArchiveDictionary data = axes.dataForSave();
    EXPECT_EQ(std::get<std::string>(data.find("Anchor Position 1")->value), "{12, 30.5}");
    EXPECT_EQ(std::get<std::string>(data.find("Anchor Position 4")->value), "{5, 6}");
    EXPECT_EQ(std::get<std::int64_t>(data.find("Axis Type")->value), 1);
    EXPECT_EQ(std::get<double>(data.find("Max X Value")->value), 1234567.89);
    EXPECT_EQ(std::get<bool>(data.find("Log X Axis")->value), false);
    EXPECT_EQ(std::get<std::int64_t>(data.find("Theta Range")->value), 3);
    EXPECT_EQ(std::get<bool>(data.find("CCW Direction")->value), true);
}

TEST_F(CurrentAxesStorage, loadedSettingsAreThoseThatWereSaved)
{
    axes.setAnchors({{12, 30.5F}, {1, 2}, {3, 4}, {-5, 6}});
    enter(outlets.minXTextField, "1");
    enter(outlets.maxYTextField, "7.25");
    QTest::keyClick(outlets.logXCheck, Qt::Key_Space);
    choose(outlets.axisTypePopup, 1);
    choose(outlets.thetaRangePopup, 2);
    const ArchiveDictionary data = axes.dataForSave();
    const Anchors saved = anchors();

    axes.setAnchors({{}, {}, {}, {}});
    choose(outlets.axisTypePopup, 2);
    choose(outlets.thetaRangePopup, 0);
    controls.clockwise->click();
    enter(outlets.maxYTextField, "99");
    QTest::keyClick(outlets.logXCheck, Qt::Key_Space);
    ASSERT_TRUE(axes.loadFromData(&data));
    EXPECT_EQ(anchors(), saved);
    EXPECT_EQ(axes.axisType(), 1);
    EXPECT_EQ(axes.minXValue(), 1);
    EXPECT_EQ(axes.maxXValue(), 10);
    EXPECT_EQ(axes.maxYValue(), 7.25);
    EXPECT_TRUE(axes.logX());
    EXPECT_FALSE(axes.logY());
    EXPECT_EQ(axes.thetaRange(), 2);
    EXPECT_TRUE(axes.rotCCW());
    EXPECT_EQ(outlets.axisTypePopup->currentIndex(), 1);
    EXPECT_TRUE(controls.counterClockwise->isChecked());
}

TEST_F(CurrentAxesStorage, loadedValueKeepsSixDigits)
{
    ArchiveDictionary data;
    data.set("Max X Value", {1234567.89});
    data.set("Min Y Value", {123456.5});
    ASSERT_TRUE(axes.loadFromData(&data));
    EXPECT_EQ(axes.maxXValue(), 1234570);
    EXPECT_EQ(outlets.maxXTextField->text(), QStringLiteral("1.23457e+06"));
    // Half of the last digit goes to the even one.
    EXPECT_EQ(axes.minYValue(), 123456);
}

TEST_F(CurrentAxesStorage, emptyDictionaryLoadsAsTheZeroSettings)
{
    axes.setAnchors({{12, 30.5F}, {1, 2}, {3, 4}, {5, 6}});
    choose(outlets.axisTypePopup, 1);
    choose(outlets.thetaRangePopup, 2);
    outlets.logXCheck->setChecked(true);
    const ArchiveDictionary empty;
    ASSERT_TRUE(axes.loadFromData(&empty));
    EXPECT_EQ(anchors(), Anchors{});
    EXPECT_EQ(axes.axisType(), 0);
    EXPECT_EQ(axes.minXValue(), 0);
    EXPECT_EQ(axes.maxXValue(), 0);
    EXPECT_EQ(axes.minYValue(), 0);
    EXPECT_EQ(axes.maxYValue(), 0);
    EXPECT_EQ(outlets.maxXTextField->text(), QStringLiteral("0"));
    EXPECT_FALSE(axes.logX());
    EXPECT_FALSE(axes.logY());
    EXPECT_EQ(axes.thetaRange(), 0);
    EXPECT_FALSE(axes.rotCCW());
    EXPECT_TRUE(controls.clockwise->isChecked());
}

TEST_F(CurrentAxesStorage, withoutDictionaryNothingIsLoaded)
{
    axes.setAnchors({{12, 30.5F}, {1, 2}, {3, 4}, {5, 6}});
    log.clear();
    EXPECT_FALSE(axes.loadFromData(nullptr));
    EXPECT_EQ(axes.anchor1Point(), (FloatPoint{12, 30.5F}));
    EXPECT_TRUE(log.empty());
}

TEST_F(CurrentAxesStorage, unreadablePositionLoadsAsZero)
{
    ArchiveDictionary data;
    data.set("Anchor Position 1", {std::string("somewhere")});
    data.set("Anchor Position 2", {std::string("{1.5, -2}")});
    ASSERT_TRUE(axes.loadFromData(&data));
    EXPECT_EQ(axes.anchor1Point(), FloatPoint{});
    EXPECT_EQ(axes.anchor2Point(), (FloatPoint{1.5F, -2}));
}

TEST_F(CurrentAxesStorage, loadingValidatesNothing)
{
    ArchiveDictionary data;
    data.set("Min X Value", {5.0});
    data.set("Max X Value", {-3.0});
    data.set("Log X Axis", {true});
    ASSERT_TRUE(axes.loadFromData(&data));
    EXPECT_EQ(axes.minXValue(), 5);
    EXPECT_EQ(axes.maxXValue(), -3);
    EXPECT_TRUE(axes.logX());
    EXPECT_TRUE(messages().empty());
}

TEST_F(CurrentAxesStorage, indexOutsideAPopupKeepsItsSelection)
{
    choose(outlets.axisTypePopup, 1);
    choose(outlets.thetaRangePopup, 2);
    for (const std::int64_t strange : {std::int64_t{17}, std::int64_t{-1}}) {
        ArchiveDictionary data;
        data.set("Axis Type", {strange});
        data.set("Theta Range", {strange});
        ASSERT_TRUE(axes.loadFromData(&data));
        EXPECT_EQ(axes.axisType(), 1);
        EXPECT_EQ(outlets.axisTypePopup->currentIndex(), 1);
        EXPECT_EQ(axes.thetaRange(), 2);
    }
}

TEST_F(CurrentAxesStorage, loadingRunsNoActionAndMarksNothing)
{
    ArchiveDictionary data;
    data.set("Axis Type", {std::int64_t{2}});
    data.set("Log X Axis", {true});
    data.set("CCW Direction", {true});
    data.set("Anchor Position 1", {std::string("{20, 30}")});
    ASSERT_TRUE(axes.loadFromData(&data));
    EXPECT_EQ(axes.anchor1Point(), (FloatPoint{20, 30}));
    EXPECT_EQ(log, CallLog{"info"});
    endEvent();
    EXPECT_EQ(document.changeCount(), 0);
    EXPECT_FALSE(undoManager().canUndo());
}

TEST_F(CurrentAxesStorage, loadingRetitlesAndLaysOut)
{
    view.scale = 2;
    view.size = {};
    axes.resetPosition(CurrentAxes::Sender::ImageView);
    ArchiveDictionary data;
    data.set("Axis Type", {std::int64_t{2}});
    data.set("Anchor Position 1", {std::string("{20, 30}")});
    data.set("Anchor Position 2", {std::string("{40, 30}")});
    ASSERT_TRUE(axes.loadFromData(&data));
    EXPECT_EQ(outlets.yAxisBox->title(), texts::localized("RAxis"));
    EXPECT_FALSE(outlets.resetWhole->isEnabled());
    EXPECT_EQ(axes.layout().anchor2Rect.origin, (FloatPoint{75, 55}));
    EXPECT_TRUE(axes.validImage());
}
