// The help's pages in other languages have what the English ones have.
#include "helpbook/HelpBook.h"
#include "languages/CatalogueFile.h"

#include <QDir>
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

TEST_P(HelpPages, existForTheFirstSteps)
{
    const HelpBook book(QStringLiteral(":/help/") + GetParam());
    EXPECT_FALSE(book.source(QStringLiteral("index.html")).isEmpty());
    EXPECT_FALSE(book.source(QStringLiteral("first-steps.html")).isEmpty());
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
