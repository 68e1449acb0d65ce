#pragma once

#include "exchange/SpreadsheetWriter.h"

/// What the program sees of the module.
class SpreadsheetPlugin final : public QObject, public SpreadsheetWriter
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID CURVEGRAB_SPREADSHEET_WRITER)
    Q_INTERFACES(SpreadsheetWriter)

public:
    [[nodiscard]] std::optional<QByteArray>
    workbook(const std::vector<SpreadsheetSheet> &sheets) const override;
};
