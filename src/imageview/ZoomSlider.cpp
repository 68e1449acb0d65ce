#include "imageview/ZoomSlider.h"

#include "platform/Texts.h"

#include <algorithm>
#include <cmath>

namespace {

/// Slider steps per unit, one unit doubling the scale.
constexpr int stepsPerUnit = 1000;

int positionOf(double value) { return static_cast<int>(std::lround(value * stepsPerUnit)); }

} // namespace

ZoomSlider::ZoomSlider(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{
    setRange(positionOf(minimumValue), positionOf(maximumValue));
    setSingleStep(stepsPerUnit / 8);
    setPageStep(stepsPerUnit / 2);
    setValue(0);
    setAccessibleName(texts::localized("imageview.zoom-slider.name"));
    setToolTip(texts::localized("imageview.zoom-slider.tip"));
    // Only what the user does arrives here; setValue() does not.
    connect(this, &QSlider::actionTriggered, this, &ZoomSlider::takePosition);
}

void ZoomSlider::setDoubleValue(double value)
{
    m_value = value;
    setValue(std::isfinite(value)
                 ? positionOf(std::min(std::max(value, minimumValue), maximumValue))
                 : 0);
}

void ZoomSlider::takePosition()
{
    // The knob where it was shows the exact value still.
    if (sliderPosition() != value() || positionOf(m_value) != sliderPosition())
        m_value = static_cast<double>(sliderPosition()) / stepsPerUnit;
    Q_EMIT moved();
}
