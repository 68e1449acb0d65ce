#include "axes/CurrentAxes.h"

#include "axes/AnchorMeasures.h"
#include "axes/AnchorPlacement.h"
#include "axes/AxesSurroundings.h"
#include "axes/AxisHints.h"
#include "axes/AxisPainter.h"
#include "conversion/ZKConvCoordinateAffine.h"
#include "conversion/ZKConvCoordinateKeystone.h"
#include "conversion/ZKConvCoordinatePolar.h"
#include "geometry/ZKVector.h"
#include "platform/TextField.h"
#include "platform/Texts.h"
#include "platform/UndoManager.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int counterClockwiseId = 0;

} // namespace

CurrentAxes::CurrentAxes(const CurrentAxesOutlets &outlets, AxesDocument &document,
                         AxesImageView &graphView, const AxesPrefs &prefs, AxesInfoPanel &infoPanel,
                         QObject *parent)
    : QObject(parent)
    , m_outlets(outlets)
    , m_document(document)
    , m_graphView(graphView)
    , m_prefs(prefs)
    , m_infoPanel(infoPanel)
{
    connectActions();
    awakeFromNib();
}

CurrentAxes::~CurrentAxes() = default;

void CurrentAxes::connectActions()
{
    const auto whenCommitted = [this](TextField *field, ValueControl control) {
        connect(field, &TextField::committed, this, [this, control] { axisValueChanged(control); });
    };
    whenCommitted(m_outlets.minXTextField, ValueControl::MinX);
    whenCommitted(m_outlets.maxXTextField, ValueControl::MaxX);
    whenCommitted(m_outlets.minYTextField, ValueControl::MinY);
    whenCommitted(m_outlets.maxYTextField, ValueControl::MaxY);

    connect(m_outlets.axisTypePopup, &QComboBox::activated, this, &CurrentAxes::axisTypeChanged);
    connect(m_outlets.thetaRangePopup, &QComboBox::activated, this,
            [this] { axisValueChanged(ValueControl::ThetaRange); });
    connect(m_outlets.logXCheck, &QCheckBox::clicked, this,
            [this] { axisModeChanged(ModeControl::LogX); });
    connect(m_outlets.logYCheck, &QCheckBox::clicked, this,
            [this] { axisModeChanged(ModeControl::LogY); });
    connect(m_outlets.rotDirRadio, &QButtonGroup::idClicked, this,
            [this] { axisModeChanged(ModeControl::RotationDirection); });
    connect(m_outlets.resetDefault, &QPushButton::clicked, this,
            [this] { resetPosition(Sender::Control); });
    connect(m_outlets.resetWhole, &QPushButton::clicked, this,
            [this] { wholePosition(Sender::Control); });
}

void CurrentAxes::awakeFromNib()
{
    m_validImage = true;
    m_axisType = m_outlets.axisTypePopup->currentIndex();
    m_minXValue = m_outlets.minXTextField->doubleValue();
    m_maxXValue = m_outlets.maxXTextField->doubleValue();
    m_minYValue = m_outlets.minYTextField->doubleValue();
    m_maxYValue = m_outlets.maxYTextField->doubleValue();
    m_logX = m_outlets.logXCheck->isChecked();
    m_logY = m_outlets.logYCheck->isChecked();
    m_thetaRange = m_outlets.thetaRangePopup->currentIndex();
    m_rotCCW = m_outlets.rotDirRadio->checkedId() == counterClockwiseId;
}

// Facts and the converter

double CurrentAxes::bottomLength() const { return anchormeasures::bottomLength(m_anchors); }

double CurrentAxes::leftLength() const { return anchormeasures::leftLength(m_anchors); }

double CurrentAxes::radius() const { return bottomLength(); }

double CurrentAxes::inclination() const { return anchormeasures::inclination(m_anchors); }

std::shared_ptr<const ZKConvCoordinate> CurrentAxes::makeAxisConverter() const
{
    const auto &[a1, a2, a3, a4] = m_anchors;
    switch (m_axisType) {
    case axistype::parallel:
        return ZKConvCoordinateAffine::convCoordWithX0Point(
            a1, a2, m_minXValue, m_maxXValue, m_logX, a1, a4, m_minYValue, m_maxYValue, m_logY);
    case axistype::quadrangle:
        return ZKConvCoordinateKeystone::convCoordWithPointLB(
            a1, a2, a4, a3, m_minXValue, m_maxXValue, m_logX, m_minYValue, m_maxYValue, m_logY);
    case axistype::polar:
        return ZKConvCoordinatePolar::convCoordWithCenter(a1, a2, m_minYValue, m_maxYValue, m_logY,
                                                          m_thetaRange, m_rotCCW);
    default:
        return nullptr;
    }
}

// Anchors

std::vector<FloatPoint> CurrentAxes::currentAnchors() const
{
    return {m_anchors.anchor1, m_anchors.anchor2, m_anchors.anchor3, m_anchors.anchor4};
}

void CurrentAxes::setAnchors(const std::vector<FloatPoint> &anchors)
{
    if (anchors.size() < 4)
        return;
    // While undo runs this registers the redo.
    m_document.undoManager().registerUndo(
        this, [this, before = currentAnchors()] { setAnchors(before); });
    m_anchors = {anchors[0], anchors[1], anchors[2], anchors[3]};
    // What comes next is a change of its own, also where the anchors are back in their places.
    endMovesOfPart();
    makeAnchorRectsWithScale(m_graphView.imageScale());
    m_graphView.setNeedsDisplay();
}

void CurrentAxes::registerAnchorUndo(const char *actionNameKey)
{
    UndoManager &undoManager = m_document.undoManager();
    undoManager.setActionName(texts::localized(actionNameKey));
    undoManager.registerUndo(this, [this, before = currentAnchors()] { setAnchors(before); });
}

void CurrentAxes::removeAnchorUndo()
{
    endMovesOfPart();
    m_document.undoManager().removeAllActionsWithTarget(this);
}

void CurrentAxes::makeAnchorRectsWithScale(float scale)
{
    m_layout = anchorlayout::make(m_axisType, m_anchors,
                                  {scale, m_graphView.scaledImageSize(), m_prefs.axisAnchorSize()});
    m_infoPanel.updateAxisInfo();
}

int CurrentAxes::partOfHit(FloatPoint point) const
{
    return anchorlayout::partOfHit(m_axisType, m_layout, point);
}

QString CurrentAxes::hintAtPoint(FloatPoint point) const
{
    return axishints::hintForPart(m_axisType, partOfHit(point));
}

void CurrentAxes::dragAnchor(FloatPoint startPoint, FloatPoint event)
{
    const int part = partOfHit(startPoint);
    if (part == 0)
        return;
    m_drag.emplace(m_axisType, part, m_anchors, startPoint, m_graphView.imageScale());
    continueDrag(event);
}

void CurrentAxes::continueDrag(FloatPoint viewPoint)
{
    if (!m_drag)
        return;
    m_anchors = m_drag->moved(viewPoint, m_anchors);
    makeAnchorRectsWithScale(m_drag->scale());
    m_graphView.setNeedsDisplay();
}

void CurrentAxes::endDrag(FloatPoint viewPoint)
{
    continueDrag(viewPoint);
    m_drag.reset();
}

/// The layout at one view point per picture point: its middles are places on the picture.
AnchorLayout CurrentAxes::layoutOnPicture() const
{
    return anchorlayout::make(m_axisType, m_anchors, {1, m_graphView.scaledImageSize(), 0});
}

int CurrentAxes::partBeside(int part, int direction) const
{
    return anchorlayout::partBeside(m_axisType, part, direction);
}

std::optional<FloatPoint> CurrentAxes::placeOfPart(int part) const
{
    return anchorlayout::placeOfPart(m_axisType, layoutOnPicture(), part);
}

QString CurrentAxes::nameOfPart(int part) const { return axishints::nameOfPart(m_axisType, part); }

void CurrentAxes::movePart(int part, FloatPoint way)
{
    const std::optional<FloatPoint> from = placeOfPart(part);
    if (!from)
        return;
    if (m_movesOfPart && m_movesOfPart->part == part && m_movesOfPart->anchors == m_anchors)
        m_document.anchorsMovedOn();
    else
        registerAnchorUndo("actionAxisChange");
    const AnchorDrag drag(m_axisType, part, m_anchors, *from, 1);
    m_anchors = drag.moved({from->x + way.x, from->y + way.y}, m_anchors);
    m_movesOfPart = {part, m_anchors};
    makeAnchorRectsWithScale(m_graphView.imageScale());
    m_graphView.setNeedsDisplay();
}

void CurrentAxes::resetPosition(Sender sender)
{
    m_validImage = anchorplacement::hasPositiveSize(m_graphView.imageSize());
    if (m_validImage) {
        registerAnchorUndo("actionAxisReset");
        m_anchors = anchorplacement::defaultPlacement(
            m_axisType, {m_graphView.imageSize(), m_graphView.imageRotation()}, m_anchors);
    }
    layOutUnlessSentBy(sender);
}

void CurrentAxes::wholePosition(Sender sender)
{
    if (m_axisType == axistype::polar) {
        resetPosition(sender);
        return;
    }
    m_validImage = anchorplacement::hasPositiveSize(m_graphView.imageSize());
    if (m_validImage) {
        registerAnchorUndo("actionAxisReset");
        m_anchors =
            anchorplacement::wholePlacement({m_graphView.imageSize(), m_graphView.imageRotation()});
        readOutPixels(xAxis(), m_anchors.anchor2.x);
        readOutPixels(yAxis(), m_anchors.anchor4.y);
    }
    layOutUnlessSentBy(sender);
}

void CurrentAxes::readOutPixels(const AxisFields &axis, double maximum)
{
    axis.minimum = 0;
    axis.maximum = maximum;
    axis.log = false;
    axis.minimumField->setDoubleValue(axis.minimum);
    axis.maximumField->setDoubleValue(axis.maximum);
    axis.logCheck->setChecked(false);
}

// The picture view lays out on its own after it has asked for a placement.
void CurrentAxes::layOutUnlessSentBy(Sender sender)
{
    if (sender == Sender::ImageView)
        return;
    makeAnchorRectsWithScale(m_graphView.imageScale());
    m_graphView.setNeedsDisplay();
}

void CurrentAxes::drawAxisWithScale(QPainter &painter, float /*scale*/) const
{
    if (m_validImage)
        axispainter::draw(painter, m_axisType, m_layout,
                          {m_prefs.axisColor(), m_prefs.axisThick()});
}

// The controls

CurrentAxes::AxisFields CurrentAxes::xAxis()
{
    return {
        m_minXValue,        m_maxXValue, m_logX, m_outlets.minXTextField, m_outlets.maxXTextField,
        m_outlets.logXCheck};
}

CurrentAxes::AxisFields CurrentAxes::yAxis()
{
    return {
        m_minYValue,        m_maxYValue, m_logY, m_outlets.minYTextField, m_outlets.maxYTextField,
        m_outlets.logYCheck};
}

void CurrentAxes::axisTypeChanged()
{
    const int newType = m_outlets.axisTypePopup->currentIndex();
    if (newType == m_axisType)
        return;
    if (m_axisType == axistype::polar || newType == axistype::polar) {
        m_axisType = newType;
        resetPosition(Sender::Control);
    } else if (newType == axistype::quadrangle) {
        m_axisType = newType;
        m_infoPanel.updateAxisInfo();
    } else {
        m_axisType = newType;
        closeParallelogram();
        makeAnchorRectsWithScale(m_graphView.imageScale());
        m_graphView.setNeedsDisplay();
    }
    replaceAxisDisplay();
    // Undo cannot cross a change of the kind of axes, nor bring back what a reset just replaced.
    removeAnchorUndo();
    m_document.updateChangeCount(ChangeKind::Done);
}

void CurrentAxes::closeParallelogram()
{
    const auto &[a1, a2, a3, a4] = m_anchors;
    m_anchors.anchor3 = {a2.x - a1.x + a4.x, a2.y - a1.y + a4.y};
}

void CurrentAxes::axisValueChanged(ValueControl sender)
{
    switch (sender) {
    case ValueControl::MinX:
        valueEdited(xAxis(), RangeEnd::Minimum);
        break;
    case ValueControl::MaxX:
        valueEdited(xAxis(), RangeEnd::Maximum);
        break;
    case ValueControl::MinY:
        valueEdited(yAxis(), RangeEnd::Minimum);
        break;
    case ValueControl::MaxY:
        valueEdited(yAxis(), RangeEnd::Maximum);
        break;
    case ValueControl::ThetaRange:
        m_thetaRange = m_outlets.thetaRangePopup->currentIndex();
        break;
    }
    m_document.updateChangeCount(ChangeKind::Done);
}

void CurrentAxes::axisModeChanged(ModeControl sender)
{
    switch (sender) {
    case ModeControl::LogX:
        logSwitched(xAxis());
        break;
    case ModeControl::LogY:
        logSwitched(yAxis());
        break;
    case ModeControl::RotationDirection:
        m_rotCCW = m_outlets.rotDirRadio->checkedId() == counterClockwiseId;
        break;
    }
    m_document.updateChangeCount(ChangeKind::Done);
}

void CurrentAxes::valueEdited(const AxisFields &axis, RangeEnd end)
{
    if (end == RangeEnd::Minimum)
        apply(axisvalues::minimumEdited({axis.minimumField->doubleValue(), axis.maximum, axis.log}),
              axis);
    else
        apply(axisvalues::maximumEdited({axis.minimum, axis.maximumField->doubleValue(), axis.log}),
              axis);
}

void CurrentAxes::logSwitched(const AxisFields &axis)
{
    axis.log = axis.logCheck->isChecked();
    if (axis.log)
        apply(axisvalues::madeLogarithmic({axis.minimum, axis.maximum, axis.log}), axis);
}

void CurrentAxes::apply(const RangeCorrection &correction, const AxisFields &axis)
{
    axis.minimum = correction.range.minimum;
    axis.maximum = correction.range.maximum;
    if (correction.minimumReplaced)
        axis.minimumField->setDoubleValue(axis.minimum);
    if (correction.maximumReplaced)
        axis.maximumField->setDoubleValue(axis.maximum);
    for (const BadValueMessage &message : correction.messages)
        showBadValueMessage(message.key, message.fieldShouldEdit == RangeEnd::Minimum
                                             ? axis.minimumField
                                             : axis.maximumField);
}

void CurrentAxes::showBadValueMessage(const char *key, TextField *fieldShouldEdit)
{
    const Sheet sheet{texts::localized("InvalidSetting"), texts::localized(key),
                      texts::localized("OK"), QString()};
    m_document.sheets().present(sheet,
                                [axes = QPointer<CurrentAxes>(this),
                                 field = QPointer<TextField>(fieldShouldEdit)](SheetAnswer answer) {
                                    if (axes)
                                        axes->badValueMessageDidEnd(answer, field);
                                });
}

void CurrentAxes::badValueMessageDidEnd(SheetAnswer /*returnCode*/, TextField *contextInfo)
{
    if (!m_document.isInAxisSettingMode())
        m_document.forceAxisSettingMode();
    if (contextInfo) {
        contextInfo->setFocus(Qt::OtherFocusReason);
        contextInfo->selectAll();
    }
}

void CurrentAxes::replaceAxisDisplay()
{
    const bool polar = m_axisType == axistype::polar;
    if (!polar && m_axisType != axistype::parallel && m_axisType != axistype::quadrangle)
        return;
    m_outlets.tAxisBox->setVisible(polar);
    m_outlets.xAxisBox->setVisible(!polar);
    m_outlets.yAxisBox->setTitle(texts::localized(polar ? "RAxis" : "YAxis"));
    m_outlets.xModeBox->setTitle(texts::localized(polar ? "AutoT" : "AutoX"));
    m_outlets.autoXModePopUp->setItemText(1, texts::localized(polar ? "EqualT" : "EqualX"));
    m_outlets.sortCheck->setText(texts::localized(polar ? "SortByT" : "SortByX"));
    m_outlets.currentXLabel->setText(texts::localized(polar ? "TValue" : "XValue"));
    m_outlets.currentYLabel->setText(texts::localized(polar ? "RValue" : "YValue"));
    m_outlets.resetWhole->setEnabled(!polar);
}
