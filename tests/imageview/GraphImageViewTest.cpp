#include "imageview/ImageViewFixture.h"

#include "platform/GeometryText.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <algorithm>

namespace {

class GraphImageViewTest : public ImageViewTest
{
protected:
    QString savedPicture(int width, int height)
    {
        QImage pixels(width, height, QImage::Format_RGB32);
        pixels.fill(Qt::red);
        const QString path = folder.filePath("chart.png");
        EXPECT_TRUE(pixels.save(path));
        return path;
    }
    QString garbage(const QByteArray &bytes)
    {
        const QString path = folder.filePath("garbage.png");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path;
    }

    QTemporaryDir folder;
};

using Calls = std::vector<std::string>;

} // namespace

TEST_F(GraphImageViewTest, startsWithoutAPicture)
{
    EXPECT_FALSE(view->hasImage());
    EXPECT_EQ(view->imageScale(), 0.1F);
    EXPECT_EQ(view->imageRotation(), 0);
    EXPECT_EQ(view->imageSize(), FloatSize{});
    EXPECT_EQ(view->scaledImageSize(), FloatSize{});
    EXPECT_EQ(view->imageSizeWithRotate(), FloatSize{});
    for (const QWidget *control :
         {static_cast<QWidget *>(rotateCW), static_cast<QWidget *>(rotateCCW),
          static_cast<QWidget *>(fitWidth), static_cast<QWidget *>(fitHeight),
          static_cast<QWidget *>(slider)})
        EXPECT_FALSE(control->isEnabled());
    EXPECT_TRUE(actionTab->isHidden());
    EXPECT_FALSE(noImageTab->isHidden());
}

TEST_F(GraphImageViewTest, aNewPictureGoesThroughTheStepsInOrder)
{
    QImage pixels(400, 300, QImage::Format_RGB32);
    pixels.fill(Qt::blue);
    EXPECT_TRUE(view->replaceImageWithImageRep(pixels));
    EXPECT_EQ(around.calls,
              (Calls{"resetPosition:view", "makeAnchorRects", "updateChangeCount", "zoomWindow",
                     "removeUndoOfDataSeries", "removeUndoOfCurrentAxes", "updateImageInfo"}));
}

TEST_F(GraphImageViewTest, aNewPictureEnablesTheControls)
{
    install(400, 300);
    for (const QWidget *control :
         {static_cast<QWidget *>(rotateCW), static_cast<QWidget *>(rotateCCW),
          static_cast<QWidget *>(fitWidth), static_cast<QWidget *>(fitHeight),
          static_cast<QWidget *>(slider)})
        EXPECT_TRUE(control->isEnabled());
    EXPECT_FALSE(actionTab->isHidden());
    EXPECT_TRUE(noImageTab->isHidden());
}

TEST_F(GraphImageViewTest, rotatingIsForTheAxisPageOnly)
{
    around.axisSetting = false;
    install(400, 300);
    EXPECT_FALSE(rotateCW->isEnabled());
    EXPECT_FALSE(rotateCCW->isEnabled());
    EXPECT_TRUE(fitWidth->isEnabled());
}

TEST_F(GraphImageViewTest, noPictureStillRunsTheLastStep)
{
    install(400, 300);
    EXPECT_FALSE(view->replaceImageWith({}));
    EXPECT_EQ(around.calls,
              (Calls{"removeUndoOfDataSeries", "removeUndoOfCurrentAxes", "updateImageInfo"}));
    EXPECT_TRUE(view->hasImage());
}

TEST_F(GraphImageViewTest, nullPixelsDoNothing)
{
    install(400, 300);
    EXPECT_FALSE(view->replaceImageWithImageRep(QImage()));
    EXPECT_EQ(around.calls, Calls{});
    EXPECT_TRUE(view->hasImage());
}

TEST_F(GraphImageViewTest, theInitialScaleLeavesTheDrawerFreeOnTheScreen)
{
    around.screenSize = {1280, 1024};
    install(2000, 100);
    EXPECT_EQ(view->imageScale(), 1013.0F / 2000.0F);
    install(1013, 4000);
    EXPECT_EQ(view->imageScale(), 1);
    install(400, 300);
    EXPECT_EQ(view->imageScale(), 1);
    install(20000, 10);
    EXPECT_EQ(view->imageScale(), 0.125F);
    EXPECT_EQ(slider->doubleValue(), -3);
}

TEST_F(GraphImageViewTest, aNewPictureStandsUpright)
{
    install(400, 300);
    view->imageRotateCcw();
    install(500, 300);
    EXPECT_EQ(view->imageRotation(), 0);
    EXPECT_EQ(view->imageSize(), (FloatSize{500, 300}));
}

TEST_F(GraphImageViewTest, turningGoesRound)
{
    install(400, 300);
    view->imageRotateCw();
    EXPECT_EQ(view->imageRotation(), 270);
    view->imageRotateCcw();
    EXPECT_EQ(view->imageRotation(), 0);
    for (const float expected : {90.0F, 180.0F, 270.0F, 0.0F}) {
        view->imageRotateCcw();
        EXPECT_EQ(view->imageRotation(), expected);
    }
}

TEST_F(GraphImageViewTest, turningGoesThroughTheStepsInOrder)
{
    install(400, 300);
    view->imageRotateCw();
    EXPECT_EQ(around.calls, (Calls{"resetPosition:", "updateImageInfo", "updateChangeCount"}));
}

TEST_F(GraphImageViewTest, turningWithoutAPictureDoesNothing)
{
    view->imageRotateCw();
    view->imageRotateCcw();
    EXPECT_EQ(view->imageRotation(), 0);
    EXPECT_EQ(around.calls, Calls{});
}

TEST_F(GraphImageViewTest, theRotateButtonsTurn)
{
    install(400, 300);
    QTest::mouseClick(rotateCCW, Qt::LeftButton);
    EXPECT_EQ(view->imageRotation(), 90);
    QTest::mouseClick(rotateCW, Qt::LeftButton);
    EXPECT_EQ(view->imageRotation(), 0);
}

TEST_F(GraphImageViewTest, aTurnedPictureHasExchangedSides)
{
    install(400, 300);
    view->rescaleImageWith(0.5F, true);
    view->imageRotateCcw();
    EXPECT_EQ(view->scaledImageSize(), (FloatSize{150, 200}));
    EXPECT_EQ(view->size(), QSize(150, 200));
    EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
    EXPECT_EQ(view->imageSizeWithRotate(), (FloatSize{300, 400}));
    view->imageRotateCcw();
    EXPECT_EQ(view->imageSizeWithRotate(), (FloatSize{400, 300}));
}

TEST_F(GraphImageViewTest, theWidgetIsTheScaledSizeRoundedUp)
{
    install(300, 200);
    EXPECT_EQ(view->imageSize(), (FloatSize{320, static_cast<float>(200 * (320.0 / 300))}));
    EXPECT_EQ(view->size(), QSize(320, 214));
}

TEST_F(GraphImageViewTest, clockwiseTurnsClockwiseOnTheScreen)
{
    show();
    QImage pixels(400, 300, QImage::Format_RGB32);
    pixels.fill(Qt::white);
    QPainter painter(&pixels);
    painter.fillRect(0, 0, 60, 60, Qt::green); // top left
    painter.end();
    view->replaceImageWithImageRep(pixels);
    view->rescaleImageWith(0.5F, true);
    view->imageRotateCw();
    const QImage turned = view->grab().toImage();
    EXPECT_EQ(turned.pixelColor(turned.width() - 6, 6), QColor(Qt::green)); // top right
    view->imageRotateCcw();
    view->imageRotateCcw();
    const QImage other = view->grab().toImage();
    EXPECT_EQ(other.pixelColor(6, other.height() - 6), QColor(Qt::green)); // bottom left
}

TEST_F(GraphImageViewTest, opensAPictureFile)
{
    EXPECT_TRUE(view->openImageFile(QUrl::fromLocalFile(savedPicture(400, 300))));
    EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
    EXPECT_TRUE(around.sheetsShown.empty());
}

TEST_F(GraphImageViewTest, refusesUrlsOfTheWeb)
{
    EXPECT_FALSE(view->openImageFile(QUrl("https://example.org/chart.png")));
    EXPECT_FALSE(view->hasImage());
    EXPECT_TRUE(around.calls.empty());
}

TEST_F(GraphImageViewTest, aFileThatGivesNoPictureLeavesThePresentOne)
{
    install(400, 300);
    EXPECT_FALSE(view->openImageFile(QUrl::fromLocalFile(garbage("no picture"))));
    EXPECT_EQ(around.calls, Calls{"sheet"});
    EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
    ASSERT_EQ(around.sheetsShown.size(), 1U);
    EXPECT_TRUE(around.sheetsShown[0].informativeText.contains("garbage.png"));
    EXPECT_FALSE(around.sheetsShown[0].message.isEmpty());
}

TEST_F(GraphImageViewTest, aLargePictureIsReadInTheBackground)
{
    const QString path = savedPicture(2500, 1700);
    const QSignalSpy opened(view, &GraphImageView::fileOpened);
    EXPECT_TRUE(view->openImageFile(QUrl::fromLocalFile(path)));
    EXPECT_FALSE(view->hasImage());
    ASSERT_TRUE(QTest::qWaitFor([&] { return opened.count() == 1; }, 20'000));
    EXPECT_TRUE(opened.at(0).at(0).toBool());
    EXPECT_EQ(view->imageSize(), (FloatSize{2500, 1700}));
}

TEST_F(GraphImageViewTest, aDamagedLargePictureIsToldLater)
{
    const QString path = savedPicture(2500, 1700);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(file.size() / 2));
    file.close();
    install(400, 300);
    const QSignalSpy opened(view, &GraphImageView::fileOpened);
    EXPECT_TRUE(view->openImageFile(QUrl::fromLocalFile(path)));
    ASSERT_TRUE(QTest::qWaitFor([&] { return opened.count() == 1; }, 20'000));
    EXPECT_FALSE(opened.at(0).at(0).toBool());
    EXPECT_EQ(around.sheetsShown.size(), 1U);
    EXPECT_EQ(view->imageSize(), (FloatSize{400, 300}));
}

TEST_F(GraphImageViewTest, anotherFileTakesThePlaceOfTheOneBeingRead)
{
    const QString large = savedPicture(2500, 1700);
    const QSignalSpy opened(view, &GraphImageView::fileOpened);
    view->openImageFile(QUrl::fromLocalFile(large));
    QImage pixels(350, 300, QImage::Format_RGB32);
    pixels.fill(Qt::red);
    const QString small = folder.filePath("small.png");
    ASSERT_TRUE(pixels.save(small));
    EXPECT_TRUE(view->openImageFile(QUrl::fromLocalFile(small)));
    ASSERT_EQ(opened.count(), 1);
    EXPECT_FALSE(opened.at(0).at(0).toBool());
    QTest::qWait(0);
    EXPECT_EQ(view->imageSize(), (FloatSize{350, 300}));
    EXPECT_TRUE(around.sheetsShown.empty());
}

TEST_F(GraphImageViewTest, closingTheWindowGivesThePictureBack)
{
    install(400, 300);
    view->startMouseChecking();
    view->windowWillClose();
    EXPECT_FALSE(view->hasImage());
    EXPECT_EQ(view->scaledImageSize(), FloatSize{});
    EXPECT_EQ(around.count("clearGuide"), 1);
}

TEST_F(GraphImageViewTest, closingTheWindowGivesUpTheFileBeingRead)
{
    const QString path = savedPicture(2500, 1700);
    const QSignalSpy opened(view, &GraphImageView::fileOpened);
    view->openImageFile(QUrl::fromLocalFile(path));
    view->windowWillClose();
    ASSERT_EQ(opened.count(), 1);
    EXPECT_FALSE(opened.at(0).at(0).toBool());
    EXPECT_TRUE(around.sheetsShown.empty());
}

TEST_F(GraphImageViewTest, savesItsFourKeys)
{
    show();
    install(2000, 1500);
    view->rescaleImageWith(1, true);
    area->scrollPoint({300, 250});
    view->imageRotateCcw();
    const ArchiveDictionary saved = view->dataForSave();
    ASSERT_EQ(saved.entries().size(), 4U);
    EXPECT_EQ(saved.stringForKey("Scrolled Position"), "{300, 250}");
    EXPECT_EQ(saved.floatForKey("Image Scale"), 1);
    EXPECT_EQ(saved.floatForKey("Rotation Angle"), 90);
    EXPECT_TRUE(std::holds_alternative<float>(saved.find("Image Scale")->value));
    EXPECT_EQ(saved.objectForKey("Original Image")->className(), "NSImage");
}

TEST_F(GraphImageViewTest, withoutAPictureThatKeyIsLeftOut)
{
    EXPECT_EQ(view->dataForSave().find("Original Image"), nullptr);
}

TEST_F(GraphImageViewTest, thePictureIsEncodedOnceAndAgainAfterAnotherOne)
{
    install(400, 300);
    const auto first = view->dataForSave().objectForKey("Original Image");
    EXPECT_EQ(view->dataForSave().objectForKey("Original Image"), first);
    view->imageRotateCw();
    EXPECT_EQ(view->dataForSave().objectForKey("Original Image"), first);
    install(400, 300);
    EXPECT_NE(view->dataForSave().objectForKey("Original Image"), first);
}

TEST_F(GraphImageViewTest, aSavedViewIsRestoredBeforeItsWindowIsShown)
{
    show();
    install(2000, 1500);
    view->rescaleImageWith(0.75F, true);
    view->imageRotateCw();
    area->scrollPoint({333, 444});
    const ArchiveDictionary saved = view->dataForSave();

    struct Second : ImageViewTest
    {
        void TestBody() override {}
        using ImageViewTest::area;
        using ImageViewTest::around;
        using ImageViewTest::show;
        using ImageViewTest::slider;
        using ImageViewTest::view;
    } second;
    EXPECT_TRUE(second.view->loadFromData(&saved));
    EXPECT_EQ(second.view->dataForSave().stringForKey("Scrolled Position"), "{333, 444}");
    second.show();
    EXPECT_EQ(second.view->imageScale(), 0.75F);
    EXPECT_EQ(second.view->imageRotation(), 270);
    EXPECT_EQ(second.view->imageSize(), (FloatSize{2000, 1500}));
    EXPECT_EQ(second.area->visibleOrigin(), (FloatPoint{333, 444}));
    EXPECT_EQ(second.view->dataForSave().stringForKey("Scrolled Position"), "{333, 444}");
    EXPECT_NEAR(second.slider->doubleValue(), -0.4150374993, 1e-9);
}

TEST_F(GraphImageViewTest, loadingRebuildsNoAnchorsAndMarksNothing)
{
    install(400, 300);
    const ArchiveDictionary saved = view->dataForSave();
    around.calls.clear();
    view->loadFromData(&saved);
    EXPECT_EQ(around.count("makeAnchorRects"), 0);
    EXPECT_EQ(around.count("resetPosition:"), 0);
    EXPECT_EQ(around.count("resetPosition:view"), 0);
    EXPECT_EQ(around.changes, 0);
}

TEST_F(GraphImageViewTest, aStoredScaleIsTakenAsItIsUntilTheNextZoom)
{
    install(400, 300);
    ArchiveDictionary saved = view->dataForSave();
    saved.set("Image Scale", {5.0F});
    EXPECT_TRUE(view->loadFromData(&saved));
    EXPECT_EQ(view->imageScale(), 5);
    EXPECT_EQ(view->scaledImageSize(), (FloatSize{2000, 1500}));
    view->zoomIn();
    EXPECT_EQ(view->imageScale(), 2);
}

TEST_F(GraphImageViewTest, impossibleScalesAreReplaced)
{
    install(400, 300);
    ArchiveDictionary saved = view->dataForSave();
    for (const float scale : {0.0F, -1.0F, std::numeric_limits<float>::quiet_NaN(),
                              std::numeric_limits<float>::infinity()}) {
        saved.set("Image Scale", {scale});
        EXPECT_TRUE(view->loadFromData(&saved));
        EXPECT_EQ(view->imageScale(), 0.125F);
    }
}

TEST_F(GraphImageViewTest, noDataIsRefused) { EXPECT_FALSE(view->loadFromData(nullptr)); }

TEST_F(GraphImageViewTest, aDamagedPictureCountsAsNone)
{
    install(400, 300);
    ArchiveDictionary saved = view->dataForSave();
    const auto bytes = std::make_shared<const std::vector<std::byte>>(100);
    saved.set("Original Image",
              {std::shared_ptr<const Archivable>(std::make_shared<const ArchivedPicture>(bytes))});
    EXPECT_TRUE(view->loadFromData(&saved));
    EXPECT_FALSE(view->hasImage());
    EXPECT_FALSE(slider->isEnabled());
}

TEST_F(GraphImageViewTest, enteringTheAxisPageDropsTheUndoOfTheData)
{
    install(400, 300);
    view->settingModeChanged();
    EXPECT_EQ(around.calls, Calls{"removeUndoOfDataSeries"});
    EXPECT_TRUE(rotateCW->isEnabled());
    EXPECT_TRUE(rotateCCW->isEnabled());
}

TEST_F(GraphImageViewTest, enteringTheAxisPageWithoutAPictureLeavesTurningOff)
{
    view->settingModeChanged();
    EXPECT_FALSE(rotateCW->isEnabled());
    EXPECT_FALSE(rotateCCW->isEnabled());
}

TEST_F(GraphImageViewTest, enteringTheDigitizingPageMakesAConverter)
{
    install(400, 300);
    around.made = someConverter();
    around.axisSetting = false;
    view->settingModeChanged();
    EXPECT_EQ(around.calls, (Calls{"makeAxisConverter", "setConverter", "lockStateChanged",
                                   "removeUndoOfCurrentAxes"}));
    EXPECT_EQ(around.inForce, around.made);
    EXPECT_FALSE(rotateCW->isEnabled());
    EXPECT_FALSE(rotateCCW->isEnabled());
}

TEST_F(GraphImageViewTest, axesWithoutAConverterTakeTheOldOneAwayAndSaySo)
{
    install(400, 300);
    around.inForce = someConverter();
    around.axisSetting = false;
    view->settingModeChanged();
    EXPECT_EQ(around.calls, (Calls{"makeAxisConverter", "setConverter", "lockStateChanged", "sheet",
                                   "removeUndoOfCurrentAxes"}));
    EXPECT_EQ(around.inForce, nullptr);
    EXPECT_FALSE(around.axisSetting);
    EXPECT_FALSE(around.sheetsShown.at(0).informativeText.isEmpty());
    EXPECT_TRUE(around.sheetsShown.at(0).alternateButton.isEmpty());
}

TEST_F(GraphImageViewTest, tellsOfPicturesAndScales)
{
    const QSignalSpy pictures(view, &GraphImageView::pictureChanged);
    const QSignalSpy scales(view, &GraphImageView::scaleChanged);
    install(400, 300);
    EXPECT_EQ(pictures.count(), 1);
    EXPECT_EQ(scales.count(), 1);
    view->zoomIn();
    EXPECT_EQ(scales.count(), 2);
    view->imageRotateCw();
    EXPECT_EQ(pictures.count(), 2);
}
