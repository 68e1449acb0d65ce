#include "capture/CursorGuide.h"

#include "conversion/ZKConvCoordinate.h"
#include "platform/NumberText.h"
#include "platform/TextField.h"
#include "platform/Texts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPainter>
#include <QPalette>

#include <utility>

namespace {

// The modes of the automatic X, in the order of the pop-up's items.
constexpr int noAutoX = 0;
constexpr int steppedX = 1;
constexpr int equalX = 2;

namespace key {
constexpr const char *autoXMode = "Auto X Value Mode";
constexpr const char *lockX = "Lock X Value";
constexpr const char *lockY = "Lock Y Value";
constexpr const char *initialX = "Initial X Value";
constexpr const char *stepX = "Step X Value";
constexpr const char *currentX = "Current X Value";
constexpr const char *currentY = "Current Y Value";
constexpr const char *converter = "Current Converter";
} // namespace key

/// A value as the live fields show it, with the blanks in front: they keep their width.
QString liveText(double value) { return QString::fromStdString(numbertext::general(value, 5, 10)); }

/// A locked value can be typed: its field looks like any field.
void setLockedLook(TextField &field)
{
    field.setReadOnly(false);
    field.setFrame(true);
    field.setPalette(QPalette());
    field.setProperty("bezel", QStringLiteral("square"));
    field.update();
}

/// An unlocked value follows the cursor: its field lies flat on the window, whatever the window's
/// colours are.
void setUnlockedLook(TextField &field)
{
    field.setEnabled(false);
    field.setReadOnly(true);
    field.setFrame(false);
    QPalette flat;
    flat.setColor(QPalette::Base, Qt::transparent);
    field.setPalette(flat);
    field.setProperty("bezel", QStringLiteral("rounded"));
    field.setEnabled(true);
}

void setLook(TextField &field, bool locked)
{
    if (locked)
        setLockedLook(field);
    else
        setUnlockedLook(field);
}

/// The key of a lock command's title.
const char *lockTitleKey(bool locked, const char *lockKey, const char *unlockKey)
{
    return locked ? unlockKey : lockKey;
}

} // namespace

CursorGuide::CursorGuide(const CursorGuideSurroundings &surroundings,
                         const CursorGuideOutlets &outlets, QObject *parent)
    : QObject(parent)
    , m_around(surroundings)
    , m_outlets(outlets)
{
    // Without its frame a field is lower; the row must not jump when a value is locked.
    for (TextField *field : {m_outlets.currentXTextField, m_outlets.currentYTextField})
        field->setMinimumHeight(field->sizeHint().height());
    setLook(*m_outlets.currentXTextField, m_outlets.lockXCheck->isChecked());
    setLook(*m_outlets.currentYTextField, m_outlets.lockYCheck->isChecked());
    setInitialAndStepEnabled(m_outlets.autoXModePopUp->currentIndex() == steppedX);
    connectControls();
}

void CursorGuide::connectControls()
{
    connect(m_outlets.autoXModePopUp, &QComboBox::activated, this, &CursorGuide::autoXChanged);
    connect(m_outlets.initialXTextField, &TextField::committed, this,
            &CursorGuide::initialXChanged);
    connect(m_outlets.stepXTextField, &TextField::committed, this, &CursorGuide::stepXChanged);
    connect(m_outlets.currentXTextField, &TextField::committed, this, &CursorGuide::xValueChanged);
    connect(m_outlets.currentYTextField, &TextField::committed, this, &CursorGuide::yValueChanged);
    connect(m_outlets.lockXCheck, &QCheckBox::clicked, this, &CursorGuide::lockXChanged);
    connect(m_outlets.lockYCheck, &QCheckBox::clicked, this, &CursorGuide::lockYChanged);
}

void CursorGuide::awakeFromNib()
{
    m_showGuide = false;
    m_lockX = m_outlets.lockXCheck->isChecked();
    m_lockY = m_outlets.lockYCheck->isChecked();
    m_autoXMode = m_outlets.autoXModePopUp->currentIndex();
    m_forceRefresh = true;
    lockStateChanged();
}

void CursorGuide::setConverter(std::shared_ptr<const ZKConvCoordinate> converter)
{
    m_converter = std::move(converter);
}

FloatPoint CursorGuide::dataPointAt(FloatPoint point, float scale) const
{
    FloatPoint q;
    if (m_converter)
        q = m_converter->convertPointFromCartesian({point.x / scale, point.y / scale});
    if (m_lockX)
        q.x = static_cast<float>(m_outlets.currentXTextField->doubleValue());
    if (m_lockY)
        q.y = static_cast<float>(m_outlets.currentYTextField->doubleValue());
    return q;
}

void CursorGuide::markEdited() { m_around.document.updateChangeCount(ChangeKind::Done); }

void CursorGuide::setInitialAndStepEnabled(bool enabled)
{
    m_outlets.initialXTextField->setEnabled(enabled);
    m_outlets.stepXTextField->setEnabled(enabled);
}

/// Locks X for good: the field has its unlocked look, since the value in it is computed and not
/// to be typed over.
void CursorGuide::lockXByMode()
{
    m_outlets.lockXCheck->setChecked(false);
    lockXChanged();
    m_outlets.lockXCheck->setChecked(true);
    m_outlets.lockXCheck->setEnabled(false);
    m_lockX = true;
}

/// Leaves X to the user again; the look of the field stays as it is.
void CursorGuide::freeX()
{
    m_outlets.lockXCheck->setChecked(false);
    m_outlets.lockXCheck->setEnabled(true);
    m_lockX = false;
}

void CursorGuide::autoXChanged()
{
    m_autoXMode = m_outlets.autoXModePopUp->currentIndex();
    setInitialAndStepEnabled(m_autoXMode == steppedX);
    if (m_autoXMode == steppedX)
        lockXByMode();
    else if (m_autoXMode == equalX)
        seriesChanged();
    else
        freeX();
    if (m_autoXMode != noAutoX)
        setAutoXValue();
    lockStateChanged();
    markEdited();
}

void CursorGuide::seriesChanged()
{
    if (m_autoXMode == equalX) {
        if (m_around.dataSeries.currentSeries() == 0)
            freeX();
        else
            lockXByMode();
    }
    setAutoXValue();
    lockStateChanged();
    markEdited();
}

void CursorGuide::setAutoXValue()
{
    if (m_autoXMode == steppedX) {
        const int n = m_around.dataSeries.currentIndex();
        const double step = m_outlets.stepXTextField->doubleValue();
        const double initial = m_outlets.initialXTextField->doubleValue();
        m_outlets.currentXTextField->setStringValue(liveText(n * step + initial));
        m_forceRefresh = true;
    } else if (m_autoXMode == equalX) {
        if (m_around.dataSeries.currentSeries() >= 1)
            m_outlets.currentXTextField->setStringValue(
                liveText(m_around.dataSeries.xValueForSeries1()));
        m_forceRefresh = true;
    }
}

void CursorGuide::initialXChanged()
{
    setAutoXValue();
    markEdited();
}

void CursorGuide::stepXChanged()
{
    setAutoXValue();
    markEdited();
}

void CursorGuide::xValueChanged() { markEdited(); }

void CursorGuide::yValueChanged() { markEdited(); }

void CursorGuide::lockXChanged()
{
    m_lockX = m_outlets.lockXCheck->isChecked();
    setLook(*m_outlets.currentXTextField, m_lockX);
    lockStateChanged();
    markEdited();
}

void CursorGuide::lockYChanged()
{
    m_lockY = m_outlets.lockYCheck->isChecked();
    setLook(*m_outlets.currentYTextField, m_lockY);
    lockStateChanged();
    markEdited();
}

void CursorGuide::simulateLockX()
{
    m_outlets.lockXCheck->setChecked(!m_outlets.lockXCheck->isChecked());
    lockXChanged();
}

void CursorGuide::simulateLockY()
{
    m_outlets.lockYCheck->setChecked(!m_outlets.lockYCheck->isChecked());
    lockYChanged();
}

void CursorGuide::lockStateChanged()
{
    const char *xKey = "LockXValue";
    const char *yKey = "LockYValue";
    if (m_converter && m_converter->converterType() == convertertype::polar) {
        xKey = lockTitleKey(m_lockX, "LockTValue", "UnlockTValue");
        yKey = lockTitleKey(m_lockY, "LockRValue", "UnlockRValue");
    } else if (m_converter) {
        xKey = lockTitleKey(m_lockX, "LockXValue", "UnlockXValue");
        yKey = lockTitleKey(m_lockY, "LockYValue", "UnlockYValue");
    }
    m_around.lockMenu.setLockXTitle(texts::localized(xKey));
    m_around.lockMenu.setLockYTitle(texts::localized(yKey));
}

void CursorGuide::drawGuide(FloatPoint point, float scale)
{
    if (point == m_prevCursorPos && !m_forceRefresh)
        return;
    m_forceRefresh = false;
    forceDrawGuide(point, scale);
}

void CursorGuide::forceDrawGuide(FloatPoint point, float scale)
{
    if (!m_converter)
        return;
    m_showGuide = true;
    m_prevCursorPos = point;
    const FloatPoint d = dataPointAt(point, scale);
    if (!m_lockX)
        m_outlets.currentXTextField->setStringValue(liveText(d.x));
    if (!m_lockY)
        m_outlets.currentYTextField->setStringValue(liveText(d.y));
    const GuideFrame frame = guideFrame(point, d, scale);
    const FloatRect picture{{0, 0}, m_around.graphView.scaledImageSize()};
    m_guide = m_converter->converterType() == convertertype::polar
                  ? GuideLines::polar(frame, scale, picture)
                  : GuideLines::straight(frame, picture);
    m_around.graphView.setNeedsDisplay();
}

/// Without a lock the guide passes through the cursor, with one through the place where the point
/// will land.
GuideFrame CursorGuide::guideFrame(FloatPoint cursor, FloatPoint dataPoint, float scale) const
{
    GuideFrame frame{cursor, {}, {}};
    FloatPoint onPicture{cursor.x / scale, cursor.y / scale};
    if (m_lockX || m_lockY) {
        onPicture = m_converter->convertPointToCartesian(dataPoint);
        frame.origin = {onPicture.x * scale, onPicture.y * scale};
    }
    m_converter->getAxisVectorsAtPoint(onPicture, frame.basis1, frame.basis2);
    return frame;
}

void CursorGuide::drawGuide(QPainter &painter) const
{
    if (m_showGuide)
        m_guide.draw(painter, m_around.prefs);
}

void CursorGuide::clearGuide()
{
    if (!m_showGuide)
        return;
    m_showGuide = false;
    m_around.graphView.setNeedsDisplay();
}

ArchiveDictionary CursorGuide::dataForSave() const
{
    ArchiveDictionary data;
    data.set(key::autoXMode, ArchiveValue{std::int64_t{m_autoXMode}});
    data.set(key::lockX, ArchiveValue{m_lockX});
    data.set(key::lockY, ArchiveValue{m_lockY});
    data.set(key::initialX, ArchiveValue{m_outlets.initialXTextField->doubleValue()});
    data.set(key::stepX, ArchiveValue{m_outlets.stepXTextField->doubleValue()});
    data.set(key::currentX, ArchiveValue{m_outlets.currentXTextField->doubleValue()});
    data.set(key::currentY, ArchiveValue{m_outlets.currentYTextField->doubleValue()});
    if (m_converter)
        data.set(key::converter, ArchiveValue{std::shared_ptr<const Archivable>(m_converter)});
    return data;
}

bool CursorGuide::loadFromData(const ArchiveDictionary *data)
{
    if (data == nullptr)
        return false;
    const int mode = data->intForKey(key::autoXMode);
    // A file may hold any number; one that is no item leaves the choice alone.
    if (mode >= 0 && mode < m_outlets.autoXModePopUp->count())
        m_outlets.autoXModePopUp->setCurrentIndex(mode);
    m_outlets.lockXCheck->setChecked(data->boolForKey(key::lockX));
    setLook(*m_outlets.currentXTextField, m_outlets.lockXCheck->isChecked());
    m_outlets.lockYCheck->setChecked(data->boolForKey(key::lockY));
    setLook(*m_outlets.currentYTextField, m_outlets.lockYCheck->isChecked());
    m_outlets.initialXTextField->setDoubleValue(data->doubleForKey(key::initialX));
    m_outlets.stepXTextField->setDoubleValue(data->doubleForKey(key::stepX));
    m_outlets.currentXTextField->setDoubleValue(data->doubleForKey(key::currentX));
    m_outlets.currentYTextField->setDoubleValue(data->doubleForKey(key::currentY));
    awakeFromNib();
    m_converter =
        std::dynamic_pointer_cast<const ZKConvCoordinate>(data->objectForKey(key::converter));
    autoXChanged();
    return true;
}
