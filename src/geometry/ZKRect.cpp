#include "geometry/ZKRect.h"

FloatRect ZKRect::mutiplyRect(FloatRect rect, float by)
{
    return {{rect.origin.x * by, rect.origin.y * by},
            {rect.size.width * by, rect.size.height * by}};
}

FloatRect ZKRect::divideRect(FloatRect rect, float by)
{
    return {{rect.origin.x / by, rect.origin.y / by},
            {rect.size.width / by, rect.size.height / by}};
}

FloatRect ZKRect::normalizeRect(FloatRect rect)
{
    if (rect.size.width < 0.0F) {
        rect.origin.x = rect.origin.x + rect.size.width;
        rect.size.width = -rect.size.width;
    }
    if (rect.size.height < 0.0F) {
        rect.origin.y = rect.origin.y + rect.size.height;
        rect.size.height = -rect.size.height;
    }
    return rect;
}

FloatPoint ZKRect::centerOfRect(FloatRect rect)
{
    return {rect.origin.x + rect.size.width * 0.5F, rect.origin.y + rect.size.height * 0.5F};
}
