#pragma once

#include "archiving/SequentialCoder.h"
#include "geometry/FloatGeometry.h"
#include "geometry/ZKVector.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// Which converter an object is; other folders ask for the code, not for the class. An axis type
/// (0 parallel, 1 quadrangle, 2 polar) has the code of the converter that it makes.
namespace convertertype {
inline constexpr std::int32_t base = -1;
inline constexpr std::int32_t affine = 0;
inline constexpr std::int32_t keystone = 1;
inline constexpr std::int32_t polar = 2;
} // namespace convertertype

/// Maps between the picture plane and the graph plane.
///
/// "Cartesian" in the names means the picture plane: picture pixels, not scaled by the zoom, origin
/// at the bottom left, y upwards. Graph values are what the plotted axes stand for, in the order
/// (x, y), for a polar graph (theta, r).
///
/// The base converts nothing. It holds what the kinds share: which graph components lie on a
/// logarithmic axis, the type code, the forms for float points, and the first part of the archive.
///
/// A converter does not change after it was built. It is shared as `shared_ptr<const …>` between
/// the axes, the cursor guide and every series made under it; a null pointer is "no converter".
/// Converting a point of the plane asks for no memory.
class ZKConvCoordinate : public Archivable
{
public:
    ZKConvCoordinate();
    ~ZKConvCoordinate() override = default;
    ZKConvCoordinate(const ZKConvCoordinate &) = delete;
    ZKConvCoordinate &operator=(const ZKConvCoordinate &) = delete;

    /// The picture point of `graphValues`, or nothing.
    [[nodiscard]] virtual std::optional<ZKVector>
    convertToCartesian(const ZKVector &graphValues) const;

    /// The graph values at `picturePoint`, or nothing. No value is tested on the way: what log10
    /// or a division by zero gives (infinite, NaN) flows on.
    [[nodiscard]] virtual std::optional<ZKVector>
    convertFromCartesian(const ZKVector &picturePoint) const;

    /// `getAxisVectorsAt:basis:` replaces `basis` by the axis vectors at `picturePoint`; the base
    /// leaves it alone.
    virtual void getAxisVectorsAt(const ZKVector &picturePoint, std::vector<ZKVector> &basis) const;

    /// `getAxisVectorsAt:vectorX:vectorY:` gives the picture directions of the two graph axes at
    /// `picturePoint`, in pixels; one that does not exist leaves its argument alone. The base
    /// leaves both alone.
    virtual void getAxisVectorsAt(const ZKVector &picturePoint, std::optional<ZKVector> &vectorX,
                                  std::optional<ZKVector> &vectorY) const;

    /// Whether the two convert alike, so that points taken under either may stand in one series.
    /// Log flags take no part on purpose. The base compares the type codes only.
    [[nodiscard]] virtual bool isEqualConverterAs(const ZKConvCoordinate &other) const;

    [[nodiscard]] std::int32_t converterType() const { return m_converterType; }

    /// Replaces the log flags, while the converter is being built: flag i says that graph component
    /// i is on a logarithmic axis. Where memory is short there are no flags afterwards.
    void setLogConversion(std::span<const bool> flags);

    /// The log flags as archived (not 0: logarithmic); empty when every component is linear.
    [[nodiscard]] std::span<const std::int8_t> logConversion() const { return m_logConversion; }
    [[nodiscard]] std::int32_t logArraySize() const;

    /// A copy with log10 taken of each flagged component: 0 gives -infinity, less gives NaN.
    [[nodiscard]] ZKVector log10Conversion(const ZKVector &vector) const;
    /// A copy with 10 raised to each flagged component.
    [[nodiscard]] ZKVector power10Conversion(const ZKVector &vector) const;

    /// The same conversions for float points, in the same units; (0, 0) when nothing came back.
    [[nodiscard]] FloatPoint convertPointToCartesian(FloatPoint graphValues) const;
    [[nodiscard]] FloatPoint convertPointFromCartesian(FloatPoint picturePoint) const;

    /// `getAxisVectorsAtPoint:basis1:basis2:` stores the axis vectors at a picture point; an out
    /// point whose vector did not come back stays as the caller set it.
    void getAxisVectorsAtPoint(FloatPoint point, FloatPoint &basis1, FloatPoint &basis2) const;

    [[nodiscard]] std::string_view className() const override;

    /// Writes the type code, the number of log flags and the flags; the kinds go on from there.
    void encodeWithCoder(SequentialEncoder &coder) const override;

    /// Reads what encodeWithCoder wrote into a new converter. Data that no converter of this class
    /// writes (another type code, a wrong dimension) is a failure: the coder is marked as failed
    /// and the converter is not to be used.
    [[nodiscard]] virtual bool initWithCoder(SequentialDecoder &coder);

protected:
    explicit ZKConvCoordinate(std::int32_t converterType);

    /// Converters compare their vectors and matrices with this relative tolerance.
    static constexpr double equalityTolerance = 0.0002;

    [[nodiscard]] static bool areEqual(const std::optional<ZKVector> &a,
                                       const std::optional<ZKVector> &b)
    {
        return a && b && a->isEqualTo(*b, equalityTolerance);
    }

    /// A vector of the plane; nothing, and a failed coder, for any other dimension.
    [[nodiscard]] static std::optional<ZKVector> planeVectorWithCoder(SequentialDecoder &coder);

    /// Replaces both values of a log axis by their log10; false when one is not above 0.
    [[nodiscard]] static bool takeLog10(double &value0, double &value1);

    /// Component `index` of log10Conversion or power10Conversion, without a vector around it.
    [[nodiscard]] double log10OfComponent(double value, std::size_t index) const
    {
        return isLogarithmic(index) ? std::log10(value) : value;
    }
    [[nodiscard]] double power10OfComponent(double value, std::size_t index) const
    {
        return isLogarithmic(index) ? std::pow(10.0, value) : value;
    }

private:
    [[nodiscard]] bool isLogarithmic(std::size_t index) const
    {
        return index < m_logConversion.size() && m_logConversion[index] != 0;
    }

    std::int32_t m_converterType;
    std::vector<std::int8_t> m_logConversion;
};
