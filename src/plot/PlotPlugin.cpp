#include "plot/PlotPlugin.h"

#include "plot/ChartPlotView.h"

PlotView *PlotPlugin::makeView(QWidget *parent) { return new ChartPlotView(parent); }
