#pragma once

#include <QWidget>

class QLabel;

/// The line at the foot of a document's window: what a click will do, where the pointer is in the
/// picture and in the graph, and which series and point come next.
class StatusLine : public QWidget
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget *parent = nullptr);

    void setHint(const QString &text);
    void setPicturePosition(const QString &text);
    void setGraphPosition(const QString &text);
    void setSeries(const QString &text);

private:
    QLabel *addLabel(QLabel *label, const char *name, int stretch);

    QLabel *m_hint;
    QLabel *m_picturePosition;
    QLabel *m_graphPosition;
    QLabel *m_series;
};
