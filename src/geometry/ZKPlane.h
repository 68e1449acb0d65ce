#pragma once

#include "geometry/ZKLine.h"
#include "geometry/ZKVector.h"

#include <optional>
#include <string_view>

class SequentialDecoder;
class SequentialEncoder;

/// A plane: a point in it and a normal of the same dimension, at least 2, that is not zero. The
/// normal keeps the length with which it was given.
class ZKPlane
{
public:
    static constexpr std::string_view kClassName = "ZKPlane";

    /// `planeWithOrigin:normalTo:` gives nothing when the dimensions differ or are below 2, or the
    /// normal is zero.
    [[nodiscard]] static std::optional<ZKPlane> planeWithOrigin(const ZKVector &origin,
                                                                const ZKVector &normalTo);
    /// `planeWithPointA:andB:andC:` takes 3-D points that are not on one line.
    [[nodiscard]] static std::optional<ZKPlane>
    planeWithPointA(const ZKVector &a, const ZKVector &b, const ZKVector &c);

    [[nodiscard]] const ZKVector &origin() const { return m_origin; }
    [[nodiscard]] const ZKVector &normal() const { return m_normal; }
    [[nodiscard]] int dimension() const { return m_origin.dimension(); }
    /// `setOrigin:andNormal:` stores both as they are; the caller keeps to the plane's rules.
    void setOrigin(const ZKVector &origin, const ZKVector &normal);

    [[nodiscard]] bool isParallelToPlane(const ZKPlane &plane) const;
    /// `isParallelToPlane:within:`
    [[nodiscard]] bool isParallelToPlane(const ZKPlane &plane, double within) const;
    [[nodiscard]] bool isParallelToLine(const ZKLine &line) const;
    /// `isParallelToLine:within:`
    [[nodiscard]] bool isParallelToLine(const ZKLine &line, double within) const;
    [[nodiscard]] bool isParallelToVector(const ZKVector &vector) const;
    /// `isParallelToVector:within:`
    [[nodiscard]] bool isParallelToVector(const ZKVector &vector, double within) const;
    [[nodiscard]] bool isPerpendicularToPlane(const ZKPlane &plane) const;
    /// `isPerpendicularToPlane:within:`
    [[nodiscard]] bool isPerpendicularToPlane(const ZKPlane &plane, double within) const;
    [[nodiscard]] bool isPerpendicularToLine(const ZKLine &line) const;
    /// `isPerpendicularToLine:within:`
    [[nodiscard]] bool isPerpendicularToLine(const ZKLine &line, double within) const;
    [[nodiscard]] bool isPerpendicularToVector(const ZKVector &vector) const;
    /// `isPerpendicularToVector:within:`
    [[nodiscard]] bool isPerpendicularToVector(const ZKVector &vector, double within) const;

    /// Where the line meets the plane; nothing for another dimension or when the line is parallel.
    [[nodiscard]] std::optional<ZKVector> crossPointWith(const ZKLine &line) const;
    /// The foot of the perpendicular from `point`; nothing for another dimension.
    [[nodiscard]] std::optional<ZKVector> footOfPerpFrom(const ZKVector &point) const;

    /// Writes the origin, then the normal, each inline.
    void encodeWithCoder(SequentialEncoder &coder) const;
    /// Nothing, and a failed coder, when what it holds is no plane.
    [[nodiscard]] static std::optional<ZKPlane> initWithCoder(SequentialDecoder &coder);

private:
    ZKPlane(const ZKVector &origin, const ZKVector &normal)
        : m_origin(origin)
        , m_normal(normal)
    {}

    ZKVector m_origin;
    ZKVector m_normal;
};
