#pragma once

#include "conversion/ZKConvCoordinate.h"

/// The converter of polar axes. Graph values are (theta, r): the angle from the line that runs from
/// the centre through the radius point, and the radius; only the radius may be logarithmic.
///
/// The range code says in which unit and range angles come back:
///
///     0  degrees, 0 up to but excluding 360      1  degrees, above -180 up to 180
///     2  radians, 0 up to but excluding 2 pi     3  radians, above -pi up to pi
class ZKConvCoordinatePolar final : public ZKConvCoordinate
{
public:
    ZKConvCoordinatePolar();

    /// `convCoordWithCenter:andRadius:andR0Valule:andR1Valule:andLogR:andTRange:andRotateCCW:`
    /// makes the converter from the centre, where the radius is r0, and the radius point, where it
    /// is r1 at angle 0 (picture pixels both). `rotateCCW`: angles grow counter-clockwise.
    ///
    /// Null when a log radius has a value that is not above 0, or when r0 and r1 are the same. A
    /// radius point on the centre is accepted: conversions then divide by a zero length. With r1
    /// below r0 angle 0 points away from the radius point.
    [[nodiscard]] static std::shared_ptr<const ZKConvCoordinatePolar>
    convCoordWithCenter(FloatPoint center, FloatPoint radius, double r0Valule, double r1Valule,
                        bool logR, std::int32_t tRange, bool rotateCCW);

    /// `prepareWithCenter:andRadius:andR0Valule:andR1Valule:andTRange:andRotateCCW:` fills the
    /// fields of a new converter; r0 and r1 are in log10 form already for a log radius. Always
    /// true.
    bool prepareWithCenter(FloatPoint center, FloatPoint radius, double r0Valule, double r1Valule,
                           std::int32_t tRange, bool rotateCCW);

    /// The picture point where the radius is r0. Nothing before the converter is prepared, as for
    /// unitR and originValue.
    [[nodiscard]] const std::optional<ZKVector> &center() const { return m_center; }
    /// The picture displacement of one unit (one decade) of radius along angle 0, in pixels.
    [[nodiscard]] const std::optional<ZKVector> &unitR() const { return m_unitR; }
    /// What is added to the measured angle (radians) and radius: the offset of the range, 2 pi or
    /// 0, and r0 in log10 form for a log radius.
    [[nodiscard]] const std::optional<ZKVector> &originValue() const { return m_originValue; }
    /// Whether angles grow counter-clockwise in the picture.
    [[nodiscard]] bool ccwTheta() const { return m_ccwTheta; }
    /// Whether angles are given and returned in degrees, else in radians.
    [[nodiscard]] bool degreeMode() const { return m_degreeMode; }

    /// A radius below r0 lands on the opposite side of the centre.
    [[nodiscard]] std::optional<ZKVector>
    convertToCartesian(const ZKVector &graphValues) const override;
    [[nodiscard]] std::optional<ZKVector>
    convertFromCartesian(const ZKVector &picturePoint) const override;

    /// vectorX is the radial direction (unitR at the centre itself). vectorY is no direction but
    /// the centre point: the circle of constant radius is drawn about it.
    void getAxisVectorsAt(const ZKVector &picturePoint, std::optional<ZKVector> &vectorX,
                          std::optional<ZKVector> &vectorY) const override;
    /// Gives one vector only, the vectorY of the other form.
    void getAxisVectorsAt(const ZKVector &picturePoint,
                          std::vector<ZKVector> &basis) const override;

    /// Of the flags only this is asked: converters of one rotation sense are equal whatever their
    /// units; those of different senses are equal when their units are.
    [[nodiscard]] bool isEqualConverterAs(const ZKConvCoordinate &other) const override;

    [[nodiscard]] std::string_view className() const override;
    /// After the base: center, unitR, originValue, ccwTheta, degreeMode.
    void encodeWithCoder(SequentialEncoder &coder) const override;
    [[nodiscard]] bool initWithCoder(SequentialDecoder &coder) override;

private:
    [[nodiscard]] bool isPrepared() const { return m_originValue.has_value(); }

    std::optional<ZKVector> m_center;
    std::optional<ZKVector> m_unitR;
    std::optional<ZKVector> m_originValue;
    bool m_ccwTheta = true;
    bool m_degreeMode = true;
};
