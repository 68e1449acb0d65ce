#pragma once

#include <QColor>
#include <QImage>
#include <QPalette>

#include <algorithm>
#include <cmath>

/// How well colours can be told apart, as the guidelines for accessible contents measure it.
namespace contrast {

inline constexpr double ofText = 4.5;
inline constexpr double ofGraphics = 3;

inline double luminance(const QColor &color)
{
    const auto linear = [](float channel) {
        const auto c = static_cast<double>(channel);
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// From 1 for equal colours to 21 for black and white.
inline double ratio(const QColor &a, const QColor &b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/// The largest contrast of a pixel of `image` with `background`.
inline double strongest(const QImage &image, const QColor &background)
{
    double most = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            most = std::max(most, ratio(image.pixelColor(x, y), background));
    }
    return most;
}

/// Dark, with bright text, as desktops have it.
inline QPalette darkPalette()
{
    QPalette palette(QColor(53, 53, 53), QColor(53, 53, 53));
    for (const QPalette::ColorRole text :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(text, QColor(240, 240, 240));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

/// Bright, with dark text.
inline QPalette lightPalette()
{
    QPalette palette(QColor(239, 239, 239), QColor(239, 239, 239));
    for (const QPalette::ColorRole text :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(text, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace contrast
