#pragma once

#include "archiving/ArchiveTree.h"
#include "axes/AnchorDrag.h"
#include "axes/AnchorLayout.h"
#include "axes/Anchors.h"
#include "axes/AxisValues.h"
#include "conversion/ZKConvCoordinate.h"
#include "geometry/FloatGeometry.h"
#include "platform/Sheets.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class AxesDocument;
class AxesImageView;
class AxesInfoPanel;
class AxesPrefs;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPainter;
class QPushButton;
class TextField;

/// The controls of the axis-settings page, and those of the digitizing page whose titles follow
/// the kind of axes. All must be there; the window owns them, and they outlive the controller.
struct CurrentAxesOutlets
{
    QComboBox *axisTypePopup = nullptr;
    QPushButton *resetDefault = nullptr;
    QPushButton *resetWhole = nullptr;
    TextField *minXTextField = nullptr;
    TextField *maxXTextField = nullptr;
    QCheckBox *logXCheck = nullptr;
    TextField *minYTextField = nullptr;
    TextField *maxYTextField = nullptr;
    QCheckBox *logYCheck = nullptr;
    QComboBox *thetaRangePopup = nullptr;
    QButtonGroup *rotDirRadio = nullptr; ///< id 0 counter-clockwise, id 1 clockwise
    QLabel *currentXLabel = nullptr;
    QLabel *currentYLabel = nullptr;
    QGroupBox *xAxisBox = nullptr;
    QGroupBox *yAxisBox = nullptr;
    QGroupBox *tAxisBox = nullptr;
    QGroupBox *xModeBox = nullptr;
    QComboBox *autoXModePopUp = nullptr;
    QCheckBox *sortCheck = nullptr;
};

/// The axis settings of one document: kind of axes, anchors on the picture, values at the anchors.
///
/// It checks what is typed, moves the anchors, draws the axes, and builds the converter that turns
/// picture points into graph values.
class CurrentAxes : public QObject
{
    Q_OBJECT

public:
    /// Who asks for a placement: a control or this controller itself, the picture view (which
    /// lays out and redraws on its own afterwards), or nobody.
    enum class Sender { Control, ImageView, None };

    /// The value control that was edited.
    enum class ValueControl { MinX, MaxX, MinY, MaxY, ThetaRange };

    /// The mode control that was clicked.
    enum class ModeControl { LogX, LogY, RotationDirection };

    /// Connects the outlets' user actions and reads their contents. All arguments outlive it.
    CurrentAxes(const CurrentAxesOutlets &outlets, AxesDocument &document, AxesImageView &graphView,
                const AxesPrefs &prefs, AxesInfoPanel &infoPanel, QObject *parent = nullptr);
    ~CurrentAxes() override;

    /// Reads all controls into the fields; for use once the interface file is loaded.
    void awakeFromNib();

    [[nodiscard]] int axisType() const { return m_axisType; }
    [[nodiscard]] int thetaRange() const { return m_thetaRange; }
    [[nodiscard]] bool logX() const { return m_logX; }
    [[nodiscard]] bool logY() const { return m_logY; }
    [[nodiscard]] bool rotCCW() const { return m_rotCCW; }
    [[nodiscard]] double minXValue() const { return m_minXValue; }
    [[nodiscard]] double maxXValue() const { return m_maxXValue; }
    [[nodiscard]] double minYValue() const { return m_minYValue; }
    [[nodiscard]] double maxYValue() const { return m_maxYValue; }
    [[nodiscard]] FloatPoint anchor1Point() const { return m_anchors.anchor1; }
    [[nodiscard]] FloatPoint anchor2Point() const { return m_anchors.anchor2; }
    [[nodiscard]] FloatPoint anchor3Point() const { return m_anchors.anchor3; }
    [[nodiscard]] FloatPoint anchor4Point() const { return m_anchors.anchor4; }

    /// Whether the anchors were last placed on a picture of positive size.
    [[nodiscard]] bool validImage() const { return m_validImage; }

    /// Rectangles, lines and area as last laid out, in view coordinates.
    [[nodiscard]] const AnchorLayout &layout() const { return m_layout; }

    /// Lengths between anchors, in picture points.
    [[nodiscard]] double bottomLength() const;
    [[nodiscard]] double leftLength() const;
    [[nodiscard]] double radius() const;
    /// The angle from the X direction to the line from anchor 1 to anchor 2: signed degrees,
    /// positive counter-clockwise.
    [[nodiscard]] double inclination() const;

    /// The converter for the present axes; null when the anchors or values allow none.
    [[nodiscard]] std::shared_ptr<const ZKConvCoordinate> makeAxisConverter() const;

    /// Anchors 1 to 4 in order.
    [[nodiscard]] std::vector<FloatPoint> currentAnchors() const;
    /// Replaces all anchors, undoably; ignored with fewer than four points.
    void setAnchors(const std::vector<FloatPoint> &anchors);
    /// Names the undo group of the current event by `actionNameKey` and registers an undo that
    /// puts the present anchors back. Whoever is going to move the anchors calls it first.
    void registerAnchorUndo(const char *actionNameKey);
    /// Drops every undo and redo of the anchors from the document's history.
    void removeAnchorUndo();

    /// Brings the titles and boxes in line with the kind of axes.
    void replaceAxisDisplay();

    /// Lays rectangles, lines and area out anew and has the facts panel follow.
    void makeAnchorRectsWithScale(float scale);
    /// The part code of what a press at `point` (view coordinates) takes hold of, 0 for nothing.
    [[nodiscard]] int partOfHit(FloatPoint point) const;
    /// What a press at `point` (view coordinates) will do, for the status line.
    [[nodiscard]] QString hintAtPoint(FloatPoint point) const;

    /// `dragAnchor:withEvent:` starts a drag with the press at `startPoint` and makes its first
    /// move, to `event` (both in view coordinates). A press on nothing starts none. The caller
    /// has registered the undo.
    void dragAnchor(FloatPoint startPoint, FloatPoint event);
    /// Moves to `viewPoint`; does nothing outside a drag.
    void continueDrag(FloatPoint viewPoint);
    /// Makes the last move, to `viewPoint`, and ends the drag; does nothing outside one.
    void endDrag(FloatPoint viewPoint);
    [[nodiscard]] bool isDragging() const { return m_drag.has_value(); }

    /// The part that follows (`direction` 1) or precedes (-1) `part`; 0 stands for none.
    [[nodiscard]] int partBeside(int part, int direction) const;
    /// Where a part stands, in picture points; nothing for what is no part of these axes.
    [[nodiscard]] std::optional<FloatPoint> placeOfPart(int part) const;
    /// What a part is called, for the status line and for screen readers.
    [[nodiscard]] QString nameOfPart(int part) const;
    /// Moves a part by `way` (picture points), as a drag of it does. Moves of one part in a row
    /// are one step for undo.
    void movePart(int part, FloatPoint way);
    /// The next move is a step of its own.
    void endMovesOfPart() { m_movesOfPart.reset(); }

    /// Puts the anchors at their default places, or on the whole picture with pixel values.
    void resetPosition(Sender sender);
    void wholePosition(Sender sender);

    /// Draws the axes. The painter works in view coordinates, y upwards; it is left as it was.
    /// Everything was laid out before, so the scale is not used.
    void drawAxisWithScale(QPainter &painter, float scale) const;

    [[nodiscard]] ArchiveDictionary dataForSave() const;
    /// False for a null dictionary. Values keep six digits, since they pass through their fields;
    /// nothing is validated.
    bool loadFromData(const ArchiveDictionary *dictionary);

    /// The actions of the controls.
    void axisTypeChanged();
    void axisValueChanged(ValueControl sender);
    void axisModeChanged(ModeControl sender);

    /// `showBadValueMessage:fieldShouldEdit:` queues a sheet with the text of `key`; when it ends,
    /// the axis page is shown and the field, if any, gets the focus.
    void showBadValueMessage(const char *key, TextField *fieldShouldEdit);
    /// `badValueMessageDidEnd:returnCode:contextInfo:` is the end of that sheet.
    void badValueMessageDidEnd(SheetAnswer returnCode, TextField *contextInfo);

private:
    /// One axis: its values, its flag and their controls.
    struct AxisFields
    {
        double &minimum;
        double &maximum;
        bool &log;
        TextField *minimumField;
        TextField *maximumField;
        QCheckBox *logCheck;
    };

    /// The moves of one part that are undone together, and where they have led to.
    struct MovesOfPart
    {
        int part;
        Anchors anchors;
    };

    void connectActions();
    [[nodiscard]] AnchorLayout layoutOnPicture() const;
    [[nodiscard]] AxisFields xAxis();
    [[nodiscard]] AxisFields yAxis();
    void valueEdited(const AxisFields &axis, RangeEnd end);
    void logSwitched(const AxisFields &axis);
    void apply(const RangeCorrection &correction, const AxisFields &axis);

    void readOutPixels(const AxisFields &axis, double maximum);
    void closeParallelogram();
    void layOutUnlessSentBy(Sender sender);

    CurrentAxesOutlets m_outlets;
    AxesDocument &m_document;
    AxesImageView &m_graphView;
    const AxesPrefs &m_prefs;
    AxesInfoPanel &m_infoPanel;

    bool m_validImage = false;
    std::int32_t m_axisType = 0;
    std::int32_t m_thetaRange = 0;
    bool m_logX = false;
    bool m_logY = false;
    bool m_rotCCW = false;
    double m_minXValue = 0;
    double m_maxXValue = 0;
    double m_minYValue = 0;
    double m_maxYValue = 0;
    Anchors m_anchors;
    AnchorLayout m_layout;
    std::optional<AnchorDrag> m_drag;
    std::optional<MovesOfPart> m_movesOfPart;
};
