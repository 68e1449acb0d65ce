#include "axes/AxisHints.h"

#include "axes/Anchors.h"
#include "platform/Texts.h"

#include <array>
#include <cstddef>

namespace {

// By part code, from nothing (0) over the area and the corners to the sides.
constexpr std::array parallelKeys{
    "axes.hint.none",           "axes.hint.area",           "axes.hint.parallel.origin",
    "axes.hint.parallel.maxx",  "axes.hint.parallel.far",   "axes.hint.parallel.maxy",
    "axes.hint.parallel.xaxis", "axes.hint.parallel.right", "axes.hint.parallel.top",
    "axes.hint.parallel.yaxis"};
constexpr std::array quadrangleKeys{"axes.hint.none",
                                    "axes.hint.area",
                                    "axes.hint.quadrangle.bottomleft",
                                    "axes.hint.quadrangle.bottomright",
                                    "axes.hint.quadrangle.topright",
                                    "axes.hint.quadrangle.topleft",
                                    "axes.hint.quadrangle.bottom",
                                    "axes.hint.quadrangle.right",
                                    "axes.hint.quadrangle.top",
                                    "axes.hint.quadrangle.left"};

// By part code from 10, the centre.
constexpr int firstPolarPart = 10;
constexpr std::array polarKeys{"axes.hint.polar.centre", "axes.hint.polar.end",
                               "axes.hint.polar.swing",  "axes.hint.polar.swing",
                               "axes.hint.polar.turn",   "axes.hint.polar.turn",
                               "axes.hint.polar.size",   "axes.hint.polar.size"};

template <std::size_t count>
const char *keyAt(const std::array<const char *, count> &keys, int index, const char *otherwise)
{
    return index >= 0 && index < static_cast<int>(count) ? keys.at(static_cast<std::size_t>(index))
                                                         : otherwise;
}

const char *keyOf(int axisType, int part)
{
    if (axisType != axistype::polar) {
        const auto &keys = axisType == axistype::quadrangle ? quadrangleKeys : parallelKeys;
        return keyAt(keys, part, "axes.hint.none");
    }
    if (part == 1)
        return "axes.hint.polar.area";
    return keyAt(polarKeys, part - firstPolarPart, "axes.hint.polar.none");
}

} // namespace

QString axishints::hintForPart(int axisType, int part)
{
    return texts::localized(keyOf(axisType, part));
}
