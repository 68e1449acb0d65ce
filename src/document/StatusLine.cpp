#include "document/StatusLine.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QStylePainter>

namespace {

/// A line of text that ends in dots where there is no room for all of it.
class HintLabel final : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStylePainter painter(this);
        const QString shown =
            fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
        painter.drawItemText(contentsRect(),
                             static_cast<int>(QStyle::visualAlignment(
                                 layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter)),
                             palette(), isEnabled(), shown, foregroundRole());
    }
};

} // namespace

StatusLine::StatusLine(QWidget *parent)
    : QWidget(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(4, 0, 4, 0);
    row->setSpacing(14);
    m_hint = addLabel(new HintLabel(this), "statusHint", 1);
    m_hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_picturePosition = addLabel(new QLabel(this), "statusPicture", 0);
    m_graphPosition = addLabel(new QLabel(this), "statusGraph", 0);
    m_series = addLabel(new QLabel(this), "statusSeries", 0);
}

QLabel *StatusLine::addLabel(QLabel *label, const char *name, int stretch)
{
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
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
