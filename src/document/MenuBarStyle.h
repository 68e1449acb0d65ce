#pragma once

#include <QProxyStyle>

/// The application's style, but for the arrow of menus that find no room in a menu bar: it is drawn
/// here when it is needed. The toolkit reads it from picture files for every menu bar, and the
/// first picture file that is read loads a module for every picture format there is.
class MenuBarStyle : public QProxyStyle
{
    Q_OBJECT

public:
    [[nodiscard]] QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption *option,
                                     const QWidget *widget) const override;
};
