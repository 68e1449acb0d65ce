#include "document/ExportFormats.h"

#include "document/DocumentExchange.h"
#include "document/ExportChoices.h"
#include "exchange/ExchangeFile.h"
#include "exchange/Spreadsheet.h"
#include "platform/Texts.h"

#include <algorithm>

namespace {

const char *nameKeyOf(ExchangeFormat format)
{
    switch (format) {
    case ExchangeFormat::Csv:
        return "document.export.csv";
    case ExchangeFormat::Json:
        return "document.export.json";
    case ExchangeFormat::Xlsx:
        return "document.export.xlsx";
    case ExchangeFormat::Text:
        break;
    }
    return "document.export.text";
}

} // namespace

std::vector<FileKind> ExportFormats::offered() const
{
    std::vector<FileKind> kinds;
    kinds.reserve(exchangeformat::all.size());
    for (const ExchangeFormat format : exchangeformat::all)
        kinds.push_back({texts::localized(nameKeyOf(format)), exchangeformat::suffixOf(format)});
    return kinds;
}

std::size_t ExportFormats::lastChosen() const
{
    const auto &all = exchangeformat::all;
    return static_cast<std::size_t>(std::find(all.begin(), all.end(), m_choices.format()) -
                                    all.begin());
}

QString ExportFormats::lastFolder() const { return m_choices.folder(); }

void ExportFormats::remember(std::size_t kind, const QString &folder)
{
    m_choices.remember(exchangeformat::all.at(kind), folder);
}

SeriesFormats::Maker ExportFormats::maker(const IndexSet &series, bool withTitle) const
{
    return [facts = documentexchange::factsOf(m_document, series),
            style = ExchangeStyle{withTitle, m_choices.digits()}](std::size_t kind) {
        return exchangefile::content(exchangeformat::all.at(kind), {facts}, style);
    };
}

QString ExportFormats::reasonOfNothing() const { return spreadsheet::reasonOfNothing(); }
