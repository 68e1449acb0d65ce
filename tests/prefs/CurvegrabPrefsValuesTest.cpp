#include "prefs/CurvegrabPrefs.h"

#include "platform/NamedColors.h"
#include "prefs/PrefsFixture.h"

#include <limits>

namespace {

using CurvegrabPrefsValuesTest = PrefsFixture;

const QString key = QStringLiteral("A Key");

} // namespace

TEST_F(CurvegrabPrefsValuesTest, missingKeysReadAsNothing)
{
    EXPECT_FALSE(m_prefs.boolForKey(key));
    EXPECT_EQ(m_prefs.intForKey(key), 0);
    EXPECT_EQ(m_prefs.floatForKey(key), 0.0F);
    EXPECT_EQ(m_prefs.doubleForKey(key), 0.0);
    EXPECT_EQ(m_prefs.colorForKey(key), namedcolors::white);
}

TEST_F(CurvegrabPrefsValuesTest, everyKindIsStoredInTheSettings)
{
    m_prefs.setBool(true, key);
    EXPECT_TRUE(m_prefs.boolForKey(key));
    m_prefs.setInt(-2147483647 - 1, key);
    EXPECT_EQ(m_prefs.intForKey(key), -2147483647 - 1);
    m_prefs.setFloat(0.1F, key);
    EXPECT_EQ(m_prefs.floatForKey(key), 0.1F);
    m_prefs.setDouble(0.1, key);
    EXPECT_EQ(m_prefs.doubleForKey(key), 0.1);
    m_prefs.setColor(namedcolors::brown, key);
    EXPECT_EQ(m_prefs.colorForKey(key), namedcolors::brown);
}

TEST_F(CurvegrabPrefsValuesTest, everyKindIsStoredInAnyDictionary)
{
    PrefsDictionary dictionary;
    m_prefs.setBool(true, key, dictionary);
    EXPECT_TRUE(CurvegrabPrefs::boolForKey(key, dictionary));
    m_prefs.setInt(7, key, dictionary);
    EXPECT_EQ(CurvegrabPrefs::intForKey(key, dictionary), 7);
    m_prefs.setFloat(0.1F, key, dictionary);
    EXPECT_EQ(CurvegrabPrefs::floatForKey(key, dictionary), 0.1F);
    m_prefs.setDouble(0.1, key, dictionary);
    EXPECT_EQ(CurvegrabPrefs::doubleForKey(key, dictionary), 0.1);
    m_prefs.setColor(namedcolors::brown, key, dictionary);
    EXPECT_EQ(CurvegrabPrefs::colorForKey(key, dictionary), namedcolors::brown);
    EXPECT_EQ(m_prefs.doubleForKey(key), 0.0);
}

TEST_F(CurvegrabPrefsValuesTest, storingInAnyDictionaryMarksTheStoreDirty)
{
    PrefsDictionary dictionary;
    m_prefs.setInt(7, key, dictionary);
    EXPECT_TRUE(m_prefs.dirty());
}

TEST_F(CurvegrabPrefsValuesTest, aFloatIsStoredAsExactlyThatFloat)
{
    m_prefs.setFloat(0.05F, key);
    EXPECT_EQ(m_prefs.doubleForKey(key), 0.05000000074505806);
    m_prefs.setFloat(std::numeric_limits<float>::denorm_min(), key);
    EXPECT_EQ(m_prefs.floatForKey(key), std::numeric_limits<float>::denorm_min());
}

TEST_F(CurvegrabPrefsValuesTest, aNumberReadsAsWhateverKindIsAskedFor)
{
    m_prefs.setDouble(-2.75, key);
    EXPECT_TRUE(m_prefs.boolForKey(key));
    EXPECT_EQ(m_prefs.intForKey(key), -2);
    EXPECT_EQ(m_prefs.floatForKey(key), -2.75F);
    m_prefs.setBool(true, key);
    EXPECT_EQ(m_prefs.intForKey(key), 1);
    EXPECT_EQ(m_prefs.floatForKey(key), 1.0F);
    m_prefs.setInt(0, key);
    EXPECT_FALSE(m_prefs.boolForKey(key));
}

TEST_F(CurvegrabPrefsValuesTest, aNumberBeyondTheIntegersStopsAtTheirEnd)
{
    m_prefs.setDouble(1e20, key);
    EXPECT_EQ(m_prefs.intForKey(key), std::numeric_limits<int>::max());
    m_prefs.setDouble(-1e20, key);
    EXPECT_EQ(m_prefs.intForKey(key), std::numeric_limits<int>::min());
    m_prefs.setDouble(std::numeric_limits<double>::quiet_NaN(), key);
    EXPECT_EQ(m_prefs.intForKey(key), 0);
}

TEST_F(CurvegrabPrefsValuesTest, aColourIsADictionaryOfItsFourComponents)
{
    PrefsDictionary dictionary;
    m_prefs.setColor({0.1F, 0.2F, 0.3F, 0.4F}, key, dictionary);
    EXPECT_EQ(dictionary.value(key).toObject(),
              (QJsonObject{{QStringLiteral("Red"), static_cast<double>(0.1F)},
                           {QStringLiteral("Green"), static_cast<double>(0.2F)},
                           {QStringLiteral("Blue"), static_cast<double>(0.3F)},
                           {QStringLiteral("Alpha"), static_cast<double>(0.4F)}}));
}

TEST_F(CurvegrabPrefsValuesTest, aMissingComponentReadsAsZero)
{
    const QJsonObject components{{QStringLiteral("Red"), 0.25}, {QStringLiteral("Blue"), 1}};
    EXPECT_EQ(CurvegrabPrefs::colorForKey(key, {{key, components}}), (DeviceColor{0.25F, 0, 1, 0}));
    EXPECT_EQ(CurvegrabPrefs::colorForKey(key, {{key, QJsonObject()}}), (DeviceColor{0, 0, 0, 0}));
}

TEST_F(CurvegrabPrefsValuesTest, whatIsNoColourReadsAsWhite)
{
    EXPECT_EQ(CurvegrabPrefs::colorForKey(key, {{key, 5}}), namedcolors::white);
}

TEST_F(CurvegrabPrefsValuesTest, whatIsNoNumberReadsAsZero)
{
    const PrefsDictionary dictionary{{key, QStringLiteral("7")}};
    EXPECT_EQ(CurvegrabPrefs::floatForKey(key, dictionary), 0.0F);
    EXPECT_FALSE(CurvegrabPrefs::boolForKey(key, dictionary));
}
