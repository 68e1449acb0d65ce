#include "conversion/ZKConvCoordinatePolar.h"

#include <array>

namespace {

constexpr double pi = 3.141592653589793;
constexpr double twoPi = 6.283185307179586;

/// Brings an angle of the range's offset into the range, by one turn at the most: above -pi, and
/// below a full turn.
double wrappedOnce(double angle)
{
    if (angle >= twoPi)
        return angle - twoPi;
    if (angle <= -pi)
        return angle + twoPi;
    return angle;
}

} // namespace

ZKConvCoordinatePolar::ZKConvCoordinatePolar()
    : ZKConvCoordinate(convertertype::polar)
{}

std::shared_ptr<const ZKConvCoordinatePolar>
ZKConvCoordinatePolar::convCoordWithCenter(FloatPoint center, FloatPoint radius, double r0Valule,
                                           double r1Valule, bool logR, std::int32_t tRange,
                                           bool rotateCCW)
{
    if (logR && !takeLog10(r0Valule, r1Valule))
        return nullptr;
    if (r0Valule == r1Valule)
        return nullptr;
    const auto converter = std::make_shared<ZKConvCoordinatePolar>();
    if (!converter->prepareWithCenter(center, radius, r0Valule, r1Valule, tRange, rotateCCW))
        return nullptr;
    if (logR)
        converter->setLogConversion(std::array{false, true});
    return converter;
}

bool ZKConvCoordinatePolar::prepareWithCenter(FloatPoint center, FloatPoint radius, double r0Valule,
                                              double r1Valule, std::int32_t tRange, bool rotateCCW)
{
    const double theta0 = tRange == 1 || tRange == 3 ? 0.0 : twoPi;
    m_originValue = ZKVector::vectorWithX(theta0, r0Valule);
    m_center = ZKVector::vectorWithNSPoint(center);
    m_unitR =
        ZKVector::vectorWithNSPoint(radius).subVectorSelf(*m_center).divScalar(r1Valule - r0Valule);
    m_ccwTheta = rotateCCW;
    m_degreeMode = tRange < 2;
    return true;
}

std::optional<ZKVector> ZKConvCoordinatePolar::convertToCartesian(const ZKVector &graphValues) const
{
    if (!isPrepared())
        return std::nullopt;
    const double theta = m_degreeMode ? graphValues.X() / 180.0 * pi : graphValues.X();
    const double turn = log10OfComponent(theta, 0) - m_originValue->X();
    const double units = log10OfComponent(graphValues.Y(), 1) - m_originValue->Y();
    const auto direction = m_ccwTheta ? m_unitR->rotateCCW(turn) : m_unitR->rotateCW(turn);
    if (!direction)
        return std::nullopt;
    return direction->mulScalar(units).addVector(*m_center);
}

std::optional<ZKVector>
ZKConvCoordinatePolar::convertFromCartesian(const ZKVector &picturePoint) const
{
    if (!isPrepared())
        return std::nullopt;
    const ZKVector fromCenter = picturePoint.subVector(*m_center);
    const double units = fromCenter.length() / m_unitR->length();
    const double turn = m_ccwTheta ? m_unitR->angle(fromCenter) : fromCenter.angle(*m_unitR);
    const double theta = wrappedOnce(turn + m_originValue->X());
    const double radius = units + m_originValue->Y();
    return ZKVector::vectorWithX(power10OfComponent(m_degreeMode ? theta * 180.0 / pi : theta, 0),
                                 power10OfComponent(radius, 1));
}

void ZKConvCoordinatePolar::getAxisVectorsAt(const ZKVector &picturePoint,
                                             std::optional<ZKVector> &vectorX,
                                             std::optional<ZKVector> &vectorY) const
{
    if (!isPrepared())
        return;
    const ZKVector fromCenter = picturePoint.subVector(*m_center);
    vectorX = fromCenter.isZero() ? *m_unitR : fromCenter;
    vectorY = m_center;
}

void ZKConvCoordinatePolar::getAxisVectorsAt(const ZKVector & /*picturePoint*/,
                                             std::vector<ZKVector> &basis) const
{
    if (isPrepared())
        basis.assign(1, *m_center);
}

bool ZKConvCoordinatePolar::isEqualConverterAs(const ZKConvCoordinate &other) const
{
    if (this == &other)
        return true;
    const auto *polar = dynamic_cast<const ZKConvCoordinatePolar *>(&other);
    if (polar == nullptr)
        return false;
    if (!areEqual(m_center, polar->m_center) || !areEqual(m_unitR, polar->m_unitR) ||
        !areEqual(m_originValue, polar->m_originValue))
        return false;
    return m_ccwTheta == polar->m_ccwTheta || m_degreeMode == polar->m_degreeMode;
}

std::string_view ZKConvCoordinatePolar::className() const { return "ZKConvCoordinatePolar"; }

void ZKConvCoordinatePolar::encodeWithCoder(SequentialEncoder &coder) const
{
    ZKConvCoordinate::encodeWithCoder(coder);
    if (!isPrepared())
        return;
    m_center->encodeWithCoder(coder);
    m_unitR->encodeWithCoder(coder);
    m_originValue->encodeWithCoder(coder);
    coder.encodeChar(m_ccwTheta ? 1 : 0);
    coder.encodeChar(m_degreeMode ? 1 : 0);
}

bool ZKConvCoordinatePolar::initWithCoder(SequentialDecoder &coder)
{
    if (!ZKConvCoordinate::initWithCoder(coder))
        return false;
    m_center = planeVectorWithCoder(coder);
    m_unitR = planeVectorWithCoder(coder);
    m_originValue = planeVectorWithCoder(coder);
    m_ccwTheta = coder.decodeChar() != 0;
    m_degreeMode = coder.decodeChar() != 0;
    return !coder.failed();
}
