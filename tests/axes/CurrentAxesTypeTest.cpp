#include "axes/CurrentAxesFixture.h"

#include "conversion/ZKConvCoordinate.h"
#include "platform/Texts.h"

namespace {

QString text(const char *key) { return texts::localized(key); }

void expectPoint(FloatPoint actual, float x, float y)
{
    EXPECT_NEAR(actual.x, x, 1e-4F);
    EXPECT_NEAR(actual.y, y, 1e-4F);
}

} // namespace

class CurrentAxesType : public CurrentAxesFixture
{
protected:
    void setAnchors(const Anchors &anchors)
    {
        axes.setAnchors({anchors.anchor1, anchors.anchor2, anchors.anchor3, anchors.anchor4});
        endEvent();
        log.clear();
    }
};

TEST_F(CurrentAxesType, choosingTheSameTypeDoesNothing)
{
    setAnchors({{10, 10}, {110, 20}, {90, 95}, {5, 100}});
    const int before = document.changeCount();
    Q_EMIT outlets.axisTypePopup->activated(0);
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(document.changeCount(), before);
    EXPECT_TRUE(undoManager().canUndo());
}

TEST_F(CurrentAxesType, parallelToQuadrangleKeepsEveryAnchor)
{
    const Anchors before{{10, 10}, {110, 20}, {90, 95}, {5, 100}};
    setAnchors(before);
    choose(outlets.axisTypePopup, 1);
    EXPECT_EQ(axes.axisType(), 1);
    EXPECT_EQ(anchors(), before);
    EXPECT_EQ(log, (CallLog{"info", "change"}));
}

TEST_F(CurrentAxesType, quadrangleToParallelClosesTheParallelogram)
{
    choose(outlets.axisTypePopup, 1);
    setAnchors({{10, 10}, {110, 20}, {90, 95}, {5, 100}});
    choose(outlets.axisTypePopup, 0);
    EXPECT_EQ(axes.axisType(), 0);
    EXPECT_EQ(anchors(), (Anchors{{10, 10}, {110, 20}, {105, 110}, {5, 100}}));
    EXPECT_EQ(axes.layout().anchor3Rect.origin, (FloatPoint{100, 105}));
    EXPECT_EQ(log, (CallLog{"info", "display", "change"}));
}

TEST_F(CurrentAxesType, parallelogramIsClosedInSinglePrecision)
{
    choose(outlets.axisTypePopup, 1);
    setAnchors({{16777216, 0}, {0.5F, 0}, {0, 0}, {16777216, 1}});
    choose(outlets.axisTypePopup, 0);
    // 0.5 - 16777216 is rounded before anchor 4 is added.
    EXPECT_EQ(axes.anchor3Point(), (FloatPoint{0, 1}));
}

TEST_F(CurrentAxesType, intoPolarAxesPlacesTheAnchorsAnew)
{
    setAnchors({{10, 10}, {110, 20}, {90, 95}, {5, 100}});
    choose(outlets.axisTypePopup, 1);
    choose(outlets.axisTypePopup, 2);
    EXPECT_EQ(anchors(), (Anchors{{250, 200}, {370, 200}, {90, 95}, {5, 100}}));
    EXPECT_NE(axes.layout().axisArea->circle(), nullptr);
    EXPECT_EQ(log, (CallLog{"info", "change", "info", "display", "change"}));
}

TEST_F(CurrentAxesType, outOfPolarAxesPlacesTheAnchorsAnew)
{
    choose(outlets.axisTypePopup, 2);
    choose(outlets.axisTypePopup, 1);
    EXPECT_EQ(anchors(), (Anchors{{100, 80}, {400, 80}, {400, 320}, {100, 320}}));
}

TEST_F(CurrentAxesType, changeDropsTheUndoOfTheAnchorsAndOfItsOwnReset)
{
    setAnchors({{10, 10}, {110, 20}, {90, 95}, {5, 100}});
    choose(outlets.axisTypePopup, 1);
    endEvent();
    EXPECT_FALSE(undoManager().canUndo());
    choose(outlets.axisTypePopup, 2);
    endEvent();
    EXPECT_FALSE(undoManager().canUndo());
}

TEST_F(CurrentAxesType, changeDropsTheRedoOfTheAnchors)
{
    setAnchors({{10, 10}, {110, 20}, {90, 95}, {5, 100}});
    undoManager().undo();
    ASSERT_TRUE(undoManager().canRedo());
    choose(outlets.axisTypePopup, 1);
    EXPECT_FALSE(undoManager().canRedo());
}

TEST_F(CurrentAxesType, changeLeavesTheUndoOfOthers)
{
    int undone = 0;
    undoManager().registerUndo(&undone, [&undone] { ++undone; });
    endEvent();
    choose(outlets.axisTypePopup, 2);
    endEvent();
    ASSERT_TRUE(undoManager().canUndo());
    undoManager().undo();
    EXPECT_EQ(undone, 1);
}

TEST_F(CurrentAxesType, changeMarksTheDocumentOnce)
{
    choose(outlets.axisTypePopup, 1);
    endEvent();
    EXPECT_EQ(document.changeCount(), 1);
}

TEST_F(CurrentAxesType, polarAxesRetitleThePage)
{
    showWindow();
    axes.replaceAxisDisplay();
    choose(outlets.axisTypePopup, 2);
    EXPECT_TRUE(outlets.tAxisBox->isVisible());
    EXPECT_FALSE(outlets.xAxisBox->isVisible());
    EXPECT_EQ(outlets.yAxisBox->title(), text("RAxis"));
    EXPECT_EQ(outlets.xModeBox->title(), text("AutoT"));
    EXPECT_EQ(outlets.autoXModePopUp->itemText(1), text("EqualT"));
    EXPECT_EQ(outlets.sortCheck->text(), text("SortByT"));
    EXPECT_EQ(outlets.currentXLabel->text(), text("TValue"));
    EXPECT_EQ(outlets.currentYLabel->text(), text("RValue"));
    EXPECT_FALSE(outlets.resetWhole->isEnabled());
}

TEST_F(CurrentAxesType, otherAxesRetitleThePageBack)
{
    showWindow();
    choose(outlets.axisTypePopup, 2);
    choose(outlets.axisTypePopup, 1);
    EXPECT_FALSE(outlets.tAxisBox->isVisible());
    EXPECT_TRUE(outlets.xAxisBox->isVisible());
    EXPECT_EQ(outlets.yAxisBox->title(), text("YAxis"));
    EXPECT_EQ(outlets.xModeBox->title(), text("AutoX"));
    EXPECT_EQ(outlets.autoXModePopUp->itemText(0), QStringLiteral("first"));
    EXPECT_EQ(outlets.autoXModePopUp->itemText(1), text("EqualX"));
    EXPECT_EQ(outlets.autoXModePopUp->itemText(2), QStringLiteral("third"));
    EXPECT_EQ(outlets.sortCheck->text(), text("SortByX"));
    EXPECT_EQ(outlets.currentXLabel->text(), text("XValue"));
    EXPECT_EQ(outlets.currentYLabel->text(), text("YValue"));
    EXPECT_TRUE(outlets.resetWhole->isEnabled());
}

TEST_F(CurrentAxesType, titlesAreInTheCatalogue)
{
    for (const char *key : {"InvalidSetting", "InvalidLog", "SmallMax", "LargeMin", "YAxis",
                            "RAxis", "AutoX", "AutoT", "EqualX", "EqualT", "SortByX", "SortByT",
                            "actionAxisChange", "actionAxisReset", "TValue", "RValue"})
        EXPECT_NE(text(key), QString::fromLatin1(key)) << key;
}

TEST_F(CurrentAxesType, withoutATypeThePageStaysAndThereIsNoConverter)
{
    choose(outlets.axisTypePopup, 2);
    outlets.axisTypePopup->setCurrentIndex(-1);
    axes.awakeFromNib();
    axes.replaceAxisDisplay();
    EXPECT_EQ(outlets.yAxisBox->title(), text("RAxis"));
    EXPECT_FALSE(outlets.resetWhole->isEnabled());
    EXPECT_EQ(axes.makeAxisConverter(), nullptr);
}

TEST_F(CurrentAxesType, parallelConverterReadsTheValuesAtTheAnchors)
{
    setAnchors({{10, 10}, {110, 20}, {999, 999}, {5, 100}});
    const auto converter = axes.makeAxisConverter();
    ASSERT_NE(converter, nullptr);
    EXPECT_EQ(converter->converterType(), 0);
    expectPoint(converter->convertPointFromCartesian({10, 10}), 0, 0);
    expectPoint(converter->convertPointFromCartesian({110, 20}), 10, 0);
    expectPoint(converter->convertPointFromCartesian({5, 100}), 0, 20);
}

TEST_F(CurrentAxesType, parallelConverterIsLogarithmicByAxis)
{
    setAnchors({{0, 0}, {100, 0}, {100, 100}, {0, 100}});
    enter(outlets.minXTextField, "1");
    enter(outlets.maxXTextField, "100");
    QTest::keyClick(outlets.logXCheck, Qt::Key_Space);
    const auto converter = axes.makeAxisConverter();
    ASSERT_NE(converter, nullptr);
    expectPoint(converter->convertPointFromCartesian({50, 50}), 10, 10);
}

TEST_F(CurrentAxesType, quadrangleConverterReadsTheValuesAtTheCorners)
{
    choose(outlets.axisTypePopup, 1);
    setAnchors({{0, 0}, {100, 0}, {80, 40}, {0, 80}});
    const auto converter = axes.makeAxisConverter();
    ASSERT_NE(converter, nullptr);
    EXPECT_EQ(converter->converterType(), 1);
    expectPoint(converter->convertPointFromCartesian({0, 0}), 0, 0);
    expectPoint(converter->convertPointFromCartesian({100, 0}), 10, 0);
    expectPoint(converter->convertPointFromCartesian({80, 40}), 10, 20);
    expectPoint(converter->convertPointFromCartesian({0, 80}), 0, 20);
}

TEST_F(CurrentAxesType, quadrangleConverterTakesTheLogOfEitherAxis)
{
    choose(outlets.axisTypePopup, 1);
    setAnchors({{0, 0}, {100, 0}, {100, 100}, {0, 100}});
    enter(outlets.minYTextField, "1");
    enter(outlets.maxYTextField, "10000");
    QTest::keyClick(outlets.logYCheck, Qt::Key_Space);
    const auto converter = axes.makeAxisConverter();
    ASSERT_NE(converter, nullptr);
    expectPoint(converter->convertPointFromCartesian({50, 50}), 5, 100);
}

TEST_F(CurrentAxesType, polarConverterIgnoresTheXSettings)
{
    // Values of X that would allow no converter.
    outlets.logXCheck->setChecked(true);
    outlets.minXTextField->setDoubleValue(-1);
    outlets.maxXTextField->setDoubleValue(-1);
    axes.awakeFromNib();
    choose(outlets.axisTypePopup, 2);
    setAnchors({{100, 100}, {150, 100}, {}, {}});
    const auto converter = axes.makeAxisConverter();
    ASSERT_NE(converter, nullptr);
    EXPECT_EQ(converter->converterType(), 2);
    expectPoint(converter->convertPointFromCartesian({100, 125}), 90, 10);
}

TEST_F(CurrentAxesType, polarConverterHasItsDirectionAndRange)
{
    choose(outlets.axisTypePopup, 2);
    setAnchors({{100, 100}, {150, 100}, {}, {}});
    controls.clockwise->click();
    choose(outlets.thetaRangePopup, 0);
    expectPoint(axes.makeAxisConverter()->convertPointFromCartesian({100, 150}), 270, 20);
    choose(outlets.thetaRangePopup, 1);
    expectPoint(axes.makeAxisConverter()->convertPointFromCartesian({100, 150}), -90, 20);
}

TEST_F(CurrentAxesType, axesThatAllowNoConverterGiveNoneAndNoMessage)
{
    setAnchors({{0, 0}, {100, 0}, {200, 0}, {50, 0}});
    EXPECT_EQ(axes.makeAxisConverter(), nullptr);
    choose(outlets.axisTypePopup, 1);
    setAnchors({{0, 0}, {0, 0}, {0, 0}, {0, 0}});
    EXPECT_EQ(axes.makeAxisConverter(), nullptr);
    EXPECT_TRUE(messages().empty());
}
