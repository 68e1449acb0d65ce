// What a document keeps of its axis settings. Reading and writing stand side by side, since the
// keys are the format.
#include "axes/CurrentAxes.h"

#include "axes/AxesSurroundings.h"
#include "platform/GeometryText.h"
#include "platform/TextField.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>

#include <string_view>

namespace {

constexpr int counterClockwiseButton = 0;
constexpr int clockwiseButton = 1;

ArchiveValue integerValue(std::int32_t value) { return {std::int64_t{value}}; }

FloatPoint pointForKey(const ArchiveDictionary &dictionary, std::string_view key)
{
    return geometrytext::pointFromString(dictionary.stringForKey(key));
}

// An index that the pop-up does not have leaves its selection as it is.
void selectItem(QComboBox &popup, int index)
{
    if (index >= 0 && index < popup.count())
        popup.setCurrentIndex(index);
}

} // namespace

ArchiveDictionary CurrentAxes::dataForSave() const
{
    ArchiveDictionary data;
    data.set("Anchor Position 1", {geometrytext::stringFromPoint(m_anchors.anchor1)});
    data.set("Anchor Position 2", {geometrytext::stringFromPoint(m_anchors.anchor2)});
    data.set("Anchor Position 3", {geometrytext::stringFromPoint(m_anchors.anchor3)});
    data.set("Anchor Position 4", {geometrytext::stringFromPoint(m_anchors.anchor4)});
    data.set("Axis Type", integerValue(m_axisType));
    data.set("Min X Value", {m_minXValue});
    data.set("Max X Value", {m_maxXValue});
    data.set("Min Y Value", {m_minYValue});
    data.set("Max Y Value", {m_maxYValue});
    data.set("Log X Axis", {m_logX});
    data.set("Log Y Axis", {m_logY});
    data.set("Theta Range", integerValue(m_thetaRange));
    data.set("CCW Direction", {m_rotCCW});
    return data;
}

bool CurrentAxes::loadFromData(const ArchiveDictionary *dictionary)
{
    if (!dictionary)
        return false;
    m_anchors.anchor1 = pointForKey(*dictionary, "Anchor Position 1");
    m_anchors.anchor2 = pointForKey(*dictionary, "Anchor Position 2");
    m_anchors.anchor3 = pointForKey(*dictionary, "Anchor Position 3");
    m_anchors.anchor4 = pointForKey(*dictionary, "Anchor Position 4");
    selectItem(*m_outlets.axisTypePopup, dictionary->intForKey("Axis Type"));
    // Through the fields, so that loaded values have the digits that the user sees.
    m_outlets.minXTextField->setDoubleValue(dictionary->doubleForKey("Min X Value"));
    m_outlets.maxXTextField->setDoubleValue(dictionary->doubleForKey("Max X Value"));
    m_outlets.minYTextField->setDoubleValue(dictionary->doubleForKey("Min Y Value"));
    m_outlets.maxYTextField->setDoubleValue(dictionary->doubleForKey("Max Y Value"));
    m_outlets.logXCheck->setChecked(dictionary->boolForKey("Log X Axis"));
    m_outlets.logYCheck->setChecked(dictionary->boolForKey("Log Y Axis"));
    selectItem(*m_outlets.thetaRangePopup, dictionary->intForKey("Theta Range"));
    const bool counterClockwise = dictionary->boolForKey("CCW Direction");
    m_outlets.rotDirRadio->button(counterClockwise ? counterClockwiseButton : clockwiseButton)
        ->setChecked(true);
    awakeFromNib();
    replaceAxisDisplay();
    makeAnchorRectsWithScale(m_graphView.imageScale());
    return true;
}
