#include "conversion/ZKConvCoordinateAffine.h"

#include "conversion/PlaneArithmetic.h"
#include "geometry/ZKLine.h"

#include <array>

using planearithmetic::difference;
using planearithmetic::planeVector;
using planearithmetic::PlaneVector;
using planearithmetic::product;

namespace {

/// The picture displacement of one unit (one decade) of an axis.
ZKVector unitVector(const ZKVector &point0, const ZKVector &point1, double value0, double value1)
{
    return point1.subVector(point0).divScalarSelf(value1 - value0);
}

/// The point on the line of an axis where its value is 0.
ZKVector zeroPoint(const ZKVector &point0, const ZKVector &unit, double value0)
{
    return point0.subVector(unit.mulScalar(value0));
}

/// Where the line through `onAxisX` along `unitY` (x is 0) crosses the line through `onAxisY`
/// along `unitX` (y is 0).
std::optional<ZKVector> graphOrigin(const ZKVector &onAxisX, const ZKVector &unitX,
                                    const ZKVector &onAxisY, const ZKVector &unitY)
{
    const auto xIsZero = ZKLine::lineWithOrigin(onAxisX, unitY);
    const auto yIsZero = ZKLine::lineWithOrigin(onAxisY, unitX);
    if (!xIsZero || !yIsZero)
        return std::nullopt;
    return xIsZero->crossPointWith(*yIsZero);
}

/// A 2 x 2 matrix times a vector of the plane.
PlaneVector planeProduct(const ZKMatrix &matrix, PlaneVector vector)
{
    const double *a = matrix.buffer();
    return {product({a[0], a[1]}, vector), product({a[2], a[3]}, vector)};
}

bool areEqual(const std::optional<ZKMatrix> &a, const std::optional<ZKMatrix> &b, double within)
{
    return a && b && a->isEqualTo(*b, within);
}

/// A 2 x 2 matrix; nothing, and a failed coder, for any other shape.
std::optional<ZKMatrix> planeMatrixWithCoder(SequentialDecoder &coder)
{
    std::optional<ZKMatrix> matrix = ZKMatrix::initWithCoder(coder);
    if (matrix && (matrix->rows() != 2 || matrix->cols() != 2)) {
        coder.fail();
        return std::nullopt;
    }
    return matrix;
}

} // namespace

ZKConvCoordinateAffine::ZKConvCoordinateAffine()
    : ZKConvCoordinate(convertertype::affine)
{}

std::shared_ptr<const ZKConvCoordinateAffine>
ZKConvCoordinateAffine::convCoordWithOrigin(const ZKVector &origin, std::span<const ZKVector> basis)
{
    const auto converter = std::make_shared<ZKConvCoordinateAffine>();
    if (!converter->createXferMatrixWithOrigin(origin, basis))
        return nullptr;
    return converter;
}

std::shared_ptr<const ZKConvCoordinateAffine> ZKConvCoordinateAffine::convCoordWithX0Point(
    FloatPoint x0Point, FloatPoint x1Point, double x0Valule, double x1Valule, bool logX,
    FloatPoint y0Point, FloatPoint y1Point, double y0Valule, double y1Valule, bool logY)
{
    if ((logX && !takeLog10(x0Valule, x1Valule)) || (logY && !takeLog10(y0Valule, y1Valule)))
        return nullptr;
    if (x0Valule == x1Valule || y0Valule == y1Valule)
        return nullptr;

    const ZKVector pointX0 = ZKVector::vectorWithNSPoint(x0Point);
    const ZKVector pointY0 = ZKVector::vectorWithNSPoint(y0Point);
    const ZKVector unitX =
        unitVector(pointX0, ZKVector::vectorWithNSPoint(x1Point), x0Valule, x1Valule);
    const ZKVector unitY =
        unitVector(pointY0, ZKVector::vectorWithNSPoint(y1Point), y0Valule, y1Valule);
    const auto origin = graphOrigin(zeroPoint(pointX0, unitX, x0Valule), unitX,
                                    zeroPoint(pointY0, unitY, y0Valule), unitY);
    if (!origin)
        return nullptr;

    const auto converter = std::make_shared<ZKConvCoordinateAffine>();
    if (!converter->createXferMatrixWithOrigin(*origin, std::array{unitX, unitY}))
        return nullptr;
    if (logX || logY)
        converter->setLogConversion(std::array{logX, logY});
    return converter;
}

bool ZKConvCoordinateAffine::createXferMatrixWithOrigin(const ZKVector &origin,
                                                        std::span<const ZKVector> basis)
{
    m_xferMatrixFromCartesian.reset();
    m_xferMatrixToCartesian.reset();
    m_origin = origin;
    const int dimension = origin.dimension();
    if (dimension < 2)
        return false;
    m_xferMatrixToCartesian = ZKMatrix::matrixWithColumnVectors(basis);
    if (!m_xferMatrixToCartesian || m_xferMatrixToCartesian->rows() != dimension ||
        m_xferMatrixToCartesian->cols() != dimension)
        return false;
    m_xferMatrixFromCartesian = m_xferMatrixToCartesian->invert();
    return m_xferMatrixFromCartesian.has_value();
}

std::optional<ZKVector>
ZKConvCoordinateAffine::convertToCartesian(const ZKVector &graphValues) const
{
    if (!isBuilt())
        return std::nullopt;
    if (m_origin->dimension() == 2 && graphValues.dimension() == 2) {
        const PlaneVector values{log10OfComponent(graphValues.X(), 0),
                                 log10OfComponent(graphValues.Y(), 1)};
        const PlaneVector point = planeProduct(*m_xferMatrixToCartesian, values);
        return ZKVector::vectorWithX(point.x + m_origin->X(), point.y + m_origin->Y());
    }
    auto point = m_xferMatrixToCartesian->mulVector(log10Conversion(graphValues));
    if (point)
        point->addVectorSelf(*m_origin);
    return point;
}

std::optional<ZKVector>
ZKConvCoordinateAffine::convertFromCartesian(const ZKVector &picturePoint) const
{
    if (!isBuilt())
        return std::nullopt;
    if (m_origin->dimension() == 2 && picturePoint.dimension() == 2) {
        const PlaneVector values =
            planeProduct(*m_xferMatrixFromCartesian,
                         difference(planeVector(picturePoint), planeVector(*m_origin)));
        return ZKVector::vectorWithX(power10OfComponent(values.x, 0),
                                     power10OfComponent(values.y, 1));
    }
    const auto values = m_xferMatrixFromCartesian->mulVector(picturePoint.subVector(*m_origin));
    if (!values)
        return std::nullopt;
    return power10Conversion(*values);
}

void ZKConvCoordinateAffine::getAxisVectorsAt(const ZKVector & /*picturePoint*/,
                                              std::vector<ZKVector> &basis) const
{
    if (isBuilt())
        basis = m_xferMatrixToCartesian->getColumnVectors();
}

void ZKConvCoordinateAffine::getAxisVectorsAt(const ZKVector & /*picturePoint*/,
                                              std::optional<ZKVector> &vectorX,
                                              std::optional<ZKVector> &vectorY) const
{
    if (!isBuilt())
        return;
    vectorX = m_xferMatrixToCartesian->getColumnVectorAt(0);
    vectorY = m_xferMatrixToCartesian->getColumnVectorAt(1);
}

bool ZKConvCoordinateAffine::isEqualConverterAs(const ZKConvCoordinate &other) const
{
    if (this == &other)
        return true;
    const auto *affine = dynamic_cast<const ZKConvCoordinateAffine *>(&other);
    if (affine == nullptr)
        return false;
    return areEqual(m_origin, affine->m_origin) &&
           ::areEqual(m_xferMatrixToCartesian, affine->m_xferMatrixToCartesian,
                      equalityTolerance) &&
           ::areEqual(m_xferMatrixFromCartesian, affine->m_xferMatrixFromCartesian,
                      equalityTolerance);
}

std::string_view ZKConvCoordinateAffine::className() const { return "ZKConvCoordinateAffine"; }

void ZKConvCoordinateAffine::encodeWithCoder(SequentialEncoder &coder) const
{
    ZKConvCoordinate::encodeWithCoder(coder);
    if (!isBuilt())
        return;
    m_origin->encodeWithCoder(coder);
    m_xferMatrixToCartesian->encodeWithCoder(coder);
    m_xferMatrixFromCartesian->encodeWithCoder(coder);
}

bool ZKConvCoordinateAffine::initWithCoder(SequentialDecoder &coder)
{
    if (!ZKConvCoordinate::initWithCoder(coder))
        return false;
    m_origin = planeVectorWithCoder(coder);
    m_xferMatrixToCartesian = planeMatrixWithCoder(coder);
    m_xferMatrixFromCartesian = planeMatrixWithCoder(coder);
    return !coder.failed();
}
