#pragma once

#include "exchange/ExchangeFormat.h"
#include "platform/StateFile.h"

#include <QString>

#include <optional>

/// How data were exported last; kept from session to session, apart from the preferences.
class ExportChoices
{
public:
    /// Kept in the file at `path`.
    explicit ExportChoices(const QString &path);

    /// Text before there was any export.
    [[nodiscard]] ExchangeFormat format() const;
    /// Empty before there was any export, or if the folder is gone.
    [[nodiscard]] QString folder() const;
    void remember(ExchangeFormat format, const QString &folder);

    /// Significant digits where the format leaves them free; nothing for as many as it takes.
    [[nodiscard]] std::optional<int> digits() const;
    void setDigits(std::optional<int> digits);

private:
    StateFile m_state;
};
