#pragma once

#include <QImage>
#include <QPoint>
#include <QWidget>

/// The preview in the page panel. The wheel turns its pages, a double click chooses the one shown.
class ChoosePdfView : public QWidget
{
    Q_OBJECT

public:
    explicit ChoosePdfView(QWidget *parent = nullptr);

    /// Shows nothing.
    void clear();
    /// Shows a page at its own size, or smaller where it does not fit. A null image: a note that
    /// the page cannot be shown.
    void showPage(const QImage &page);
    /// Shows that the page is still being painted.
    void showRendering();

    [[nodiscard]] const QImage &page() const { return m_page; }
    /// What is shown in place of a page, if anything.
    [[nodiscard]] const QString &note() const { return m_note; }

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The wheel was turned: pages to go on, or back if negative.
    void pagesScrolled(int step);
    void pageChosen();

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void countClick(const QMouseEvent &event);
    void setNote(const QString &note);

    QImage m_page;
    QString m_note;
    int m_clickCount = 0;
    quint64 m_lastClick = 0; ///< milliseconds
    QPoint m_lastPlace;      ///< of that click, in points
};
