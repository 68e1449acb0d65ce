#include "document/StatusLine.h"

#include <QHBoxLayout>
#include <QLabel>

StatusLine::StatusLine(QWidget *parent)
    : QWidget(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(4, 0, 4, 0);
    row->setSpacing(14);
    m_hint = addLabel("statusHint", 1);
    m_picturePosition = addLabel("statusPicture", 0);
    m_graphPosition = addLabel("statusGraph", 0);
    m_series = addLabel("statusSeries", 0);
}

QLabel *StatusLine::addLabel(const char *name, int stretch)
{
    auto *label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    if (stretch > 0)
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    static_cast<QHBoxLayout *>(layout())->addWidget(label, stretch);
    return label;
}

void StatusLine::setHint(const QString &text)
{
    m_hint->setText(text);
    m_hint->setToolTip(text);
}

void StatusLine::setPicturePosition(const QString &text) { m_picturePosition->setText(text); }

void StatusLine::setGraphPosition(const QString &text) { m_graphPosition->setText(text); }

void StatusLine::setSeries(const QString &text) { m_series->setText(text); }
