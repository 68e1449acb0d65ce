#include "capture/CursorGuide.h"

#include "GuideFixture.h"
#include "capture/MarkerDrawing.h"
#include "support/StartingLineStyle.h"

namespace {

constexpr QRgb red = qRgb(255, 0, 0);
constexpr QRgb white = qRgb(255, 255, 255);

using CursorGuideGuide = CursorGuideFixture;

/// How many pixels of the column above `x` are coloured from `from` up to below `to`.
int thicknessOver(const QImage &canvas, int x, int from, int to)
{
    int count = 0;
    for (int y = from; y < to; ++y)
        count += canvas.pixel(x, canvas.height() - 1 - y) != white ? 1 : 0;
    return count;
}

} // namespace

// --- The guide

TEST_F(CursorGuideGuide, isNotBuiltWithoutConverter)
{
    currentX->setStringValue("7");
    guide.forceDrawGuide({10, 20}, 1);
    EXPECT_FALSE(guide.showGuide());
    EXPECT_EQ(currentX->text(), "7");
    EXPECT_EQ(view.redraws, 0);
    EXPECT_EQ(menu.x, texts::localized("LockXValue"));
    EXPECT_EQ(menu.y, texts::localized("LockYValue"));
}

TEST_F(CursorGuideGuide, showsTheLiveValues)
{
    guide.setConverter(tenths());
    guide.forceDrawGuide({50, 123.5}, 1);
    EXPECT_EQ(currentX->text(), "         5");
    EXPECT_EQ(currentY->text(), "     12.35");
}

TEST_F(CursorGuideGuide, leavesLockedValuesAlone)
{
    guide.setConverter(tenths());
    click(lockXCheck);
    currentX->setStringValue("typed 1");
    guide.forceDrawGuide({50, 120}, 1);
    EXPECT_EQ(currentX->text(), "typed 1");
    EXPECT_EQ(currentY->text(), "        12");
}

TEST_F(CursorGuideGuide, isRebuiltOnceThoughTheCursorRests)
{
    guide.setConverter(tenths());
    guide.drawGuide({0, 0}, 1); // where the guide is thought to stand at first
    EXPECT_EQ(view.redraws, 1);
    guide.drawGuide({0, 0}, 1);
    EXPECT_EQ(view.redraws, 1);
    chooseMode(1); // computes X, hence asks for a rebuild
    guide.drawGuide({0, 0}, 1);
    guide.drawGuide({0, 0}, 1);
    EXPECT_EQ(view.redraws, 2);
}

TEST_F(CursorGuideGuide, followsTheSmallestMove)
{
    guide.setConverter(tenths());
    guide.drawGuide({0, 0}, 1);
    guide.drawGuide({1e-13F, 0}, 1);
    EXPECT_EQ(view.redraws, 2);
}

TEST_F(CursorGuideGuide, stayingWhereItWasClearedKeepsItHidden)
{
    guide.setConverter(tenths());
    guide.drawGuide({40, 60}, 1);
    guide.clearGuide();
    guide.drawGuide({40, 60}, 1);
    EXPECT_FALSE(guide.showGuide());
    guide.drawGuide({41, 60}, 1);
    EXPECT_TRUE(guide.showGuide());
}

TEST_F(CursorGuideGuide, comesBackWhereItWasClearedOnceXWasComputedAnew)
{
    chooseMode(1);
    guide.setConverter(tenths());
    guide.drawGuide({40, 60}, 1);
    guide.clearGuide();
    guide.setAutoXValue();
    guide.drawGuide({40, 60}, 1);
    EXPECT_TRUE(guide.showGuide());
}

TEST_F(CursorGuideGuide, builtByForceIsNotBuiltAgainThere)
{
    guide.setConverter(tenths());
    guide.drawGuide({1, 1}, 1);
    guide.forceDrawGuide({40, 60}, 1);
    guide.drawGuide({40, 60}, 1);
    EXPECT_EQ(view.redraws, 2);
}

TEST_F(CursorGuideGuide, triedWithoutConverterNeedsNoOtherRebuild)
{
    ASSERT_TRUE(guide.forceRefresh());
    guide.drawGuide({40, 60}, 1);
    EXPECT_FALSE(guide.forceRefresh());
}

TEST_F(CursorGuideGuide, wakesUpHiddenAndAsksForARebuild)
{
    guide.setConverter(tenths());
    guide.drawGuide({40, 60}, 1);
    lockXCheck->setChecked(true);
    lockYCheck->setChecked(true);
    autoXModePopUp->setCurrentIndex(2);
    guide.awakeFromNib();
    EXPECT_FALSE(guide.showGuide());
    EXPECT_TRUE(guide.forceRefresh());
    EXPECT_TRUE(guide.lockX());
    EXPECT_TRUE(guide.lockY());
    EXPECT_EQ(guide.autoXMode(), 2);
    EXPECT_EQ(menu.x, texts::localized("UnlockXValue"));
    EXPECT_EQ(menu.y, texts::localized("UnlockYValue"));
}

TEST_F(CursorGuideGuide, ofStraightAxesPassesThroughTheCursor)
{
    guide.setConverter(tenths());
    guide.forceDrawGuide({40, 60}, 2);
    expectEnds(guide.guide().guide1(), {0, 60}, {400, 60});
    expectEnds(guide.guide().guide2(), {40, 0}, {40, 300});
    EXPECT_FALSE(guide.guide().guide3().has_value());
}

TEST_F(CursorGuideGuide, withALockedYPassesThroughThatValue)
{
    guide.setConverter(tenths());
    click(lockYCheck);
    currentY->setStringValue("7");
    guide.forceDrawGuide({40, 60}, 2);
    expectEnds(guide.guide().guide1(), {0, 140}, {400, 140});
    expectEnds(guide.guide().guide2(), {40, 0}, {40, 300});
}

TEST_F(CursorGuideGuide, withALockedXPassesThroughThatValue)
{
    guide.setConverter(tenths());
    click(lockXCheck);
    currentX->setStringValue("9");
    guide.forceDrawGuide({40, 60}, 2);
    expectEnds(guide.guide().guide1(), {0, 60}, {400, 60});
    expectEnds(guide.guide().guide2(), {180, 0}, {180, 300});
}

TEST_F(CursorGuideGuide, followsSlantedAxes)
{
    guide.setConverter(slanted());
    guide.forceDrawGuide({100, 100}, 2);
    expectEnds(guide.guide().guide1(), {0, 50}, {400, 250});
    expectEnds(guide.guide().guide2(), {50, 0}, {200, 300});
}

TEST_F(CursorGuideGuide, ofConvergingAxesRunsToTheirVanishingPoint)
{
    guide.setConverter(converging());
    guide.forceDrawGuide({260, 200}, 2); // (130, 100) on the picture; the edges meet at (200, 400)
    expectEnds(guide.guide().guide1(), {0, 200}, {400, 200});
    expectEnds(guide.guide().guide2(), {320, 0}, {230, 300});
}

TEST_F(CursorGuideGuide, withALockHasTheDirectionsOfThePlaceWhereThePointLands)
{
    guide.setConverter(converging());
    click(lockXCheck);
    currentX->setStringValue("2");
    guide.forceDrawGuide({300, 200}, 2); // the point lands at (70, 100) on the picture
    expectEnds(guide.guide().guide1(), {0, 200}, {400, 200});
    expectEnds(guide.guide().guide2(), {80, 0}, {170, 300});
}

TEST_F(CursorGuideGuide, withBothLocksStaysWhereverTheCursorGoes)
{
    guide.setConverter(converging());
    click(lockXCheck);
    click(lockYCheck);
    currentX->setStringValue("5");
    currentY->setStringValue("10");
    for (const FloatPoint cursor : {FloatPoint{300, 200}, FloatPoint{10, 20}}) {
        guide.drawGuide(cursor, 2);
        expectEnds(guide.guide().guide1(), {0, 200}, {400, 200});
        expectEnds(guide.guide().guide2(), {200, 0}, {200, 300});
    }
}

TEST_F(CursorGuideGuide, ofPolarAxesWithALockedAngleHasTheRayOfThatAngle)
{
    guide.setConverter(degrees());
    click(lockXCheck);
    currentX->setStringValue("90");
    guide.forceDrawGuide({200, 100}, 1);
    expectEnds(guide.guide().guide1(), {100, 0}, {100, 300});
    EXPECT_EQ(guide.guide().guide3(), (FloatRect{{0, 0}, {200, 200}}));
}

TEST_F(CursorGuideGuide, ofPolarAxesIsARayAndACircleAboutThePole)
{
    guide.setConverter(degrees());
    guide.forceDrawGuide({100, 50}, 0.5F); // (200, 100) on the picture: angle 0, radius 10
    EXPECT_EQ(currentX->text(), "         0");
    EXPECT_EQ(currentY->text(), "        10");
    expectEnds(guide.guide().guide1(), {0, 50}, {400, 50});
    EXPECT_FALSE(guide.guide().guide2().has_value());
    EXPECT_EQ(guide.guide().guide3(), (FloatRect{{0, 0}, {100, 100}}));
}

TEST_F(CursorGuideGuide, ofPolarAxesWithALockedRadiusHasTheCircleOfThatRadius)
{
    guide.setConverter(degrees());
    click(lockYCheck);
    currentY->setStringValue("5");
    guide.forceDrawGuide({200, 100}, 1);
    EXPECT_EQ(guide.guide().guide3(), (FloatRect{{50, 50}, {100, 100}}));
}

TEST_F(CursorGuideGuide, ofAConverterWithoutAxesHasNoLines)
{
    guide.setConverter(std::make_shared<ZKConvCoordinate>());
    guide.forceDrawGuide({40, 60}, 1);
    EXPECT_TRUE(guide.showGuide());
    EXPECT_FALSE(guide.guide().guide1().has_value());
    EXPECT_FALSE(guide.guide().guide2().has_value());
}

TEST_F(CursorGuideGuide, atAPlaceThatDoesNotExistHasNoLinesAndDrawsNothing)
{
    guide.setConverter(degrees());
    click(lockYCheck);
    click(lockXCheck);
    currentX->setStringValue("1e999");
    currentY->setStringValue("1e30");
    guide.forceDrawGuide({40, 60}, 1);
    EXPECT_FALSE(guide.guide().guide1().has_value());
    EXPECT_EQ(colorAt(drawing(), 100, 100), white);
}

TEST_F(CursorGuideGuide, isDrawnInItsColourAndThickness)
{
    guide.setConverter(tenths());
    guide.forceDrawGuide({40, 60}, 1);
    const QImage canvas = drawing();
    EXPECT_EQ(colorAt(canvas, 200, 60), red);
    EXPECT_EQ(colorAt(canvas, 200, 59), red);
    EXPECT_EQ(colorAt(canvas, 200, 61), white);
    EXPECT_EQ(colorAt(canvas, 200, 58), white);
    EXPECT_EQ(colorAt(canvas, 40, 200), red);
    EXPECT_EQ(colorAt(canvas, 42, 200), white);
}

TEST_F(CursorGuideGuide, linesEndSquarelyAtTheEdgeOfThePicture)
{
    const StartingLineStyle atStart;
    view.size = {200, 150}; // the canvas goes on beyond it
    guide.setConverter(tenths());
    guide.forceDrawGuide({40, 60}, 1);
    const QImage canvas = drawing();
    EXPECT_EQ(colorAt(canvas, 199, 60), red);
    EXPECT_EQ(colorAt(canvas, 199, 59), red); // not rounded off
    EXPECT_EQ(colorAt(canvas, 200, 60), white);
    EXPECT_EQ(colorAt(canvas, 40, 149), red);
    EXPECT_EQ(colorAt(canvas, 40, 150), white);
}

TEST_F(CursorGuideGuide, linesEndInRoundCapsOnceSeriesWereDrawn)
{
    const StartingLineStyle atStart;
    QImage elsewhere(10, 10, QImage::Format_RGB32);
    QPainter painter(&elsewhere);
    markerdrawing::drawData(painter, {}, nullptr, 1, PlotStyle{}, 0);
    painter.end();
    view.size = {200, 150};
    guide.setConverter(tenths());
    guide.forceDrawGuide({40, 60}, 1);
    EXPECT_NE(colorAt(drawing(), 200, 60), white); // the cap goes beyond the end
}

TEST_F(CursorGuideGuide, circleIsDrawnInTheThicknessOfTheAxes)
{
    guide.setConverter(degrees());
    guide.forceDrawGuide({200, 100}, 1); // radius 100
    const QImage canvas = drawing();
    EXPECT_EQ(colorAt(canvas, 100, 201), red);
    EXPECT_EQ(colorAt(canvas, 100, 198), red);
    EXPECT_EQ(colorAt(canvas, 100, 204), white);
    EXPECT_EQ(colorAt(canvas, 100, 195), white);
    EXPECT_EQ(colorAt(canvas, 150, 101), white); // the ray is thin
}

TEST_F(CursorGuideGuide, rayAndCircleHaveThicknessesOfTheirOwn)
{
    prefs.guideThickness = 1;
    prefs.axisThickness = 5;
    guide.setConverter(degrees());
    guide.forceDrawGuide({200.5, 100.5}, 1); // pixel rows are between whole numbers
    const QImage canvas = drawing();
    EXPECT_NEAR(thicknessOver(canvas, 50, 90, 110), 1, 1);
    EXPECT_NEAR(thicknessOver(canvas, 100, 190, 210), 5, 1);
}

TEST_F(CursorGuideGuide, leavesThePainterAsItWas)
{
    guide.setConverter(degrees());
    guide.forceDrawGuide({200, 100}, 1);
    QImage canvas(400, 300, QImage::Format_RGB32);
    QPainter painter(&canvas);
    painter.setPen(QPen(Qt::blue, 7));
    guide.drawGuide(painter);
    EXPECT_EQ(painter.pen().color(), QColor(Qt::blue));
    EXPECT_EQ(painter.pen().width(), 7);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

TEST_F(CursorGuideGuide, isGoneWhenCleared)
{
    guide.setConverter(tenths());
    guide.forceDrawGuide({40, 60}, 1);
    view.redraws = 0;
    guide.clearGuide();
    EXPECT_FALSE(guide.showGuide());
    EXPECT_EQ(view.redraws, 1);
    EXPECT_EQ(colorAt(drawing(), 200, 60), white);
}

TEST_F(CursorGuideGuide, clearedTwiceRedrawsOnce)
{
    guide.setConverter(tenths());
    guide.forceDrawGuide({40, 60}, 1);
    guide.clearGuide();
    view.redraws = 0;
    guide.clearGuide();
    EXPECT_EQ(view.redraws, 0);
}
