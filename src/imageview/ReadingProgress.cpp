#include "imageview/ReadingProgress.h"

#include "platform/Texts.h"

#include <QEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

ReadingProgress::ReadingProgress(QWidget &host)
    : QFrame(&host)
    , m_label(new QLabel(this))
    , m_bar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("readingProgress"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    auto *button = new QPushButton(texts::localized("Cancel"), this);
    button->setObjectName(QStringLiteral("cancelReadingButton"));
    button->setToolTip(texts::localized("imageview.reading.cancel-tip"));
    m_label->setBuddy(button);
    m_bar->setRange(0, 100);
    m_bar->setAccessibleName(texts::localized("imageview.reading.progress-name"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_label);
    layout->addWidget(m_bar);
    layout->addWidget(button, 0, Qt::AlignRight);
    connect(button, &QPushButton::clicked, this, &ReadingProgress::cancelled);
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
}

void ReadingProgress::setPercent(int percent) { m_bar->setValue(percent); }

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
