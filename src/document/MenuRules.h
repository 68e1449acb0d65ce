#pragma once

/// When the menu commands make sense: `validateMenuItem:`.
namespace menurules {

/// What the rules ask of a document.
struct State
{
    bool hasImage = false;
    bool inAxisSettingMode = true;
    bool tableShown = false;
    int numSelectedSeries = 0;
    int numValidSeries = 0;
    int currentSeries = 0;
    int autoXMode = 0;
    int axisType = 0;
    bool acceptsPasteboard = false;
    bool canZoomToActual = false;
    bool canZoomIn = false;
    bool canZoomOut = false;
};

/// The tags of the commands that have a rule.
enum Tag {
    CopySelection = 7001,
    Paste = 7002,
    DeleteSelection = 7003,
    AxisCommand = 7090,
    PictureCommand = 7100,
    OtherPictureCommand = 7101,
    SaveAllData = 7102,
    SaveSelection = 7103,
    LockX = 8000,
    LockY = 8001,
    NextSeries = 8020,
    PreviousSeries = 8021,
    ResetPosition = 8030,
    WholePosition = 8031,
    ActualSize = 8100,
    ZoomIn = 8101,
    ZoomOut = 8102,
    FitWidth = 8103,
    FitHeight = 8104,
    RotateCw = 8110,
    RotateCcw = 8111,
    MouseTool = 9000,
    TrimTool = 9001,
};

/// Whether the command with `tag` is enabled; a tag without a rule always is.
[[nodiscard]] bool validateMenuItem(int tag, const State &state);

} // namespace menurules
