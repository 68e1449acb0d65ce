#include "document/UndoStepsMenu.h"

#include "capture/DataSeries.h"
#include "document/TestDocument.h"
#include "platform/Texts.h"

#include <QMenuBar>

#include <gtest/gtest.h>

namespace {

/// A document with three points, and its Edit menu.
class UndoStepsMenuTest : public testing::Test
{
protected:
    UndoStepsMenuTest()
    {
        test.digitize();
        test.click(250, 200);
        test.click(260, 210);
        test.click(270, 220);
    }

    [[nodiscard]] QMenu &submenu(const char *name) const
    {
        return *test.document->window().menuBar()->findChild<QMenu *>(QLatin1String(name));
    }

    /// Pulls the Edit menu down, and the submenu out of it.
    QMenu &pullDown(const char *name)
    {
        QMenu &menu = submenu(name);
        Q_EMIT qobject_cast<QMenu *>(menu.parentWidget())->aboutToShow();
        menu.popup(QPoint(0, 0));
        return menu;
    }

    [[nodiscard]] static QStringList texts(const QMenu &menu)
    {
        QStringList list;
        for (const QAction *action : menu.actions())
            list += action->text();
        return list;
    }

    [[nodiscard]] std::size_t points() const
    {
        return test.document->dataSeries().points(0).size();
    }

    TestDocument test;
};

} // namespace

TEST_F(UndoStepsMenuTest, everyStepIsListedByItsNameWithADigitAsMnemonic)
{
    const QString point = qtTrId("actionDataAppend");
    EXPECT_EQ(texts(pullDown("undoStepsMenu")),
              QStringList({"&1. " + point, "&2. " + point, "&3. " + point}));
}

TEST_F(UndoStepsMenuTest, theLastStepIsListedFirst)
{
    test.document->dataTableView().selectAll();
    test.command("delete");
    EXPECT_EQ(pullDown("undoStepsMenu").actions().first()->text(),
              "&1. " + qtTrId("actionDataDelete"));
}

TEST_F(UndoStepsMenuTest, choosingAStepTakesBackEverythingDownToIt)
{
    QTest::keyClick(&pullDown("undoStepsMenu"), Qt::Key_2);
    EXPECT_EQ(points(), 1U);
}

TEST_F(UndoStepsMenuTest, whatWasTakenBackIsListedUnderRedo)
{
    QTest::keyClick(&pullDown("undoStepsMenu"), Qt::Key_2);
    EXPECT_EQ(pullDown("redoStepsMenu").actions().size(), 2);
}

TEST_F(UndoStepsMenuTest, choosingAStepOfRedoBringsBackEverythingDownToIt)
{
    QTest::keyClick(&pullDown("undoStepsMenu"), Qt::Key_3);
    QTest::keyClick(&pullDown("redoStepsMenu"), Qt::Key_2);
    EXPECT_EQ(points(), 2U);
}

TEST_F(UndoStepsMenuTest, nothingToRedoLeavesTheSubmenuDisabled)
{
    pullDown("redoStepsMenu");
    EXPECT_FALSE(submenu("redoStepsMenu").menuAction()->isEnabled());
}

TEST_F(UndoStepsMenuTest, somethingToUndoEnablesTheSubmenu)
{
    pullDown("undoStepsMenu");
    EXPECT_TRUE(submenu("undoStepsMenu").menuAction()->isEnabled());
}

TEST_F(UndoStepsMenuTest, theListIsShortEnoughToBeRead)
{
    for (int i = 0; i < 30; ++i)
        test.click(280 + i, 200);
    EXPECT_EQ(pullDown("undoStepsMenu").actions().size(), 25);
}
