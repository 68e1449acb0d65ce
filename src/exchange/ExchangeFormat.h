#pragma once

#include <QString>

#include <array>
#include <optional>

/// The forms in which captured data leave the program.
enum class ExchangeFormat { Text, Csv, Json, Xlsx };

namespace exchangeformat {

inline constexpr std::array all{ExchangeFormat::Text, ExchangeFormat::Csv, ExchangeFormat::Json,
                                ExchangeFormat::Xlsx};

/// The name on the command line: text, csv, json, xlsx.
[[nodiscard]] QString nameOf(ExchangeFormat format);
[[nodiscard]] std::optional<ExchangeFormat> fromName(const QString &name);

/// The extension of its files, with the point.
[[nodiscard]] QString suffixOf(ExchangeFormat format);
/// The format that the extension of a file names, in any case; text for every other one.
[[nodiscard]] ExchangeFormat ofFile(const QString &path);

inline constexpr int fewestDigits = 1;
inline constexpr int mostDigits = 17;

} // namespace exchangeformat
