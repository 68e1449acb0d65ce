#pragma once

/// The keys of a document file's root dictionary, in the order in which they are written.
namespace documentkeys {

inline constexpr char mainWindowFrame[] = "Main Window Frame";
inline constexpr char dataTableSize[] = "Data Table Size";
inline constexpr char dataTableViewState[] = "Data Table View State";
inline constexpr char actionTabSelection[] = "Action Tab Selection";
inline constexpr char graphImageViewData[] = "GraphImageView Data";
inline constexpr char dataTableViewData[] = "DataTableView Data";
inline constexpr char currentAxesData[] = "CurrentAxes Data";
inline constexpr char cursorGuideData[] = "CursorGuide Data";
inline constexpr char dataSeriesData[] = "DataSeries Data";

/// In the dictionary of the picture view: the picture.
inline constexpr char originalImage[] = "Original Image";

} // namespace documentkeys
