#include "platform/TableAsHtml.h"

#include <QStringList>

namespace {

bool isNumber(const QString &field)
{
    return !field.isEmpty() && field.back().isDigit() &&
           (field.front().isDigit() || field.front() == u'-');
}

QString cell(const QString &field)
{
    // Without value and language "1.5" is the first of May to a spreadsheet in German.
    const QString value =
        isNumber(field) ? QStringLiteral(" sdval=\"%1\" sdnum=\"1033;\"").arg(field) : QString();
    return QStringLiteral("<td") + value + u'>' + field.toHtmlEscaped() + QStringLiteral("</td>");
}

} // namespace

namespace tableashtml {

QString fromText(const QString &text)
{
    QStringList lines = text.split(u'\n');
    // Behind the last line feed there is no line.
    lines.removeLast();
    QString html = QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><table>");
    for (const QString &line : lines) {
        html += QStringLiteral("<tr>");
        for (const QString &field : line.split(u'\t'))
            html += cell(field);
        html += QStringLiteral("</tr>");
    }
    return html + QStringLiteral("</table></body></html>");
}

} // namespace tableashtml
