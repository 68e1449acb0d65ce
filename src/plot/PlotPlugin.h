#pragma once

#include "plot/PlotView.h"

/// What the program sees of the module.
class PlotPlugin final : public QObject, public PlotViewMaker
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID CURVEGRAB_PLOT_VIEW_MAKER)
    Q_INTERFACES(PlotViewMaker)

public:
    [[nodiscard]] PlotView *makeView(QWidget *parent) override;
};
