#include "exchange/CsvText.h"

#include "exchange/ExchangeNumber.h"
#include "exchange/ExchangeTitles.h"
#include "platform/CsvField.h"

#include <vector>

namespace {

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
        text += csvfield::line(titles(facts.series));
    const std::size_t rows = exchangetitles::rowsOf(facts.series);
    for (std::size_t row = 0; row < rows; ++row)
        text += csvfield::line(dataLine(facts.series, row, style.digits));
    return text;
}

} // namespace csvtext
