#include "exchange/ExchangeFile.h"

#include "exchange/CsvText.h"
#include "exchange/JsonLine.h"
#include "exchange/Spreadsheet.h"

namespace exchangefile {

std::optional<QByteArray> content(ExchangeFormat format,
                                  const std::vector<ExchangeFacts> &documents,
                                  const ExchangeStyle &style)
{
    if (format == ExchangeFormat::Xlsx)
        return spreadsheet::workbook(documents, style);
    std::string text;
    const char *separator = "";
    for (const ExchangeFacts &facts : documents) {
        if (format == ExchangeFormat::Json) {
            text += jsonline::object(facts, style.digits);
        } else {
            text += separator + csvtext::table(facts, style);
            separator = "\r\n";
        }
    }
    return QByteArray::fromStdString(text);
}

} // namespace exchangefile
