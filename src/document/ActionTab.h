#pragma once

#include <QFrame>
#include <QToolButton>

class QStackedWidget;

/// The tab view that selects what clicks do: two buttons, one above the other, beside the page
/// of controls that belongs to the chosen one.
class ActionTab : public QFrame
{
    Q_OBJECT

public:
    static constexpr int axisSetting = 0;
    static constexpr int digitizing = 1;

    explicit ActionTab(QWidget *parent = nullptr);

    /// Takes the buttons and pages that the interface file made; the pages stand in the order of
    /// the buttons' indexes.
    void setTabs(QToolButton *axisButton, QToolButton *digitizingButton, QStackedWidget *pages);

    [[nodiscard]] int indexOfSelectedTab() const;

    /// Selects a tab, by program or by the user. Selecting the selected one does nothing.
    void selectTab(int index);

Q_SIGNALS:
    /// `tabView:didSelectTabViewItem:`: another tab was selected.
    void didSelectTab(int index);

private:
    QToolButton *m_buttons[2] = {nullptr, nullptr};
    QStackedWidget *m_pages = nullptr;
};
