#include "prefs/PreferenceKeys.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

TEST(PreferenceKeys, theElevenKeysAreLoadedInTheirOrder)
{
    QStringList keys;
    for (const QString key : preferencekeys::loaded)
        keys += key;
    EXPECT_EQ(keys.join(QLatin1Char('|')),
              QStringLiteral("Axis Color|Axis Thickness|Axis Anchor Size|Guide Color|"
                             "Guide Thickness|Guide Interval|PDF Reading Scale|Copy with Titles|"
                             "Save with Titles|MutArray: Plot Preferences|Info Panel Visible"));
}

TEST(PreferenceKeys, aDictionaryKeyHoldsADictionary)
{
    const QJsonObject dictionary{{QStringLiteral("a"), 1}};
    EXPECT_EQ(preferencekeys::loadedForm(QStringLiteral("MutDic: x"), dictionary),
              QJsonValue(dictionary));
    EXPECT_EQ(preferencekeys::loadedForm(QStringLiteral("MutDic: x"), 5),
              QJsonValue(QJsonObject()));
}

TEST(PreferenceKeys, anArrayKeyHoldsAnArray)
{
    const QJsonArray array{1, 2};
    EXPECT_EQ(preferencekeys::loadedForm(QStringLiteral("MutArray: x"), array), QJsonValue(array));
    EXPECT_EQ(preferencekeys::loadedForm(QStringLiteral("MutArray: x"), 5),
              QJsonValue(QJsonArray()));
}

TEST(PreferenceKeys, anyOtherKeyHoldsTheValueAsItIs)
{
    for (const QJsonValue &value : {QJsonValue(5), QJsonValue(QStringLiteral("x")),
                                    QJsonValue(QJsonArray{1}), QJsonValue(true)})
        EXPECT_EQ(preferencekeys::loadedForm(QStringLiteral("x MutDic:"), value), value);
}
