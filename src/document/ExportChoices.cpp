#include "document/ExportChoices.h"

#include <QDir>

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
    const QString name = m_state.objectForKey(formatKey).value_or(QJsonValue()).toString();
    return exchangeformat::fromName(name).value_or(ExchangeFormat::Text);
}

QString ExportChoices::folder() const
{
    const QString path = m_state.objectForKey(folderKey).value_or(QJsonValue()).toString();
    return QDir::isAbsolutePath(path) && QDir(path).exists() ? path : QString();
}

void ExportChoices::remember(ExchangeFormat format, const QString &folder)
{
    keep(exchangeformat::nameOf(format), formatKey);
    keep(folder, folderKey);
}

std::optional<int> ExportChoices::digits() const
{
    const int digits = m_state.objectForKey(digitsKey).value_or(QJsonValue()).toInt();
    const bool isAllowed =
        digits >= exchangeformat::fewestDigits && digits <= exchangeformat::mostDigits;
    return isAllowed ? std::optional(digits) : std::nullopt;
}

void ExportChoices::setDigits(std::optional<int> digits) { keep(digits.value_or(0), digitsKey); }

// A choice that cannot be kept is good for this session all the same.
void ExportChoices::keep(const QJsonValue &value, const QString &key)
{
    m_state.setObject(value, key);
    static_cast<void>(m_state.synchronize());
}
