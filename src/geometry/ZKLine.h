#pragma once

#include "geometry/FloatGeometry.h"
#include "geometry/ZKMatrix.h"
#include "geometry/ZKVector.h"

#include <optional>
#include <string_view>
#include <utility>

class SequentialDecoder;
class SequentialEncoder;

/// An infinite line: a point on it and a direction of the same dimension, at least 2, that is not
/// zero. The direction keeps the length with which it was given; every operation works for any.
class ZKLine
{
protected:
    /// Only the factories have it, so that a line cannot be made past their rules.
    struct Key
    {
        explicit Key() = default;
    };

public:
    static constexpr std::string_view kClassName = "ZKLine";

    /// `lineWithOrigin:andDirection:` gives nothing when the dimensions differ or are below 2, or
    /// the direction is zero.
    [[nodiscard]] static std::optional<ZKLine> lineWithOrigin(const ZKVector &origin,
                                                              const ZKVector &direction);
    /// `lineWithPointA:andB:` has the origin A and the direction B - A.
    [[nodiscard]] static std::optional<ZKLine> lineWithPointA(const ZKVector &a, const ZKVector &b);
    /// `lineWithNSPointA:andB:`
    [[nodiscard]] static std::optional<ZKLine> lineWithNSPointA(FloatPoint a, FloatPoint b);
    /// Nothing when the origin's dimension is below 2 (X, Y) or 3 (Z).
    [[nodiscard]] static std::optional<ZKLine> lineParaXaxisWithOrigin(const ZKVector &origin);
    [[nodiscard]] static std::optional<ZKLine> lineParaYaxisWithOrigin(const ZKVector &origin);
    [[nodiscard]] static std::optional<ZKLine> lineParaZaxisWithOrigin(const ZKVector &origin);

    ZKLine(Key, const ZKVector &origin, const ZKVector &direction)
        : m_origin(origin)
        , m_direction(direction)
    {}
    ZKLine(const ZKLine &) = default;
    ZKLine(ZKLine &&) = default;
    ZKLine &operator=(const ZKLine &) = default;
    ZKLine &operator=(ZKLine &&) = default;
    virtual ~ZKLine() = default;

    [[nodiscard]] const ZKVector &origin() const { return m_origin; }
    [[nodiscard]] const ZKVector &direction() const { return m_direction; }
    [[nodiscard]] int dimension() const { return m_origin.dimension(); }
    /// `setOrigin:andDirection:` stores both as they are; the caller keeps to the line's rules.
    void setOrigin(const ZKVector &origin, const ZKVector &direction);

    /// Parallel in the same or the opposite direction.
    [[nodiscard]] bool isParallelToLine(const ZKLine &line) const;
    /// `isParallelToLine:within:`
    [[nodiscard]] bool isParallelToLine(const ZKLine &line, double within) const;
    [[nodiscard]] bool isParallelToVector(const ZKVector &vector) const;
    /// `isParallelToVector:within:`
    [[nodiscard]] bool isParallelToVector(const ZKVector &vector, double within) const;
    [[nodiscard]] bool isPerpendicularToLine(const ZKLine &line) const;
    /// `isPerpendicularToLine:within:`
    [[nodiscard]] bool isPerpendicularToLine(const ZKLine &line, double within) const;
    [[nodiscard]] bool isPerpendicularToVector(const ZKVector &vector) const;
    /// `isPerpendicularToVector:within:`
    [[nodiscard]] bool isPerpendicularToVector(const ZKVector &vector, double within) const;

    /// Where the two infinite lines cross; nothing unless both are 2-D and not parallel.
    [[nodiscard]] virtual std::optional<ZKVector> crossPointWith(const ZKLine &line) const;
    /// The foot of the perpendicular from `point`; nothing for another dimension.
    [[nodiscard]] std::optional<ZKVector> footOfPerpFrom(const ZKVector &point) const;

    /// Writes the origin, then the direction, each inline.
    void encodeWithCoder(SequentialEncoder &coder) const;
    /// Nothing, and a failed coder, when what it holds is no line.
    [[nodiscard]] static std::optional<ZKLine> initWithCoder(SequentialDecoder &coder);

protected:
    [[nodiscard]] static bool isLine(const ZKVector &origin, const ZKVector &direction)
    {
        return origin.dimension() == direction.dimension() && origin.dimension() >= 2 &&
               !direction.isZero();
    }

private:
    ZKVector m_origin;
    ZKVector m_direction;
};

inline std::optional<ZKLine> ZKLine::lineWithOrigin(const ZKVector &origin,
                                                    const ZKVector &direction)
{
    if (!isLine(origin, direction))
        return std::nullopt;
    return std::optional<ZKLine>(std::in_place, Key(), origin, direction);
}

inline std::optional<ZKLine> ZKLine::lineWithPointA(const ZKVector &a, const ZKVector &b)
{
    return lineWithOrigin(a, b.subVector(a));
}

inline std::optional<ZKLine> ZKLine::lineWithNSPointA(FloatPoint a, FloatPoint b)
{
    return lineWithPointA(ZKVector::vectorWithNSPoint(a), ZKVector::vectorWithNSPoint(b));
}

inline std::optional<ZKVector> ZKLine::crossPointWith(const ZKLine &line) const
{
    if (dimension() != 2 || line.dimension() != 2)
        return std::nullopt;
    const ZKVector between = line.m_origin.subVector(m_origin);
    const std::optional<ZKVector> solution =
        ZKMatrix::solveEquationWithA11(m_direction.X(), line.m_direction.X(), between.X(),
                                       m_direction.Y(), line.m_direction.Y(), between.Y());
    if (!solution)
        return std::nullopt;
    return m_origin.addVector(m_direction.mulScalar(solution->X()));
}
