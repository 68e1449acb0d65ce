#include "platform/TableContent.h"

#include "platform/CsvField.h"
#include "platform/TableAsHtml.h"

#include <QStringList>

#include <string>
#include <vector>

namespace {

QByteArray asCsv(const QString &text)
{
    QStringList lines = text.split(u'\n');
    // Behind the last line feed there is no line.
    lines.removeLast();
    std::string csv;
    for (const QString &line : lines) {
        std::vector<std::string> fields;
        for (const QString &field : line.split(u'\t'))
            fields.push_back(field.toStdString());
        csv += csvfield::line(fields);
    }
    return QByteArray::fromStdString(csv);
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
