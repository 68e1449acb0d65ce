#include "document/ChosenButtonStyle.h"

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
}
