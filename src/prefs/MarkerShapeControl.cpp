#include "prefs/MarkerShapeControl.h"

#include "platform/Texts.h"
#include "prefs/PrefsSurroundings.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>

#include <array>

namespace {

constexpr std::array names{"prefs.shape.0", "prefs.shape.1", "prefs.shape.2", "prefs.shape.3"};
constexpr int iconSide = 16;
constexpr int markerSide = 9;
constexpr double lineWidth = 1.5;

/// A shape that is not chosen steps back; it stays opaque, as its line overlaps its filling.
QColor between(const QColor &one, const QColor &other)
{
    return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
            (one.blue() + other.blue()) / 2};
}

QPixmap shapePixmap(const PrefsMarkers &markers, int shape, const QColor &color, int pixelRatio)
{
    QPixmap pixmap(iconSide * pixelRatio, iconSide * pixelRatio);
    pixmap.fill(Qt::transparent);
    pixmap.setDevicePixelRatio(pixelRatio);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    constexpr double margin = (iconSide - markerSide) / 2.0;
    markers.drawMarker(painter, shape, QRectF(margin, margin, markerSide, markerSide));
    return pixmap;
}

} // namespace

MarkerShapeControl::MarkerShapeControl(QWidget *parent)
    : QWidget(parent)
    , m_segments(new QButtonGroup(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (std::size_t shape = 0; shape < names.size(); ++shape) {
        auto *segment = new QToolButton(this);
        segment->setCheckable(true);
        segment->setIconSize({iconSide, iconSide});
        segment->setToolTip(texts::localized(names.at(shape)));
        segment->setAccessibleName(segment->toolTip());
        segment->setFocusPolicy(Qt::StrongFocus);
        row->addWidget(segment);
        m_segments->addButton(segment, static_cast<int>(shape));
    }
    setFocusProxy(m_segments->button(0));
    setSelectedSegment(0);
    connect(m_segments, &QButtonGroup::idClicked, this, &MarkerShapeControl::setSelectedSegment);
}

void MarkerShapeControl::setMarkers(const PrefsMarkers &markers)
{
    m_markers = &markers;
    drawShapes();
}

void MarkerShapeControl::setSelectedSegment(int segment)
{
    m_selectedSegment = segment;
    // An exclusive group would keep one of its buttons chosen.
    m_segments->setExclusive(false);
    for (QAbstractButton *button : m_segments->buttons())
        button->setChecked(m_segments->id(button) == segment);
    m_segments->setExclusive(true);
    if (QAbstractButton *chosen = m_segments->button(segment))
        setFocusProxy(chosen);
}

void MarkerShapeControl::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        drawShapes();
    QWidget::changeEvent(event);
}

void MarkerShapeControl::drawShapes()
{
    if (m_markers == nullptr)
        return;
    for (QAbstractButton *button : m_segments->buttons()) {
        const int shape = m_segments->id(button);
        const QColor chosen = palette().color(QPalette::ButtonText);
        const QColor other = between(chosen, palette().color(QPalette::Button));
        QIcon icon;
        for (const int pixelRatio : {1, 2, 3}) {
            icon.addPixmap(shapePixmap(*m_markers, shape, chosen, pixelRatio), QIcon::Normal,
                           QIcon::On);
            icon.addPixmap(shapePixmap(*m_markers, shape, other, pixelRatio), QIcon::Normal,
                           QIcon::Off);
        }
        button->setIcon(icon);
    }
}
