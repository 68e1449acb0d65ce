#pragma once

#include "conversion/ZKConvCoordinate.h"
#include "geometry/ZKMatrix.h"

/// The converter of parallel axes: two straight axes at any angle to each other and to the picture,
/// each linear or logarithmic.
///
///     picture = xferMatrixToCartesian * log10(graph) + origin
///     graph   = 10 ^ (xferMatrixFromCartesian * (picture - origin))
///
/// where log10 and the power of ten touch the logarithmic components only.
class ZKConvCoordinateAffine final : public ZKConvCoordinate
{
public:
    ZKConvCoordinateAffine();

    /// `convCoordWithOrigin:andBasis:` makes a converter from the picture point of graph value
    /// (0, 0) and the picture displacement of one unit (a decade on a log axis) of each graph
    /// component, in pixels; null when createXferMatrixWithOrigin fails.
    [[nodiscard]] static std::shared_ptr<const ZKConvCoordinateAffine>
    convCoordWithOrigin(const ZKVector &origin, std::span<const ZKVector> basis);

    /// `convCoordWithX0Point:andX1Point:andX0Valule:andX1Valule:andLogX:andY0Point:andY1Point:andY0Valule:andY1Valule:andLogY:`
    /// makes the converter from two anchors per axis: their picture points in pixels and the graph
    /// values there. The origin of the graph is where the line of all points with x = 0 crosses the
    /// line of all points with y = 0; no anchor has to lie there.
    ///
    /// Null when a log axis has a value that is not above 0, when both values of an axis are the
    /// same, or when the axes are parallel.
    [[nodiscard]] static std::shared_ptr<const ZKConvCoordinateAffine>
    convCoordWithX0Point(FloatPoint x0Point, FloatPoint x1Point, double x0Valule, double x1Valule,
                         bool logX, FloatPoint y0Point, FloatPoint y1Point, double y0Valule,
                         double y1Valule, bool logY);

    /// `createXferMatrixWithOrigin:andBasis:` fills the three fields of a new converter; false when
    /// `origin` has fewer than two components, when there are not as many basis vectors of as many
    /// components, or when they are parallel.
    [[nodiscard]] bool createXferMatrixWithOrigin(const ZKVector &origin,
                                                  std::span<const ZKVector> basis);

    /// The picture point of graph value (0, 0); on a log axis of value 1. Nothing before the
    /// converter is built, as for the matrices.
    [[nodiscard]] const std::optional<ZKVector> &origin() const { return m_origin; }
    /// Column j is the picture displacement of one unit (one decade) of graph component j.
    [[nodiscard]] const std::optional<ZKMatrix> &xferMatrixToCartesian() const
    {
        return m_xferMatrixToCartesian;
    }
    /// The inverse of xferMatrixToCartesian.
    [[nodiscard]] const std::optional<ZKMatrix> &xferMatrixFromCartesian() const
    {
        return m_xferMatrixFromCartesian;
    }

    [[nodiscard]] std::optional<ZKVector>
    convertToCartesian(const ZKVector &graphValues) const override;
    [[nodiscard]] std::optional<ZKVector>
    convertFromCartesian(const ZKVector &picturePoint) const override;

    /// The axis vectors are the columns of xferMatrixToCartesian, the same at every point.
    void getAxisVectorsAt(const ZKVector &picturePoint,
                          std::vector<ZKVector> &basis) const override;
    void getAxisVectorsAt(const ZKVector &picturePoint, std::optional<ZKVector> &vectorX,
                          std::optional<ZKVector> &vectorY) const override;

    [[nodiscard]] bool isEqualConverterAs(const ZKConvCoordinate &other) const override;

    [[nodiscard]] std::string_view className() const override;
    /// After the base: origin, xferMatrixToCartesian, xferMatrixFromCartesian.
    void encodeWithCoder(SequentialEncoder &coder) const override;
    /// Only converters of the plane (two dimensions) are read back.
    [[nodiscard]] bool initWithCoder(SequentialDecoder &coder) override;

private:
    [[nodiscard]] bool isBuilt() const { return m_xferMatrixFromCartesian.has_value(); }

    std::optional<ZKVector> m_origin;
    std::optional<ZKMatrix> m_xferMatrixToCartesian;
    std::optional<ZKMatrix> m_xferMatrixFromCartesian;
};
