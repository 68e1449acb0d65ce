#pragma once

#include "platform/DeviceColor.h"

/// The colours that the program calls by name, as exact device components; the toolkit's
/// colours of these names are other ones.
namespace namedcolors {

inline constexpr DeviceColor orange{1.0F, 0.5F, 0.0F, 1.0F};
inline constexpr DeviceColor magenta{1.0F, 0.0F, 1.0F, 1.0F};
inline constexpr DeviceColor green{0.0F, 1.0F, 0.0F, 1.0F};
inline constexpr DeviceColor brown{0.6F, 0.4F, 0.2F, 1.0F};
inline constexpr DeviceColor purple{0.5F, 0.0F, 0.5F, 1.0F};
inline constexpr DeviceColor red{1.0F, 0.0F, 0.0F, 1.0F};
inline constexpr DeviceColor white{1.0F, 1.0F, 1.0F, 1.0F};
inline constexpr DeviceColor gray{0.5F, 0.5F, 0.5F, 1.0F};

} // namespace namedcolors
