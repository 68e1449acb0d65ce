#include "document/MenuRules.h"

namespace menurules {

namespace {

constexpr int lastSeries = 9;
constexpr int firstSeries = 0;
constexpr int polarAxes = 2;

bool digitizingRule(int tag, const State &state)
{
    if (state.inAxisSettingMode)
        return false;
    switch (tag) {
    case LockX:
        return state.autoXMode == 0 || (state.autoXMode == 2 && state.currentSeries == firstSeries);
    case NextSeries:
        return state.currentSeries != lastSeries;
    case PreviousSeries:
        return state.currentSeries != firstSeries;
    default:
        return true;
    }
}

bool axisRule(int tag, const State &state)
{
    if (!state.inAxisSettingMode)
        return false;
    switch (tag) {
    case AxisCommand:
        return true;
    case WholePosition:
        return state.hasImage && state.axisType != polarAxes;
    default:
        return state.hasImage;
    }
}

} // namespace

bool validateMenuItem(int tag, const State &state)
{
    switch (tag) {
    case CopySelection:
    case DeleteSelection:
    case SaveSelection:
        return state.tableShown && state.numSelectedSeries > 0;
    case Paste:
        return state.acceptsPasteboard;
    case SaveAllData:
        return state.numValidSeries > 0;
    case PictureCommand:
    case OtherPictureCommand:
    case FitWidth:
    case FitHeight:
    case MouseTool:
        return state.hasImage;
    case ActualSize:
        return state.canZoomToActual;
    case ZoomIn:
        return state.canZoomIn;
    case ZoomOut:
        return state.canZoomOut;
    case LockX:
    case LockY:
    case NextSeries:
    case PreviousSeries:
        return digitizingRule(tag, state);
    case AxisCommand:
    case ResetPosition:
    case WholePosition:
    case RotateCw:
    case RotateCcw:
    case TrimTool:
        return axisRule(tag, state);
    default:
        return true;
    }
}

} // namespace menurules
