#pragma once

#include "conversion/ZKConvCoordinate.h"

#include <memory>
#include <string_view>

namespace converterarchive {

/// The converter of class `className` from its archived values, or null when there is no such
/// class or the values are none that it writes: a type code of another class, a wrong dimension,
/// a count beyond the values that are left, a line without direction. The coder is marked as failed
/// then. Values after the converter's own stay in the coder.
[[nodiscard]] std::shared_ptr<const ZKConvCoordinate> converterWithCoder(std::string_view className,
                                                                         SequentialDecoder &coder);

} // namespace converterarchive
