#include "imageview/ZoomArea.h"

#include "geometry/ZKRect.h"

#include <algorithm>
#include <cmath>

namespace {

FloatRect intersection(const FloatRect &a, const FloatRect &b)
{
    const float left = std::max(a.origin.x, b.origin.x);
    const float bottom = std::max(a.origin.y, b.origin.y);
    const float right = std::min(a.origin.x + a.size.width, b.origin.x + b.size.width);
    const float top = std::min(a.origin.y + a.size.height, b.origin.y + b.size.height);
    if (right < left || top < bottom)
        return {};
    return {{left, bottom}, {right - left, top - bottom}};
}

} // namespace

FloatRect zoomarea::dragged(FloatPoint start, FloatSize delta, FloatSize picture)
{
    return intersection(ZKRect::normalizeRect(ZKRect::rectOfOrigin(start, delta)),
                        ZKRect::rectOfSize(picture));
}

// A side without length in both has no ratio; then the other side decides.

float zoomarea::factorToFill(FloatSize area, FloatSize clip)
{
    return std::fmin(std::fabs(clip.width / area.width), std::fabs(clip.height / area.height));
}

float zoomarea::factorToShrinkInto(FloatSize area, FloatSize clip)
{
    return std::fmax(std::fabs(area.width / clip.width), std::fabs(area.height / clip.height));
}
