#include "imageview/PdfPage.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// Sizes beyond this are refused before anything is painted; it keeps them countable.
constexpr double longestSide = std::numeric_limits<int>::max() / 2.0;

int roundedUp(float length)
{
    return static_cast<int>(std::ceil(std::min(static_cast<double>(length), longestSide)));
}

int rounded(double length)
{
    return std::max(1, static_cast<int>(std::lround(std::min(length, longestSide))));
}

} // namespace

PdfPlacement pdfplacement::placementOf(const PdfPage &page, float scale)
{
    PdfPlacement placement;
    placement.imageSize = {static_cast<float>(page.width * static_cast<double>(scale)),
                           static_cast<float>(page.height * static_cast<double>(scale))};
    placement.imagePixels = {roundedUp(placement.imageSize.width),
                             roundedUp(placement.imageSize.height)};
    const bool aside = page.rotation == 90 || page.rotation == 270;
    const double width = aside ? page.height : page.width;
    const double height = aside ? page.width : page.height;
    const double fitting = std::min({1.0, page.width / width, page.height / height});
    const double factor = fitting * static_cast<double>(scale);
    placement.pagePixels = QSize(rounded(width * factor), rounded(height * factor));
    const auto inTheMiddle = [](float paper, double content) {
        const double margin = (static_cast<double>(paper) - content) / 2;
        return static_cast<int>(std::lround(std::min(margin, longestSide)));
    };
    placement.pageOrigin = QPoint(inTheMiddle(placement.imageSize.width, width * factor),
                                  inTheMiddle(placement.imageSize.height, height * factor));
    return placement;
}
