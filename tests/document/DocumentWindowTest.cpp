#include "document/TestDocument.h"

#include "capture/DataSeries.h"
#include "document/TableDrawer.h"

#include <QFile>
#include <QGroupBox>
#include <QLabel>

#include <gtest/gtest.h>

TEST(DocumentWindow, aNewDocumentShowsTheTable)
{
    const TestDocument test{QSize(0, 0)};
    EXPECT_EQ(test.document->drawerOpenButtonState(), 0);
    EXPECT_TRUE(test.ui().dataTableDrawer->isOpen());
}

TEST(DocumentWindow, theTableCommandIsTitledAfterTheDrawer)
{
    TestDocument test;
    EXPECT_EQ(test.services.showHideTable.text(), qtTrId("HideTable"));
    test.document->showHideDataTable();
    EXPECT_EQ(test.services.showHideTable.text(), qtTrId("ShowTable"));
}

TEST(DocumentWindow, closingTheDrawerByItsHandleSetsButtonAndTitle)
{
    TestDocument test;
    QTest::mouseClick(test.ui().dataTableDrawer->findChild<QWidget *>("drawerHandle"),
                      Qt::LeftButton);
    EXPECT_EQ(test.document->drawerOpenButtonState(), 1);
    EXPECT_FALSE(test.ui().drawerOpenButton->isChecked());
    EXPECT_EQ(test.services.showHideTable.text(), qtTrId("ShowTable"));
}

TEST(DocumentWindow, theFrameSizeLeavesTheOpenDrawerOut)
{
    TestDocument test;
    const FloatSize open = test.document->windowFrameSize();
    test.document->showHideDataTable();
    EXPECT_EQ(test.document->windowFrameSize(), open);
}

TEST(DocumentWindow, theStandardFrameLeavesTheFixedMargins)
{
    const TestDocument test({900, 600});
    const FloatSize standard = test.document->windowWillUseStandardFrame();
    EXPECT_EQ(standard, (FloatSize{937, 807}));
}

TEST(DocumentWindow, theWindowMenuTogglesBetweenTheStandardAndTheUsersFrame)
{
    TestDocument test({700, 400});
    DocumentWindow &window = test.document->window();
    window.setGeometry(150, 120, 1100, 620);
    const QRect users = window.geometry();
    test.command("zoomWindow");
    EXPECT_EQ(test.document->windowFrameSize(), test.document->windowWillUseStandardFrame());
    EXPECT_EQ(window.geometry().bottomLeft(), users.bottomLeft());
    test.command("zoomWindow");
    EXPECT_EQ(window.geometry(), users);
}

TEST(DocumentWindow, theUsersFrameComesBackWithTheDrawerAsItIsNow)
{
    TestDocument test({700, 400});
    DocumentWindow &window = test.document->window();
    window.setGeometry(150, 120, 1100, 620);
    const FloatSize users = test.document->windowFrameSize();
    test.command("zoomWindow");
    test.document->showHideDataTable();
    test.command("zoomWindow");
    EXPECT_EQ(test.document->windowFrameSize(), users);
}

TEST(DocumentWindow, aPictureAtTheStandardFrameIsSeenWhole)
{
    const TestDocument test({700, 400});
    QCoreApplication::processEvents();
    const FloatSize clip = test.ui().pictureScrollArea->clipSize();
    EXPECT_GE(clip.width, 700);
    EXPECT_GE(clip.height, 400);
}

TEST(DocumentWindow, nothingIsCutOffInTheNarrowestWindow)
{
    TestDocument test;
    for (const bool tableShown : {true, false}) {
        EXPECT_EQ(test.ui().dataTableDrawer->isOpen(), tableShown);
        test.document->window().resize(10, 10);
        QCoreApplication::processEvents();
        const Ui::MyDocument &ui = test.ui();
        EXPECT_LT(ui.mainColumn->geometry().right(), ui.dataTableDrawer->x());
        EXPECT_EQ(ui.dataTableDrawer->geometry().right(), ui.centralWidget->width() - 1);
        EXPECT_GE(ui.actionSelectionTab->width(), ui.actionSelectionTab->minimumSizeHint().width());
        test.document->showHideDataTable();
    }
}

TEST(DocumentWindow, aSmallScreenHoldsControlsAndTable)
{
    const TestDocument test;
    test.document->window().resize(1024, 700);
    EXPECT_EQ(test.document->window().width(), 1024);
    EXPECT_TRUE(test.ui().dataTableDrawer->isOpen());
}

TEST(DocumentWindow, theFieldsTakeTheirFullWidthWhereThereIsRoom)
{
    const TestDocument test;
    test.document->window().resize(1300, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(test.ui().minXTextField->width(), test.ui().minXTextField->maximumWidth());
}

TEST(DocumentWindow, withoutPictureThePlaceholderStandsForTheTab)
{
    const TestDocument test{QSize(0, 0)};
    EXPECT_TRUE(test.ui().noImageTab->isVisible());
    EXPECT_FALSE(test.ui().actionSelectionTab->isVisible());
}

TEST(DocumentWindow, withAPictureTheTabShows)
{
    const TestDocument test;
    EXPECT_FALSE(test.ui().noImageTab->isVisible());
    EXPECT_TRUE(test.ui().actionSelectionTab->isVisible());
}

TEST(DocumentWindow, controlsKeepTheirPlaceWhenTheKindOfAxesChanges)
{
    TestDocument test;
    const QRect before = test.ui().yAxisBox->geometry();
    test.command("choosePolarAxes");
    QCoreApplication::processEvents();
    EXPECT_EQ(test.ui().yAxisBox->geometry(), before);
}

TEST(DocumentWindow, controlsKeepTheirPlaceInANarrowWindowToo)
{
    TestDocument test;
    test.document->window().resize(10, 10);
    QCoreApplication::processEvents();
    const QRect before = test.ui().yAxisBox->geometry();
    test.command("choosePolarAxes");
    QCoreApplication::processEvents();
    EXPECT_EQ(test.ui().yAxisBox->geometry(), before);
}

TEST(DocumentWindow, theWindowKeepsItsHeightWhenThePageChanges)
{
    TestDocument test;
    const int before = test.ui().actionSelectionTab->height();
    test.digitize();
    QCoreApplication::processEvents();
    EXPECT_EQ(test.ui().actionSelectionTab->height(), before);
}

TEST(DocumentWindow, theScaleIsShownWithThreeDigits)
{
    TestDocument test;
    const auto shown = [&test] { return test.ui().zoomLabel->text(); };
    EXPECT_EQ(shown(), qtTrId("document.zoom.percent").arg("100"));
    test.command("zoomOut");
    EXPECT_EQ(shown(), qtTrId("document.zoom.percent").arg("70.7"));
    test.document->graphView().rescaleImageWith(0.125F, true);
    EXPECT_EQ(shown(), qtTrId("document.zoom.percent").arg("12.5"));
}

TEST(DocumentWindow, theStatusLineSaysWhatAClickWillDo)
{
    TestDocument test;
    test.digitize();
    QTest::mouseMove(&test.document->graphView(), {50, 50});
    test.services.desktop->pointer = test.document->graphView().mapToGlobal(QPoint(50, 50));
    test.document->graphView().mouseCheckRoutine();
    const auto *hint = test.document->window().findChild<QLabel *>("statusHint");
    EXPECT_EQ(hint->text(), qtTrId("document.status.addPoint").arg(1));
}

TEST(DocumentWindow, theStatusLineShowsThePositions)
{
    TestDocument test;
    test.command("wholePosition");
    test.digitize();
    test.services.desktop->pointer = test.document->graphView().mapToGlobal(QPoint(50, 100));
    test.document->graphView().mouseCheckRoutine();
    const auto *picture = test.document->window().findChild<QLabel *>("statusPicture");
    const auto *graph = test.document->window().findChild<QLabel *>("statusGraph");
    EXPECT_EQ(picture->text(), qtTrId("document.status.picture").arg("50", "300"));
    EXPECT_EQ(graph->text(), qtTrId("document.status.graph").arg("50", "300"));
}

TEST(DocumentWindow, theChosenPageStandsOutInADarkPalette)
{
    const TestDocument test;
    test.document->window().setPalette(QPalette(QColor(56, 60, 65), QColor(40, 43, 47)));
    const auto backgroundOf = [](QToolButton *button) {
        const QPixmap shown = button->grab();
        return shown.toImage().pixelColor(shown.width() / 2, shown.height() - 4);
    };
    const QColor chosen = backgroundOf(test.ui().axisTabButton);
    const QColor other = backgroundOf(test.ui().digitizingTabButton);
    EXPECT_GT(chosen.blue() - other.blue(), 30);
}

TEST(DocumentWindow, openingTheDrawerByItsHandleSetsButtonAndTitleBack)
{
    TestDocument test;
    auto *handle = test.ui().dataTableDrawer->findChild<QWidget *>("drawerHandle");
    EXPECT_TRUE(test.ui().drawerOpenButton->isChecked());
    QTest::mouseClick(handle, Qt::LeftButton);
    QTest::mouseClick(handle, Qt::LeftButton);
    EXPECT_EQ(test.document->drawerOpenButtonState(), 0);
    EXPECT_TRUE(test.ui().drawerOpenButton->isChecked());
    EXPECT_EQ(test.services.showHideTable.text(), qtTrId("HideTable"));
}

TEST(DocumentWindow, theStandardFrameHasTheOpenDrawerBesideIt)
{
    TestDocument test({1000, 400});
    test.document->window().resize(1100, 650);
    test.command("zoomWindow");
    ASSERT_TRUE(test.ui().dataTableDrawer->isOpen());
    EXPECT_EQ(test.document->windowFrameSize(), (FloatSize{1037, 607}));
}

TEST(DocumentWindow, aStandardWindowThatWasMovedStaysWhereItIs)
{
    TestDocument test({700, 400});
    DocumentWindow &window = test.document->window();
    window.move(40, 60);
    test.command("zoomWindow");
    window.move(90, 110);
    const QRect moved = window.geometry();
    test.command("zoomWindow");
    EXPECT_EQ(window.geometry(), moved);
}

TEST(DocumentWindow, aNewPictureLeavesAMaximisedWindowAsItIs)
{
    TestDocument test;
    DocumentWindow &window = test.document->window();
    window.showMaximized();
    ASSERT_TRUE(QTest::qWaitFor([&window] { return window.isMaximized(); }));
    QCoreApplication::processEvents(); // where there is a desktop, it makes the window larger
    const QRect filled = window.geometry();
    QImage picture(300, 200, QImage::Format_RGB32);
    picture.fill(Qt::gray);
    test.document->graphView().replaceImageWithImageRep(picture);
    EXPECT_EQ(window.geometry(), filled);
}

TEST(DocumentWindow, aClosedWindowLetsItsPictureGo)
{
    TestDocument test;
    test.markSaved();
    ASSERT_TRUE(test.document->window().close());
    EXPECT_FALSE(test.document->hasImage());
}

TEST(DocumentWindow, theIconsFollowThePalette)
{
    const TestDocument test;
    const auto shown = [&test] { return test.ui().handToolButton->icon().pixmap(32).toImage(); };
    const QImage before = shown();
    QPalette palette = test.document->window().palette();
    palette.setColor(QPalette::ButtonText, Qt::magenta);
    test.document->window().setPalette(palette);
    EXPECT_NE(shown(), before);
}
