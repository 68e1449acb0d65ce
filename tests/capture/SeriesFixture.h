#pragma once

#include "capture/DataSeries.h"
#include "conversion/ZKConvCoordinateAffine.h"
#include "conversion/ZKConvCoordinatePolar.h"
#include "platform/Clipboard.h"
#include "platform/Sheets.h"
#include "platform/UndoManager.h"

#include <QCheckBox>
#include <QComboBox>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// What the neighbours of the series store were told, in order.
using CallLog = std::vector<std::string>;

class RecordingSheets final : public Sheets
{
public:
    void present(const Sheet &sheet, std::function<void(SheetAnswer)> ended) override
    {
        shown.push_back(sheet);
        handlers.push_back(std::move(ended));
        if (presented)
            presented();
    }

    /// Looks at the state of things at the moment of asking.
    std::function<void()> presented;
    std::vector<Sheet> shown;
    std::vector<std::function<void(SheetAnswer)>> handlers;
};

class RecordingClipboard final : public Clipboard
{
public:
    void setText(const QString &text) override { texts.push_back(text); }
    void setTable(const QString &text) override { texts.push_back(text); }

    std::vector<QString> texts;
};

/// A document that counts its changes as the real one does.
class CountingDocument final : public CaptureDocument
{
public:
    CountingDocument()
    {
        QObject::connect(&undo, &UndoManager::changeCounted,
                         [this](ChangeKind kind) { updateChangeCount(kind); });
    }

    [[nodiscard]] UndoManager &undoManager() override { return undo; }
    [[nodiscard]] Sheets &sheets() override { return messages; }
    [[nodiscard]] Clipboard &clipboard() override { return pasteboard; }
    void updateChangeCount(ChangeKind kind) override
    {
        if (kind == ChangeKind::Cleared)
            changeCount = 0;
        else
            changeCount += kind == ChangeKind::Undone ? -1 : 1;
    }

    UndoManager undo;
    RecordingSheets messages;
    RecordingClipboard pasteboard;
    int changeCount = 0;
};

class RecordingImageView final : public CaptureImageView
{
public:
    explicit RecordingImageView(CallLog &calls)
        : m_calls(calls)
    {}
    [[nodiscard]] FloatSize scaledImageSize() const override { return {320, 200}; }
    void setNeedsDisplay() override { m_calls.push_back("view.setNeedsDisplay"); }

private:
    CallLog &m_calls;
};

class FixedAxes final : public CaptureAxes
{
public:
    [[nodiscard]] double minXValue() const override { return minimum; }

    double minimum = -7.25;
};

class FixedPrefs final : public CapturePrefs
{
public:
    [[nodiscard]] bool copyWithTitle() const override { return copyTitle; }
    [[nodiscard]] bool saveWithTitle() const override { return saveTitle; }
    [[nodiscard]] PlotStyle plotPrefsForSeries(int series) const override
    {
        PlotStyle style;
        style.size = static_cast<float>(series + 10);
        return style;
    }
    [[nodiscard]] DeviceColor guideColor() const override { return {}; }
    [[nodiscard]] float guideThick() const override { return 1; }
    [[nodiscard]] float axisThick() const override { return 1; }

    bool copyTitle = false;
    bool saveTitle = false;
};

class RecordingInfoPanel final : public CaptureInfoPanel
{
public:
    explicit RecordingInfoPanel(CallLog &calls)
        : m_calls(calls)
    {}
    void updateDataInfo() override { m_calls.push_back("info.updateDataInfo"); }

private:
    CallLog &m_calls;
};

/// A guide that marks the document at each change of the series, as the real one does.
class MarkingGuide final : public SeriesGuide
{
public:
    MarkingGuide(CallLog &calls, CaptureDocument &document)
        : m_calls(calls)
        , m_document(document)
    {}
    void seriesChanged() override
    {
        m_calls.push_back("guide.seriesChanged");
        m_document.updateChangeCount(ChangeKind::Done);
    }
    void setAutoXValue() override { m_calls.push_back("guide.setAutoXValue"); }

private:
    CallLog &m_calls;
    CaptureDocument &m_document;
};

class RecordingTable final : public SeriesTable
{
public:
    explicit RecordingTable(CallLog &calls)
        : m_calls(calls)
    {}
    [[nodiscard]] IndexSet selectedColumnIndexes() const override { return selection; }
    void deselectAll() override
    {
        m_calls.push_back("table.deselectAll");
        selection.clear();
    }
    void noteNumberOfRowsChanged() override { m_calls.push_back("table.noteNumberOfRowsChanged"); }
    void reloadData() override { m_calls.push_back("table.reloadData"); }
    void scrollColumnToVisible(int column) override
    {
        m_calls.push_back("table.scrollColumnToVisible " + std::to_string(column));
    }

    IndexSet selection;

private:
    CallLog &m_calls;
};

class RecordingPreview final : public SeriesMarkerPreview
{
public:
    explicit RecordingPreview(CallLog &calls)
        : m_calls(calls)
    {}
    void setPreview(const PlotStyle &style, int markerAndLine) override
    {
        m_calls.push_back("preview.setPreview");
        size = style.size;
        mode = markerAndLine;
    }
    void setNeedsDisplay() override { m_calls.push_back("preview.setNeedsDisplay"); }

    float size = -1;
    int mode = -1;

private:
    CallLog &m_calls;
};

/// A converter of parallel axes on which 100 pixels are `unit`; different units are different axes.
inline SeriesConverter parallelAxes(double unit, bool logX = false)
{
    const double minimum = logX ? unit / 100 : 0;
    return ZKConvCoordinateAffine::convCoordWithX0Point({0, 0}, {100, 0}, minimum, unit, logX,
                                                        {0, 0}, {0, 100}, 0, unit, false);
}

inline SeriesConverter polarAxes() { return std::make_shared<ZKConvCoordinatePolar>(); }

inline ZKVector vectorOf(double x, double y) { return ZKVector::vectorWithX(x, y); }

/// Points as pairs, so that tests can compare them exactly.
using Pairs = std::vector<std::pair<double, double>>;

inline Pairs pairsOf(const std::vector<ZKVector> &points)
{
    Pairs pairs;
    pairs.reserve(points.size());
    for (const ZKVector &point : points)
        pairs.emplace_back(point.X(), point.Y());
    return pairs;
}

/// A series store among recording neighbours, awake.
class SeriesFixture : public ::testing::Test
{
protected:
    SeriesFixture()
    {
        for (int i = 1; i <= 10; ++i)
            seriesPopup.addItem(QStringLiteral("Series"));
        for (int i = 0; i < 3; ++i)
            markerDrawPopup.addItem(QStringLiteral("Mode"));
        series.connectTo({&guide, &table, &preview});
        series.awakeFromNib();
        calls.clear();
    }

    /// One click of the user: a point, and the end of the event.
    bool click(float x, float y, const SeriesConverter &converter)
    {
        const bool added = series.appendData({x, y}, converter);
        endEvent();
        return added;
    }
    bool click(float x, float y) { return click(x, y, axes); }

    void endEvent() { document.undo.closeGroup(); }

    void choose(int index)
    {
        seriesPopup.setCurrentIndex(index);
        series.seriesChanged();
        endEvent();
    }

    /// One point at (i, i) into each of the series.
    void fill(const IndexSet &indexes)
    {
        for (const int i : indexes) {
            choose(i);
            click(static_cast<float>(i), static_cast<float>(i));
        }
    }

    [[nodiscard]] Pairs pairs(int index) const { return pairsOf(series.points(index)); }

    CallLog calls;
    CountingDocument document;
    RecordingImageView view{calls};
    FixedAxes currentAxes;
    FixedPrefs prefs;
    RecordingInfoPanel infoPanel{calls};
    MarkingGuide guide{calls, document};
    RecordingTable table{calls};
    RecordingPreview preview{calls};
    QComboBox seriesPopup;
    QComboBox markerDrawPopup;
    QCheckBox sortCheck{QStringLiteral("Auto Sort")};
    SeriesConverter axes = parallelAxes(10);
    DataSeries series{{&seriesPopup, &markerDrawPopup, &sortCheck},
                      {document, view, currentAxes, prefs, infoPanel}};
};
