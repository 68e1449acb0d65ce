#include "document/TestDocument.h"

#include "capture/CursorGuide.h"
#include "capture/DataSeries.h"
#include "imageview/MouseDownMode.h"
#include "platform/WindowSheets.h"

#include <QButtonGroup>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <gtest/gtest.h>

// The mouse tools beside the picture, used by clicks and keys, and what the window says of them.

namespace {

constexpr double root = 1.4142135623730951;

void choose(QToolButton *tool) { QTest::mouseClick(tool, Qt::LeftButton); }

int checkedTool(const TestDocument &test) { return test.ui().mouseTools->checkedId(); }

QString hint(const TestDocument &test)
{
    return test.document->window().findChild<QLabel *>("statusHint")->text();
}

void activate(QWidget &window)
{
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// Puts the pointer on a view point and lets the view look at it.
void hover(TestDocument &test, int x, int y, Qt::KeyboardModifiers keys = Qt::NoModifier)
{
    GraphImageView &view = test.document->graphView();
    test.services.desktop->pointer = view.mapToGlobal(test.widgetPosition(x, y));
    test.services.desktop->heldModifiers = keys;
    view.mouseCheckRoutine();
}

} // namespace

TEST(ToolPalette, thePointerIsChosenFirst)
{
    const TestDocument test;
    EXPECT_EQ(checkedTool(test), 0);
    EXPECT_EQ(test.document->graphView().forcedMode(), std::nullopt);
}

TEST(ToolPalette, theChosenToolStandsOutOnlyWhereThereIsAPicture)
{
    const auto background = [](QToolButton *tool) {
        return tool->grab().toImage().pixelColor(3, tool->height() / 2);
    };
    const TestDocument test;
    EXPECT_NE(background(test.ui().pointerToolButton), background(test.ui().handToolButton));
    const TestDocument empty{QSize(0, 0)};
    EXPECT_EQ(background(empty.ui().pointerToolButton), background(empty.ui().handToolButton));
}

TEST(ToolPalette, eachToolForcesItsMode)
{
    const TestDocument test;
    const Ui::MyDocument &ui = test.ui();
    for (const auto &[tool, mode] : {std::pair(ui.handToolButton, HandMode),
                                     {ui.zoomInToolButton, ZoomInMode},
                                     {ui.zoomOutToolButton, ZoomOutMode},
                                     {ui.trimToolButton, TrimMode}}) {
        choose(tool);
        EXPECT_EQ(test.document->graphView().forcedMode(), mode);
        EXPECT_EQ(checkedTool(test), mode);
    }
    choose(ui.pointerToolButton);
    EXPECT_EQ(test.document->graphView().forcedMode(), std::nullopt);
}

TEST(ToolPalette, theZoomToolsZoomByClicks)
{
    TestDocument test;
    test.digitize();
    choose(test.ui().zoomInToolButton);
    test.click(100, 100);
    EXPECT_EQ(test.document->graphView().imageScale(), static_cast<float>(root));
    choose(test.ui().zoomOutToolButton);
    test.click(100, 100);
    EXPECT_NEAR(test.document->graphView().imageScale(), 1.0F, 1e-6F);
    EXPECT_EQ(test.document->dataSeries().currentIndex(), 0);
    choose(test.ui().pointerToolButton);
    test.click(100, 100);
    EXPECT_EQ(test.document->dataSeries().currentIndex(), 1);
}

TEST(ToolPalette, theTrimToolTrimsAfterTheAnswer)
{
    TestDocument test;
    choose(test.ui().trimToolButton);
    test.drag({100, 80}, {300, 200});
    ASSERT_EQ(test.services.sheets->presented().size(), 1U);
    test.services.sheets->answerFirst(SheetAnswer::Default);
    EXPECT_EQ(test.document->imageSize(), (FloatSize{200, 120}));
    EXPECT_FALSE(test.document->undoManager().canUndo());
}

TEST(ToolPalette, trimmingDropsTheUndoOfAxesAndPoints)
{
    TestDocument test;
    test.command("resetPosition");
    test.drag({250, 200}, {260, 210});
    EXPECT_TRUE(test.document->undoManager().canUndo());
    choose(test.ui().trimToolButton);
    test.drag({100, 80}, {300, 200});
    test.services.sheets->answerFirst(SheetAnswer::Default);
    EXPECT_FALSE(test.document->undoManager().canUndo());
    EXPECT_FALSE(test.document->undoManager().canRedo());
}

TEST(ToolPalette, trimmingIsForTheAxisPageOnly)
{
    TestDocument test;
    choose(test.ui().trimToolButton);
    test.digitize();
    EXPECT_FALSE(test.ui().trimToolButton->isEnabled());
    EXPECT_EQ(checkedTool(test), 0);
    EXPECT_FALSE(test.action("chooseTrimTool")->isEnabled());
    test.click(100, 100);
    EXPECT_EQ(test.document->dataSeries().currentIndex(), 1);
    test.setAxes();
    EXPECT_TRUE(test.ui().trimToolButton->isEnabled());
    EXPECT_EQ(checkedTool(test), 0);
}

TEST(ToolPalette, theOtherToolsStayOnBothPages)
{
    TestDocument test;
    choose(test.ui().handToolButton);
    test.digitize();
    EXPECT_EQ(checkedTool(test), HandMode);
    test.setAxes();
    EXPECT_EQ(checkedTool(test), HandMode);
}

TEST(ToolPalette, thereAreNoToolsWithoutAPicture)
{
    const TestDocument test{QSize(0, 0)};
    for (const QAbstractButton *tool : test.ui().mouseTools->buttons())
        EXPECT_FALSE(tool->isEnabled()) << tool->objectName().toStdString();
}

TEST(ToolPalette, theKeysChooseTools)
{
    TestDocument test;
    activate(test.document->window());
    QTest::keyClick(&test.document->window(), Qt::Key_3, Qt::AltModifier);
    EXPECT_EQ(checkedTool(test), ZoomInMode);
    EXPECT_TRUE(test.action("chooseZoomInTool")->isChecked());
    EXPECT_FALSE(test.action("choosePointerTool")->isChecked());
    QTest::keyClick(&test.document->window(), Qt::Key_5, Qt::AltModifier);
    EXPECT_EQ(checkedTool(test), TrimMode);
    EXPECT_TRUE(test.action("chooseTrimTool")->isChecked());
    QTest::keyClick(&test.document->window(), Qt::Key_1, Qt::AltModifier);
    EXPECT_EQ(checkedTool(test), 0);
    EXPECT_TRUE(test.action("choosePointerTool")->isChecked());
}

TEST(ToolPalette, theArrowKeysGoFromToolToTool)
{
    TestDocument test;
    activate(test.document->window());
    test.ui().pointerToolButton->setFocus();
    QTest::keyClick(test.ui().pointerToolButton, Qt::Key_Right);
    EXPECT_EQ(test.document->graphView().forcedMode(), HandMode);
}

TEST(ToolPalette, noTwoCommandsHaveTheSameKeys)
{
    const TestDocument test;
    QList<QKeySequence> seen;
    for (const QAction *action : test.document->window().findChildren<QAction *>()) {
        for (const QKeySequence &keys : action->shortcuts()) {
            EXPECT_FALSE(seen.contains(keys)) << keys.toString().toStdString();
            seen << keys;
        }
    }
}

TEST(ToolPalette, eachToolHasANameAndTellsItsKeys)
{
    const TestDocument test;
    for (const QAbstractButton *tool : test.ui().mouseTools->buttons()) {
        EXPECT_FALSE(tool->accessibleName().isEmpty());
        EXPECT_TRUE(tool->toolTip().contains("Alt+")) << tool->toolTip().toStdString();
        EXPECT_FALSE(tool->icon().isNull());
    }
}

TEST(ToolPalette, heldKeysOverrideTheTool)
{
    TestDocument test;
    choose(test.ui().zoomInToolButton);
    hover(test, 100, 100, Qt::ControlModifier);
    EXPECT_EQ(test.document->graphView().mouseDownMode(), HandMode);
    hover(test, 100, 100);
    EXPECT_EQ(test.document->graphView().mouseDownMode(), ZoomInMode);
}

TEST(ToolPalette, theStatusLineSaysWhatEachModeDoes)
{
    TestDocument test;
    const auto command = Qt::ControlModifier;
    hover(test, 100, 100, command);
    EXPECT_EQ(hint(test), qtTrId("document.status.hand"));
    hover(test, 100, 100, command | Qt::AltModifier);
    EXPECT_EQ(hint(test), qtTrId("document.status.zoomIn"));
    hover(test, 100, 100, command | Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(hint(test), qtTrId("document.status.zoomOut"));
    hover(test, 100, 100, command | Qt::MetaModifier);
    EXPECT_EQ(hint(test), qtTrId("document.status.trim"));
    hover(test, 100, 100, command | Qt::MetaModifier | Qt::ShiftModifier);
    EXPECT_EQ(hint(test), qtTrId("document.status.measure"));
    hover(test, 100, 100);
    EXPECT_NE(hint(test), qtTrId("document.status.measure"));
}

TEST(ToolPalette, theStatusLineSaysWhatTheToolDoesWhereverThePointerIs)
{
    TestDocument test;
    hover(test, -50, 100);
    choose(test.ui().zoomOutToolButton);
    EXPECT_EQ(hint(test), qtTrId("document.status.zoomOut"));
    choose(test.ui().trimToolButton);
    EXPECT_EQ(hint(test), qtTrId("document.status.trim"));
    choose(test.ui().pointerToolButton);
    EXPECT_EQ(hint(test), qtTrId("document.status.dragAxes"));
}

// The hover timer and the window

TEST(HoverTimer, restsWhileASheetIsOpen)
{
    TestDocument test;
    DocumentWindow &window = test.document->window();
    activate(window);
    const QTimer &timer = test.document->graphView().mouseCheckTimer();
    EXPECT_TRUE(timer.isActive());
    WindowSheets sheets(&window);
    sheets.present({QStringLiteral("Message"), QStringLiteral("Text"), QStringLiteral("OK"), {}},
                   {});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !timer.isActive(); }));
    window.findChild<QMessageBox *>()->defaultButton()->click();
    activate(window); // as a window manager does
    EXPECT_TRUE(timer.isActive());
}

TEST(HoverTimer, restsWhileAnotherWindowIsKey)
{
    TestDocument test;
    DocumentWindow &window = test.document->window();
    activate(window);
    const QTimer &timer = test.document->graphView().mouseCheckTimer();
    const int id = timer.timerId();
    test.document->windowDidBecomeKey();
    EXPECT_EQ(timer.timerId(), id); // the running timer is left alone
    QWidget other;
    other.show();
    activate(other);
    EXPECT_FALSE(timer.isActive());
    activate(window);
    EXPECT_TRUE(timer.isActive());
}
