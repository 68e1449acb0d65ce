#pragma once

#include "geometry/FloatGeometry.h"

#include <array>
#include <optional>

/// The facts about a document's axes that users are shown.
struct AxisFacts
{
    int axisType = 0;                    ///< 0 parallel, 1 quadrangle, 2 polar
    std::array<FloatPoint, 4> anchors{}; ///< anchors 1 to 4, in picture coordinates
    double bottomLength = 0;             ///< in picture points, as all lengths here
    double leftLength = 0;
    double radius = 0;
    double inclination = 0; ///< degrees, positive counter-clockwise
};

/// The facts about a document's data that users are shown.
struct DataFacts
{
    int currentSeries = 0; ///< an index from 0
    int currentIndex = 0;  ///< the row that the next point of the current series takes
    int validSeries = 0;   ///< how many series hold points
    int maxRows = 0;       ///< the length of the longest series
};

/// The facts about a document that the info panel and the command line show.
struct InfoFacts
{
    std::optional<FloatSize> imageSize; ///< as displayed; nothing without a picture
    AxisFacts axes;
    DataFacts data;
};
