#pragma once

#include "conversion/ZKConvCoordinate.h"
#include "geometry/ZKLine.h"

/// The converter of quadrangle axes: the plot is a general quadrilateral of the picture with the
/// corners LB (left bottom), RB, LT and RT.
///
/// Values run linearly along the bottom edge (x) and along the left edge (y), in log10 on a log
/// axis. The lines of constant y meet where the bottom and the top edge meet (crossX), the lines of
/// constant x where the left and the right edge meet (crossY); edges that are parallel have no such
/// point, and the lines are parallel to unitX or unitY then. This is deliberately no perspective
/// mapping of the plane.
class ZKConvCoordinateKeystone final : public ZKConvCoordinate
{
public:
    ZKConvCoordinateKeystone();

    /// `convCoordWithPointLB:andPointRB:andPointLT:andPointRT:andX0Valule:andX1Valule:andLogX:andY0Valule:andY1Valule:andLogY:`
    /// makes the converter from the four corners in picture pixels. LB stands for (x0, y0), RB for
    /// x1, LT for y1; RT only gives the directions of the top and the right edge. The caller whose
    /// anchors run counter-clockwise from the left bottom hands over its anchors 1, 2, 4, 3.
    ///
    /// Null when a log axis has a value that is not above 0, when both values of an axis are the
    /// same, or when two neighbouring corners coincide.
    [[nodiscard]] static std::shared_ptr<const ZKConvCoordinateKeystone>
    convCoordWithPointLB(FloatPoint pointLB, FloatPoint pointRB, FloatPoint pointLT,
                         FloatPoint pointRT, double x0Valule, double x1Valule, bool logX,
                         double y0Valule, double y1Valule, bool logY);

    /// `prepareWithOriginLB:andPointRB:andPointLT:andPointRT:andX0Valule:andX1Valule:andY0Valule:andY1Valule:`
    /// fills the fields of a new converter; the values are in log10 form already where the axis is
    /// logarithmic. False when the factory would give null.
    [[nodiscard]] bool prepareWithOriginLB(FloatPoint originLB, FloatPoint pointRB,
                                           FloatPoint pointLT, FloatPoint pointRT, double x0Valule,
                                           double x1Valule, double y0Valule, double y1Valule);

    /// The picture point of the corner LB. Nothing before the converter is prepared, as for
    /// originValue, unitX and unitY.
    [[nodiscard]] const std::optional<ZKVector> &origin() const { return m_origin; }
    /// The graph value at LB, in log10 form for a log axis.
    [[nodiscard]] const std::optional<ZKVector> &originValue() const { return m_originValue; }
    /// The picture displacement along the bottom edge for one unit (one decade) of x, in pixels.
    [[nodiscard]] const std::optional<ZKVector> &unitX() const { return m_unitX; }
    /// The picture displacement along the left edge for one unit (one decade) of y, in pixels.
    [[nodiscard]] const std::optional<ZKVector> &unitY() const { return m_unitY; }
    /// The bottom edge, through LB towards RB, and the left edge, through LB towards LT.
    [[nodiscard]] const std::optional<ZKLine> &axisX() const { return m_axisX; }
    [[nodiscard]] const std::optional<ZKLine> &axisY() const { return m_axisY; }
    /// Where the bottom and the top edge meet; nothing when they are parallel.
    [[nodiscard]] const std::optional<ZKVector> &crossX() const { return m_crossX; }
    /// Where the left and the right edge meet; nothing when they are parallel.
    [[nodiscard]] const std::optional<ZKVector> &crossY() const { return m_crossY; }
    /// Whether the bottom and the top edge are parallel (their determinant is exactly 0).
    [[nodiscard]] bool paraX() const { return m_paraX; }
    /// The same of the left and the right edge.
    [[nodiscard]] bool paraY() const { return m_paraY; }

    [[nodiscard]] std::optional<ZKVector>
    convertToCartesian(const ZKVector &graphValues) const override;
    [[nodiscard]] std::optional<ZKVector>
    convertFromCartesian(const ZKVector &picturePoint) const override;

    /// The line of constant y through `picturePoint` runs along vectorX, the line of constant x
    /// along vectorY: to the point where such lines meet, or along the unit where they are
    /// parallel.
    void getAxisVectorsAt(const ZKVector &picturePoint, std::optional<ZKVector> &vectorX,
                          std::optional<ZKVector> &vectorY) const override;
    /// Gives one vector only, the vectorY of the other form.
    void getAxisVectorsAt(const ZKVector &picturePoint,
                          std::vector<ZKVector> &basis) const override;

    [[nodiscard]] bool isEqualConverterAs(const ZKConvCoordinate &other) const override;

    [[nodiscard]] std::string_view className() const override;
    /// After the base: paraX, paraY, origin, originValue, unitX, unitY, axisX, axisY, then crossX
    /// and crossY, each only where the edges are not parallel.
    void encodeWithCoder(SequentialEncoder &coder) const override;
    [[nodiscard]] bool initWithCoder(SequentialDecoder &coder) override;

private:
    [[nodiscard]] bool prepareAxes(const ZKVector &leftBottom, const ZKVector &rightBottom,
                                   const ZKVector &leftTop, const ZKVector &rightTop);
    [[nodiscard]] bool isPrepared() const { return m_axisX.has_value() && m_axisY.has_value(); }
    [[nodiscard]] ZKVector directionX(const ZKVector &picturePoint) const;
    [[nodiscard]] ZKVector directionY(const ZKVector &picturePoint) const;

    std::optional<ZKVector> m_origin;
    std::optional<ZKVector> m_unitX;
    std::optional<ZKVector> m_unitY;
    std::optional<ZKVector> m_crossX;
    std::optional<ZKVector> m_crossY;
    std::optional<ZKVector> m_originValue;
    std::optional<ZKLine> m_axisX;
    std::optional<ZKLine> m_axisY;
    bool m_paraX = true;
    bool m_paraY = true;
};
