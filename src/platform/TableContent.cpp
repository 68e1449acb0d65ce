#include "platform/TableContent.h"

#include "platform/TableAsHtml.h"

#include <QStringList>

namespace {

QString csvField(const QString &field)
{
    if (!field.contains(u',') && !field.contains(u'"') && !field.contains(u'\r'))
        return field;
    return u'"' + QString(field).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QByteArray asCsv(const QString &text)
{
    QStringList lines = text.split(u'\n');
    // Behind the last line feed there is no line.
    lines.removeLast();
    QString csv;
    for (const QString &line : lines) {
        QStringList fields = line.split(u'\t');
        for (QString &field : fields)
            field = csvField(field);
        csv += fields.join(u',') + QStringLiteral("\r\n");
    }
    return csv.toUtf8();
}

} // namespace

namespace tablecontent {

std::unique_ptr<QMimeData> fromText(const QString &text)
{
    auto content = std::make_unique<QMimeData>();
    content->setText(text);
    content->setHtml(tableashtml::fromText(text));
    content->setData(QStringLiteral("text/csv"), asCsv(text));
    return content;
}

} // namespace tablecontent
