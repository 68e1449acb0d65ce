#include "document/ActionTab.h"

#include <QStackedWidget>

ActionTab::ActionTab(QWidget *parent)
    : QFrame(parent)
{}

void ActionTab::setTabs(QToolButton *axisButton, QToolButton *digitizingButton,
                        QStackedWidget *pages)
{
    m_buttons[axisSetting] = axisButton;
    m_buttons[digitizing] = digitizingButton;
    m_pages = pages;
    m_pages->setCurrentIndex(axisSetting);
    axisButton->setChecked(true);
    connect(axisButton, &QToolButton::clicked, this, [this] { selectTab(axisSetting); });
    connect(digitizingButton, &QToolButton::clicked, this, [this] { selectTab(digitizing); });
}

int ActionTab::indexOfSelectedTab() const { return m_pages->currentIndex(); }

void ActionTab::selectTab(int index)
{
    if (index == m_pages->currentIndex() || index < axisSetting || index > digitizing)
        return;
    m_pages->setCurrentIndex(index);
    m_buttons[index]->setChecked(true);
    Q_EMIT didSelectTab(index);
}
