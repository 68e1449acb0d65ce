#include "document/ThumbnailStyle.h"

#include "document/ThumbnailFile.h"

int ThumbnailStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                const QWidget *widget) const
{
    return metric == PM_SmallIconSize ? thumbnailfile::side
                                      : QProxyStyle::pixelMetric(metric, option, widget);
}
