#pragma once

#include <QSlider>

/// A vertical slider of pages that holds the negated page number, so that page 1 is at the top.
/// With few pages its knob stays on their tick marks, with many it moves freely between them.
class PageSlider : public QSlider
{
    Q_OBJECT

public:
    explicit PageSlider(QWidget *parent = nullptr);

    /// At least one page. One tick mark for each page, but never more than 20.
    void setNumberOfPages(int count);
    void setPage(int page);

    [[nodiscard]] int numberOfTickMarks() const { return m_numberOfTickMarks; }
    [[nodiscard]] bool allowsTickMarkValuesOnly() const { return m_onTickMarksOnly; }
    [[nodiscard]] double doubleValue() const;
    /// Minus the page; a fraction is dropped.
    [[nodiscard]] int integerValue() const { return static_cast<int>(doubleValue()); }

Q_SIGNALS:
    /// The user has moved the knob.
    void moved();

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    void takePosition();

    int m_numberOfTickMarks = 0;
    bool m_onTickMarksOnly = true;
};
