#include "exchange/CsvText.h"

#include "exchange/ExchangeNumber.h"
#include "exchange/ExchangeTitles.h"

#include <vector>

namespace {

void appendLine(std::string &text, const std::vector<std::string> &fields)
{
    const char *separator = "";
    for (const std::string &field : fields) {
        text += separator + csvtext::field(field);
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

std::vector<std::string> dataLine(const std::vector<ExchangeSeries> &series, std::size_t row,
                                  std::optional<int> digits)
{
    std::vector<std::string> fields;
    for (const ExchangeSeries &one : series) {
        const bool hasPoint = row < one.points.size();
        fields.push_back(hasPoint ? exchangenumber::text(one.points[row].X(), digits) : "");
        fields.push_back(hasPoint ? exchangenumber::text(one.points[row].Y(), digits) : "");
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

std::string field(std::string_view text)
{
    if (text.find_first_of(",\"\r\n") == std::string_view::npos)
        return std::string(text);
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '"')
            quoted += '"';
        quoted += character;
    }
    return quoted + '"';
}

} // namespace csvtext
