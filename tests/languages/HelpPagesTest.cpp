// The help's pages in other languages have what the English ones have.
#include "helpbook/HelpBook.h"
#include "languages/CatalogueFile.h"

#include <QDir>
#include <QMap>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

std::string capturesOf(const char *pattern, const QString &text)
{
    QStringList captures;
    for (const QRegularExpressionMatch &match :
         QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text))
        captures += match.captured(1);
    captures.sort();
    return captures.join(u'\n').toStdString();
}

/// The names that a language has for keys, each with the English one.
QMap<QString, QString> keyNames(const QString &language)
{
    static const QMap<QString, QMap<QString, QString>> names{
        {"de",
         {{"Strg", "Ctrl"},
          {"Umschalt", "Shift"},
          {"Eingabetaste", "Return"},
          {"Leertaste", "Space"}}},
        {"fr", {{"Maj", "Shift"}, {"Entrée", "Return"}, {"Espace", "Space"}, {"Échap", "Esc"}}},
        {"es", {{"Mayús", "Shift"}, {"Intro", "Return"}, {"Espacio", "Space"}, {"Súper", "Super"}}},
        {"ja", {{"Enter", "Return"}, {"スペース", "Space"}}},
        {"zh_CN", {{"回车", "Return"}, {"空格", "Space"}}},
    };
    return names.value(language);
}

/// What stands on the keys that a page shows, in English.
std::string keysOf(const QString &language, const QString &page)
{
    const QMap<QString, QString> names = keyNames(language);
    const QRegularExpression key(QStringLiteral("<kbd>([^<]*)</kbd>"));
    QStringList keys;
    for (const QRegularExpressionMatch &match : key.globalMatch(page)) {
        QStringList parts = match.captured(1).split(u'+');
        for (QString &part : parts)
            part = names.value(part, part);
        keys += parts.join(u'+');
    }
    keys.sort();
    return keys.join(u'\n').toStdString();
}

/// The texts of the menus and their commands as a reader sees them, each with its key.
QMap<QString, QString> menuTexts(const QString &language)
{
    static const QRegularExpression marks(QStringLiteral("\\(&.\\)|&|…"));
    QMap<QString, QString> texts;
    for (const CatalogueEntry &entry : cataloguefiles::entries(language))
        if (entry.id.startsWith(u"document.command.") || entry.id.startsWith(u"document.menu."))
            texts.insert(QString(entry.translations.value(0)).remove(marks), entry.id);
    return texts;
}

/// The keys of the menus and commands that a page sends its reader to: "<b>File ▸ Open</b>".
/// A name that no menu has is reported.
std::string menuPathsOf(const QString &language, const QString &page)
{
    const QMap<QString, QString> texts = menuTexts(language);
    const QRegularExpression path(QStringLiteral("<(?:b|td)>([^<]* ▸[^<]*)</"));
    QStringList paths;
    for (const QRegularExpressionMatch &match : path.globalMatch(page)) {
        QStringList steps = match.captured(1).simplified().split(QStringLiteral(" ▸ "));
        for (QString &step : steps) {
            EXPECT_TRUE(texts.contains(step)) << "no menu has " << qPrintable(step);
            step = texts.value(step);
        }
        paths += steps.join(QStringLiteral(" ▸ "));
    }
    paths.sort();
    return paths.join(u'\n').toStdString();
}

/// The commands in the lists of keys: each key's own name with the catalogue's key of the command
/// beside it, where the list names it as a menu does.
QMap<QString, QString> listedCommands(const QString &language, const QString &page)
{
    const QMap<QString, QString> texts = menuTexts(language);
    const QRegularExpression row(
        QStringLiteral("<td>([^<]*)</td><td>\\{key:([A-Za-z]+)\\}</td></tr>"));
    QMap<QString, QString> commands;
    for (const QRegularExpressionMatch &match : row.globalMatch(page))
        commands.insert(match.captured(2), texts.value(match.captured(1)));
    return commands;
}

class HelpPages : public ::testing::TestWithParam<QString>
{
protected:
    /// Calls `look` with the name of each page that the language has, the page, and the English
    /// one.
    template <class Look>
    void forEachPage(const Look &look)
    {
        const HelpBook english(QStringLiteral(":/help/en"));
        const HelpBook book(QStringLiteral(":/help/") + GetParam());
        for (const HelpBook::Page &page : english.pages()) {
            SCOPED_TRACE(qPrintable(page.file));
            const QString translated = book.source(page.file);
            if (!translated.isEmpty())
                look(translated, english.source(page.file));
        }
    }
};

std::string nameOf(const ::testing::TestParamInfo<QString> &info)
{
    return info.param.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Languages, HelpPages, ::testing::ValuesIn(cataloguefiles::languages()),
                         nameOf);

} // namespace

TEST_P(HelpPages, existWhereEnglishHasThem)
{
    const HelpBook book(QStringLiteral(":/help/") + GetParam());
    for (const QString &file : QDir(QStringLiteral(":/help/en")).entryList({"*.html"}))
        EXPECT_FALSE(book.source(file).isEmpty())
            << "resources/help/" << qPrintable(GetParam() + u'/' + file) << " is missing";
}

TEST_P(HelpPages, stayInTheBookOfTheUsersLanguage)
{
    const HelpBook book(QStringLiteral(":/help/") + GetParam(), {}, QStringLiteral(":/help/en"));
    const HelpBook english(QStringLiteral(":/help/en"));
    EXPECT_EQ(book.pages().size(), english.pages().size());
    for (const HelpBook::Page &page : book.pages())
        EXPECT_FALSE(page.title.isEmpty()) << qPrintable(page.file);
}

TEST_P(HelpPages, haveThePlacesLinksPicturesAndKeysOfTheEnglishOnes)
{
    forEachPage([](const QString &translated, const QString &english) {
        for (const char *const pattern : {"<a name=\"([^\"]+)\"", "<a href=\"([^\"]*)\"",
                                          "<img src=\"([^\"]*)\"", "\\{key:([A-Za-z]+)\\}"})
            EXPECT_EQ(capturesOf(pattern, translated), capturesOf(pattern, english));
    });
}

TEST_P(HelpPages, haveTheStructureOfTheEnglishOnes)
{
    forEachPage([](const QString &translated, const QString &english) {
        const char *const structure = "<(/?(?:h\\d|ul|li|table|tr|t[hd]|img))\\b";
        EXPECT_EQ(capturesOf(structure, translated), capturesOf(structure, english));
        EXPECT_EQ(translated.count(QStringLiteral("<p>")),
                  translated.count(QStringLiteral("</p>")));
    });
}

TEST_P(HelpPages, showTheKeysOfTheEnglishOnes)
{
    forEachPage([](const QString &translated, const QString &english) {
        EXPECT_EQ(keysOf(GetParam(), translated), keysOf(QStringLiteral("en"), english));
    });
}

TEST_P(HelpPages, nameTheMenusAsTheProgramDoes)
{
    forEachPage([](const QString &translated, const QString &english) {
        EXPECT_EQ(menuPathsOf(GetParam(), translated), menuPathsOf(QStringLiteral("en"), english));
    });
}

TEST_P(HelpPages, listTheCommandsByTheirNames)
{
    forEachPage([](const QString &translated, const QString &english) {
        EXPECT_EQ(listedCommands(GetParam(), translated),
                  listedCommands(QStringLiteral("en"), english));
    });
}
