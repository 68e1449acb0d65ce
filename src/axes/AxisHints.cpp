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

// The names, by the same codes.
constexpr std::array parallelNames{"",
                                   "axes.part.frame",
                                   "axes.part.origin",
                                   "axes.part.maxx",
                                   "axes.part.far",
                                   "axes.part.maxy",
                                   "axes.part.xaxis",
                                   "axes.part.rightside",
                                   "axes.part.topside",
                                   "axes.part.yaxis"};
constexpr std::array quadrangleNames{"",
                                     "axes.part.frame",
                                     "axes.part.bottomleft",
                                     "axes.part.bottomright",
                                     "axes.part.topright",
                                     "axes.part.topleft",
                                     "axes.part.bottomside",
                                     "axes.part.rightside",
                                     "axes.part.topside",
                                     "axes.part.leftside"};
constexpr std::array polarNames{"axes.part.centre", "axes.part.end",  "axes.part.swing",
                                "axes.part.swing",  "axes.part.turn", "axes.part.turn",
                                "axes.part.size",   "axes.part.size"};

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

QString axishints::nameOfPart(int axisType, int part)
{
    const char *key = "";
    if (axisType == axistype::polar)
        key = keyAt(polarNames, part - firstPolarPart, "");
    else
        key = keyAt(axisType == axistype::quadrangle ? quadrangleNames : parallelNames, part, "");
    return *key == '\0' ? QString() : texts::localized(key);
}
