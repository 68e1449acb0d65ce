#include "document/ChosenButtonStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace {

/// The share of the highlight colour: enough to be seen, and the button's text stays readable.
constexpr float tint = 0.35F;

QColor mixed(const QColor &base, const QColor &added)
{
    const auto mix = [](float from, float to) { return from + (to - from) * tint; };
    return QColor::fromRgbF(mix(base.redF(), added.redF()), mix(base.greenF(), added.greenF()),
                            mix(base.blueF(), added.blueF()));
}

/// The bar at the edge of a button where its text begins.
QRect barOf(const QStyleOption &button)
{
    constexpr int inset = 1; // a symbol stands close to the edge
    constexpr int margin = 6;
    constexpr int width = 3;
    const QRect &all = button.rect;
    return QStyle::visualRect(
        button.direction, all,
        QRect(all.left() + inset, all.top() + margin, width, all.height() - 2 * margin));
}

} // namespace

void ChosenButtonStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                      QPainter *painter, const QWidget *widget) const
{
    if (element != PE_PanelButtonTool || !option->state.testFlag(State_On)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    // The grey of a chosen button that is disabled would hide its faint symbol.
    const bool isFlat = option->state.testFlag(State_AutoRaise);
    if (isFlat && !option->state.testFlag(State_Enabled))
        return;
    QStyleOption tinted = *option;
    tinted.palette.setColor(QPalette::Button, mixed(option->palette.color(QPalette::Button),
                                                    option->palette.color(QPalette::Highlight)));
    QProxyStyle::drawPrimitive(element, &tinted, painter, widget);
    // A flat button has a border only while it is chosen; the others show it by a bar too, for
    // whoever does not see the tint.
    if (!isFlat)
        painter->fillRect(barOf(*option), option->palette.color(QPalette::ButtonText));
}
