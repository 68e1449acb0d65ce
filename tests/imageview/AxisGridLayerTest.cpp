#include "imageview/AxisGridLayer.h"

#include "conversion/ZKConvCoordinateAffine.h"
#include "conversion/ZKConvCoordinatePolar.h"
#include "imageview/ImageViewFixture.h"

namespace {

/// x from 0 at pixel 0 to 10 at pixel 400, y from 0 to 10 at pixel 300, from the lower left corner.
std::shared_ptr<const ZKConvCoordinate> parallel(double highestX = 10)
{
    return ZKConvCoordinateAffine::convCoordWithX0Point({0, 0}, {400, 0}, 0, highestX, false,
                                                        {0, 0}, {0, 300}, 0, 10, false);
}

/// The layer over a canvas that is larger than the picture, with y upwards.
QImage drawn(AxisGridLayer &layer, const ZKConvCoordinate &converter, QColor background,
             FloatSize picture = {400, 300}, float scale = 1)
{
    QImage canvas(500, 400, QImage::Format_RGB32);
    canvas.fill(background);
    QPainter painter(&canvas);
    painter.translate(0, 400);
    painter.scale(1, -1);
    layer.draw(painter, converter, picture, scale);
    return canvas;
}

/// The pixel at a point counted from the lower left corner of the canvas.
QColor at(const QImage &canvas, int x, int y) { return canvas.pixelColor(x, 399 - y); }

int contrast(QColor a, QColor b) { return std::abs(qGray(a.rgb()) - qGray(b.rgb())); }

class GraphImageViewGridTest : public ImageViewTest
{
protected:
    void SetUp() override
    {
        show();
        install(400, 300);
        view->rescaleImageWith(1, true);
        around.made = parallel();
    }
    /// On a line for x = 2 and between any two.
    bool hasGrid() const
    {
        const QImage shown = view->grab().toImage();
        EXPECT_EQ(shown.pixelColor(118, 222), QColor(Qt::blue));
        return shown.pixelColor(80, 222) != QColor(Qt::blue);
    }
};

} // namespace

TEST(AxisGridLayer, isSeenOnDarkAndOnLightPictures)
{
    AxisGridLayer layer;
    for (const QColor &background : {QColor(Qt::black), QColor(Qt::white), QColor(Qt::gray)}) {
        const QImage canvas = drawn(layer, *parallel(), background);
        int strongest = 0;
        for (int x = 78; x <= 82; ++x)
            strongest = std::max(strongest, contrast(at(canvas, x, 74), background));
        EXPECT_GT(strongest, 50) << background.name().toStdString();
        EXPECT_EQ(at(canvas, 118, 74), background);
    }
}

TEST(AxisGridLayer, drawsNothingBesideThePicture)
{
    AxisGridLayer layer;
    const auto polar =
        ZKConvCoordinatePolar::convCoordWithCenter({200, 150}, {300, 150}, 0, 10, false, 0, true);
    for (const auto &converter : {parallel(), std::shared_ptr<const ZKConvCoordinate>(polar)}) {
        const QImage canvas = drawn(layer, *converter, Qt::white);
        for (int x = 401; x < 500; ++x)
            EXPECT_EQ(at(canvas, x, 150), QColor(Qt::white));
        for (int y = 301; y < 400; ++y)
            EXPECT_EQ(at(canvas, 200, y), QColor(Qt::white));
    }
}

TEST(AxisGridLayer, drawsCirclesOfPolarAxes)
{
    AxisGridLayer layer;
    const auto polar =
        ZKConvCoordinatePolar::convCoordWithCenter({200, 150}, {300, 150}, 0, 10, false, 0, true);
    const QImage canvas = drawn(layer, *polar, Qt::white);
    // 15 degrees lie between two major rays and beside the minor ones.
    int strongest = 0;
    for (int x = 93; x <= 100; ++x)
        strongest = std::max(strongest, contrast(at(canvas, 200 + x, 150 + 25), Qt::white));
    EXPECT_GT(strongest, 50);
    EXPECT_EQ(at(canvas, 200 + 72, 150 + 19), QColor(Qt::white));
}

TEST(AxisGridLayer, followsAnotherConverterPictureAndScale)
{
    AxisGridLayer layer;
    const QImage first = drawn(layer, *parallel(), Qt::white);
    EXPECT_EQ(drawn(layer, *parallel(), Qt::white), first);
    EXPECT_NE(drawn(layer, *parallel(7), Qt::white), first);
    EXPECT_NE(drawn(layer, *parallel(), Qt::white, {300, 300}), first);
    EXPECT_NE(drawn(layer, *parallel(), Qt::white, {400, 300}, 0.5F), first);
    EXPECT_EQ(drawn(layer, *parallel(), Qt::white), first);
}

TEST(AxisGridLayer, keepsTheDistanceOfLinesOnTheScreen)
{
    AxisGridLayer layer;
    // Every 2 at the full size, every 5 at half of it.
    const QImage half = drawn(layer, *parallel(), Qt::white, {400, 300}, 0.5F);
    EXPECT_EQ(at(half, 40, 60), QColor(Qt::white));
    EXPECT_NE(at(half, 100, 60), QColor(Qt::white));
}

TEST_F(GraphImageViewGridTest, isOffAtFirst)
{
    EXPECT_FALSE(view->showsAxisGrid());
    EXPECT_FALSE(hasGrid());
}

TEST_F(GraphImageViewGridTest, followsTheAxesWhileTheyAreSet)
{
    view->setShowsAxisGrid(true);
    EXPECT_TRUE(hasGrid());
    around.made = parallel(1000);
    EXPECT_TRUE(hasGrid());
    around.made = nullptr;
    EXPECT_FALSE(hasGrid());
}

TEST_F(GraphImageViewGridTest, isThatOfTheConverterInForceWhileDigitizing)
{
    view->setShowsAxisGrid(true);
    around.axisSetting = false;
    EXPECT_FALSE(hasGrid());
    around.inForce = parallel();
    around.made = nullptr;
    EXPECT_TRUE(hasGrid());
}

TEST_F(GraphImageViewGridTest, goesWhenItIsSwitchedOff)
{
    const QImage before = view->grab().toImage();
    view->setShowsAxisGrid(true);
    EXPECT_NE(view->grab().toImage(), before);
    view->setShowsAxisGrid(false);
    EXPECT_EQ(view->grab().toImage(), before);
}

TEST_F(GraphImageViewGridTest, leavesTheAxesAndTheirDrawingAsTheyAre)
{
    view->setShowsAxisGrid(true);
    const QImage shown = view->grab().toImage();
    EXPECT_EQ(shown.pixelColor(12, 300 - 22), QColor(Qt::red));
}
