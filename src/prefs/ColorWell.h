#pragma once

#include "platform/DeviceColor.h"

#include <QPushButton>

/// A button that shows a colour and lets the user choose another one, with its opacity.
///
/// The colour stays the four components that were set until the user really chooses another one.
class ColorWell : public QPushButton
{
    Q_OBJECT

public:
    explicit ColorWell(QWidget *parent = nullptr);

    [[nodiscard]] const DeviceColor &color() const { return m_color; }
    void setColor(const DeviceColor &color);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void chooseColor();

    DeviceColor m_color;
};
