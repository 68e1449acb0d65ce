#include "conversion/ZKConvCoordinate.h"

#include <algorithm>
#include <new>

ZKConvCoordinate::ZKConvCoordinate()
    : ZKConvCoordinate(convertertype::base)
{}

ZKConvCoordinate::ZKConvCoordinate(std::int32_t converterType)
    : m_converterType(converterType)
{}

std::optional<ZKVector> ZKConvCoordinate::convertToCartesian(const ZKVector & /*graphValues*/) const
{
    return std::nullopt;
}

std::optional<ZKVector>
ZKConvCoordinate::convertFromCartesian(const ZKVector & /*picturePoint*/) const
{
    return std::nullopt;
}

void ZKConvCoordinate::getAxisVectorsAt(const ZKVector & /*picturePoint*/,
                                        std::vector<ZKVector> & /*basis*/) const
{}

void ZKConvCoordinate::getAxisVectorsAt(const ZKVector & /*picturePoint*/,
                                        std::optional<ZKVector> & /*vectorX*/,
                                        std::optional<ZKVector> & /*vectorY*/) const
{}

bool ZKConvCoordinate::isEqualConverterAs(const ZKConvCoordinate &other) const
{
    return converterType() == other.converterType();
}

void ZKConvCoordinate::setLogConversion(std::span<const bool> flags)
{
    try {
        m_logConversion.assign(flags.begin(), flags.end());
    } catch (const std::bad_alloc &) {
        m_logConversion.clear();
    }
}

std::int32_t ZKConvCoordinate::logArraySize() const
{
    return static_cast<std::int32_t>(m_logConversion.size());
}

ZKVector ZKConvCoordinate::log10Conversion(const ZKVector &vector) const
{
    ZKVector result = vector;
    const std::int32_t count = std::min(vector.dimension(), logArraySize());
    for (std::int32_t i = 0; i < count; ++i)
        result.setComponent(log10OfComponent(vector.componentAt(i), static_cast<std::size_t>(i)),
                            i);
    return result;
}

ZKVector ZKConvCoordinate::power10Conversion(const ZKVector &vector) const
{
    ZKVector result = vector;
    const std::int32_t count = std::min(vector.dimension(), logArraySize());
    for (std::int32_t i = 0; i < count; ++i)
        result.setComponent(power10OfComponent(vector.componentAt(i), static_cast<std::size_t>(i)),
                            i);
    return result;
}

bool ZKConvCoordinate::takeLog10(double &value0, double &value1)
{
    if (!(value0 > 0.0) || !(value1 > 0.0))
        return false;
    value0 = std::log10(value0);
    value1 = std::log10(value1);
    return true;
}

FloatPoint ZKConvCoordinate::convertPointToCartesian(FloatPoint graphValues) const
{
    const auto converted = convertToCartesian(ZKVector::vectorWithNSPoint(graphValues));
    return converted ? converted->vectorToNSPoint() : FloatPoint{};
}

FloatPoint ZKConvCoordinate::convertPointFromCartesian(FloatPoint picturePoint) const
{
    const auto converted = convertFromCartesian(ZKVector::vectorWithNSPoint(picturePoint));
    return converted ? converted->vectorToNSPoint() : FloatPoint{};
}

void ZKConvCoordinate::getAxisVectorsAtPoint(FloatPoint point, FloatPoint &basis1,
                                             FloatPoint &basis2) const
{
    std::optional<ZKVector> vectorX;
    std::optional<ZKVector> vectorY;
    getAxisVectorsAt(ZKVector::vectorWithNSPoint(point), vectorX, vectorY);
    if (vectorX)
        basis1 = vectorX->vectorToNSPoint();
    if (vectorY)
        basis2 = vectorY->vectorToNSPoint();
}

std::string_view ZKConvCoordinate::className() const { return "ZKConvCoordinate"; }

void ZKConvCoordinate::encodeWithCoder(SequentialEncoder &coder) const
{
    coder.encodeInt(m_converterType);
    coder.encodeInt(logArraySize());
    for (const std::int8_t flag : m_logConversion)
        coder.encodeChar(flag);
}

bool ZKConvCoordinate::initWithCoder(SequentialDecoder &coder)
{
    const std::int32_t storedType = coder.decodeInt();
    const std::int32_t count = coder.decodeInt();
    if (storedType != m_converterType || count < 0 ||
        static_cast<std::size_t>(count) > coder.remaining())
        coder.fail();
    if (coder.failed())
        return false;
    m_logConversion.resize(static_cast<std::size_t>(count));
    for (std::int8_t &flag : m_logConversion)
        flag = coder.decodeChar();
    return !coder.failed();
}

std::optional<ZKVector> ZKConvCoordinate::planeVectorWithCoder(SequentialDecoder &coder)
{
    std::optional<ZKVector> vector = ZKVector::initWithCoder(coder);
    if (vector && vector->dimension() != 2) {
        coder.fail();
        return std::nullopt;
    }
    return vector;
}
