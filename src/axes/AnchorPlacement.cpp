#include "axes/AnchorPlacement.h"

#include <cmath>

namespace {

// The default anchors stand a fifth of the picture inside its edges.
constexpr double nearEdge = 0.2;
constexpr double farEdge = 0.8;
constexpr double middle = 0.5;

// The default radius as a share of the shorter side.
constexpr double radiusShare = 0.3;

/// `value` cut to a whole number, towards zero.
float wholePart(double value) { return static_cast<float>(std::trunc(value)); }

} // namespace

bool anchorplacement::hasPositiveSize(FloatSize size) { return size.width > 0 && size.height > 0; }

FloatSize anchorplacement::displayedSize(const Picture &picture)
{
    if (picture.rotation == 0 || picture.rotation == 180)
        return picture.size;
    return {picture.size.height, picture.size.width};
}

Anchors anchorplacement::defaultPlacement(int axisType, const Picture &picture,
                                          const Anchors &current)
{
    const FloatSize displayed = displayedSize(picture);
    Anchors placed = current;
    if (axisType == axistype::polar) {
        const FloatSize size = picture.size;
        const auto radius =
            static_cast<float>(radiusShare * (size.height > size.width ? size.width : size.height));
        placed.anchor1 = {wholePart(middle * displayed.width),
                          wholePart(middle * displayed.height)};
        placed.anchor2 = {wholePart(radius + placed.anchor1.x), placed.anchor1.y};
        return placed;
    }
    const float left = wholePart(nearEdge * displayed.width);
    const float right = wholePart(farEdge * displayed.width);
    const float bottom = wholePart(nearEdge * displayed.height);
    const float top = wholePart(farEdge * displayed.height);
    return {{left, bottom}, {right, bottom}, {right, top}, {left, top}};
}

Anchors anchorplacement::wholePlacement(const Picture &picture)
{
    const FloatSize displayed = displayedSize(picture);
    const float right = wholePart(displayed.width);
    const float top = wholePart(displayed.height);
    return {{0, 0}, {right, 0}, {right, top}, {0, top}};
}
