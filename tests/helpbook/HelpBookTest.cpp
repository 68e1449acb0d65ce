#include "helpbook/HelpBook.h"

#include "helpbook/SampleBook.h"

TEST(HelpBook, pagesStandInTheOrderOfTheContentsWithTheirTitles)
{
    const SampleBook sample;
    const HelpBook book = sample.book();
    ASSERT_EQ(book.pages().size(), 3U);
    EXPECT_EQ(book.pages()[0].title, QStringLiteral("First page"));
    EXPECT_EQ(book.pages()[1].file, QStringLiteral("two.html"));
    EXPECT_EQ(book.pages()[2].title, QStringLiteral("Notes"));
    EXPECT_EQ(book.firstUrl(), book.url(QStringLiteral("one.html")));
}

TEST(HelpBook, anAnchorIsFoundOnWhicheverPageHasIt)
{
    const SampleBook sample;
    const HelpBook book = sample.book();
    const auto url = book.urlOfAnchor(QStringLiteral("deep"));
    ASSERT_TRUE(url);
    EXPECT_EQ(url->fragment(), QStringLiteral("deep"));
    EXPECT_EQ(book.indexOf(*url), 1);
    EXPECT_FALSE(book.urlOfAnchor(QStringLiteral("shallow")));
}

TEST(HelpBook, otherAddressesAreNoPages)
{
    const SampleBook sample;
    EXPECT_FALSE(sample.book().indexOf(QUrl(QStringLiteral("https://example.org/one.html"))));
}

TEST(HelpBook, keysOfCommandsAreFilledIn)
{
    const SampleBook sample;
    EXPECT_TRUE(sample.book().text(QStringLiteral("one.html")).contains("Press Ctrl+&lt; or –."));
}

TEST(HelpBook, theCommandsOfAPageAreKnownByTheirNames)
{
    const SampleBook sample;
    EXPECT_EQ(HelpBook::commandsIn(sample.book().source(QStringLiteral("one.html"))),
              QStringList({"zoomIn", "nothing"}));
}

TEST(HelpBook, whatALanguageLacksComesFromTheStandIn)
{
    const SampleBook sample;
    const QTemporaryDir folder;
    QFile page(folder.filePath(QStringLiteral("two.html")));
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    page.write("<title>Zweite Seite</title>");
    page.close();
    const HelpBook book(folder.path(), {}, sample.folder());
    ASSERT_EQ(book.pages().size(), 3U);
    EXPECT_EQ(book.pages()[0].title, QStringLiteral("First page"));
    EXPECT_EQ(book.pages()[1].title, QStringLiteral("Zweite Seite"));
    EXPECT_EQ(book.located(book.url(QStringLiteral("one.html"))).toLocalFile(),
              sample.folder() + QStringLiteral("/one.html"));
    EXPECT_EQ(book.located(book.url(QStringLiteral("two.html"))).toLocalFile(), page.fileName());
}

TEST(HelpBook, foreignAddressesLieWhereTheyAre)
{
    const SampleBook sample;
    const QUrl elsewhere(QStringLiteral("https://example.org/one.html"));
    EXPECT_EQ(sample.book().located(elsewhere), elsewhere);
}

TEST(HelpBook, aFolderWithoutABookHasNoPages)
{
    const HelpBook book(QStringLiteral("/nowhere"));
    EXPECT_TRUE(book.pages().empty());
    EXPECT_TRUE(book.firstUrl().isEmpty());
}
