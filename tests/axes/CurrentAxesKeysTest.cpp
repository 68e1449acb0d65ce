#include "axes/CurrentAxesFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

// The parts of the axes as the keyboard chooses and moves them.

namespace {

constexpr FloatPoint right{1, 0};

class CurrentAxesKeys : public CurrentAxesFixture
{
protected:
    /// Places the anchors anew for axes of `type`, with no history.
    void begin(int type)
    {
        outlets.axisTypePopup->setCurrentIndex(type);
        axes.axisTypeChanged();
        axes.resetPosition(CurrentAxes::Sender::Control);
        endEvent();
        axes.removeAnchorUndo();
        log.clear();
    }

    /// One key press.
    void move(int part, FloatPoint way)
    {
        axes.movePart(part, way);
        endEvent();
    }

    [[nodiscard]] int countOf(const char *call) const
    {
        return static_cast<int>(std::count(log.begin(), log.end(), call));
    }
};

/// All parts in the order of the keyboard, from none back to the first one.
std::vector<int> partsInOrder(const CurrentAxes &axes, int direction)
{
    std::vector<int> parts;
    for (int part = axes.partBeside(0, direction);
         std::find(parts.begin(), parts.end(), part) == parts.end();
         part = axes.partBeside(part, direction))
        parts.push_back(part);
    return parts;
}

} // namespace

TEST_F(CurrentAxesKeys, cornersComeBeforeSidesAndTheFrame)
{
    begin(0);
    EXPECT_EQ(partsInOrder(axes, 1), (std::vector<int>{2, 3, 4, 5, 6, 7, 8, 9, 1}));
    EXPECT_EQ(partsInOrder(axes, -1), (std::vector<int>{1, 9, 8, 7, 6, 5, 4, 3, 2}));
}

TEST_F(CurrentAxesKeys, theDiscIsChosenByItsCentre)
{
    begin(2);
    EXPECT_EQ(partsInOrder(axes, 1), (std::vector<int>{10, 11, 12, 13, 14, 15, 16, 17}));
    EXPECT_EQ(partsInOrder(axes, -1), (std::vector<int>{17, 16, 15, 14, 13, 12, 11, 10}));
    EXPECT_FALSE(axes.placeOfPart(1));
}

TEST_F(CurrentAxesKeys, everyPartHasAPlaceAndAName)
{
    for (const int type : {0, 1, 2}) {
        begin(type);
        for (const int part : partsInOrder(axes, 1)) {
            EXPECT_TRUE(axes.placeOfPart(part)) << part;
            EXPECT_FALSE(axes.nameOfPart(part).isEmpty()) << part;
        }
    }
}

TEST_F(CurrentAxesKeys, partsOfOtherAxesHaveNoPlaceAndNoName)
{
    begin(0);
    EXPECT_FALSE(axes.placeOfPart(0));
    EXPECT_FALSE(axes.placeOfPart(10));
    EXPECT_TRUE(axes.nameOfPart(0).isEmpty());
    EXPECT_TRUE(axes.nameOfPart(10).isEmpty());
}

TEST_F(CurrentAxesKeys, placesAreOnThePictureWhateverTheScale)
{
    begin(0);
    view.scale = 0.37F;
    axes.makeAnchorRectsWithScale(view.scale);
    EXPECT_EQ(axes.placeOfPart(3), (FloatPoint{400, 80}));
    EXPECT_EQ(axes.placeOfPart(6), (FloatPoint{250, 80}));
    EXPECT_EQ(axes.placeOfPart(1), (FloatPoint{250, 200}));
}

TEST_F(CurrentAxesKeys, aMoveDoesWhatADragOfThatWayDoes)
{
    for (const int type : {0, 1, 2}) {
        begin(type);
        for (const int part : partsInOrder(axes, 1)) {
            const Anchors before = anchors();
            const FloatPoint place = axes.placeOfPart(part).value_or(FloatPoint{});
            const FloatPoint to{place.x + 7, place.y - 4};
            const Anchors dragged = AnchorDrag(type, part, before, place, 1).moved(to, before);
            move(part, {7, -4});
            EXPECT_EQ(anchors(), dragged) << "type " << type << " part " << part;
        }
    }
}

TEST_F(CurrentAxesKeys, fractionsOfAPixelAddUp)
{
    begin(1);
    for (int i = 0; i < 10; ++i)
        move(3, {0.1F, 0});
    EXPECT_NEAR(axes.anchor2Point().x, 401, 1e-3);
    EXPECT_EQ(axes.anchor2Point().y, 80);
}

TEST_F(CurrentAxesKeys, movesInARowAreUndoneAsOne)
{
    begin(0);
    const Anchors before = anchors();
    const int changes = document.changeCount();
    move(3, right);
    move(3, right);
    move(3, right);
    EXPECT_EQ(document.changeCount(), changes + 1);
    undoManager().undo();
    EXPECT_EQ(anchors(), before);
    EXPECT_FALSE(undoManager().canUndo());
    undoManager().redo();
    EXPECT_EQ(axes.anchor2Point(), (FloatPoint{403, 80}));
}

TEST_F(CurrentAxesKeys, movesOnTellTheDocumentAllTheSame)
{
    begin(0);
    move(3, right);
    EXPECT_EQ(countOf("movedOn"), 0);
    move(3, right);
    EXPECT_EQ(countOf("movedOn"), 1);
}

TEST_F(CurrentAxesKeys, anotherPartIsAnotherStep)
{
    begin(0);
    move(3, right);
    move(5, right);
    undoManager().undo();
    EXPECT_TRUE(undoManager().canUndo());
}

TEST_F(CurrentAxesKeys, aMoveAfterTheUndoOfAnotherChangeIsAStepOfItsOwn)
{
    begin(0);
    move(3, right);
    axes.resetPosition(CurrentAxes::Sender::Control);
    endEvent();
    undoManager().undo();
    ASSERT_TRUE(undoManager().canRedo());
    move(3, right);
    EXPECT_FALSE(undoManager().canRedo());
    undoManager().undo();
    EXPECT_EQ(axes.anchor2Point(), (FloatPoint{401, 80}));
}

TEST_F(CurrentAxesKeys, aMoveAfterAnUndoIsAStepOfItsOwn)
{
    begin(0);
    const Anchors before = anchors();
    move(3, right);
    undoManager().undo();
    move(3, right);
    ASSERT_TRUE(undoManager().canUndo());
    undoManager().undo();
    EXPECT_EQ(anchors(), before);
}

TEST_F(CurrentAxesKeys, theEndOfTheMovesMakesTheNextOneAStepOfItsOwn)
{
    begin(0);
    move(3, right);
    axes.endMovesOfPart();
    move(3, right);
    undoManager().undo();
    EXPECT_EQ(axes.anchor2Point(), (FloatPoint{401, 80}));
}

TEST_F(CurrentAxesKeys, movesAfterTheHistoryWasDroppedCanBeUndone)
{
    begin(0);
    move(3, right);
    axes.removeAnchorUndo();
    move(3, right);
    EXPECT_TRUE(undoManager().canUndo());
}

TEST_F(CurrentAxesKeys, whatIsNoPartDoesNotMove)
{
    begin(0);
    const Anchors before = anchors();
    move(0, right);
    move(12, right);
    EXPECT_EQ(anchors(), before);
    EXPECT_FALSE(undoManager().canUndo());
}
