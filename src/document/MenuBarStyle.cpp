#include "document/MenuBarStyle.h"

#include "document/SymbolIcons.h"

#include <QGuiApplication>
#include <QWidget>

QIcon MenuBarStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption *option,
                                 const QWidget *widget) const
{
    if (standardIcon != SP_ToolBarHorizontalExtensionButton)
        return QProxyStyle::standardIcon(standardIcon, option, widget);
    return symbolicons::icon(QStringLiteral("more-menus"),
                             widget != nullptr ? widget->palette() : QGuiApplication::palette());
}
