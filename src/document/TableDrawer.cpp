#include "document/TableDrawer.h"

#include "platform/Texts.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

#include <algorithm>

namespace {
constexpr int narrowestContent = 120;
constexpr int widestContent = 1200;
} // namespace

/// The strip between picture and table: a click opens or closes the drawer, a drag changes its
/// width.
class TableDrawer::Handle : public QWidget
{
public:
    explicit Handle(TableDrawer *drawer)
        : QWidget(drawer)
        , m_drawer(*drawer)
    {
        setFixedWidth(handleWidth);
        setCursor(Qt::SplitHCursor);
        setToolTip(texts::localized("document.table.handle.tip"));
        setAccessibleName(texts::localized("document.view.table.name"));
        setObjectName(QStringLiteral("drawerHandle"));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor line = palette().color(QPalette::WindowText);
        line.setAlphaF(underMouse() ? 0.9F : 0.6F);
        const qreal x = width() / 2.0;
        const qreal y = height() / 2.0;
        const qreal tip = m_drawer.isOpen() ? 2.0 : -2.0;
        QPainterPath chevron;
        chevron.moveTo(x - tip, y - 5);
        chevron.lineTo(x + tip, y);
        chevron.lineTo(x - tip, y + 5);
        painter.setPen(QPen(line, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(chevron);
    }

    void enterEvent(QEnterEvent *) override { update(); }
    void leaveEvent(QEvent *) override { update(); }

    void mousePressEvent(QMouseEvent *event) override
    {
        if (event->button() != Qt::LeftButton)
            return;
        m_pressedAt = event->globalPosition().toPoint().x();
        m_lastX = m_pressedAt;
        m_dragged = false;
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (!event->buttons().testFlag(Qt::LeftButton))
            return;
        const int x = event->globalPosition().toPoint().x();
        m_dragged = m_dragged || std::abs(x - m_pressedAt) >= QApplication::startDragDistance();
        if (!m_dragged || !m_drawer.isOpen())
            return;
        m_drawer.dragHandle(m_lastX - x);
        m_lastX = x;
    }

    void mouseReleaseEvent(QMouseEvent *event) override
    {
        if (event->button() == Qt::LeftButton && !m_dragged)
            m_drawer.toggle();
    }

private:
    TableDrawer &m_drawer;
    int m_pressedAt = 0;
    int m_lastX = 0;
    bool m_dragged = false;
};

TableDrawer::TableDrawer(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QHBoxLayout(this))
    , m_handle(new Handle(this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    m_layout->setContentsMargins(0, 6, 0, 2);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_handle);
    setFixedWidth(handleWidth);
}

void TableDrawer::setContent(QWidget *content)
{
    m_content = content;
    m_layout->addWidget(content, 1);
    content->setVisible(m_isOpen);
}

void TableDrawer::open()
{
    if (m_isOpen)
        return;
    m_isOpen = true;
    m_contentWidth = std::min(m_contentWidth, std::max(widthLeftOnScreen(), narrowestContent));
    m_content->setVisible(true);
    setFixedWidth(handleWidth + m_contentWidth);
    m_takenWidth = widenWindow(m_contentWidth, m_contentWidth);
    Q_EMIT didOpen();
}

void TableDrawer::close()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    m_content->setVisible(false);
    setFixedWidth(handleWidth);
    widenWindow(-m_takenWidth, -m_contentWidth);
    Q_EMIT didClose();
}

void TableDrawer::toggle()
{
    if (m_isOpen)
        close();
    else
        open();
}

int TableDrawer::widthInWindow() const { return m_isOpen ? m_contentWidth : 0; }

void TableDrawer::setContentWidth(int width)
{
    const int bounded = std::min(std::max(width, narrowestContent), widestContent);
    if (m_isOpen) {
        m_takenWidth += widenWindow(bounded - m_contentWidth, bounded - m_contentWidth);
        setFixedWidth(handleWidth + bounded);
    }
    m_contentWidth = bounded;
}

// What a screen has left beside the narrowest window without the drawer.
int TableDrawer::widthLeftOnScreen() const
{
    const QScreen *screen = window()->screen();
    return screen->availableGeometry().width() - window()->minimumSizeHint().width();
}

// A maximised window keeps its size, and one at the screen's edge takes what is left; the picture
// then gives up the rest of the width. What the controls need, nobody gives up: the window rather
// moves.
int TableDrawer::widenWindow(int by, int smallestBy)
{
    QWidget *top = window();
    const bool keepsSize = top->isMaximized() || top->isFullScreen();
    const QRect available = top->screen()->availableGeometry();
    const int before = top->width();
    int width = keepsSize ? before : before + by;
    if (by > 0 && top->isVisible())
        width = std::max(before, std::min(width, available.right() + 1 - top->x()));
    // At once, since the old smallest width would hold up the closing.
    top->setMinimumWidth(std::max(0, top->minimumWidth() + smallestBy));
    if (keepsSize)
        return 0;
    top->resize(width, top->height());
    const int beyond = top->geometry().right() - available.right();
    if (by > 0 && top->isVisible() && beyond > 0)
        top->move(std::max(available.left(), top->x() - beyond), top->y());
    return top->width() - before;
}

void TableDrawer::dragHandle(int by)
{
    QWidget *top = window();
    const int widest =
        std::min(m_contentWidth + std::max(0, top->width() - top->minimumWidth()), widestContent);
    const int bounded = std::max(std::min(m_contentWidth + by, widest), narrowestContent);
    top->setMinimumWidth(std::max(0, top->minimumWidth() + bounded - m_contentWidth));
    m_contentWidth = bounded;
    setFixedWidth(handleWidth + bounded);
}
