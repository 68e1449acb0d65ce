#pragma once

#include <QProxyStyle>

/// The application's style, but with icons in menus large enough for thumbnails.
class ThumbnailStyle : public QProxyStyle
{
    Q_OBJECT

public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
};
