#pragma once

#include "exchange/ExchangeFacts.h"
#include "exchange/ExchangeFormat.h"

#include <QByteArray>

#include <optional>
#include <vector>

/// The content of a file of any format but the plain text, which has rules of its own.
namespace exchangefile {

/// Comma-separated tables follow each other with an empty line in between, JSON objects line by
/// line; a workbook has a sheet per document. Nothing if the workbook cannot be made.
[[nodiscard]] std::optional<QByteArray> content(ExchangeFormat format,
                                                const std::vector<ExchangeFacts> &documents,
                                                const ExchangeStyle &style);

} // namespace exchangefile
