#include "exchange/ExchangeFormat.h"

namespace exchangeformat {

QString nameOf(ExchangeFormat format)
{
    switch (format) {
    case ExchangeFormat::Csv:
        return QStringLiteral("csv");
    case ExchangeFormat::Json:
        return QStringLiteral("json");
    case ExchangeFormat::Xlsx:
        return QStringLiteral("xlsx");
    case ExchangeFormat::Text:
        break;
    }
    return QStringLiteral("text");
}

std::optional<ExchangeFormat> fromName(const QString &name)
{
    for (const ExchangeFormat format : all)
        if (nameOf(format) == name)
            return format;
    return std::nullopt;
}

QString suffixOf(ExchangeFormat format)
{
    return format == ExchangeFormat::Text ? QStringLiteral(".txt") : u'.' + nameOf(format);
}

ExchangeFormat ofFile(const QString &path)
{
    for (const ExchangeFormat format : all)
        if (path.endsWith(suffixOf(format), Qt::CaseInsensitive))
            return format;
    return ExchangeFormat::Text;
}

} // namespace exchangeformat
