#include "axes/CurrentAxesFixture.h"

#include "platform/Texts.h"

#include <QImage>
#include <QPainter>

#include <cmath>

namespace {

constexpr Anchors defaultFrame{{100, 80}, {400, 80}, {400, 320}, {100, 320}};

QString text(const char *key) { return texts::localized(key); }

} // namespace

class CurrentAxesAnchors : public CurrentAxesFixture
{
protected:
    void setAnchors(const Anchors &anchors)
    {
        axes.setAnchors({anchors.anchor1, anchors.anchor2, anchors.anchor3, anchors.anchor4});
        endEvent();
        undoManager().removeAllActionsWithTarget(&axes);
        log.clear();
    }
};

TEST_F(CurrentAxesAnchors, anchorsAreZeroUntilTheyArePlaced)
{
    EXPECT_EQ(anchors(), Anchors{});
    EXPECT_EQ(axes.currentAnchors(), std::vector<FloatPoint>(4));
}

TEST_F(CurrentAxesAnchors, settingAnchorsLaysOutAndRedraws)
{
    axes.setAnchors({{1, 2}, {3, 4}, {5, 6}, {7, 8}});
    EXPECT_EQ(anchors(), (Anchors{{1, 2}, {3, 4}, {5, 6}, {7, 8}}));
    EXPECT_EQ(axes.layout().anchor1Rect, (FloatRect{{-4, -3}, {10, 10}}));
    EXPECT_EQ(log, (CallLog{"info", "display"}));
}

TEST_F(CurrentAxesAnchors, settingFewerThanFourAnchorsIsIgnored)
{
    axes.setAnchors({});
    axes.setAnchors({{1, 2}, {3, 4}, {5, 6}});
    EXPECT_EQ(anchors(), Anchors{});
    EXPECT_FALSE(undoManager().canUndo());
    EXPECT_TRUE(log.empty());
}

TEST_F(CurrentAxesAnchors, settingAnchorsIsUndoneAndRedone)
{
    const Anchors later{{1, 2}, {3, 4}, {5, 6}, {7, 8}};
    axes.setAnchors({{1, 2}, {3, 4}, {5, 6}, {7, 8}});
    endEvent();
    EXPECT_EQ(document.changeCount(), 1);
    undoManager().undo();
    EXPECT_EQ(anchors(), Anchors{});
    EXPECT_EQ(document.changeCount(), 0);
    undoManager().redo();
    EXPECT_EQ(anchors(), later);
    undoManager().undo();
    EXPECT_EQ(anchors(), Anchors{});
}

TEST_F(CurrentAxesAnchors, resetButtonPlacesTheAnchorsUndoably)
{
    QTest::keyClick(outlets.resetDefault, Qt::Key_Space);
    EXPECT_EQ(anchors(), defaultFrame);
    EXPECT_EQ(log, (CallLog{"info", "display"}));
    endEvent();
    EXPECT_EQ(undoManager().undoActionName(), text("actionAxisReset"));
    EXPECT_EQ(document.changeCount(), 1);
    undoManager().undo();
    EXPECT_EQ(anchors(), Anchors{});
    EXPECT_EQ(undoManager().redoActionName(), text("actionAxisReset"));
}

TEST_F(CurrentAxesAnchors, resetByThePictureViewLeavesLayoutAndRedrawToIt)
{
    axes.resetPosition(CurrentAxes::Sender::ImageView);
    EXPECT_EQ(anchors(), defaultFrame);
    EXPECT_TRUE(log.empty());
}

TEST_F(CurrentAxesAnchors, resetByNobodyLaysOutOnTheTurnedPicture)
{
    view.rotation = 90;
    axes.resetPosition(CurrentAxes::Sender::None);
    EXPECT_EQ(anchors(), (Anchors{{80, 100}, {320, 100}, {320, 400}, {80, 400}}));
    EXPECT_EQ(log, (CallLog{"info", "display"}));
}

TEST_F(CurrentAxesAnchors, resetWithoutPictureMovesNothingButLaysOut)
{
    const Anchors before{{1, 2}, {3, 4}, {5, 6}, {7, 8}};
    setAnchors(before);
    view.size = {0, 400};
    axes.resetPosition(CurrentAxes::Sender::Control);
    endEvent();
    EXPECT_FALSE(axes.validImage());
    EXPECT_EQ(anchors(), before);
    EXPECT_FALSE(undoManager().canUndo());
    EXPECT_EQ(log, (CallLog{"info", "display"}));
}

TEST_F(CurrentAxesAnchors, resetWithoutPictureByThePictureViewDoesNotLayOut)
{
    view.size = {0, 0};
    axes.resetPosition(CurrentAxes::Sender::ImageView);
    EXPECT_FALSE(axes.validImage());
    EXPECT_TRUE(log.empty());
}

TEST_F(CurrentAxesAnchors, placingOnAPictureAgainIsValid)
{
    view.size = {};
    axes.resetPosition(CurrentAxes::Sender::ImageView);
    view.size = {640, 480};
    axes.wholePosition(CurrentAxes::Sender::Control);
    EXPECT_TRUE(axes.validImage());
}

TEST_F(CurrentAxesAnchors, wholeButtonReadsOutPixels)
{
    view.size = {640, 480};
    outlets.logXCheck->setChecked(true);
    outlets.logYCheck->setChecked(true);
    axes.awakeFromNib();
    QTest::keyClick(outlets.resetWhole, Qt::Key_Space);
    EXPECT_EQ(anchors(), (Anchors{{0, 0}, {640, 0}, {640, 480}, {0, 480}}));
    EXPECT_EQ(axes.minXValue(), 0);
    EXPECT_EQ(axes.maxXValue(), 640);
    EXPECT_EQ(axes.minYValue(), 0);
    EXPECT_EQ(axes.maxYValue(), 480);
    EXPECT_FALSE(axes.logX());
    EXPECT_FALSE(axes.logY());
    EXPECT_EQ(outlets.minXTextField->text(), QStringLiteral("0"));
    EXPECT_EQ(outlets.maxXTextField->text(), QStringLiteral("640"));
    EXPECT_EQ(outlets.maxYTextField->text(), QStringLiteral("480"));
    EXPECT_FALSE(outlets.logXCheck->isChecked());
    EXPECT_FALSE(outlets.logYCheck->isChecked());
    // The registered undo marks the document, nothing else does.
    EXPECT_EQ(document.changeCount(), 0);
    endEvent();
    EXPECT_EQ(document.changeCount(), 1);
}

TEST_F(CurrentAxesAnchors, undoOfTheWholePlacementRestoresAnchorsOnly)
{
    setAnchors(defaultFrame);
    outlets.logXCheck->setChecked(true);
    axes.awakeFromNib();
    axes.wholePosition(CurrentAxes::Sender::Control);
    endEvent();
    EXPECT_EQ(undoManager().undoActionName(), text("actionAxisReset"));
    undoManager().undo();
    EXPECT_EQ(anchors(), defaultFrame);
    EXPECT_EQ(axes.maxXValue(), 500);
    EXPECT_EQ(axes.maxYValue(), 400);
    EXPECT_FALSE(axes.logX());
    EXPECT_FALSE(outlets.logXCheck->isChecked());
    EXPECT_EQ(outlets.maxXTextField->text(), QStringLiteral("500"));
}

TEST_F(CurrentAxesAnchors, wholePlacementWithoutPictureKeepsValuesAndAnchors)
{
    view.size = {640, 0};
    axes.wholePosition(CurrentAxes::Sender::Control);
    endEvent();
    EXPECT_FALSE(axes.validImage());
    EXPECT_EQ(anchors(), Anchors{});
    EXPECT_EQ(axes.maxXValue(), 10);
    EXPECT_FALSE(undoManager().canUndo());
    EXPECT_EQ(log, (CallLog{"info", "display"}));
}

TEST_F(CurrentAxesAnchors, wholePlacementOfPolarAxesIsAPlainReset)
{
    choose(outlets.axisTypePopup, 2);
    axes.wholePosition(CurrentAxes::Sender::Control);
    EXPECT_EQ(axes.anchor1Point(), (FloatPoint{250, 200}));
    EXPECT_EQ(axes.anchor2Point(), (FloatPoint{370, 200}));
    EXPECT_EQ(axes.maxXValue(), 10);
    EXPECT_EQ(axes.maxYValue(), 20);
}

TEST_F(CurrentAxesAnchors, layoutFollowsScaleAndAnchorSize)
{
    setAnchors(defaultFrame);
    prefs.anchorSize = 6;
    view.scale = 0.5F;
    axes.makeAnchorRectsWithScale(0.5F);
    EXPECT_EQ(axes.layout().anchor1Rect, (FloatRect{{47, 37}, {6, 6}}));
    EXPECT_EQ(log, CallLog{"info"});
    EXPECT_EQ(axes.partOfHit({50, 40}), 2);
    EXPECT_EQ(axes.partOfHit({100, 80}), 1);
}

TEST_F(CurrentAxesAnchors, anchorSizeWaitsForANewLayout)
{
    setAnchors(defaultFrame);
    const FloatRect before = axes.layout().anchor1Rect;
    prefs.anchorSize = 6;
    EXPECT_EQ(axes.layout().anchor1Rect, before);
    EXPECT_EQ(axes.partOfHit({96, 80}), 2);
    axes.makeAnchorRectsWithScale(1);
    EXPECT_EQ(axes.layout().anchor1Rect, (FloatRect{{97, 77}, {6, 6}}));
    EXPECT_NE(axes.partOfHit({96, 80}), 2);
}

TEST_F(CurrentAxesAnchors, dragFollowsThePointerUntilTheRelease)
{
    setAnchors(defaultFrame);
    axes.dragAnchor({100, 80}, {101, 82});
    EXPECT_TRUE(axes.isDragging());
    EXPECT_EQ(axes.anchor1Point(), (FloatPoint{101, 82}));
    EXPECT_EQ(axes.layout().anchor1Rect, (FloatRect{{96, 77}, {10, 10}}));
    EXPECT_EQ(log, (CallLog{"info", "display"}));
    axes.continueDrag({110, 90});
    EXPECT_EQ(axes.anchor1Point(), (FloatPoint{110, 90}));
    EXPECT_TRUE(axes.isDragging());
    axes.endDrag({90, 70});
    EXPECT_EQ(axes.anchor1Point(), (FloatPoint{90, 70}));
    EXPECT_FALSE(axes.isDragging());
    axes.continueDrag({300, 300});
    axes.endDrag({300, 300});
    EXPECT_EQ(axes.anchor1Point(), (FloatPoint{90, 70}));
}

TEST_F(CurrentAxesAnchors, pressOnNothingStartsNoDrag)
{
    setAnchors(defaultFrame);
    axes.dragAnchor({5, 5}, {50, 50});
    EXPECT_FALSE(axes.isDragging());
    axes.continueDrag({60, 60});
    axes.endDrag({70, 70});
    EXPECT_EQ(anchors(), defaultFrame);
    EXPECT_TRUE(log.empty());
}

TEST_F(CurrentAxesAnchors, dragReadsTheScaleOnce)
{
    setAnchors(defaultFrame);
    view.scale = 2;
    axes.makeAnchorRectsWithScale(2);
    axes.dragAnchor({200, 160}, {204, 160});
    EXPECT_EQ(axes.anchor1Point(), (FloatPoint{102, 80}));
    view.scale = 1;
    axes.endDrag({208, 160});
    EXPECT_EQ(axes.anchor1Point(), (FloatPoint{104, 80}));
    EXPECT_EQ(axes.layout().anchor1Rect.origin, (FloatPoint{203, 155}));
}

TEST_F(CurrentAxesAnchors, dragRegistersNoUndoOfItsOwn)
{
    setAnchors(defaultFrame);
    axes.dragAnchor({100, 80}, {110, 90});
    axes.endDrag({120, 100});
    endEvent();
    EXPECT_FALSE(undoManager().canUndo());
}

TEST_F(CurrentAxesAnchors, undoRegisteredBeforeADragBringsTheAnchorsBack)
{
    setAnchors(defaultFrame);
    axes.registerAnchorUndo("actionAxisChange");
    axes.dragAnchor({100, 80}, {110, 90});
    axes.endDrag({120, 100});
    endEvent();
    EXPECT_EQ(undoManager().undoActionName(), text("actionAxisChange"));
    const Anchors moved = anchors();
    undoManager().undo();
    EXPECT_EQ(anchors(), defaultFrame);
    EXPECT_EQ(undoManager().redoActionName(), text("actionAxisChange"));
    undoManager().redo();
    EXPECT_EQ(anchors(), moved);
}

TEST_F(CurrentAxesAnchors, anchorDraggedOffThePictureHasItsLineTrimmed)
{
    setAnchors(defaultFrame);
    axes.dragAnchor({100, 320}, {-50, 320});
    axes.endDrag({-100, 320});
    EXPECT_EQ(axes.anchor4Point(), (FloatPoint{-100, 320}));
    ASSERT_TRUE(axes.layout().axisLineSegment2.has_value());
    EXPECT_EQ(axes.layout().axisLineSegment2->getEndNSPoint1(), (FloatPoint{0, 320}));
}

TEST_F(CurrentAxesAnchors, hintTellsWhatAPressWillDo)
{
    setAnchors(defaultFrame);
    EXPECT_EQ(axes.hintAtPoint({400, 80}), text("axes.hint.parallel.maxx"));
    EXPECT_EQ(axes.hintAtPoint({250, 250}), text("axes.hint.area"));
    EXPECT_EQ(axes.hintAtPoint({5, 5}), text("axes.hint.none"));
    choose(outlets.axisTypePopup, 2);
    EXPECT_EQ(axes.hintAtPoint({250, 200}), text("axes.hint.polar.centre"));
}

TEST_F(CurrentAxesAnchors, lengthsAndInclinationComeFromTheAnchors)
{
    setAnchors({{10, 10}, {13, 14}, {0, 0}, {4, 2}});
    EXPECT_EQ(axes.bottomLength(), 5);
    EXPECT_EQ(axes.radius(), 5);
    EXPECT_EQ(axes.leftLength(), 10);
    EXPECT_NEAR(axes.inclination(), std::atan2(4, 3) / M_PI * 180, 1e-12);
}

TEST_F(CurrentAxesAnchors, inclinationIsNegativeClockwise)
{
    setAnchors({{10, 10}, {20, 0}, {0, 0}, {0, 0}});
    EXPECT_NEAR(axes.inclination(), -45, 1e-12);
    setAnchors({{10, 10}, {0, 10}, {0, 0}, {0, 0}});
    EXPECT_EQ(axes.inclination(), 180);
}

TEST_F(CurrentAxesAnchors, nothingIsDrawnWithoutAValidPicture)
{
    setAnchors(defaultFrame);
    QImage image(500, 400, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    const QImage blank = image;
    view.size = {};
    axes.resetPosition(CurrentAxes::Sender::ImageView);
    {
        QPainter painter(&image);
        axes.drawAxisWithScale(painter, 1);
    }
    EXPECT_EQ(image, blank);
}

TEST_F(CurrentAxesAnchors, colourAndThicknessShowWithoutANewLayout)
{
    setAnchors(defaultFrame);
    prefs.color = {0, 0, 1, 1};
    prefs.thickness = 8;
    log.clear();
    QImage image(500, 400, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.translate(0, 400);
        painter.scale(1, -1);
        axes.drawAxisWithScale(painter, 1);
    }
    EXPECT_EQ(image.pixelColor(20, 399 - 83), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(20, 399 - 84), QColor(Qt::white));
    EXPECT_TRUE(log.empty());
}
