#pragma once

#include <QJsonValue>
#include <QLatin1String>
#include <QString>

#include <array>

/// The names under which the settings are stored.
namespace preferencekeys {

inline constexpr QLatin1String axisColor("Axis Color");
inline constexpr QLatin1String axisThickness("Axis Thickness");
inline constexpr QLatin1String axisAnchorSize("Axis Anchor Size");
inline constexpr QLatin1String guideColor("Guide Color");
inline constexpr QLatin1String guideThickness("Guide Thickness");
inline constexpr QLatin1String guideInterval("Guide Interval");
inline constexpr QLatin1String pdfReadingScale("PDF Reading Scale");
inline constexpr QLatin1String copyWithTitles("Copy with Titles");
inline constexpr QLatin1String saveWithTitles("Save with Titles");
inline constexpr QLatin1String plotPreferences("MutArray: Plot Preferences");
inline constexpr QLatin1String infoPanelVisible("Info Panel Visible");

/// Every key that is loaded, in the order of loading.
inline constexpr std::array loaded{axisColor,      axisThickness,   axisAnchorSize,  guideColor,
                                   guideThickness, guideInterval,   pdfReadingScale, copyWithTitles,
                                   saveWithTitles, plotPreferences, infoPanelVisible};

inline constexpr QLatin1String plotColor("Plot Color");
inline constexpr QLatin1String plotSize("Plot Size");
inline constexpr QLatin1String plotThickness("Plot Thickness");
inline constexpr QLatin1String plotShape("Plot Shape");

inline constexpr QLatin1String red("Red");
inline constexpr QLatin1String green("Green");
inline constexpr QLatin1String blue("Blue");
inline constexpr QLatin1String alpha("Alpha");

/// What the store holds for `stored`, read under `key`: a key that begins with "MutDic:" always
/// holds a dictionary, one that begins with "MutArray:" an array (empty ones if `stored` is
/// something else), and any other key the value as it is.
[[nodiscard]] QJsonValue loadedForm(const QString &key, const QJsonValue &stored);

} // namespace preferencekeys
