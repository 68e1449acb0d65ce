#include "imageview/ReadingProgress.h"

#include "platform/Texts.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

ReadingProgress::ReadingProgress(QWidget &host)
    : QFrame(&host)
    , m_label(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_cancelButton(new QPushButton(texts::localized("Cancel"), this))
{
    setObjectName(QStringLiteral("readingProgress"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    m_cancelButton->setObjectName(QStringLiteral("cancelReadingButton"));
    m_cancelButton->setToolTip(texts::localized("imageview.reading.cancel-tip"));
    m_label->setBuddy(m_cancelButton);
    m_bar->setRange(0, 100);
    m_bar->setAccessibleName(texts::localized("imageview.reading.progress-name"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_label);
    layout->addWidget(m_bar);
    layout->addWidget(m_cancelButton, 0, Qt::AlignRight);
    connect(m_cancelButton, &QPushButton::clicked, this, &ReadingProgress::cancelled);
    host.installEventFilter(this);
    hide();
}

void ReadingProgress::showFor(const QString &fileName)
{
    m_label->setText(
        texts::localized("imageview.reading.label").replace(QStringLiteral("%1"), fileName));
    m_bar->setRange(0, 100);
    setPercent(0);
    appear();
}

void ReadingProgress::showBusyFor(const QString &fileName)
{
    showFor(fileName);
    m_bar->setRange(0, 0);
}

void ReadingProgress::appear()
{
    adjustSize();
    moveToMiddle();
    show();
    raise();
    takeFocusIfNobodyHasIt();
}

// Where the window can be used meanwhile, its user goes on typing.
void ReadingProgress::takeFocusIfNobodyHasIt()
{
    const QWidget *has = window()->focusWidget();
    if (has == nullptr || !has->isEnabled() || !has->isVisible())
        m_cancelButton->setFocus();
}

void ReadingProgress::setPercent(int percent) { m_bar->setValue(percent); }

void ReadingProgress::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        Q_EMIT cancelled();
    else
        QFrame::keyPressEvent(event);
}

void ReadingProgress::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    Q_EMIT visibilityChanged(true);
}

void ReadingProgress::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    Q_EMIT visibilityChanged(false);
}

bool ReadingProgress::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        moveToMiddle();
    return QFrame::eventFilter(watched, event);
}

void ReadingProgress::moveToMiddle()
{
    const QSize free = parentWidget()->size() - size();
    move(free.width() / 2, free.height() / 2);
}
