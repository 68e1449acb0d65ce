#include "document/TestDocument.h"

#include "axes/CurrentAxes.h"
#include "capture/CursorGuide.h"
#include "capture/DataSeries.h"
#include "capture/DataTableView.h"

#include <QFile>

#include <gtest/gtest.h>

TEST(DocumentCommands, axisCommandsDoNothingWhileDigitizing)
{
    TestDocument test;
    test.digitize();
    const FloatPoint before = test.document->currentAxes().anchor1Point();
    test.document->perform(menurules::WholePosition, [&test] { test.document->wholePosition(); });
    EXPECT_EQ(test.document->currentAxes().anchor1Point(), before);
}

TEST(DocumentCommands, seriesCommandsDoNothingWhileSettingAxes)
{
    TestDocument test;
    test.document->moveToNextSeries();
    EXPECT_EQ(test.document->dataSeries().currentSeries(), 0);
    test.digitize();
    test.document->moveToNextSeries();
    test.setAxes();
    test.document->moveToPrevSeries();
    EXPECT_EQ(test.document->dataSeries().currentSeries(), 1);
}

TEST(DocumentCommands, lockCommandsDoNothingWhileSettingAxes)
{
    TestDocument test;
    test.document->lockUnlockX();
    test.document->lockUnlockY();
    EXPECT_FALSE(test.document->cursorGuide().lockX());
    EXPECT_FALSE(test.document->cursorGuide().lockY());
}

TEST(DocumentCommands, lockCommandsLockWhileDigitizing)
{
    TestDocument test;
    test.digitize();
    test.document->lockUnlockY();
    EXPECT_TRUE(test.document->cursorGuide().lockY());
    EXPECT_EQ(test.services.lockUnlockY.text(), qtTrId("UnlockYValue"));
}

TEST(DocumentCommands, aCommandDuringADragWaitsForItsEnd)
{
    TestDocument test;
    QWidget *view = &test.document->graphView();
    QTest::mousePress(view, Qt::LeftButton, Qt::NoModifier, test.widgetPosition(100, 80));
    QTest::mouseMove(view, test.widgetPosition(110, 90));
    test.action("imageRotateCw")->trigger();
    EXPECT_EQ(test.document->graphView().imageRotation(), 0.0F);
    QTest::mouseRelease(view, Qt::LeftButton, Qt::NoModifier, test.widgetPosition(110, 90));
    EXPECT_EQ(test.document->graphView().imageRotation(), 270.0F);
}

TEST(DocumentCommands, leavingAxisSettingMakesTheConverter)
{
    TestDocument test;
    EXPECT_EQ(test.document->cursorGuide().converter(), nullptr);
    test.digitize();
    EXPECT_NE(test.document->cursorGuide().converter(), nullptr);
}

TEST(DocumentCommands, axesThatMakeNoConverterAreToldAndThePageStays)
{
    TestDocument test;
    // All anchors in one place: both axes have no length.
    test.document->currentAxes().setAnchors({{50, 50}, {50, 50}, {50, 50}, {50, 50}});
    test.digitize();
    ASSERT_EQ(test.services.sheets->presented().size(), 1U);
    EXPECT_EQ(test.services.sheets->presented().at(0).informativeText, qtTrId("CantMakeConverter"));
    EXPECT_FALSE(test.document->isInAxisSettingMode());
    EXPECT_EQ(test.document->cursorGuide().converter(), nullptr);
}

TEST(DocumentCommands, aClickAddsThePointUnderThePointer)
{
    TestDocument test;
    test.command("wholePosition");
    test.digitize();
    test.click(125, 300);
    const auto &points = test.document->dataSeries().points(0);
    ASSERT_EQ(points.size(), 1U);
    EXPECT_NEAR(points.at(0).X(), 125, 0.001);
    EXPECT_NEAR(points.at(0).Y(), 300, 0.001);
}

TEST(DocumentCommands, theSecondPressOfADoubleClickAddsAPointToo)
{
    TestDocument test;
    test.digitize();
    QTest::mouseClick(&test.document->graphView(), Qt::LeftButton, Qt::NoModifier, {50, 50});
    QTest::mouseDClick(&test.document->graphView(), Qt::LeftButton, Qt::NoModifier, {50, 50});
    EXPECT_GE(test.document->dataSeries().points(0).size(), 2U);
}

TEST(DocumentCommands, aBadValueThenTheOtherTabComesBackToTheField)
{
    TestDocument test;
    Ui::MyDocument &ui = test.ui();
    QTest::keyClick(ui.logXCheck, Qt::Key_Space);
    test.services.sheets->answerAll();
    test.services.sheets->forget();
    ui.minXTextField->setFocus();
    ui.minXTextField->selectAll();
    QTest::keyClicks(ui.minXTextField, QStringLiteral("-5"));
    QTest::keyClick(ui.minXTextField, Qt::Key_Return);
    test.digitize();
    ASSERT_FALSE(test.services.sheets->presented().empty());
    EXPECT_EQ(test.services.sheets->presented().at(0).informativeText, qtTrId("InvalidLog"));
    test.services.sheets->answerAll();
    EXPECT_TRUE(test.document->isInAxisSettingMode());
    EXPECT_EQ(test.document->window().focusWidget(), ui.minXTextField);
}

TEST(DocumentCommands, copyPutsTheSelectedSeriesOnTheClipboard)
{
    TestDocument test;
    test.command("wholePosition");
    test.digitize();
    test.click(100, 50);
    test.document->dataTableView().selectAll();
    test.command("copy");
    EXPECT_EQ(test.services.fakeClipboard.text(),
              QStringLiteral("Series_01_x\tSeries_01_y\n100\t50\n"));
}

TEST(DocumentCommands, copyIsDisabledWithTheTableHidden)
{
    TestDocument test;
    test.digitize();
    test.click(100, 50);
    test.document->dataTableView().selectAll();
    test.document->showHideDataTable();
    EXPECT_FALSE(test.action("copy")->isEnabled());
    EXPECT_FALSE(test.action("delete")->isEnabled());
    EXPECT_FALSE(test.action("saveSelectionAs")->isEnabled());
}

TEST(DocumentCommands, theKeysCopyNothingWithTheTableHidden)
{
    TestDocument test;
    test.digitize();
    test.click(100, 50);
    test.document->dataTableView().selectAll();
    test.document->showHideDataTable();
    DocumentWindow &window = test.document->window();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(test.services.fakeClipboard.text());
    test.document->showHideDataTable();
    QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(test.services.fakeClipboard.text());
}

TEST(DocumentCommands, theRuleIsLookedAtBeforeAKeyActs)
{
    TestDocument test;
    test.digitize();
    test.click(100, 50);
    test.document->dataTableView().selectAll();
    QAction *copy = test.action("copy");
    test.document->showHideDataTable();
    copy->setEnabled(true); // as if the change had not reached the menus yet
    copy->trigger();
    EXPECT_FALSE(test.services.fakeClipboard.text());
}

TEST(DocumentCommands, saveProposesTheNameOfThePicture)
{
    TestDocument test;
    test.digitize();
    test.click(100, 50);
    test.command("saveDataAs");
    EXPECT_TRUE(test.services.panels->proposedName().endsWith(QStringLiteral(".txt")));
}

TEST(DocumentCommands, saveWritesTheText)
{
    TestDocument test;
    const QTemporaryDir folder;
    test.command("wholePosition");
    test.digitize();
    test.click(100, 50);
    test.command("saveDataAs");
    ASSERT_TRUE(test.services.panels->confirm(folder.filePath("data.txt")));
    QFile file(folder.filePath("data.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("Series_01_x\tSeries_01_y\n100\t50\n"));
}

TEST(DocumentCommands, theAxisMenuChoosesTheKindOfAxes)
{
    TestDocument test;
    test.command("choosePolarAxes");
    EXPECT_EQ(test.document->currentAxes().axisType(), 2);
    EXPECT_EQ(test.ui().axisTypePopup->currentIndex(), 2);
    EXPECT_FALSE(test.action("wholePosition")->isEnabled());
}

TEST(DocumentCommands, newAndQuitGoToTheApplication)
{
    TestDocument test;
    test.command("newDocument");
    test.command("terminate");
    EXPECT_EQ(test.services.newDocuments, 1);
    EXPECT_EQ(test.services.terminations, 1);
}

TEST(DocumentCommands, openingAsksForAPictureAndTakesIt)
{
    TestDocument test{QSize(0, 0)};
    const QTemporaryDir folder;
    QImage picture(400, 300, QImage::Format_RGB32);
    picture.fill(Qt::white);
    ASSERT_TRUE(picture.save(folder.filePath("chart.png")));
    test.command("openImageFile");
    ASSERT_TRUE(test.services.panels->suffixes().contains(QStringLiteral("png")));
    ASSERT_TRUE(test.services.panels->confirm(folder.filePath("chart.png")));
    EXPECT_EQ(test.document->imageSize(), (FloatSize{400, 300}));
}
