#include "document/EmptyPictureHint.h"

#include "document/SymbolIcons.h"
#include "platform/Texts.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

EmptyPictureHint::EmptyPictureHint(QWidget *area)
    : QWidget(area)
{
    // The empty picture is white in every palette.
    QPalette onWhite = palette();
    onWhite.setColor(QPalette::WindowText, QColor(40, 40, 40));
    setPalette(onWhite);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(10);
    auto *symbol = new QLabel(this);
    symbol->setPixmap(symbolicons::icon(QStringLiteral("curvegrab"), palette()).pixmap(56, 56));
    auto *title = new QLabel(texts::localized("document.empty.title"), this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    title->setFont(large);
    auto *steps = new QLabel(texts::localized("document.empty.steps"), this);
    auto *open = new QPushButton(texts::localized("document.empty.open"), this);
    open->setObjectName(QStringLiteral("emptyOpenButton"));
    connect(open, &QPushButton::clicked, this, &EmptyPictureHint::openRequested);
    m_buttons = new QHBoxLayout;
    m_buttons->addStretch();
    m_buttons->addWidget(open);
    m_buttons->addStretch();
    column->addStretch(2);
    for (QLabel *part : {symbol, title, steps})
        column->addWidget(part, 0, Qt::AlignHCenter);
    column->addLayout(m_buttons);
    column->addStretch(3);
    area->installEventFilter(this);
    setGeometry(area->rect());
}

void EmptyPictureHint::offer(QMenu &examples)
{
    auto *button = new QPushButton(texts::localized("document.empty.example"), this);
    button->setObjectName(QStringLiteral("emptyExampleButton"));
    button->setToolTip(texts::localized("document.empty.example.tip"));
    connect(button, &QPushButton::clicked, &examples, [button, &examples] {
        examples.popup(button->mapToGlobal(button->rect().bottomLeft()));
    });
    m_buttons->insertWidget(m_buttons->count() - 1, button);
}

bool EmptyPictureHint::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == parent())
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}
