#pragma once

#include "exchange/ExchangeFacts.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>
#include <vector>

/// A workbook as spreadsheet programs open it (.xlsx).
namespace spreadsheet {

/// One sheet per document; each series in two columns of number cells, the titles in a row that
/// stays in sight. Cells hold 16 significant digits at most. Nothing if a series is longer than a
/// sheet, if there is no room for the temporary file in which the workbook is put together, or if
/// the module that writes workbooks is missing.
[[nodiscard]] std::optional<QByteArray> workbook(const std::vector<ExchangeFacts> &documents,
                                                 const ExchangeStyle &style);

/// Why there is no workbook, in the user's words.
[[nodiscard]] QString reasonOfNothing();

/// The names of the sheets: those of the documents without their extension, as far as a sheet may
/// be called so, each once whatever the case of its letters.
[[nodiscard]] std::vector<std::string> sheetNames(const std::vector<ExchangeFacts> &documents);

} // namespace spreadsheet
