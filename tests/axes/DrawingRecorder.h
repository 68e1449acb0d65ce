#pragma once

#include <QBrush>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>
#include <QRectF>

#include <string>
#include <vector>

/// What a painter was asked to draw, in the painter's own coordinates.
struct DrawnShape
{
    std::string kind; ///< "rect", "ellipse", "line" or "path"
    QRectF bounds;
    QPen pen;
    QBrush brush;
};

/// A paint engine that notes the shapes in the order in which they are drawn.
class NotingPaintEngine final : public QPaintEngine
{
public:
    NotingPaintEngine()
        : QPaintEngine(QPaintEngine::AllFeatures)
    {}

    [[nodiscard]] const std::vector<DrawnShape> &shapes() const { return m_shapes; }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    [[nodiscard]] Type type() const override { return User; }

    void updateState(const QPaintEngineState &newState) override
    {
        if (newState.state() & DirtyPen)
            m_pen = newState.pen();
        if (newState.state() & DirtyBrush)
            m_brush = newState.brush();
    }

    using QPaintEngine::drawEllipse;
    using QPaintEngine::drawLines;
    using QPaintEngine::drawRects;

    void drawRects(const QRectF *rects, int count) override
    {
        for (int i = 0; i < count; ++i)
            note("rect", rects[i]);
    }
    void drawEllipse(const QRectF &rect) override { note("ellipse", rect); }
    void drawLines(const QLineF *lines, int count) override
    {
        for (int i = 0; i < count; ++i)
            note("line", QRectF(lines[i].p1(), lines[i].p2()));
    }
    void drawPath(const QPainterPath &path) override { note("path", path.boundingRect()); }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}

private:
    void note(const char *kind, const QRectF &bounds)
    {
        m_shapes.push_back({kind, bounds, m_pen, m_brush});
    }

    std::vector<DrawnShape> m_shapes;
    QPen m_pen;
    QBrush m_brush;
};

/// A sheet of 200 x 200 points to draw on that keeps no pixels but notes the shapes.
class DrawingRecorder final : public QPaintDevice
{
public:
    [[nodiscard]] QPaintEngine *paintEngine() const override { return &m_engine; }
    [[nodiscard]] const std::vector<DrawnShape> &shapes() const { return m_engine.shapes(); }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return 200;
        case PdmDevicePixelRatio:
            return 1;
        default:
            return 96; // dots per inch, and lengths that nobody asks for
        }
    }

private:
    mutable NotingPaintEngine m_engine;
};
