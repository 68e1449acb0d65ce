#pragma once

#include "geometry/FloatGeometry.h"

#include <optional>
#include <string>
#include <string_view>

class SequentialDecoder;
class SequentialEncoder;
class ZKVector;

/// A point of two floats that can change, with operations like a vector's; all of them work in
/// single precision unless they say otherwise. The class operations that take FloatPoint work on
/// plain points.
class ZKPoint
{
public:
    static constexpr std::string_view kClassName = "ZKPoint";

    [[nodiscard]] static ZKPoint pointZero() { return ZKPoint({}); }
    /// `pointWithX:andY:`
    [[nodiscard]] static ZKPoint pointWithX(float x, float y) { return ZKPoint({x, y}); }
    [[nodiscard]] static ZKPoint pointWithNSPoint(FloatPoint point) { return ZKPoint(point); }
    [[nodiscard]] static ZKPoint pointWithNSSize(FloatSize size)
    {
        return ZKPoint({size.width, size.height});
    }
    [[nodiscard]] static ZKPoint pointWithZKPoint(const ZKPoint &point) { return point; }
    /// X and Y narrowed to float.
    [[nodiscard]] static ZKPoint pointWithVector(const ZKVector &vector);

    [[nodiscard]] static FloatPoint pointOfSize(FloatSize size)
    {
        return {size.width, size.height};
    }
    /// `addPoint:and:`
    [[nodiscard]] static FloatPoint addPoint(FloatPoint point, FloatPoint other)
    {
        return {point.x + other.x, point.y + other.y};
    }
    /// `subPoint:from:` takes the first point off the second.
    [[nodiscard]] static FloatPoint subPoint(FloatPoint point, FloatPoint from)
    {
        return {from.x - point.x, from.y - point.y};
    }
    /// `multiplyPoint:by:`
    [[nodiscard]] static FloatPoint multiplyPoint(FloatPoint point, float by)
    {
        return {point.x * by, point.y * by};
    }
    /// `dividePoint:by:`
    [[nodiscard]] static FloatPoint dividePoint(FloatPoint point, float by)
    {
        return {point.x / by, point.y / by};
    }

    [[nodiscard]] FloatPoint point() const { return m_point; }
    [[nodiscard]] float X() const { return m_point.x; }
    [[nodiscard]] float Y() const { return m_point.y; }
    void setNSPoint(FloatPoint point) { m_point = point; }

    [[nodiscard]] float length() const;
    [[nodiscard]] float distanceFrom(const ZKPoint &point) const;
    [[nodiscard]] bool isZero() const { return isEqualTo(pointZero()); }
    [[nodiscard]] bool isEqualTo(const ZKPoint &point) const { return m_point == point.m_point; }

    /// Computed in double, stored as float; a division by zero is not guarded.
    ZKPoint &addScalarSelf(double scalar);
    ZKPoint &subScalarSelf(double scalar);
    ZKPoint &mulScalarSelf(double scalar);
    ZKPoint &divScalarSelf(double scalar);

    [[nodiscard]] ZKPoint addPoint(const ZKPoint &point) const;
    [[nodiscard]] ZKPoint subPoint(const ZKPoint &point) const;
    ZKPoint &addPointSelf(const ZKPoint &point);
    ZKPoint &subPointSelf(const ZKPoint &point);
    /// The 2-D cross product.
    [[nodiscard]] float mulPoint(const ZKPoint &point) const;
    /// The dot product.
    [[nodiscard]] float product(const ZKPoint &point) const;
    /// Leaves a point of length exactly 0 as it is.
    ZKPoint &normalizeSelf();

    /// Radians from the receiver to `point`, positive counter-clockwise, through the arc cosine
    /// without a clamp: rounding above 1 and a zero point give NaN.
    [[nodiscard]] float angle(const ZKPoint &point) const;
    [[nodiscard]] float angleDeg(const ZKPoint &point) const;
    /// `isParallelTo:allowAntipara:` compares exactly.
    [[nodiscard]] bool isParallelTo(const ZKPoint &point, bool allowAntipara) const;
    [[nodiscard]] bool isPerpendicularTo(const ZKPoint &point) const;

    /// The smaller of each coordinate.
    [[nodiscard]] ZKPoint lowerLeft(const ZKPoint &point) const;
    ZKPoint &lowerLeftSelf(const ZKPoint &point);
    /// The greater of each coordinate.
    [[nodiscard]] ZKPoint upperRight(const ZKPoint &point) const;
    ZKPoint &upperRightSelf(const ZKPoint &point);
    /// `isBetween:and:within:` is whether the point lies near the line between `a` and `b`: inside
    /// their box widened by the tolerance, and at most that far off along the line's minor axis.
    [[nodiscard]] bool isBetween(const ZKPoint &a, const ZKPoint &b, float within) const;

    /// For example "( 1.5, 2 )" after the prefix.
    [[nodiscard]] std::string makeLogStringWith(std::string_view prefix) const;

    /// Writes the pair as one value ("{_NSPoint=ff}").
    void encodeWithCoder(SequentialEncoder &coder) const;
    /// Nothing, and a failed coder, when what it holds is no point.
    [[nodiscard]] static std::optional<ZKPoint> initWithCoder(SequentialDecoder &coder);

    friend bool operator==(const ZKPoint &a, const ZKPoint &b) { return a.isEqualTo(b); }

private:
    explicit ZKPoint(FloatPoint point)
        : m_point(point)
    {}

    FloatPoint m_point;
};
