#pragma once

#include "geometry/FloatGeometry.h"
#include "geometry/InlineDoubles.h"
#include "geometry/ZKLine.h"
#include "geometry/ZKVector.h"

#include <cstddef>
#include <optional>

/// A line with two ends and their bounding box. Origin and direction are those of the line that the
/// segment was made from, whatever its ends.
class ZKLineSegment final : public ZKLine
{
public:
    /// `lineWithOrigin:andDirection:` makes a segment that has no ends yet.
    [[nodiscard]] static std::optional<ZKLineSegment> lineWithOrigin(const ZKVector &origin,
                                                                     const ZKVector &direction);
    /// `lineWithPointA:andB:` Nothing under the line's rules, so when A is B.
    [[nodiscard]] static std::optional<ZKLineSegment> lineWithPointA(const ZKVector &a,
                                                                     const ZKVector &b);
    /// `lineWithNSPointA:andB:`
    [[nodiscard]] static std::optional<ZKLineSegment> lineWithNSPointA(FloatPoint a, FloatPoint b);
    /// `lineWithNSPointA:andB:trimmedBy:` is the part of the infinite line through A and B that
    /// lies in the rectangle, its edges included. The ends are taken from the edges in a fixed
    /// order of preference, not in the order of A and B; a line through a corner may give a segment
    /// of no length.
    [[nodiscard]] static std::optional<ZKLineSegment> lineWithNSPointA(FloatPoint a, FloatPoint b,
                                                                       FloatRect trimmedBy);
    /// `lineWithNSPoint:andDirection:trimmedBy:`
    [[nodiscard]] static std::optional<ZKLineSegment>
    lineWithNSPoint(FloatPoint point, FloatPoint direction, FloatRect trimmedBy);

    /// `setEndPoint1:andEndPoint2:`
    void setEndPoint1(const ZKVector &endPoint1, const ZKVector &endPoint2);
    [[nodiscard]] const std::optional<ZKVector> &getEndPoint1() const { return m_endPoint1; }
    [[nodiscard]] const std::optional<ZKVector> &getEndPoint2() const { return m_endPoint2; }
    /// The ends narrowed to float; (0, 0) where there is none.
    [[nodiscard]] FloatPoint getEndNSPoint1() const;
    [[nodiscard]] FloatPoint getEndNSPoint2() const;

    /// Whether the point lies in the bounding box of the ends, its bounds included; no tolerance.
    [[nodiscard]] bool includesPoint(const ZKVector &point) const;
    /// The crossing of the infinite lines, if it lies in this segment's bounding box; how far the
    /// other one reaches is not asked.
    [[nodiscard]] std::optional<ZKVector> crossPointWith(const ZKLine &line) const override;

private:
    ZKLineSegment(const ZKVector &origin, const ZKVector &direction)
        : ZKLine(Key(), origin, direction)
        , m_minValues(static_cast<std::size_t>(origin.dimension()))
        , m_maxValues(static_cast<std::size_t>(origin.dimension()))
    {}

    std::optional<ZKVector> m_endPoint1;
    std::optional<ZKVector> m_endPoint2;
    InlineDoubles<4> m_minValues;
    InlineDoubles<4> m_maxValues;
};
