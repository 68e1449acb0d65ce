// The catalogue files of every language beside the English ones. docs/translating.md says how to
// mend what fails here.
#include "languages/CatalogueFile.h"

#include <QMap>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

using Entries = std::vector<CatalogueEntry>;

/// The texts by their keys; a key that stands twice is reported.
QMap<QString, CatalogueEntry> byKey(const Entries &entries)
{
    QMap<QString, CatalogueEntry> map;
    for (const CatalogueEntry &entry : entries) {
        EXPECT_FALSE(map.contains(entry.id))
            << qPrintable(entry.file) << ": " << qPrintable(entry.id) << " stands twice";
        map.insert(entry.id, entry);
    }
    return map;
}

const QMap<QString, CatalogueEntry> &english()
{
    static const QMap<QString, CatalogueEntry> entries =
        byKey(cataloguefiles::entries(QStringLiteral("en")));
    return entries;
}

std::string sorted(QStringList list)
{
    list.sort();
    return list.join(u' ').toStdString();
}

/// "%1", "%d", "%.1f", "%n" and "%%", sorted.
std::string placeMarks(const QString &text)
{
    static const QRegularExpression mark(QStringLiteral("%(\\d|n|d|@|%|\\.\\df)"));
    QStringList marks;
    for (const QRegularExpressionMatch &match : mark.globalMatch(text))
        marks += match.captured();
    return sorted(marks);
}

/// Ampersands before a letter, which make it the key of a menu entry or a control.
qsizetype mnemonics(const QString &text)
{
    return text.count(QRegularExpression(QStringLiteral("&[^\\s&]")));
}

/// Options of the command line and names of files, which no language changes.
std::string literals(const QString &text)
{
    static const QRegularExpression literal(
        QStringLiteral("--[a-z][a-z-]*|\\.crvgrab|curvegrab|Curvegrab X"));
    QStringList found;
    for (const QRegularExpressionMatch &match : literal.globalMatch(QString(text).remove(u'&')))
        found += match.captured();
    return sorted(found);
}

int pluralForms(const QString &language)
{
    return language == u"ja" || language == u"zh_CN" ? 1 : 2;
}

std::string placeOf(const QString &language, const CatalogueEntry &entry)
{
    return ("resources/i18n/" + language + '/' + entry.file + ": " + entry.id).toStdString();
}

class CatalogueFiles : public ::testing::TestWithParam<QString>
{
protected:
    const QString language = GetParam();
    const Entries entries = cataloguefiles::entries(language);
};

std::string nameOf(const ::testing::TestParamInfo<QString> &info)
{
    return info.param.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Languages, CatalogueFiles,
                         ::testing::ValuesIn(cataloguefiles::languages()), nameOf);

} // namespace

TEST_P(CatalogueFiles, haveEveryTextThatEnglishHas)
{
    const QMap<QString, CatalogueEntry> translated = byKey(entries);
    for (const CatalogueEntry &text : english())
        EXPECT_TRUE(translated.contains(text.id))
            << placeOf(language, text) << " is missing. Translate: " << qPrintable(text.source);
}

TEST_P(CatalogueFiles, haveNoTextThatEnglishDoesNotHave)
{
    for (const CatalogueEntry &text : entries)
        EXPECT_TRUE(english().contains(text.id)) << placeOf(language, text) << " is of no use";
}

TEST_P(CatalogueFiles, standInTheFileInWhichEnglishHasThem)
{
    for (const CatalogueEntry &text : entries)
        EXPECT_EQ(text.file.toStdString(), english().value(text.id, text).file.toStdString())
            << placeOf(language, text);
}

TEST_P(CatalogueFiles, areTranslationsOfEnglishAsItIsNow)
{
    for (const CatalogueEntry &text : entries) {
        const CatalogueEntry now = english().value(text.id, text);
        EXPECT_EQ(text.source.toStdString(), now.translations.value(0).toStdString())
            << placeOf(language, text) << " translates an English text that has changed";
        EXPECT_EQ(text.hasPlurals, now.hasPlurals) << placeOf(language, text);
    }
}

TEST_P(CatalogueFiles, haveNoEmptyOrUnfinishedText)
{
    for (const CatalogueEntry &text : entries) {
        EXPECT_FALSE(text.isUnfinished) << placeOf(language, text);
        EXPECT_EQ(text.translations.size(), text.hasPlurals ? pluralForms(language) : 1)
            << placeOf(language, text);
        for (const QString &translation : text.translations)
            EXPECT_FALSE(translation.trimmed().isEmpty()) << placeOf(language, text);
    }
}

TEST_P(CatalogueFiles, keepThePlacesForValues)
{
    for (const CatalogueEntry &text : entries)
        for (const QString &translation : text.translations)
            EXPECT_EQ(placeMarks(translation), placeMarks(text.source)) << placeOf(language, text);
}

TEST_P(CatalogueFiles, haveAKeyWhereEnglishHasOne)
{
    for (const CatalogueEntry &text : entries)
        for (const QString &translation : text.translations)
            EXPECT_EQ(mnemonics(translation), mnemonics(text.source)) << placeOf(language, text);
}

TEST_P(CatalogueFiles, keepWhatIsTypedAsItIs)
{
    for (const CatalogueEntry &text : entries)
        for (const QString &translation : text.translations)
            EXPECT_EQ(literals(translation), literals(text.source)) << placeOf(language, text);
}

TEST_P(CatalogueFiles, endInDotsWhereEnglishDoes)
{
    const QChar dots(u'…');
    for (const CatalogueEntry &text : entries)
        for (const QString &translation : text.translations)
            EXPECT_EQ(QString(translation)
                          .remove(QRegularExpression(QStringLiteral("\\(&.\\)")))
                          .endsWith(dots),
                      text.source.endsWith(dots))
                << placeOf(language, text);
}

TEST_P(CatalogueFiles, keepTheLinesOfTheCommandLineShort)
{
    constexpr int widest = 88;
    for (const CatalogueEntry &text : entries) {
        if (text.id != u"app.help")
            continue;
        // Characters of the Far East take the width of two.
        for (const QString &line : text.translations.value(0).split(u'\n')) {
            const auto wide = std::count_if(line.begin(), line.end(), [](QChar character) {
                return character.unicode() >= 0x2e80;
            });
            EXPECT_LE(line.size() + wide, widest) << qPrintable(language + ": " + line);
        }
    }
}
