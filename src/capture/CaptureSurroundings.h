#pragma once

#include "geometry/FloatGeometry.h"
#include "platform/ChangeKind.h"
#include "platform/DeviceColor.h"

#include <QString>

#include <set>

class Clipboard;
class Sheets;
class UndoManager;

/// Indexes of data series, 0 to 9, in ascending order.
using IndexSet = std::set<int>;

/// How the points of one series are drawn.
struct PlotStyle
{
    DeviceColor color;
    float size = 0;      ///< side of the marker square, view points
    float thickness = 0; ///< width of outlines and lines, view points
    int shape = 0;       ///< 0 filled square, 1 open square, 2 filled circle, 3 open circle

    friend bool operator==(const PlotStyle &, const PlotStyle &) = default;
};

/// What data capture needs of its document.
class CaptureDocument
{
public:
    virtual ~CaptureDocument() = default;
    [[nodiscard]] virtual UndoManager &undoManager() = 0;
    [[nodiscard]] virtual Sheets &sheets() = 0;
    [[nodiscard]] virtual Clipboard &clipboard() = 0;
    virtual void updateChangeCount(ChangeKind kind) = 0;
};

/// What data capture needs of the picture view.
class CaptureImageView
{
public:
    virtual ~CaptureImageView() = default;
    /// The size of the picture as shown, in view points.
    [[nodiscard]] virtual FloatSize scaledImageSize() const = 0;
    virtual void setNeedsDisplay() = 0;
};

/// What data capture needs of the axis settings.
class CaptureAxes
{
public:
    virtual ~CaptureAxes() = default;
    [[nodiscard]] virtual double minXValue() const = 0;
};

/// The preferences that data capture reads.
class CapturePrefs
{
public:
    virtual ~CapturePrefs() = default;
    [[nodiscard]] virtual bool copyWithTitle() const = 0;
    [[nodiscard]] virtual bool saveWithTitle() const = 0;
    [[nodiscard]] virtual PlotStyle plotPrefsForSeries(int series) const = 0;
    [[nodiscard]] virtual DeviceColor guideColor() const = 0;
    [[nodiscard]] virtual float guideThick() const = 0;
    [[nodiscard]] virtual float axisThick() const = 0;
};

/// The facts panel, told that the data of this document changed.
class CaptureInfoPanel
{
public:
    virtual ~CaptureInfoPanel() = default;
    virtual void updateDataInfo() = 0;
};

/// The two lock commands of the menus, whose titles follow the locks.
class LockMenu
{
public:
    virtual ~LockMenu() = default;
    virtual void setLockXTitle(const QString &title) = 0;
    virtual void setLockYTitle(const QString &title) = 0;
};

/// What the series store tells the cursor guide.
class SeriesGuide
{
public:
    virtual ~SeriesGuide() = default;
    virtual void seriesChanged() = 0;
    virtual void setAutoXValue() = 0;
};

/// What the cursor guide asks of the series store.
class GuideSeries
{
public:
    virtual ~GuideSeries() = default;
    [[nodiscard]] virtual int currentSeries() const = 0;
    [[nodiscard]] virtual int currentIndex() const = 0;
    [[nodiscard]] virtual double xValueForSeries1() const = 0;
};

/// What the series store asks of the table and tells it.
class SeriesTable
{
public:
    virtual ~SeriesTable() = default;
    [[nodiscard]] virtual IndexSet selectedColumnIndexes() const = 0;
    virtual void deselectAll() = 0;
    virtual void noteNumberOfRowsChanged() = 0;
    virtual void reloadData() = 0;
    virtual void scrollColumnToVisible(int column) = 0;
};

/// The series store as the table sees it: its data source.
class TableSource
{
public:
    virtual ~TableSource() = default;
    /// Whether the series holds a point; false for any index outside 0 to 9.
    [[nodiscard]] virtual bool isValidSeries(int series) const = 0;
    [[nodiscard]] virtual IndexSet validSeries() const = 0;
    [[nodiscard]] virtual IndexSet validSeriesBetween(int first, int last) const = 0;
    [[nodiscard]] virtual IndexSet validSeriesWithin(const IndexSet &series) const = 0;
    /// The length of the longest series.
    [[nodiscard]] virtual int numberOfRowsInTableView() const = 0;
    /// `tableView:objectValueForTableColumn:row:` gives the text of one cell, empty where the
    /// series has no such point.
    [[nodiscard]] virtual QString tableView(int objectValueForTableColumn, int row) const = 0;
};

/// What the series store tells the marker preview.
class SeriesMarkerPreview
{
public:
    virtual ~SeriesMarkerPreview() = default;
    /// `setPreview:markerAndLine:` takes the style and draw mode of the current series.
    virtual void setPreview(const PlotStyle &style, int markerAndLine) = 0;
    virtual void setNeedsDisplay() = 0;
};
