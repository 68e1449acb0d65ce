#pragma once

#include "capture/CaptureSurroundings.h"

#include <QFrame>

#include <optional>

/// Shows how the points of a series are drawn: its marker in the middle, its line across.
class MarkerPreview : public QFrame, public SeriesMarkerPreview
{
    Q_OBJECT

public:
    explicit MarkerPreview(QWidget *parent = nullptr);

    /// `setPreview:markerAndLine:` takes a style and a draw mode; a mode other than 0, 1 and 2
    /// leaves what is drawn as it was. The caller asks for redisplay.
    void setPreview(const PlotStyle &style, int markerAndLine) override;
    void setNeedsDisplay() override;

    [[nodiscard]] std::optional<DeviceColor> color() const { return m_color; }
    [[nodiscard]] float markerSize() const { return m_size; }
    [[nodiscard]] float thickness() const { return m_thickness; }
    [[nodiscard]] int shape() const { return m_shape; }
    [[nodiscard]] bool marker() const { return m_marker; }
    [[nodiscard]] bool line() const { return m_line; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::optional<DeviceColor> m_color;
    float m_size = 7.0F;
    float m_thickness = 1.5F;
    int m_shape = 0;
    bool m_marker = false;
    bool m_line = false;
};
