#pragma once

#include <QSlider>

/// The zoom slider. Its value is the base 2 logarithm of the scale as a real number; the
/// slider's own fine steps only show it.
class ZoomSlider : public QSlider
{
    Q_OBJECT

public:
    static constexpr double minimumValue = -3;
    static constexpr double maximumValue = 1;

    explicit ZoomSlider(QWidget *parent = nullptr);

    [[nodiscard]] double doubleValue() const { return m_value; }

    /// Shows `value`; sends no action.
    void setDoubleValue(double value);

Q_SIGNALS:
    /// The user has moved the slider (by mouse, wheel or keyboard).
    void moved();

private:
    void takePosition();

    double m_value = 0;
};
