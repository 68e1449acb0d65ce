#pragma once

#include <QProxyStyle>

/// The application's style, but for tool buttons that are chosen: they bear a tint of the
/// highlight colour. In a dark palette a chosen button is hard to tell from the others otherwise.
class ChosenButtonStyle : public QProxyStyle
{
    Q_OBJECT

public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};
