#include "prefs/CurvegrabPrefs.h"

#include "platform/NamedColors.h"
#include "prefs/PrefsFixture.h"

#include <array>
#include <limits>

namespace {

class PlotPreferencesTest : public PrefsFixture
{
protected:
    /// Loads a stored list of `count` styles, each of size 3.5.
    void loadStyles(int count)
    {
        QByteArray styles;
        for (int i = 0; i < count; ++i)
            styles += QByteArray(i > 0 ? ", " : "") + R"({"Plot Size": 3.5})";
        writeFile(R"({"MutArray: Plot Preferences": [)" + styles + "]}");
        m_userDefaults = UserDefaults(path());
        m_prefs.awakeFromNib();
        m_prefs.savePreferences();
    }

    float sizeOf(int series) const
    {
        return CurvegrabPrefs::sizeForPlotPref(m_prefs.plotPrefsForSeries(series));
    }
};

constexpr std::array defaultColors{namedcolors::orange,  namedcolors::magenta, namedcolors::green,
                                   namedcolors::brown,   namedcolors::purple,  namedcolors::orange,
                                   namedcolors::magenta, namedcolors::green,   namedcolors::brown,
                                   namedcolors::purple};
constexpr std::array defaultShapes{0, 1, 2, 3, 0, 1, 2, 3, 0, 1};

} // namespace

TEST_F(PlotPreferencesTest, theTenDefaultsCycleColourAndShapeWithDifferentPeriods)
{
    m_prefs.setDefaults();
    for (int series = 0; series < 10; ++series) {
        const auto index = static_cast<std::size_t>(series);
        const PrefsDictionary style = m_prefs.plotPrefsForSeries(series);
        EXPECT_EQ(CurvegrabPrefs::colorForPlotPref(style), defaultColors.at(index)) << series;
        EXPECT_EQ(CurvegrabPrefs::shapeForPlotPref(style), defaultShapes.at(index)) << series;
        EXPECT_EQ(CurvegrabPrefs::sizeForPlotPref(style), 8.0F) << series;
        EXPECT_EQ(CurvegrabPrefs::thicknessForPlotPref(style), 2.0F) << series;
    }
}

TEST_F(PlotPreferencesTest, aStyleHasItsFourKeys)
{
    EXPECT_EQ(CurvegrabPrefs::newPlotPrefsForSeries(0).keys(),
              QStringList({QStringLiteral("Plot Color"), QStringLiteral("Plot Shape"),
                           QStringLiteral("Plot Size"), QStringLiteral("Plot Thickness")}));
}

TEST_F(PlotPreferencesTest, newStylesBeyondTheTenHaveNoColour)
{
    for (const int series : {-1, 10, 13}) {
        const PrefsDictionary style = CurvegrabPrefs::newPlotPrefsForSeries(series);
        EXPECT_FALSE(style.contains(QStringLiteral("Plot Color"))) << series;
        EXPECT_EQ(CurvegrabPrefs::colorForPlotPref(style), namedcolors::white) << series;
        EXPECT_EQ(CurvegrabPrefs::sizeForPlotPref(style), 8.0F) << series;
    }
}

TEST_F(PlotPreferencesTest, theShapeOfANewStyleKeepsTheSignOfTheSeries)
{
    EXPECT_EQ(CurvegrabPrefs::shapeForPlotPref(CurvegrabPrefs::newPlotPrefsForSeries(-1)), -1);
    EXPECT_EQ(CurvegrabPrefs::shapeForPlotPref(CurvegrabPrefs::newPlotPrefsForSeries(-7)), -3);
    EXPECT_EQ(CurvegrabPrefs::shapeForPlotPref(CurvegrabPrefs::newPlotPrefsForSeries(13)), 1);
}

TEST_F(PlotPreferencesTest, aNegativeSeriesHasTheFactoryStyleOfTheFirst)
{
    loadStyles(10);
    EXPECT_EQ(m_prefs.plotPrefsForSeries(-3), CurvegrabPrefs::newPlotPrefsForSeries(0));
}

TEST_F(PlotPreferencesTest, aSeriesBeyondTheTenRepeatsTheFactoryStylesNotTheUsers)
{
    loadStyles(10);
    EXPECT_EQ(sizeOf(3), 3.5F);
    const PrefsDictionary style = m_prefs.plotPrefsForSeries(13);
    EXPECT_EQ(style, CurvegrabPrefs::newPlotPrefsForSeries(3));
    EXPECT_EQ(CurvegrabPrefs::colorForPlotPref(style), namedcolors::brown);
    EXPECT_EQ(CurvegrabPrefs::shapeForPlotPref(style), 3);
}

TEST_F(PlotPreferencesTest, aLongerStoredListIsReadToItsEnd)
{
    loadStyles(12);
    EXPECT_EQ(sizeOf(11), 3.5F);
    EXPECT_EQ(sizeOf(12), 8.0F);
}

TEST_F(PlotPreferencesTest, aShorterStoredListIsContinuedWithTheFactoryStyles)
{
    loadStyles(5);
    EXPECT_EQ(sizeOf(4), 3.5F);
    EXPECT_EQ(m_prefs.plotPrefsForSeries(5), CurvegrabPrefs::newPlotPrefsForSeries(5));
}

TEST_F(PlotPreferencesTest, withoutAnyListTheFactoryStylesHold)
{
    EXPECT_EQ(m_prefs.plotPrefsForSeries(7), CurvegrabPrefs::newPlotPrefsForSeries(7));
}

TEST_F(PlotPreferencesTest, aStyleOfAnotherFormReadsAsNothing)
{
    writeFile(R"({"MutArray: Plot Preferences": [5]})");
    m_userDefaults = UserDefaults(path());
    m_prefs.awakeFromNib();
    const PrefsDictionary style = m_prefs.plotPrefsForSeries(0);
    EXPECT_EQ(CurvegrabPrefs::sizeForPlotPref(style), 0.0F);
    EXPECT_EQ(CurvegrabPrefs::colorForPlotPref(style), namedcolors::white);
}

TEST_F(PlotPreferencesTest, aSetStyleReplacesTheStoredOne)
{
    m_prefs.setDefaults();
    m_prefs.savePreferences();
    PrefsDictionary style = m_prefs.plotPrefsForSeries(3);
    m_prefs.setSize(12, style);
    m_prefs.setPlotPrefs(style, 3);
    EXPECT_EQ(sizeOf(3), 12.0F);
    EXPECT_EQ(sizeOf(2), 8.0F);
    EXPECT_TRUE(m_prefs.dirty());
}

TEST_F(PlotPreferencesTest, aSeriesBeyondTheTenCannotBeSet)
{
    loadStyles(12);
    for (const int series : {10, 11, -1, std::numeric_limits<int>::min()}) {
        m_prefs.setPlotPrefs(CurvegrabPrefs::newPlotPrefsForSeries(0), series);
        EXPECT_FALSE(m_prefs.dirty()) << series;
    }
    EXPECT_EQ(sizeOf(10), 3.5F);
    EXPECT_EQ(sizeOf(11), 3.5F);
}

TEST_F(PlotPreferencesTest, settingBeyondAShortListReplacesNothingButMarksDirty)
{
    loadStyles(5);
    ASSERT_FALSE(m_prefs.dirty());
    m_prefs.setPlotPrefs({{QStringLiteral("Plot Size"), 11}}, 9);
    EXPECT_EQ(m_prefs.plotPrefsForSeries(9), CurvegrabPrefs::newPlotPrefsForSeries(9));
    EXPECT_TRUE(m_prefs.dirty());
}

TEST_F(PlotPreferencesTest, settingWithoutAnyListMarksDirty)
{
    m_prefs.setPlotPrefs({{QStringLiteral("Plot Size"), 11}}, 0);
    EXPECT_TRUE(m_prefs.dirty());
    EXPECT_EQ(sizeOf(0), 8.0F);
}

TEST_F(PlotPreferencesTest, sizeAndThicknessStayWithinTheirLimits)
{
    PrefsDictionary style;
    m_prefs.setSize(20, style);
    m_prefs.setThickness(20, style);
    EXPECT_EQ(CurvegrabPrefs::sizeForPlotPref(style), 15.0F);
    EXPECT_EQ(CurvegrabPrefs::thicknessForPlotPref(style), 5.0F);
    m_prefs.setSize(0, style);
    m_prefs.setThickness(0, style);
    EXPECT_EQ(CurvegrabPrefs::sizeForPlotPref(style), 3.0F);
    EXPECT_EQ(CurvegrabPrefs::thicknessForPlotPref(style), 1.0F);
}

TEST_F(PlotPreferencesTest, theShapeHasNoLimit)
{
    PrefsDictionary style;
    m_prefs.setShape(99, style);
    EXPECT_EQ(CurvegrabPrefs::shapeForPlotPref(style), 99);
    m_prefs.setShape(-99, style);
    EXPECT_EQ(CurvegrabPrefs::shapeForPlotPref(style), -99);
}

TEST_F(PlotPreferencesTest, theColourIsKeptAsItsFourComponents)
{
    PrefsDictionary style;
    m_prefs.setColor({0.1F, 0.2F, 0.3F, 0.4F}, style);
    EXPECT_EQ(CurvegrabPrefs::colorForPlotPref(style), (DeviceColor{0.1F, 0.2F, 0.3F, 0.4F}));
}

TEST_F(PlotPreferencesTest, changingAStyleThatIsNowhereStoredMarksDirty)
{
    PrefsDictionary style;
    EXPECT_FALSE(m_prefs.dirty());
    m_prefs.setShape(1, style);
    EXPECT_TRUE(m_prefs.dirty());
}
