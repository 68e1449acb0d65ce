#pragma once

#include "infopanel/InfoFacts.h"

#include <QString>

#include <array>
#include <optional>

/// What the info panel says about a document: pure functions, so that the command line says the
/// same without a display. `facts` is null when there is no document.
namespace infotexts {

inline constexpr int axisRows = 7;
inline constexpr int dataRows = 4;

using DataTexts = std::array<QString, dataRows>;

struct AxisTexts
{
    std::array<QString, axisRows> info; ///< the kind of axes, then six values
    /// The captions of rows 1 to 6; nothing leaves them as they are.
    std::optional<std::array<QString, axisRows - 1>> labels;
};

/// The picture's size, or why there is none.
[[nodiscard]] QString imageInfo(const InfoFacts *facts);

[[nodiscard]] AxisTexts axisTexts(const InfoFacts *facts);

/// Current series, current row, number of series and number of rows.
[[nodiscard]] DataTexts dataInfo(const InfoFacts *facts);

} // namespace infotexts
