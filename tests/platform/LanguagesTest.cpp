#include "platform/Languages.h"

#include <gtest/gtest.h>

namespace {

std::string choice(const QStringList &wanted)
{
    return languages::choice(wanted, {"de", "en", "es", "fr", "ja", "zh_CN"}).toStdString();
}

class LanguageOverride : public ::testing::Test
{
protected:
    ~LanguageOverride() override { qputenv("CURVEGRAB_LANGUAGE", m_before); }

private:
    const QByteArray m_before = qgetenv("CURVEGRAB_LANGUAGE");
};

} // namespace

TEST(Languages, theCountryDoesNotMatter)
{
    EXPECT_EQ(choice({"de-AT"}), "de");
    EXPECT_EQ(choice({"fr_CA.UTF-8"}), "fr");
    EXPECT_EQ(choice({"es-419"}), "es");
}

TEST(Languages, theFirstOneThatThereIsWins)
{
    EXPECT_EQ(choice({"pt-BR", "es-ES", "de-DE"}), "es");
}

TEST(Languages, englishIsALanguageLikeTheOthers) { EXPECT_EQ(choice({"en-GB", "de-DE"}), "en"); }

TEST(Languages, englishStandsInForAnUnknownLanguage)
{
    EXPECT_EQ(choice({"fi-FI"}), "en");
    EXPECT_EQ(choice({"C"}), "en");
    EXPECT_EQ(choice({"nonsense", ""}), "en");
    EXPECT_EQ(choice({}), "en");
}

TEST(Languages, simplifiedCharactersAreForThoseWhoReadThem)
{
    EXPECT_EQ(choice({"zh-CN"}), "zh_CN");
    EXPECT_EQ(choice({"zh-Hans-SG"}), "zh_CN");
    EXPECT_EQ(choice({"zh"}), "zh_CN");
    EXPECT_EQ(choice({"zh-TW"}), "en");
    EXPECT_EQ(choice({"zh_HK", "ja_JP"}), "ja");
}

TEST_F(LanguageOverride, comesBeforeTheLanguagesOfTheDesktop)
{
    qunsetenv("CURVEGRAB_LANGUAGE");
    const QStringList ofDesktop = languages::wanted();
    qputenv("CURVEGRAB_LANGUAGE", "ja:de_CH");
    EXPECT_EQ(languages::wanted(), QStringList({"ja", "de_CH"}) + ofDesktop);
}
