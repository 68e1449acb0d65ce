#pragma once

#include <QWidget>

class PrefsMarkers;
class QButtonGroup;

/// A row of four buttons, one for each shape of marker; at most one of them is chosen.
class MarkerShapeControl : public QWidget
{
    Q_OBJECT

public:
    explicit MarkerShapeControl(QWidget *parent = nullptr);

    /// Draws the shapes on the buttons; `markers` outlives the control.
    void setMarkers(const PrefsMarkers &markers);

    [[nodiscard]] int selectedSegment() const { return m_selectedSegment; }
    /// A number that has no button is kept and leaves all buttons unchosen.
    void setSelectedSegment(int segment);

protected:
    void changeEvent(QEvent *event) override;

private:
    void drawShapes();

    QButtonGroup *m_segments = nullptr;
    const PrefsMarkers *m_markers = nullptr;
    int m_selectedSegment = 0;
};
