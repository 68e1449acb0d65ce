#pragma once

#include "conversion/ZKConvCoordinate.h"
#include "geometry/FloatGeometry.h"
#include "geometry/ZKVector.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// One series that leaves the program.
struct ExchangeSeries
{
    int number = 1;               ///< as the user counts, from 1
    std::vector<ZKVector> points; ///< graph values
    /// Under which the points were taken; null counts as none.
    std::shared_ptr<const ZKConvCoordinate> converter;

    [[nodiscard]] bool isPolar() const
    {
        return converter && converter->converterType() == convertertype::polar;
    }
};

/// The values at the two ends of an axis.
struct ExchangeAxis
{
    double minimum = 0;
    double maximum = 0;
    bool isLogarithmic = false;
};

/// The axes as they stand on the picture.
struct ExchangeAxes
{
    int type = 0; ///< 0 parallel, 1 quadrangle, 2 polar
    /// Picture pixels from the bottom left corner; polar axes use the first as centre and the
    /// second as end of the radius.
    std::array<FloatPoint, 4> anchors;
    ExchangeAxis x; ///< polar axes have none
    ExchangeAxis y; ///< the radius of polar axes
    bool isCounterClockwise = false;
    bool isInDegrees = true; ///< angles of polar axes, else in radians
    bool isSigned = false;   ///< angles of polar axes lie around 0, else above it
};

/// What is written about one document.
struct ExchangeFacts
{
    std::string document;               ///< its name as the user sees it, UTF-8
    std::optional<FloatSize> picture;   ///< pixels as shown; nothing without a picture
    std::optional<ExchangeAxes> axes;   ///< nothing without a picture to stand on
    std::vector<ExchangeSeries> series; ///< in ascending order of their numbers
};

/// How it is written.
struct ExchangeStyle
{
    bool withTitles = true; ///< begin tables with a line of titles
    /// Significant digits of the data, 1 to 17; nothing for as many as each number needs.
    std::optional<int> digits;
};
