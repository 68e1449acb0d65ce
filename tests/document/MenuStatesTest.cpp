#include "document/TestDocument.h"

#include "capture/DataTableView.h"

#include <gtest/gtest.h>

#include <algorithm>

// Which commands a window offers in the states that a user brings it to.
namespace {

/// The commands with a rule that are disabled now, in the order of the alphabet.
QStringList disabledCommands(const TestDocument &test)
{
    QStringList names;
    for (const QAction *action : test.document->window().findChildren<QAction *>()) {
        if (action->property("tag").toInt() != 0 && !action->isEnabled())
            names += action->objectName();
    }
    std::sort(names.begin(), names.end());
    return names;
}

const QStringList onTheDigitizingPage{"moveToNextSeries", "moveToPrevSeries"};

const QStringList onTheAxisPage{"choosePolarAxes", "chooseParallelAxes", "chooseQuadrangleAxes"};

const QStringList onThePictureOfTheAxisPage{"chooseTrimTool", "imageRotateCcw", "imageRotateCw",
                                            "resetPosition", "wholePosition"};

const QStringList onThePicture{
    "chooseHandTool", "choosePointerTool", "chooseZoomInTool", "chooseZoomOutTool",
    "goToPicture",    "showDigitizing",    "toggleAxisGrid",   "zoomIn",
    "zoomOut",        "zoomToActualSize",  "zoomToFitHeight",  "zoomToFitWidth",
    "zoomWindow"};

const QStringList onTheSelection{"copy", "delete", "saveSelectionAs"};

QStringList sorted(QStringList names)
{
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

TEST(MenuStates, withoutAPictureOnlyTheKindOfAxesCanBeChosen)
{
    const TestDocument test{QSize(0, 0)};
    EXPECT_EQ(disabledCommands(test),
              sorted(onThePicture + onThePictureOfTheAxisPage + onTheDigitizingPage +
                     onTheSelection + QStringList{"paste", "saveDataAs"}));
}

TEST(MenuStates, theAxisPageOffersWhatChangesPictureAndAxes)
{
    TestDocument test;
    test.command("zoomOut");
    EXPECT_EQ(disabledCommands(test),
              sorted(onTheDigitizingPage + onTheSelection + QStringList{"paste", "saveDataAs"}));
}

TEST(MenuStates, theDigitizingPageOffersWhatChangesTheSeries)
{
    TestDocument test;
    test.command("zoomOut");
    test.digitize();
    test.command("moveToNextSeries");
    EXPECT_EQ(disabledCommands(test), sorted(onTheAxisPage + onThePictureOfTheAxisPage +
                                             onTheSelection + QStringList{"paste", "saveDataAs"}));
}

TEST(MenuStates, pointsAndASelectionOfferTheirCommands)
{
    TestDocument test;
    test.command("zoomOut");
    test.digitize();
    test.click(100, 50);
    test.command("moveToNextSeries");
    test.document->dataTableView().selectAll();
    EXPECT_EQ(disabledCommands(test),
              sorted(onTheAxisPage + onThePictureOfTheAxisPage + QStringList{"paste"}));
}
