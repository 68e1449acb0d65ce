#pragma once

#include "archiving/ArchiveTree.h"
#include "capture/CaptureSurroundings.h"
#include "capture/GuideLines.h"
#include "geometry/FloatGeometry.h"

#include <QObject>

#include <memory>

class QCheckBox;
class QComboBox;
class QPainter;
class TextField;
class ZKConvCoordinate;

/// The controls of the digitizing page that belong to the cursor guide.
struct CursorGuideOutlets
{
    QComboBox *autoXModePopUp = nullptr;
    TextField *initialXTextField = nullptr;
    TextField *stepXTextField = nullptr;
    TextField *currentXTextField = nullptr;
    TextField *currentYTextField = nullptr;
    QCheckBox *lockXCheck = nullptr;
    QCheckBox *lockYCheck = nullptr;
};

/// Whom the cursor guide asks and tells; all of them outlive it.
struct CursorGuideSurroundings
{
    CaptureDocument &document;
    CaptureImageView &graphView;
    const GuideSeries &dataSeries;
    const CapturePrefs &prefs;
    LockMenu &lockMenu;
};

/// The controller of the digitizing page: it holds the converter that is in force for new points,
/// says which point a click would capture, shows the values under the cursor, keeps the automatic X
/// value and draws the guide lines through the cursor.
class CursorGuide : public QObject, public SeriesGuide
{
    Q_OBJECT

public:
    CursorGuide(const CursorGuideSurroundings &surroundings, const CursorGuideOutlets &outlets,
                QObject *parent = nullptr);

    /// To be called once everything around is wired: takes the state of the controls over.
    void awakeFromNib();

    [[nodiscard]] std::shared_ptr<const ZKConvCoordinate> converter() const { return m_converter; }
    /// Null takes the converter away.
    void setConverter(std::shared_ptr<const ZKConvCoordinate> converter);

    /// 0 none, 1 stepped X, 2 the X of the first series.
    [[nodiscard]] int autoXMode() const { return m_autoXMode; }
    [[nodiscard]] bool lockX() const { return m_lockX; }
    [[nodiscard]] bool lockY() const { return m_lockY; }

    /// `dataPointAt:withScale:` gives the graph values that a click at `point` (view coordinates)
    /// captures.
    [[nodiscard]] FloatPoint dataPointAt(FloatPoint point, float scale) const;

    void seriesChanged() override;
    void setAutoXValue() override;

    /// Gives the two lock commands their titles; also to be called when the window becomes main.
    void lockStateChanged();

    /// `drawGuide:withScale:` builds the guide at `point` (view coordinates) unless it stands
    /// there.
    void drawGuide(FloatPoint point, float scale);
    /// `forceDrawGuide:withScale:` builds the guide and the live values.
    void forceDrawGuide(FloatPoint point, float scale);
    /// Strokes the guide; the painter has view coordinates, y upwards.
    void drawGuide(QPainter &painter) const;
    void clearGuide();

    [[nodiscard]] bool showGuide() const { return m_showGuide; }
    [[nodiscard]] bool forceRefresh() const { return m_forceRefresh; }
    [[nodiscard]] const GuideLines &guide() const { return m_guide; }

    [[nodiscard]] ArchiveDictionary dataForSave() const;
    /// False without a dictionary.
    bool loadFromData(const ArchiveDictionary *data);

public Q_SLOTS:
    void autoXChanged();
    void initialXChanged();
    void stepXChanged();
    void xValueChanged();
    void yValueChanged();
    void lockXChanged();
    void lockYChanged();
    void simulateLockX();
    void simulateLockY();

private:
    void connectControls();
    void markEdited();
    void setInitialAndStepEnabled(bool enabled);
    void lockXByMode();
    void freeX();
    [[nodiscard]] GuideFrame guideFrame(FloatPoint cursor, FloatPoint dataPoint, float scale) const;

    CursorGuideSurroundings m_around;
    CursorGuideOutlets m_outlets;
    std::shared_ptr<const ZKConvCoordinate> m_converter;
    FloatPoint m_prevCursorPos;
    GuideLines m_guide;
    int m_autoXMode = 0;
    bool m_showGuide = false;
    bool m_lockX = false;
    bool m_lockY = false;
    bool m_forceRefresh = false;
};
