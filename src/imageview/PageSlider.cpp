#include "imageview/PageSlider.h"

#include <QPalette>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int stepsPerPage = 1000;
constexpr int mostTickMarks = 20;

} // namespace

PageSlider::PageSlider(QWidget *parent)
    : QSlider(Qt::Vertical, parent)
{
    setSingleStep(stepsPerPage);
    setPageStep(stepsPerPage);
    setTickPosition(QSlider::TicksRight);
    // Styles fill the groove below the knob, as if page 1 were the most: not here.
    QPalette plain = palette();
    plain.setColor(QPalette::Highlight, plain.color(QPalette::Mid));
    setPalette(plain);
    setNumberOfPages(1);
    // Only what the user does arrives here; setPage() does not.
    connect(this, &QSlider::actionTriggered, this, &PageSlider::takePosition);
}

void PageSlider::setNumberOfPages(int count)
{
    setRange(-count * stepsPerPage, -stepsPerPage);
    m_onTickMarksOnly = count <= mostTickMarks;
    m_numberOfTickMarks = std::min(count, mostTickMarks);
    // Rounded down, so that the last mark is not beyond the end.
    setTickInterval(m_onTickMarksOnly
                        ? stepsPerPage
                        : static_cast<int>((count - 1LL) * stepsPerPage / (mostTickMarks - 1)));
}

void PageSlider::setPage(int page) { setValue(-page * stepsPerPage); }

double PageSlider::doubleValue() const
{
    return static_cast<double>(sliderPosition()) / stepsPerPage;
}

void PageSlider::takePosition()
{
    if (m_onTickMarksOnly)
        setSliderPosition(static_cast<int>(std::lround(doubleValue())) * stepsPerPage);
    Q_EMIT moved();
}

// The wheel turns pages over the preview only.
void PageSlider::wheelEvent(QWheelEvent *event) { event->ignore(); }
