#include "document/ExportChoices.h"

namespace {
const QString formatKey = QStringLiteral("Export Format");
const QString folderKey = QStringLiteral("Export Folder");
const QString digitsKey = QStringLiteral("Export Digits");
} // namespace

ExportChoices::ExportChoices(const QString &path)
    : m_state(path)
{}

ExchangeFormat ExportChoices::format() const
{
    const QString name = m_state.value(formatKey).toString();
    return exchangeformat::fromName(name).value_or(ExchangeFormat::Text);
}

QString ExportChoices::folder() const { return m_state.folder(folderKey); }

void ExportChoices::remember(ExchangeFormat format, const QString &folder)
{
    m_state.remember(exchangeformat::nameOf(format), formatKey);
    m_state.remember(folder, folderKey);
}

std::optional<int> ExportChoices::digits() const
{
    const int digits = m_state.value(digitsKey).toInt();
    const bool isAllowed =
        digits >= exchangeformat::fewestDigits && digits <= exchangeformat::mostDigits;
    return isAllowed ? std::optional(digits) : std::nullopt;
}

void ExportChoices::setDigits(std::optional<int> digits)
{
    m_state.remember(digits.value_or(0), digitsKey);
}
