#include "conversion/ZKConvCoordinateKeystone.h"

#include "conversion/PlaneArithmetic.h"

#include <array>

using planearithmetic::crossPoint;
using planearithmetic::difference;
using planearithmetic::planeLine;
using planearithmetic::PlaneLine;
using planearithmetic::planeVector;
using planearithmetic::PlaneVector;
using planearithmetic::pointAlong;
using planearithmetic::product;

namespace {

/// The direction at `point` of the lines that meet in `cross`, or that are parallel to `unit`.
PlaneVector directionAt(PlaneVector point, bool parallel, const std::optional<ZKVector> &unit,
                        const std::optional<ZKVector> &cross)
{
    return parallel ? planeVector(*unit) : difference(planeVector(*cross), point);
}

/// The position of `point` along `unit`, counted from `origin` in lengths of `unit`.
double unitsAlong(PlaneVector unit, PlaneVector origin, PlaneVector point)
{
    return product(difference(point, origin), unit) / product(unit, unit);
}

/// Whether the crossing points are both missing, or both there and equal within the tolerance.
bool areCrossesEqual(bool parallel, const std::optional<ZKVector> &cross, bool otherParallel,
                     const std::optional<ZKVector> &otherCross, double within)
{
    if (parallel || otherParallel)
        return parallel == otherParallel;
    return cross->isEqualTo(*otherCross, within);
}

/// A line of the plane; nothing, and a failed coder, for any other dimension.
std::optional<ZKLine> planeLineWithCoder(SequentialDecoder &coder)
{
    std::optional<ZKLine> line = ZKLine::initWithCoder(coder);
    if (line && line->dimension() != 2) {
        coder.fail();
        return std::nullopt;
    }
    return line;
}

} // namespace

ZKConvCoordinateKeystone::ZKConvCoordinateKeystone()
    : ZKConvCoordinate(convertertype::keystone)
{}

std::shared_ptr<const ZKConvCoordinateKeystone> ZKConvCoordinateKeystone::convCoordWithPointLB(
    FloatPoint pointLB, FloatPoint pointRB, FloatPoint pointLT, FloatPoint pointRT, double x0Valule,
    double x1Valule, bool logX, double y0Valule, double y1Valule, bool logY)
{
    if ((logX && !takeLog10(x0Valule, x1Valule)) || (logY && !takeLog10(y0Valule, y1Valule)))
        return nullptr;
    if (x0Valule == x1Valule || y0Valule == y1Valule)
        return nullptr;
    const auto converter = std::make_shared<ZKConvCoordinateKeystone>();
    if (!converter->prepareWithOriginLB(pointLB, pointRB, pointLT, pointRT, x0Valule, x1Valule,
                                        y0Valule, y1Valule))
        return nullptr;
    if (logX || logY)
        converter->setLogConversion(std::array{logX, logY});
    return converter;
}

bool ZKConvCoordinateKeystone::prepareWithOriginLB(FloatPoint originLB, FloatPoint pointRB,
                                                   FloatPoint pointLT, FloatPoint pointRT,
                                                   double x0Valule, double x1Valule,
                                                   double y0Valule, double y1Valule)
{
    if (x0Valule == x1Valule || y0Valule == y1Valule)
        return false;
    const ZKVector leftBottom = ZKVector::vectorWithNSPoint(originLB);
    const ZKVector rightBottom = ZKVector::vectorWithNSPoint(pointRB);
    const ZKVector leftTop = ZKVector::vectorWithNSPoint(pointLT);
    m_originValue = ZKVector::vectorWithX(x0Valule, y0Valule);
    m_origin = leftBottom;
    m_unitX = rightBottom.subVector(leftBottom).divScalarSelf(x1Valule - x0Valule);
    m_unitY = leftTop.subVector(leftBottom).divScalarSelf(y1Valule - y0Valule);
    if (m_unitX->isZero() || m_unitY->isZero())
        return false;
    return prepareAxes(leftBottom, rightBottom, leftTop, ZKVector::vectorWithNSPoint(pointRT));
}

bool ZKConvCoordinateKeystone::prepareAxes(const ZKVector &leftBottom, const ZKVector &rightBottom,
                                           const ZKVector &leftTop, const ZKVector &rightTop)
{
    const auto bottomEdge = ZKLine::lineWithPointA(leftBottom, rightBottom);
    const auto topEdge = ZKLine::lineWithPointA(leftTop, rightTop);
    const auto leftEdge = ZKLine::lineWithPointA(leftBottom, leftTop);
    const auto rightEdge = ZKLine::lineWithPointA(rightBottom, rightTop);
    if (!bottomEdge || !topEdge || !leftEdge || !rightEdge)
        return false;
    m_axisX = bottomEdge;
    m_axisY = leftEdge;
    m_crossX = m_axisX->crossPointWith(*topEdge);
    m_paraX = !m_crossX;
    m_crossY = m_axisY->crossPointWith(*rightEdge);
    m_paraY = !m_crossY;
    return true;
}

std::optional<ZKVector>
ZKConvCoordinateKeystone::convertToCartesian(const ZKVector &graphValues) const
{
    if (!isPrepared())
        return std::nullopt;
    const ZKVector units = log10Conversion(graphValues).subVectorSelf(*m_originValue);
    const PlaneVector origin = planeVector(*m_origin);
    const PlaneVector onAxisX = pointAlong(origin, planeVector(*m_unitX), units.X());
    const PlaneVector onAxisY = pointAlong(origin, planeVector(*m_unitY), units.Y());
    const PlaneLine constantY{onAxisY, directionAt(onAxisY, m_paraX, m_unitX, m_crossX)};
    const PlaneLine constantX{onAxisX, directionAt(onAxisX, m_paraY, m_unitY, m_crossY)};
    if (constantY.direction.isZero() || constantX.direction.isZero())
        return std::nullopt;
    const auto point = crossPoint(constantY, constantX);
    if (!point)
        return std::nullopt;
    return ZKVector::vectorWithX(point->x, point->y);
}

std::optional<ZKVector>
ZKConvCoordinateKeystone::convertFromCartesian(const ZKVector &picturePoint) const
{
    if (!isPrepared() || picturePoint.dimension() != 2)
        return std::nullopt;
    const PlaneVector point = planeVector(picturePoint);
    const PlaneLine constantY{point, directionAt(point, m_paraX, m_unitX, m_crossX)};
    const PlaneLine constantX{point, directionAt(point, m_paraY, m_unitY, m_crossY)};
    if (constantY.direction.isZero() || constantX.direction.isZero())
        return std::nullopt;
    const auto onAxisX = crossPoint(planeLine(*m_axisX), constantX);
    const auto onAxisY = crossPoint(planeLine(*m_axisY), constantY);
    if (!onAxisX || !onAxisY)
        return std::nullopt;
    const PlaneVector origin = planeVector(*m_origin);
    const double x = unitsAlong(planeVector(*m_unitX), origin, *onAxisX) + m_originValue->X();
    const double y = unitsAlong(planeVector(*m_unitY), origin, *onAxisY) + m_originValue->Y();
    return ZKVector::vectorWithX(power10OfComponent(x, 0), power10OfComponent(y, 1));
}

ZKVector ZKConvCoordinateKeystone::directionX(const ZKVector &picturePoint) const
{
    return m_paraX ? *m_unitX : m_crossX->subVector(picturePoint);
}

ZKVector ZKConvCoordinateKeystone::directionY(const ZKVector &picturePoint) const
{
    return m_paraY ? *m_unitY : m_crossY->subVector(picturePoint);
}

void ZKConvCoordinateKeystone::getAxisVectorsAt(const ZKVector &picturePoint,
                                                std::optional<ZKVector> &vectorX,
                                                std::optional<ZKVector> &vectorY) const
{
    if (!isPrepared())
        return;
    vectorX = directionX(picturePoint);
    vectorY = directionY(picturePoint);
}

void ZKConvCoordinateKeystone::getAxisVectorsAt(const ZKVector &picturePoint,
                                                std::vector<ZKVector> &basis) const
{
    if (isPrepared())
        basis.assign(1, directionY(picturePoint));
}

bool ZKConvCoordinateKeystone::isEqualConverterAs(const ZKConvCoordinate &other) const
{
    if (this == &other)
        return true;
    const auto *keystone = dynamic_cast<const ZKConvCoordinateKeystone *>(&other);
    if (keystone == nullptr || !isPrepared() || !keystone->isPrepared())
        return false;
    return m_originValue->isEqualTo(*keystone->m_originValue) &&
           areEqual(m_origin, keystone->m_origin) && areEqual(m_unitX, keystone->m_unitX) &&
           areEqual(m_unitY, keystone->m_unitY) &&
           areCrossesEqual(m_paraX, m_crossX, keystone->m_paraX, keystone->m_crossX,
                           equalityTolerance) &&
           areCrossesEqual(m_paraY, m_crossY, keystone->m_paraY, keystone->m_crossY,
                           equalityTolerance);
}

std::string_view ZKConvCoordinateKeystone::className() const { return "ZKConvCoordinateKeystone"; }

void ZKConvCoordinateKeystone::encodeWithCoder(SequentialEncoder &coder) const
{
    ZKConvCoordinate::encodeWithCoder(coder);
    if (!isPrepared())
        return;
    coder.encodeChar(m_paraX ? 1 : 0);
    coder.encodeChar(m_paraY ? 1 : 0);
    m_origin->encodeWithCoder(coder);
    m_originValue->encodeWithCoder(coder);
    m_unitX->encodeWithCoder(coder);
    m_unitY->encodeWithCoder(coder);
    m_axisX->encodeWithCoder(coder);
    m_axisY->encodeWithCoder(coder);
    if (!m_paraX)
        m_crossX->encodeWithCoder(coder);
    if (!m_paraY)
        m_crossY->encodeWithCoder(coder);
}

bool ZKConvCoordinateKeystone::initWithCoder(SequentialDecoder &coder)
{
    if (!ZKConvCoordinate::initWithCoder(coder))
        return false;
    m_paraX = coder.decodeChar() != 0;
    m_paraY = coder.decodeChar() != 0;
    m_origin = planeVectorWithCoder(coder);
    m_originValue = planeVectorWithCoder(coder);
    m_unitX = planeVectorWithCoder(coder);
    m_unitY = planeVectorWithCoder(coder);
    m_axisX = planeLineWithCoder(coder);
    m_axisY = planeLineWithCoder(coder);
    if (!m_paraX)
        m_crossX = planeVectorWithCoder(coder);
    if (!m_paraY)
        m_crossY = planeVectorWithCoder(coder);
    if (!coder.failed() && (m_unitX->isZero() || m_unitY->isZero()))
        coder.fail();
    return !coder.failed();
}
