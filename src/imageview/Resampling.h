#pragma once

#include <QImage>

namespace resampling {

/// How pixels of the result come from pixels of the source in one direction: pixel i covers
/// the source from start + i * step to start + (i + 1) * step.
struct Direction
{
    double start = 0;
    double step = 1;
    int count = 0;
};

/// A new image of `columns.count` x `rows.count` pixels made of `source` (RGB32 or Grayscale8,
/// and so is the result). Where the source is reduced each pixel is the average of the area that it
/// covers, so that thin lines fade but never vanish; where it is enlarged neighbours are mixed.
/// Beyond its edges the source counts as continued by its last pixels. Null without memory.
[[nodiscard]] QImage resampled(const QImage &source, Direction columns, Direction rows);

} // namespace resampling
