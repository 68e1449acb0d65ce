#include "imageview/ChoosePdfView.h"

#include "platform/Texts.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>
#include <QWheelEvent>

#include <utility>

namespace {

/// One notch of the wheel, in the unit of its events.
constexpr int notch = 120;

constexpr int margin = 12;

} // namespace

ChoosePdfView::ChoosePdfView(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ChoosePdfView::clear()
{
    m_page = {};
    setNote({});
}

void ChoosePdfView::showPage(const QImage &page)
{
    m_page = page;
    setNote(page.isNull() ? texts::localized("imageview.choose-page.unreadable") : QString());
}

void ChoosePdfView::showRendering()
{
    m_page = {};
    setNote(texts::localized("imageview.choose-page.rendering"));
}

void ChoosePdfView::setNote(const QString &note)
{
    m_note = note;
    setAccessibleDescription(note);
    update();
}

QSize ChoosePdfView::sizeHint() const { return {460, 560}; }

void ChoosePdfView::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
    const QRectF place = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    if (!m_note.isEmpty()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, m_note);
    }
    if (m_page.isNull() || place.isEmpty())
        return;
    const QSizeF ownSize = m_page.deviceIndependentSize();
    const bool fits = ownSize.width() <= place.width() && ownSize.height() <= place.height();
    QRectF paper(QPointF(), fits ? ownSize : ownSize.scaled(place.size(), Qt::KeepAspectRatio));
    paper.moveCenter(place.center());
    // On whole device pixels a page at its own size stays as sharp as it is.
    const qreal ratio = devicePixelRatioF();
    paper.moveTopLeft((paper.topLeft() * ratio).toPoint() / ratio);
    painter.fillRect(paper.translated(2, 2), palette().color(QPalette::Shadow));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize pixels = (paper.size() * ratio).toSize().expandedTo({1, 1});
    if (pixels.width() < m_page.width()) {
        const QImage reduced =
            m_page.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        painter.drawImage(paper, reduced, QRectF(QPointF(), QSizeF(reduced.size())));
    } else {
        painter.drawImage(paper, m_page, QRectF(QPointF(), QSizeF(m_page.size())));
    }
}

// Whole notches of this one event count; what is left over does not.
void ChoosePdfView::wheelEvent(QWheelEvent *event)
{
    Q_EMIT pagesScrolled(-(event->angleDelta().y() / notch));
    event->accept();
}

void ChoosePdfView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        countClick(*event);
}

void ChoosePdfView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    countClick(*event);
    if (m_clickCount == 2)
        Q_EMIT pageChosen();
}

// Every other click of a quick series in one place comes as a double click: their number is
// counted here.
void ChoosePdfView::countClick(const QMouseEvent &event)
{
    const QStyleHints &hints = *QGuiApplication::styleHints();
    const bool isQuick =
        event.timestamp() - m_lastClick < static_cast<quint64>(hints.mouseDoubleClickInterval());
    const QPoint place = event.position().toPoint();
    const bool isNear =
        (place - m_lastPlace).manhattanLength() < 2 * hints.mouseDoubleClickDistance();
    m_clickCount = isQuick && isNear ? m_clickCount + 1 : 1;
    if (event.type() == QEvent::MouseButtonDblClick && m_clickCount < 2)
        m_clickCount = 2;
    m_lastClick = event.timestamp();
    m_lastPlace = place;
}
