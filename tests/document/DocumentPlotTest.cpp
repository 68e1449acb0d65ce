#include "capture/DataSeries.h"
#include "document/TestDocument.h"
#include "plot/PlotFigure.h"
#include "plot/PlotView.h"
#include "plot/PlotWindow.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>

#include <gtest/gtest.h>

namespace {

/// A document whose services have the module that draws plots.
class DocumentPlotTest : public ::testing::Test
{
protected:
    DocumentPlotTest()
    {
        m_test.services.plots.module = PlotModule(QStringLiteral(CURVEGRAB_PLOT_MODULE_FOLDER));
    }

    static PlotWindow *plot()
    {
        for (QWidget *window : QApplication::topLevelWidgets())
            if (auto *found = qobject_cast<PlotWindow *>(window))
                return found;
        return nullptr;
    }

    static QString note()
    {
        return plot()->findChild<QLabel *>(QStringLiteral("plotNote"))->text();
    }

    static bool isShown() { return plot() != nullptr && plot()->isVisible(); }
    static QImage picture() { return plot()->view()->grab().toImage(); }

    void press(Qt::Key key)
    {
        QWidget &window = m_test.document->window();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&m_test.document->graphView(), key,
                        Qt::ControlModifier | Qt::ShiftModifier);
        m_test.endEvent();
    }

    /// Whether the plot changes soon.
    static bool changesFrom(const QImage &before)
    {
        return QTest::qWaitFor([&before] { return picture() != before; }, 2000);
    }

    /// The plot when nothing waits to be shown any more: for longer than it gathers changes.
    static QImage settledPicture()
    {
        constexpr int longEnough = 250;
        QImage last = picture();
        QElapsedTimer unchanged;
        unchanged.start();
        EXPECT_TRUE(QTest::qWaitFor([&] {
            const QImage now = picture();
            if (now != last)
                unchanged.restart();
            last = now;
            return unchanged.elapsed() > longEnough;
        }));
        return last;
    }

    TestDocument m_test;
};

} // namespace

TEST_F(DocumentPlotTest, opensByItsKeys)
{
    EXPECT_EQ(plot(), nullptr);
    press(Qt::Key_G);
    EXPECT_TRUE(isShown());
    EXPECT_FALSE(note().isEmpty());
}

TEST_F(DocumentPlotTest, followsPointsAndUndo)
{
    m_test.command("showResult");
    const QImage empty = picture();
    m_test.digitize();
    m_test.click(120, 100);
    EXPECT_TRUE(changesFrom(empty));
    EXPECT_TRUE(QTest::qWaitFor([] { return note().isEmpty(); }));
    m_test.command("undo");
    EXPECT_TRUE(QTest::qWaitFor([] { return !note().isEmpty(); }));
}

TEST_F(DocumentPlotTest, followsTheAxes)
{
    m_test.command("showResult");
    const QImage parallel = settledPicture();
    m_test.command("choosePolarAxes");
    EXPECT_TRUE(changesFrom(parallel));
}

TEST_F(DocumentPlotTest, followsTypedAxisValues)
{
    m_test.command("showResult");
    const QImage before = settledPicture();
    m_test.ui().maxXTextField->selectAll();
    QTest::keyClicks(m_test.ui().maxXTextField, QStringLiteral("7"));
    QTest::keyClick(m_test.ui().maxXTextField, Qt::Key_Return);
    EXPECT_TRUE(changesFrom(before));
}

TEST_F(DocumentPlotTest, followsLogarithmicAxes)
{
    m_test.command("showResult");
    const QImage before = settledPicture();
    m_test.ui().logXCheck->click();
    EXPECT_TRUE(changesFrom(before));
}

TEST_F(DocumentPlotTest, followsTheRangeAndTheSenseOfAngles)
{
    m_test.command("choosePolarAxes");
    m_test.command("showResult");
    const QImage before = settledPicture();
    QTest::keyClick(m_test.ui().thetaRangePopup, Qt::Key_Down);
    ASSERT_TRUE(changesFrom(before));
    const QImage withOtherRange = settledPicture();
    m_test.ui().rotDirRadio->button(1)->click();
    EXPECT_TRUE(changesFrom(withOtherRange));
}

TEST_F(DocumentPlotTest, followsTheMarkersOfASeries)
{
    m_test.digitize();
    m_test.click(120, 100);
    m_test.command("showResult");
    const QImage before = settledPicture();
    QTest::keyClick(m_test.ui().markerDrawPopup, Qt::Key_Down);
    EXPECT_TRUE(changesFrom(before));
}

TEST_F(DocumentPlotTest, followsSorting)
{
    m_test.digitize();
    m_test.ui().sortCheck->setChecked(false);
    m_test.document->dataSeries().setDrawLines();
    m_test.click(120, 100);
    m_test.click(300, 300);
    m_test.click(200, 100);
    m_test.command("showResult");
    const QImage before = settledPicture();
    m_test.ui().sortCheck->click();
    EXPECT_TRUE(changesFrom(before));
}

TEST_F(DocumentPlotTest, followsTheStyleOfASeries)
{
    m_test.digitize();
    m_test.click(120, 100);
    m_test.command("showResult");
    const QImage before = settledPicture();
    CurvegrabPrefs &prefs = m_test.services.prefs();
    PrefsDictionary style = prefs.plotPrefsForSeries(0);
    prefs.setShape(3, style);
    prefs.setPlotPrefs(style, 0);
    m_test.document->prefsChanged();
    EXPECT_TRUE(changesFrom(before));
}

TEST_F(DocumentPlotTest, catchesUpWhenItIsShownAgain)
{
    m_test.command("showResult");
    plot()->close();
    m_test.digitize();
    m_test.click(120, 100);
    m_test.command("showResult");
    EXPECT_TRUE(isShown());
    EXPECT_TRUE(note().isEmpty());
}

TEST_F(DocumentPlotTest, opensItsPageOfTheHelpByF1)
{
    m_test.command("showResult");
    plot()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(plot()));
    QTest::keyClick(plot(), Qt::Key_F1);
    EXPECT_EQ(m_test.services.help.opened, QStringList({QStringLiteral("Curvegrab X Help#plot")}));
}

TEST_F(DocumentPlotTest, goesWithTheDocument)
{
    m_test.command("showResult");
    ASSERT_TRUE(isShown());
    m_test.markSaved();
    m_test.document->window().close();
    EXPECT_EQ(plot(), nullptr);
}

TEST_F(DocumentPlotTest, changesNothingInTheDocument)
{
    m_test.markSaved();
    const QByteArray before = *m_test.document->dataOfType({});
    m_test.command("showResult");
    EXPECT_FALSE(m_test.document->isDocumentEdited());
    EXPECT_TRUE(*m_test.document->dataOfType({}) == before);
}
