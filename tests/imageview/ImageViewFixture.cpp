#include "imageview/ImageViewFixture.h"

std::shared_ptr<const ZKConvCoordinate> someConverter()
{
    // Shares the ownership of a number: nobody looks into it here.
    const auto owner = std::make_shared<int>(0);
    return {owner, reinterpret_cast<const ZKConvCoordinate *>(owner.get())};
}
