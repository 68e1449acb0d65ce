#include "document/SymbolIcons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

namespace symbolicons {

namespace {

QPixmap drawn(QByteArray svg, const QColor &color, int side)
{
    svg.replace("currentColor", color.name().toLatin1());
    QSvgRenderer renderer(svg);
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

/// Draws a symbol when a size of it is wanted: a window has many, and starts with few of them seen
/// enabled and disabled.
class SymbolIconEngine final : public QIconEngine
{
public:
    SymbolIconEngine(QByteArray svg, QColor color, QColor disabledColor)
        : m_svg(std::move(svg))
        , m_color(color)
        , m_disabledColor(disabledColor)
    {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal pixelRatio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * pixelRatio, mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const int side = std::min(size.width(), size.height());
        if (side <= 0)
            return {};
        const bool isDisabled = mode == QIcon::Disabled;
        QPixmap &pixmap = m_drawn[{side, isDisabled}];
        if (pixmap.isNull())
            pixmap = drawn(m_svg, isDisabled ? m_disabledColor : m_color, side);
        return pixmap;
    }

    [[nodiscard]] QIconEngine *clone() const override
    {
        return std::make_unique<SymbolIconEngine>(m_svg, m_color, m_disabledColor).release();
    }

private:
    QByteArray m_svg;
    QColor m_color;
    QColor m_disabledColor;
    std::map<std::pair<int, bool>, QPixmap> m_drawn; ///< by side and whether disabled
};

} // namespace

QIcon icon(const QString &name, const QPalette &palette)
{
    QFile file(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QIcon(std::make_unique<SymbolIconEngine>(
                     file.readAll(), palette.color(QPalette::Active, QPalette::ButtonText),
                     palette.color(QPalette::Disabled, QPalette::ButtonText))
                     .release());
}

} // namespace symbolicons
