#include "conversion/ConverterArchive.h"

#include "conversion/ZKConvCoordinateAffine.h"
#include "conversion/ZKConvCoordinateKeystone.h"
#include "conversion/ZKConvCoordinatePolar.h"

namespace {

std::shared_ptr<ZKConvCoordinate> newConverter(std::string_view className)
{
    if (className == "ZKConvCoordinate")
        return std::make_shared<ZKConvCoordinate>();
    if (className == "ZKConvCoordinateAffine")
        return std::make_shared<ZKConvCoordinateAffine>();
    if (className == "ZKConvCoordinateKeystone")
        return std::make_shared<ZKConvCoordinateKeystone>();
    if (className == "ZKConvCoordinatePolar")
        return std::make_shared<ZKConvCoordinatePolar>();
    return nullptr;
}

} // namespace

namespace converterarchive {

std::shared_ptr<const ZKConvCoordinate> converterWithCoder(std::string_view className,
                                                           SequentialDecoder &coder)
{
    const std::shared_ptr<ZKConvCoordinate> converter = newConverter(className);
    if (!converter) {
        coder.fail();
        return nullptr;
    }
    if (!converter->initWithCoder(coder))
        return nullptr;
    return converter;
}

} // namespace converterarchive
