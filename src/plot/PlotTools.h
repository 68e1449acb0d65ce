#pragma once

#include "plot/PlotChoices.h"
#include "plot/PlotModule.h"

/// What all plot windows of the program share.
struct PlotTools
{
    PlotModule module;
    PlotChoices choices;
};
