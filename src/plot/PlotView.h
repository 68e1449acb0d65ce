#pragma once

#include <QObject>
#include <QRectF>
#include <QWidget>

struct PlotFigure;
class QPainter;

/// The part of the plot window that draws. It comes from a module of its own, so that the charting
/// library is not loaded before somebody wants a plot.
class PlotView : public QWidget
{
public:
    using QWidget::QWidget;

    virtual void showFigure(const PlotFigure &figure) = 0;
    /// Draws what is shown, as large as on the screen, into `target`.
    virtual void drawInto(QPainter &painter, const QRectF &target) = 0;
};

/// What the module hands out.
class PlotViewMaker
{
public:
    PlotViewMaker() = default;
    virtual ~PlotViewMaker() = default;
    PlotViewMaker(const PlotViewMaker &) = delete;
    PlotViewMaker &operator=(const PlotViewMaker &) = delete;

    /// The view is a child of `parent`.
    [[nodiscard]] virtual PlotView *makeView(QWidget *parent) = 0;
};

#define CURVEGRAB_PLOT_VIEW_MAKER "x.curvegrab.PlotViewMaker/1"
Q_DECLARE_INTERFACE(PlotViewMaker, CURVEGRAB_PLOT_VIEW_MAKER)
