#pragma once

#include <QStringList>

/// The languages of the user's texts, called by the names of their catalogues: "en", "zh_CN".
namespace languages {

/// What the other languages fall back to.
inline constexpr char english[] = "en";

/// The languages that the program has a catalogue of.
[[nodiscard]] QStringList available();

/// What the user asks for, the best first: the environment's CURVEGRAB_LANGUAGE (names separated
/// by colons), then the languages of the desktop.
[[nodiscard]] QStringList wanted();

/// The first of `wanted` that is among `available`, else English. The country does not matter,
/// the script does: who reads traditional characters is not given simplified ones.
[[nodiscard]] QString choice(const QStringList &wanted, const QStringList &available);

} // namespace languages
