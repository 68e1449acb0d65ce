#include "exchange/CsvText.h"

#include "exchange/ExchangeNumber.h"
#include "exchange/ExchangeTitles.h"
#include "platform/CsvField.h"

#include <cmath>
#include <vector>

namespace {

void appendLine(std::string &text, const std::vector<std::string> &fields)
{
    const char *separator = "";
    for (const std::string &field : fields) {
        text += separator + csvfield::quoted(field);
        separator = ",";
    }
    text += "\r\n";
}

std::vector<std::string> titles(const std::vector<ExchangeSeries> &series)
{
    std::vector<std::string> fields;
    for (const ExchangeSeries &one : series)
        for (const std::string &title : exchangetitles::columnsOf(one))
            fields.push_back(title);
    return fields;
}

/// Spreadsheets would take "inf" and "nan" for words, and "-inf" for a formula.
std::string numberField(double value, std::optional<int> digits)
{
    return std::isfinite(value) ? exchangenumber::text(value, digits) : std::string();
}

std::vector<std::string> dataLine(const std::vector<ExchangeSeries> &series, std::size_t row,
                                  std::optional<int> digits)
{
    std::vector<std::string> fields;
    for (const ExchangeSeries &one : series) {
        const bool hasPoint = row < one.points.size();
        fields.push_back(hasPoint ? numberField(one.points[row].X(), digits) : "");
        fields.push_back(hasPoint ? numberField(one.points[row].Y(), digits) : "");
    }
    return fields;
}

} // namespace

namespace csvtext {

std::string table(const ExchangeFacts &facts, const ExchangeStyle &style)
{
    std::string text;
    if (style.withTitles)
        appendLine(text, titles(facts.series));
    const std::size_t rows = exchangetitles::rowsOf(facts.series);
    for (std::size_t row = 0; row < rows; ++row)
        appendLine(text, dataLine(facts.series, row, style.digits));
    return text;
}

} // namespace csvtext
