#include "document/TestDocument.h"

#include <QAbstractButton>
#include <QApplication>

#include <gtest/gtest.h>

#include <algorithm>

// The way of the Tab key through a document's window.

namespace {

/// An arrow key goes from the chosen one of several buttons to the others.
bool isReachedByArrows(const QWidget &widget)
{
    const auto *const button = qobject_cast<const QAbstractButton *>(&widget);
    return button != nullptr && !button->isChecked() &&
           (button->autoExclusive() || button->group() != nullptr);
}

class DocumentTabOrder : public ::testing::Test
{
protected:
    DocumentTabOrder()
    {
        window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    }

    [[nodiscard]] QWidget &window() const { return test.document->window(); }

    /// What Tab comes to, from the picture once around.
    [[nodiscard]] QList<QWidget *> round(Qt::Key tab) const
    {
        QList<QWidget *> visited;
        QWidget *at = &test.document->graphView();
        at->setFocus(Qt::OtherFocusReason);
        while (at != nullptr && !visited.contains(at)) {
            visited.append(at);
            QTest::keyClick(at, tab);
            at = QApplication::focusWidget();
        }
        return visited;
    }

    /// The controls that the user sees and can use.
    [[nodiscard]] QList<QWidget *> controls() const
    {
        QList<QWidget *> all;
        for (QWidget *widget : window().findChildren<QWidget *>()) {
            if (widget->isVisible() && widget->isEnabled() && widget->focusProxy() == nullptr &&
                (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus)
                all.append(widget);
        }
        return all;
    }

    void expectThatTabComesToEverything() const
    {
        for (const Qt::Key tab : {Qt::Key_Tab, Qt::Key_Backtab}) {
            const QList<QWidget *> visited = round(tab);
            for (QWidget *control : controls()) {
                EXPECT_TRUE(visited.contains(control) || isReachedByArrows(*control))
                    << control->objectName().toStdString() << " by key " << tab;
            }
        }
    }

    void expectOrder(const QList<QWidget *> &widgets) const
    {
        const QList<QWidget *> visited = round(Qt::Key_Tab);
        QList<qsizetype> places;
        for (QWidget *widget : widgets)
            places.append(visited.indexOf(widget));
        EXPECT_GE(places.first(), 0);
        EXPECT_TRUE(std::is_sorted(places.begin(), places.end()));
    }

    TestDocument test;
};

} // namespace

TEST_F(DocumentTabOrder, parallelAxes)
{
    expectThatTabComesToEverything();
    const Ui::MyDocument &ui = test.ui();
    expectOrder({ui.axisTypePopup, ui.resetDefault, ui.resetWhole, ui.minXTextField,
                 ui.maxXTextField, ui.logXCheck, ui.minYTextField, ui.maxYTextField, ui.logYCheck});
}

TEST_F(DocumentTabOrder, quadrangleAxes)
{
    test.command("chooseQuadrangleAxes");
    expectThatTabComesToEverything();
}

TEST_F(DocumentTabOrder, polarAxes)
{
    test.command("choosePolarAxes");
    expectThatTabComesToEverything();
    const Ui::MyDocument &ui = test.ui();
    expectOrder({ui.axisTypePopup, ui.thetaRangePopup, ui.minYTextField, ui.maxYTextField});
}

TEST_F(DocumentTabOrder, digitizing)
{
    test.digitize();
    expectThatTabComesToEverything();
    const Ui::MyDocument &ui = test.ui();
    expectOrder({ui.seriesPopup, ui.markerDrawPopup, ui.sortCheck, ui.autoXModePopUp,
                 ui.currentXTextField, ui.lockXCheck, ui.currentYTextField, ui.lockYCheck});
}

TEST_F(DocumentTabOrder, theTableIsPartOfItWhileItIsShown)
{
    test.document->showHideDataTable();
    expectThatTabComesToEverything();
}
