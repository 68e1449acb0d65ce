// The program's own help book: complete, and nothing in it leads nowhere.
#include "helpbook/HelpBook.h"
#include "platform/HelpViewer.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

HelpBook ownBook() { return HelpBook(QStringLiteral(":/help/en")); }

QStringList capturesOf(const char *pattern, const QString &text)
{
    QStringList captures;
    for (const QRegularExpressionMatch &match :
         QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text))
        captures += match.captured(1);
    return captures;
}

bool isHtml(const HelpBook::Page &page) { return page.file.endsWith(QStringLiteral(".html")); }

} // namespace

TEST(HelpContents, listEveryPageThatThereIs)
{
    const HelpBook book = ownBook();
    QSet<QString> listed;
    for (const HelpBook::Page &page : book.pages())
        listed.insert(page.file);
    const QStringList files = QDir(QStringLiteral(CURVEGRAB_HELP_FOLDER)).entryList({"*.html"});
    EXPECT_GE(files.size(), 8);
    for (const QString &file : files)
        EXPECT_TRUE(listed.contains(file)) << qPrintable(file);
}

TEST(HelpContents, everyPageHasATitleOfItsOwnAndText)
{
    const HelpBook book = ownBook();
    QSet<QString> titles;
    for (const HelpBook::Page &page : book.pages()) {
        EXPECT_FALSE(page.title.isEmpty()) << qPrintable(page.file);
        EXPECT_FALSE(titles.contains(page.title)) << qPrintable(page.title);
        titles.insert(page.title);
        EXPECT_GT(book.source(page.file).size(), 500) << qPrintable(page.file);
    }
}

TEST(HelpContents, thePlacesThatCommandsOpenAreThere)
{
    const HelpBook book = ownBook();
    const auto fileOf = [&book](const char *anchor) {
        const auto url = book.urlOfAnchor(QString::fromLatin1(anchor));
        return url ? QFileInfo(url->path()).fileName() : QString();
    };
    EXPECT_EQ(fileOf(helpbook::axisSettings), QStringLiteral("axes.html"));
    EXPECT_EQ(fileOf(helpbook::digitizing), QStringLiteral("digitizing.html"));
    EXPECT_EQ(fileOf(helpbook::preferences), QStringLiteral("preferences.html"));
}

TEST(HelpContents, noAnchorStandsTwice)
{
    const HelpBook book = ownBook();
    QSet<QString> anchors;
    for (const HelpBook::Page &page : book.pages())
        for (const QString &anchor : HelpBook::anchorsIn(book.source(page.file))) {
            EXPECT_FALSE(anchors.contains(anchor)) << qPrintable(anchor);
            anchors.insert(anchor);
        }
}

TEST(HelpContents, everyLinkLeadsToAPageOrAPlaceOnOne)
{
    const HelpBook book = ownBook();
    int links = 0;
    for (const HelpBook::Page &page : book.pages()) {
        for (const QString &link : capturesOf("<a href=\"([^\"]*)\"", book.source(page.file))) {
            const QUrl url = book.url(page.file).resolved(QUrl(link));
            const std::optional<int> target = book.indexOf(url);
            ASSERT_TRUE(target) << qPrintable(page.file) << ": " << qPrintable(link);
            if (url.hasFragment()) {
                const QString &file = book.pages()[static_cast<std::size_t>(*target)].file;
                EXPECT_TRUE(HelpBook::anchorsIn(book.source(file)).contains(url.fragment()))
                    << qPrintable(page.file) << ": " << qPrintable(link);
            }
            ++links;
        }
    }
    EXPECT_GT(links, 20);
}

TEST(HelpContents, everyPictureIsThereCompactAndDescribed)
{
    const HelpBook book = ownBook();
    int pictures = 0;
    for (const HelpBook::Page &page : book.pages()) {
        for (const QString &tag : capturesOf("(<img [^>]*>)", book.source(page.file))) {
            const QString source = capturesOf("src=\"([^\"]*)\"", tag).value(0);
            const QFileInfo file(QStringLiteral(":/help/en/") + source);
            EXPECT_TRUE(file.exists()) << qPrintable(tag);
            EXPECT_LT(file.size(), 150'000) << qPrintable(tag);
            EXPECT_LE(QImage(file.filePath()).width(), 720) << qPrintable(tag);
            EXPECT_FALSE(capturesOf("alt=\"([^\"]+)\"", tag).isEmpty()) << qPrintable(tag);
            ++pictures;
        }
    }
    EXPECT_GE(pictures, 4);
}

TEST(HelpContents, noPictureLiesUnused)
{
    const HelpBook book = ownBook();
    QString all;
    for (const HelpBook::Page &page : book.pages())
        all += book.source(page.file);
    for (const QString &file : QDir(QStringLiteral(":/help/en/pictures")).entryList())
        EXPECT_TRUE(all.contains(QStringLiteral("pictures/") + file)) << qPrintable(file);
}

TEST(HelpContents, theMarkupIsWellNested)
{
    const HelpBook book = ownBook();
    static const QRegularExpression tag(QStringLiteral("<(/?)([a-z0-9]+)([^>]*)>"));
    const QSet<QString> alone{"img", "br", "hr", "meta", "link"};
    for (const HelpBook::Page &page : book.pages()) {
        if (!isHtml(page))
            continue;
        QStringList open;
        for (const QRegularExpressionMatch &match : tag.globalMatch(book.source(page.file))) {
            if (alone.contains(match.captured(2)))
                continue;
            if (match.captured(1).isEmpty())
                open.append(match.captured(2));
            else
                EXPECT_EQ(open.isEmpty() ? QString() : open.takeLast(), match.captured(2))
                    << qPrintable(page.file) << " at " << match.capturedStart();
        }
        EXPECT_TRUE(open.isEmpty()) << qPrintable(page.file) << ": " << qPrintable(open.join(' '));
    }
}
