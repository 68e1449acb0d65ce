#include "platform/TableAsHtml.h"

#include <gtest/gtest.h>

namespace {

/// What stands between the tags of the table.
QString rows(const QString &text)
{
    const QString html = tableashtml::fromText(text);
    const auto begin = html.indexOf(QStringLiteral("<table>")) + 7;
    return html.mid(begin, html.indexOf(QStringLiteral("</table>")) - begin);
}

} // namespace

TEST(TableAsHtml, linesAreRowsAndTabsSeparateCells)
{
    EXPECT_EQ(rows(QStringLiteral("a\tb\nc\td\n")),
              QStringLiteral("<tr><td>a</td><td>b</td></tr><tr><td>c</td><td>d</td></tr>"));
}

TEST(TableAsHtml, emptyFieldsAreEmptyCells)
{
    EXPECT_EQ(rows(QStringLiteral("\t\n")), QStringLiteral("<tr><td></td><td></td></tr>"));
}

TEST(TableAsHtml, anEmptyTextHasNoRows) { EXPECT_EQ(rows(QString()), QString()); }

TEST(TableAsHtml, numbersCarryTheirValue)
{
    EXPECT_EQ(rows(QStringLiteral("-1.5e-05\n")),
              QStringLiteral("<tr><td sdval=\"-1.5e-05\" sdnum=\"1033;\">-1.5e-05</td></tr>"));
    EXPECT_EQ(rows(QStringLiteral("-inf\n")), QStringLiteral("<tr><td>-inf</td></tr>"));
    EXPECT_EQ(rows(QStringLiteral("Series_01\n")), QStringLiteral("<tr><td>Series_01</td></tr>"));
}

TEST(TableAsHtml, signsOfTheLanguageAreEscaped)
{
    EXPECT_EQ(rows(QStringLiteral("<&>\n")), QStringLiteral("<tr><td>&lt;&amp;&gt;</td></tr>"));
}
