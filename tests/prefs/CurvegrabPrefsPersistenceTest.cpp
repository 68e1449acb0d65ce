#include "prefs/CurvegrabPrefs.h"

#include "platform/NamedColors.h"
#include "prefs/PrefsFixture.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QProcessEnvironment>

#include <array>
#include <clocale>
#include <limits>

namespace {

constexpr const char *fileVariable = "CURVEGRAB_PREFS_TEST_FILE";

class CurvegrabPrefsPersistenceTest : public PrefsFixture
{
protected:
    /// A store that has just read the file, as after a new start of the program.
    struct Restarted
    {
        explicit Restarted(const QString &path)
            : userDefaults(path)
            , prefs(userDefaults)
        {
            prefs.awakeFromNib();
        }
        UserDefaults userDefaults;
        CurvegrabPrefs prefs;
    };

    QJsonObject written() const { return QJsonDocument::fromJson(fileContent()).object(); }
};

/// The settings that one process writes and another reads.
void setEverything(CurvegrabPrefs &prefs)
{
    prefs.setAxisColor({0.1F, 0.2F, 0.3F, 0.4F});
    prefs.setAxisThick(1.1F);
    prefs.setAxisAnchorSize(9.9F);
    prefs.setGuideColor({0.5F, 0.6F, 0.7F, 0.8F});
    prefs.setGuideThick(3.3F);
    prefs.setGuideInterval(0.07F);
    prefs.setPdfScale(2.2F);
    prefs.setCopyWithTitle(false);
    prefs.setSaveWithTitle(true);
    prefs.setInfoPanelState(false);
    PrefsDictionary style = prefs.plotPrefsForSeries(4);
    prefs.setColor({0.9F, 0.05F, 0.15F, 1}, style);
    prefs.setSize(4.4F, style);
    prefs.setThickness(1.7F, style);
    prefs.setShape(3, style);
    prefs.setPlotPrefs(style, 4);
}

void expectEverything(const CurvegrabPrefs &prefs)
{
    EXPECT_EQ(prefs.axisColor(), (DeviceColor{0.1F, 0.2F, 0.3F, 0.4F}));
    EXPECT_EQ(prefs.axisThick(), 1.1F);
    EXPECT_EQ(prefs.axisAnchorSize(), 9.9F);
    EXPECT_EQ(prefs.guideColor(), (DeviceColor{0.5F, 0.6F, 0.7F, 0.8F}));
    EXPECT_EQ(prefs.guideThick(), 3.3F);
    EXPECT_EQ(prefs.guideInterval(), 0.07F);
    EXPECT_EQ(prefs.pdfScale(), 2.2F);
    EXPECT_FALSE(prefs.copyWithTitle());
    EXPECT_TRUE(prefs.saveWithTitle());
    EXPECT_FALSE(prefs.infoPanelState());
    const PrefsDictionary style = prefs.plotPrefsForSeries(4);
    EXPECT_EQ(CurvegrabPrefs::colorForPlotPref(style), (DeviceColor{0.9F, 0.05F, 0.15F, 1}));
    EXPECT_EQ(CurvegrabPrefs::sizeForPlotPref(style), 4.4F);
    EXPECT_EQ(CurvegrabPrefs::thicknessForPlotPref(style), 1.7F);
    EXPECT_EQ(CurvegrabPrefs::shapeForPlotPref(style), 3);
}

} // namespace

TEST_F(CurvegrabPrefsPersistenceTest, theFirstSaveWritesEveryKeyDefaultsIncluded)
{
    m_prefs.awakeFromNib();
    EXPECT_FALSE(QFile::exists(path()));
    m_prefs.savePreferences();
    EXPECT_FALSE(m_prefs.dirty());
    EXPECT_EQ(written().size(), 11);
    EXPECT_EQ(written().value(QStringLiteral("Axis Thickness")).toDouble(), 1.5);
    EXPECT_TRUE(written().value(QStringLiteral("Copy with Titles")).isBool());
    EXPECT_EQ(written().value(QStringLiteral("MutArray: Plot Preferences")).toArray().size(), 10);
    EXPECT_EQ(written().value(QStringLiteral("Guide Color")).toObject(),
              (QJsonObject{{QStringLiteral("Red"), 1},
                           {QStringLiteral("Green"), 0},
                           {QStringLiteral("Blue"), 0},
                           {QStringLiteral("Alpha"), 1}}));
}

TEST_F(CurvegrabPrefsPersistenceTest, everySettingComesBack)
{
    m_prefs.awakeFromNib();
    setEverything(m_prefs);
    m_prefs.savePreferences();
    const Restarted restarted(path());
    expectEverything(restarted.prefs);
}

// The writing half of the next test; run by itself it writes to a file of its own.
TEST_F(CurvegrabPrefsPersistenceTest, oneProcessWrites)
{
    const QString file = qEnvironmentVariable(fileVariable, path());
    UserDefaults userDefaults(file);
    CurvegrabPrefs prefs(userDefaults);
    prefs.awakeFromNib();
    setEverything(prefs);
    prefs.savePreferences();
    EXPECT_TRUE(QFile::exists(file));
}

TEST_F(CurvegrabPrefsPersistenceTest, whatOneProcessWritesAnotherReads)
{
    QProcess other;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(fileVariable), path());
    other.setProcessEnvironment(environment);
    other.setProcessChannelMode(QProcess::MergedChannels);
    other.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--gtest_filter=CurvegrabPrefsPersistenceTest.oneProcessWrites")});
    ASSERT_TRUE(other.waitForFinished());
    ASSERT_EQ(other.exitCode(), 0) << other.readAll().toStdString();
    const Restarted restarted(path());
    expectEverything(restarted.prefs);
}

TEST_F(CurvegrabPrefsPersistenceTest, numbersAreWrittenWithAPointWhateverTheLocale)
{
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    for (const char *name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8"}) {
        if (std::setlocale(LC_NUMERIC, name))
            break;
    }
    m_prefs.awakeFromNib();
    m_prefs.setAxisThick(1.25F);
    m_prefs.savePreferences();
    const Restarted restarted(path());
    EXPECT_EQ(restarted.prefs.axisThick(), 1.25F);
    std::setlocale(LC_NUMERIC, before.c_str());
    EXPECT_TRUE(fileContent().contains("1.25"));
}

TEST_F(CurvegrabPrefsPersistenceTest, aMissingKeyKeepsItsDefault)
{
    writeFile(R"({"Axis Thickness": 3.0, "Save with Titles": false})");
    const Restarted restarted(path());
    EXPECT_EQ(restarted.prefs.axisThick(), 3.0F);
    EXPECT_FALSE(restarted.prefs.saveWithTitle());
    EXPECT_EQ(restarted.prefs.axisAnchorSize(), 7.0F);
    EXPECT_TRUE(restarted.prefs.copyWithTitle());
    EXPECT_EQ(restarted.prefs.axisColor(), namedcolors::green);
}

TEST_F(CurvegrabPrefsPersistenceTest, loadedValuesAreTakenAsTheyAre)
{
    writeFile(R"({"Axis Thickness": 99, "Guide Interval": -1, "PDF Reading Scale": 1e3,
                  "Guide Color": {"Red": 2.5, "Green": -1, "Blue": 0.5},
                  "MutArray: Plot Preferences": [{"Plot Size": 500, "Plot Shape": 77}]})");
    const Restarted restarted(path());
    EXPECT_EQ(restarted.prefs.axisThick(), 99.0F);
    EXPECT_EQ(restarted.prefs.guideInterval(), -1.0F);
    EXPECT_EQ(restarted.prefs.pdfScale(), 1000.0F);
    EXPECT_EQ(restarted.prefs.guideColor(), (DeviceColor{2.5F, -1, 0.5F, 0}));
    const PrefsDictionary style = restarted.prefs.plotPrefsForSeries(0);
    EXPECT_EQ(CurvegrabPrefs::sizeForPlotPref(style), 500.0F);
    EXPECT_EQ(CurvegrabPrefs::shapeForPlotPref(style), 77);
    EXPECT_EQ(CurvegrabPrefs::thicknessForPlotPref(style), 0.0F);
}

TEST_F(CurvegrabPrefsPersistenceTest, aStoredColourWithoutAlphaIsTransparent)
{
    writeFile(R"({"Axis Color": {"Red": 1, "Green": 0.5, "Blue": 0}})");
    const Restarted restarted(path());
    EXPECT_EQ(restarted.prefs.axisColor(), (DeviceColor{1, 0.5F, 0, 0}));
}

TEST_F(CurvegrabPrefsPersistenceTest, loadingDoesNotTouchDirty)
{
    writeFile(R"({"Axis Thickness": 3.0})");
    UserDefaults userDefaults(path());
    CurvegrabPrefs prefs(userDefaults);
    prefs.loadPreferences();
    EXPECT_EQ(prefs.axisThick(), 3.0F);
    EXPECT_FALSE(prefs.dirty());
    prefs.setAxisThick(2);
    prefs.loadPreferences();
    EXPECT_TRUE(prefs.dirty());
}

TEST_F(CurvegrabPrefsPersistenceTest, onlyTheKnownKeysAreLoaded)
{
    writeFile(R"({"Foreign": 5})");
    const Restarted restarted(path());
    EXPECT_EQ(restarted.prefs.intForKey(QStringLiteral("Foreign")), 0);
}

TEST_F(CurvegrabPrefsPersistenceTest, foreignKeysInTheFileSurviveASave)
{
    writeFile(R"({"Foreign": {"deep": [1, 2]}})");
    Restarted restarted(path());
    restarted.prefs.savePreferences();
    EXPECT_TRUE(written().contains(QStringLiteral("Foreign")));
    EXPECT_TRUE(written().contains(QStringLiteral("Axis Color")));
}

TEST_F(CurvegrabPrefsPersistenceTest, everyKeyOfTheStoreIsSavedNotOnlyTheKnownOnes)
{
    m_prefs.setInt(5, QStringLiteral("Extra"));
    m_prefs.savePreferences();
    EXPECT_EQ(written(), (QJsonObject{{QStringLiteral("Extra"), 5}}));
}

TEST_F(CurvegrabPrefsPersistenceTest, aCleanStoreIsNotWritten)
{
    m_prefs.savePreferences();
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(CurvegrabPrefsPersistenceTest, savingTwiceWritesOnce)
{
    m_prefs.awakeFromNib();
    m_prefs.savePreferences();
    ASSERT_TRUE(QFile::remove(path()));
    m_prefs.savePreferences();
    EXPECT_FALSE(QFile::exists(path()));
    m_prefs.setAxisThick(2);
    m_prefs.savePreferences();
    EXPECT_TRUE(QFile::exists(path()));
}

TEST_F(CurvegrabPrefsPersistenceTest, nothingIsSavedWhenTheStoreGoesAway)
{
    {
        CurvegrabPrefs prefs(m_userDefaults);
        prefs.awakeFromNib();
    }
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(CurvegrabPrefsPersistenceTest, theInfoPanelsStateIsSavedAtOnce)
{
    m_prefs.awakeFromNib();
    m_prefs.saveInfoPanelState(false);
    EXPECT_FALSE(m_prefs.infoPanelState());
    EXPECT_FALSE(m_prefs.dirty());
    const Restarted restarted(path());
    EXPECT_FALSE(restarted.prefs.infoPanelState());
}

TEST_F(CurvegrabPrefsPersistenceTest, aDiskThatRefusesIsSilent)
{
    writeFile("{}");
    UserDefaults userDefaults(path() + QStringLiteral("/below-a-file.json"));
    CurvegrabPrefs prefs(userDefaults);
    prefs.awakeFromNib();
    prefs.setAxisThick(2);
    prefs.savePreferences();
    EXPECT_FALSE(prefs.dirty());
    EXPECT_EQ(prefs.axisThick(), 2.0F);
    EXPECT_EQ(fileContent(), "{}");
}

TEST_F(CurvegrabPrefsPersistenceTest, whatIsNoNumberComesBackAsTheDefault)
{
    m_prefs.awakeFromNib();
    m_prefs.setAxisThick(std::numeric_limits<float>::quiet_NaN());
    m_prefs.savePreferences();
    const Restarted restarted(path());
    EXPECT_EQ(restarted.prefs.axisThick(), 1.5F);
}
