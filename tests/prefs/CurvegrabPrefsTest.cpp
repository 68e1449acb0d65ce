#include "prefs/CurvegrabPrefs.h"

#include "platform/NamedColors.h"
#include "prefs/PrefsFixture.h"

#include <QStringList>

#include <limits>
#include <memory>

namespace {

using CurvegrabPrefsTest = PrefsFixture;

class NotedInfoPanel final : public PrefsInfoPanel
{
public:
    void setIsVisible(bool visible) override
    {
        calls += visible ? QStringLiteral("shown") : QStringLiteral("hidden");
    }
    void infoVisibleChanged() override { calls += QStringLiteral("told"); }

    QStringList calls;
};

struct FloatSetting
{
    const char *name;
    void (CurvegrabPrefs::*set)(float);
    float (CurvegrabPrefs::*get)() const;
    float lowest;
    float highest;
};

class FloatSettingOfPrefs : public testing::TestWithParam<FloatSetting>
{
protected:
    float stored(float value)
    {
        (m_prefs.*GetParam().set)(value);
        return (m_prefs.*GetParam().get)();
    }

    QTemporaryDir m_folder;
    UserDefaults m_userDefaults{m_folder.filePath(QStringLiteral("prefs.json"))};
    CurvegrabPrefs m_prefs{m_userDefaults};
};

} // namespace

TEST_F(CurvegrabPrefsTest, aNewStoreIsEmptyAndClean)
{
    EXPECT_FALSE(m_prefs.dirty());
    EXPECT_EQ(m_prefs.axisThick(), 0.0F);
    EXPECT_EQ(m_prefs.axisColor(), namedcolors::white);
    EXPECT_FALSE(m_prefs.copyWithTitle());
    EXPECT_EQ(gCurvegrabPrefs, nullptr);
}

TEST_F(CurvegrabPrefsTest, awakingMakesItTheApplicationsStore)
{
    {
        CurvegrabPrefs prefs(m_userDefaults);
        prefs.awakeFromNib();
        EXPECT_EQ(gCurvegrabPrefs, &prefs);
    }
    EXPECT_EQ(gCurvegrabPrefs, nullptr);
}

TEST_F(CurvegrabPrefsTest, freshUserDefaultsGiveTheFactorySettings)
{
    m_prefs.awakeFromNib();
    EXPECT_EQ(m_prefs.axisColor(), (DeviceColor{0, 1, 0, 1}));
    EXPECT_EQ(m_prefs.axisThick(), 1.5F);
    EXPECT_EQ(m_prefs.axisAnchorSize(), 7.0F);
    EXPECT_EQ(m_prefs.guideColor(), (DeviceColor{1, 0, 0, 1}));
    EXPECT_EQ(m_prefs.guideThick(), 1.0F);
    EXPECT_EQ(m_prefs.guideInterval(), 0.05F);
    EXPECT_EQ(m_prefs.pdfScale(), 4.0F);
    EXPECT_TRUE(m_prefs.copyWithTitle());
    EXPECT_TRUE(m_prefs.saveWithTitle());
    EXPECT_TRUE(m_prefs.infoPanelState());
    EXPECT_TRUE(m_prefs.dirty());
}

TEST_F(CurvegrabPrefsTest, booleansAndColoursAreStoredAsGiven)
{
    const DeviceColor axis{0.1F, 0.2F, 0.3F, 0.4F};
    const DeviceColor guide{1.5F, -0.5F, 0.7F, 0};
    m_prefs.setAxisColor(axis);
    m_prefs.setGuideColor(guide);
    EXPECT_EQ(m_prefs.axisColor(), axis);
    EXPECT_EQ(m_prefs.guideColor(), guide);
    for (const bool value : {true, false}) {
        m_prefs.setCopyWithTitle(value);
        m_prefs.setSaveWithTitle(!value);
        m_prefs.setInfoPanelState(value);
        EXPECT_EQ(m_prefs.copyWithTitle(), value);
        EXPECT_EQ(m_prefs.saveWithTitle(), !value);
        EXPECT_EQ(m_prefs.infoPanelState(), value);
    }
}

TEST_P(FloatSettingOfPrefs, isRaisedToItsLowestAndLoweredToItsHighestValue)
{
    const auto [name, set, get, lowest, highest] = GetParam();
    EXPECT_EQ(stored(lowest / 2), lowest);
    EXPECT_EQ(stored(-1), lowest);
    EXPECT_EQ(stored(lowest), lowest);
    EXPECT_EQ(stored((lowest + highest) / 2), (lowest + highest) / 2);
    EXPECT_EQ(stored(highest), highest);
    EXPECT_EQ(stored(highest * 2), highest);
    EXPECT_EQ(stored(std::numeric_limits<float>::infinity()), highest);
}

TEST_P(FloatSettingOfPrefs, takesWhatIsNoNumberAsItIs)
{
    const float value = stored(std::numeric_limits<float>::quiet_NaN());
    EXPECT_NE(value, value);
}

TEST_P(FloatSettingOfPrefs, marksTheStoreDirty)
{
    EXPECT_FALSE(m_prefs.dirty());
    stored(2);
    EXPECT_TRUE(m_prefs.dirty());
}

INSTANTIATE_TEST_SUITE_P(
    Settings, FloatSettingOfPrefs,
    testing::Values(
        FloatSetting{"axisThick", &CurvegrabPrefs::setAxisThick, &CurvegrabPrefs::axisThick, 1, 5},
        FloatSetting{"axisAnchorSize", &CurvegrabPrefs::setAxisAnchorSize,
                     &CurvegrabPrefs::axisAnchorSize, 3, 15},
        FloatSetting{"guideThick", &CurvegrabPrefs::setGuideThick, &CurvegrabPrefs::guideThick, 1,
                     5},
        FloatSetting{"guideInterval", &CurvegrabPrefs::setGuideInterval,
                     &CurvegrabPrefs::guideInterval, 0.01F, 0.2F},
        FloatSetting{"pdfScale", &CurvegrabPrefs::setPdfScale, &CurvegrabPrefs::pdfScale, 1, 8}),
    [](const auto &tested) { return std::string(tested.param.name); });

TEST_F(CurvegrabPrefsTest, limitsTheWrongWayRoundGiveTheUpperOne)
{
    EXPECT_EQ(CurvegrabPrefs::floatValue(3, 5, 1), 1.0F);
    EXPECT_EQ(CurvegrabPrefs::floatValue(0, 5, 1), 1.0F);
    EXPECT_EQ(CurvegrabPrefs::doubleValue(9, 5, 1), 1.0);
    EXPECT_EQ(CurvegrabPrefs::intValue(3, 5, 1), 1);
}

TEST_F(CurvegrabPrefsTest, everyKindOfNumberIsBroughtIntoItsLimits)
{
    EXPECT_EQ(CurvegrabPrefs::intValue(-7, 1, 5), 1);
    EXPECT_EQ(CurvegrabPrefs::intValue(7, 1, 5), 5);
    EXPECT_EQ(CurvegrabPrefs::intValue(3, 1, 5), 3);
    EXPECT_EQ(CurvegrabPrefs::doubleValue(0.5, 1, 5), 1.0);
    EXPECT_EQ(CurvegrabPrefs::doubleValue(5.5, 1, 5), 5.0);
    const double nothing =
        CurvegrabPrefs::doubleValue(std::numeric_limits<double>::quiet_NaN(), 1, 5);
    EXPECT_NE(nothing, nothing);
}

TEST_F(CurvegrabPrefsTest, defaultPrefsHoldsTheFactorySettingsOnly)
{
    writeFile(R"({"Axis Thickness": 3.0})");
    UserDefaults userDefaults(path());
    m_prefs.awakeFromNib();
    const auto factory = CurvegrabPrefs::defaultPrefs(userDefaults);
    EXPECT_EQ(factory->axisThick(), 1.5F);
    EXPECT_EQ(factory->sizeForPlotPref(factory->plotPrefsForSeries(9)), 8.0F);
    EXPECT_EQ(gCurvegrabPrefs, &m_prefs);
}

TEST_F(CurvegrabPrefsTest, theApplicationsStoreSurvivesAThrowAwayOne)
{
    m_prefs.awakeFromNib();
    CurvegrabPrefs::defaultPrefs(m_userDefaults).reset();
    EXPECT_EQ(gCurvegrabPrefs, &m_prefs);
}

TEST_F(CurvegrabPrefsTest, theInfoPanelIsShownAtLaunchAndItsControllerTold)
{
    NotedInfoPanel panel;
    m_prefs.setInfoPanel(&panel);
    m_prefs.awakeFromNib();
    m_prefs.applicationDidFinishLaunching();
    EXPECT_EQ(panel.calls, QStringList({QStringLiteral("shown"), QStringLiteral("told")}));
}

TEST_F(CurvegrabPrefsTest, aClosedInfoPanelStaysClosedAtLaunch)
{
    NotedInfoPanel panel;
    m_prefs.setInfoPanel(&panel);
    m_prefs.setInfoPanelState(false);
    m_prefs.applicationDidFinishLaunching();
    EXPECT_EQ(panel.calls, QStringList());
}

TEST_F(CurvegrabPrefsTest, launchingWithoutAnInfoPanelIsFine)
{
    m_prefs.awakeFromNib();
    EXPECT_NO_FATAL_FAILURE(m_prefs.applicationDidFinishLaunching());
    EXPECT_TRUE(m_prefs.infoPanelState());
}

TEST_F(CurvegrabPrefsTest, theSharedMenuItemsAreHandedOut)
{
    auto table = std::make_unique<QAction>();
    QAction lockX;
    QAction lockY;
    m_prefs.setShowHideTableMenu(table.get());
    m_prefs.setLockUnlockXMenu(&lockX);
    m_prefs.setLockUnlockYMenu(&lockY);
    EXPECT_EQ(m_prefs.showHideTableMenu(), table.get());
    EXPECT_EQ(m_prefs.lockUnlockXMenu(), &lockX);
    EXPECT_EQ(m_prefs.lockUnlockYMenu(), &lockY);
    table.reset();
    EXPECT_EQ(m_prefs.showHideTableMenu(), nullptr);
}
