#pragma once

#include <QByteArray>
#include <QString>

#include <array>

class PlotView;

/// A plot as the content of a picture file.
namespace plotpicture {

enum class Format { Svg, Pdf, Png };

inline constexpr std::array formats{Format::Svg, Format::Pdf, Format::Png};

/// With its point.
[[nodiscard]] QString suffixOf(Format format);
/// For the user.
[[nodiscard]] QString nameOf(Format format);

/// What `view` shows, in its size; a picture of pixels has twice as many. Empty if there is not
/// enough memory.
[[nodiscard]] QByteArray bytesOf(PlotView &view, Format format, const QString &title);

} // namespace plotpicture
