#include "document/SymbolIcons.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace symbolicons {

namespace {

constexpr int side = 18;

QPixmap drawn(QByteArray svg, const QColor &color, int pixelRatio)
{
    svg.replace("currentColor", color.name().toLatin1());
    QSvgRenderer renderer(svg);
    QPixmap pixmap(side * pixelRatio, side * pixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

} // namespace

QIcon icon(const QString &name, const QPalette &palette)
{
    QFile file(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray svg = file.readAll();
    QIcon result;
    for (const int pixelRatio : {1, 2, 3}) {
        result.addPixmap(
            drawn(svg, palette.color(QPalette::Active, QPalette::ButtonText), pixelRatio));
        result.addPixmap(
            drawn(svg, palette.color(QPalette::Disabled, QPalette::ButtonText), pixelRatio),
            QIcon::Disabled);
    }
    return result;
}

} // namespace symbolicons
