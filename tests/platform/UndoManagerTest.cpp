#include "platform/UndoManager.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QStringList>

#include <memory>
#include <vector>

namespace {

/// A value whose changes can be undone, as a component makes them.
struct Value
{
    UndoManager &undo;
    int number = 0;

    void set(int newNumber)
    {
        undo.registerUndo(this, [this, old = number] { set(old); });
        number = newNumber;
    }
};

class UndoManagerTest : public testing::Test
{
protected:
    UndoManagerTest()
    {
        QObject::connect(&m_undo, &UndoManager::changeCounted, &m_undo,
                         [this](ChangeKind kind) { m_counted.push_back(kind); });
    }

    /// One user event that sets `value`.
    void change(Value &value, int number, const QString &name = {})
    {
        value.set(number);
        if (!name.isNull())
            m_undo.setActionName(name);
        m_undo.closeGroup();
    }

    UndoManager m_undo;
    std::vector<ChangeKind> m_counted;
    Value m_a{m_undo};
    Value m_b{m_undo};
};

using Kinds = std::vector<ChangeKind>;

} // namespace

TEST_F(UndoManagerTest, theNamesOfWhatCanBeUndoneBeginWithTheLast)
{
    change(m_a, 1, QStringLiteral("first"));
    change(m_a, 2, QStringLiteral("second"));
    EXPECT_EQ(m_undo.undoActionNames(), QStringList({"second", "first"}));
}

TEST_F(UndoManagerTest, theNameOfTheOpenGroupIsTheFirstOfAll)
{
    change(m_a, 1, QStringLiteral("closed"));
    m_a.set(2);
    m_undo.setActionName(QStringLiteral("open"));
    EXPECT_EQ(m_undo.undoActionNames(), QStringList({"open", "closed"}));
}

TEST_F(UndoManagerTest, aNameWithoutAnythingToUndoIsNotListed)
{
    m_undo.setActionName(QStringLiteral("nothing"));
    EXPECT_EQ(m_undo.undoActionNames(), QStringList());
}

TEST_F(UndoManagerTest, theNamesOfWhatCanBeRedoneBeginWithTheNext)
{
    change(m_a, 1, QStringLiteral("first"));
    change(m_a, 2, QStringLiteral("second"));
    m_undo.undo();
    m_undo.undo();
    EXPECT_EQ(m_undo.redoActionNames(), QStringList({"first", "second"}));
}

TEST_F(UndoManagerTest, aFreshHistoryIsEmpty)
{
    EXPECT_FALSE(m_undo.canUndo());
    EXPECT_FALSE(m_undo.canRedo());
    EXPECT_EQ(m_undo.undoActionName(), QString());
    EXPECT_EQ(m_undo.redoActionName(), QString());
    m_undo.undo();
    m_undo.redo();
    EXPECT_EQ(m_counted, Kinds{});
}

TEST_F(UndoManagerTest, undoRestoresAndRedoMakesTheChangeAgain)
{
    change(m_a, 1);
    m_undo.undo();
    EXPECT_EQ(m_a.number, 0);
    EXPECT_FALSE(m_undo.canUndo());
    m_undo.redo();
    EXPECT_EQ(m_a.number, 1);
    EXPECT_FALSE(m_undo.canRedo());
    m_undo.undo();
    EXPECT_EQ(m_a.number, 0);
}

TEST_F(UndoManagerTest, everythingOfOneGroupIsUndoneTogetherInReverseOrder)
{
    QStringList order;
    m_undo.registerUndo(this, [&order] { order += QStringLiteral("first"); });
    m_undo.registerUndo(this, [&order] { order += QStringLiteral("second"); });
    m_undo.undo();
    EXPECT_EQ(order, QStringList({QStringLiteral("second"), QStringLiteral("first")}));
    EXPECT_FALSE(m_undo.canUndo());
}

TEST_F(UndoManagerTest, groupsAreUndoneOneByOne)
{
    change(m_a, 1);
    change(m_a, 2);
    m_undo.undo();
    EXPECT_EQ(m_a.number, 1);
    m_undo.undo();
    EXPECT_EQ(m_a.number, 0);
    m_undo.redo();
    m_undo.redo();
    EXPECT_EQ(m_a.number, 2);
}

TEST_F(UndoManagerTest, closingAGroupCountsOneChange)
{
    m_a.set(1);
    m_b.set(1);
    EXPECT_EQ(m_counted, Kinds{});
    m_undo.closeGroup();
    m_undo.closeGroup();
    EXPECT_EQ(m_counted, Kinds{ChangeKind::Done});
}

TEST_F(UndoManagerTest, undoCountsDownAndRedoUp)
{
    change(m_a, 1);
    m_undo.undo();
    m_undo.redo();
    EXPECT_EQ(m_counted, (Kinds{ChangeKind::Done, ChangeKind::Undone, ChangeKind::Redone}));
}

TEST_F(UndoManagerTest, undoClosesAnOpenGroupFirst)
{
    m_a.set(1);
    m_undo.undo();
    EXPECT_EQ(m_a.number, 0);
    EXPECT_EQ(m_counted, (Kinds{ChangeKind::Done, ChangeKind::Undone}));
}

TEST_F(UndoManagerTest, theChangeIsCountedAfterTheActionsHaveRun)
{
    int numberWhenCounted = -1;
    change(m_a, 1);
    QObject::connect(&m_undo, &UndoManager::changeCounted, &m_undo,
                     [&] { numberWhenCounted = m_a.number; });
    m_undo.undo();
    EXPECT_EQ(numberWhenCounted, 0);
}

TEST_F(UndoManagerTest, aGroupWithANameButNoActionIsDroppedUncounted)
{
    m_undo.setActionName(QStringLiteral("nothing"));
    EXPECT_FALSE(m_undo.canUndo());
    EXPECT_EQ(m_undo.undoActionName(), QString());
    m_undo.closeGroup();
    EXPECT_FALSE(m_undo.canUndo());
    EXPECT_EQ(m_counted, Kinds{});
}

TEST_F(UndoManagerTest, aNameGivenBeforeTheActionIsTheGroupsName)
{
    m_undo.setActionName(QStringLiteral("Move"));
    m_a.set(1);
    EXPECT_EQ(m_undo.undoActionName(), QStringLiteral("Move"));
}

TEST_F(UndoManagerTest, theLastNameOfAnEventWins)
{
    m_a.set(1);
    m_undo.setActionName(QStringLiteral("Move"));
    m_undo.setActionName(QStringLiteral("Reset"));
    m_undo.closeGroup();
    EXPECT_EQ(m_undo.undoActionName(), QStringLiteral("Reset"));
}

TEST_F(UndoManagerTest, theNameGoesAlongToRedoAndBack)
{
    change(m_a, 1, QStringLiteral("Move"));
    change(m_a, 2, QStringLiteral("Reset"));
    m_undo.undo();
    EXPECT_EQ(m_undo.undoActionName(), QStringLiteral("Move"));
    EXPECT_EQ(m_undo.redoActionName(), QStringLiteral("Reset"));
    m_undo.redo();
    EXPECT_EQ(m_undo.undoActionName(), QStringLiteral("Reset"));
    EXPECT_EQ(m_undo.redoActionName(), QString());
}

TEST_F(UndoManagerTest, aNameGivenByAnInverseIsIgnored)
{
    m_undo.registerUndo(this, [this] {
        m_a.set(5);
        m_undo.setActionName(QStringLiteral("other"));
    });
    m_undo.setActionName(QStringLiteral("Move"));
    m_undo.undo();
    EXPECT_EQ(m_undo.redoActionName(), QStringLiteral("Move"));
    m_undo.closeGroup();
    EXPECT_FALSE(m_undo.canUndo());
}

TEST_F(UndoManagerTest, theNextGroupDoesNotInheritTheName)
{
    change(m_a, 1, QStringLiteral("Move"));
    change(m_a, 2);
    EXPECT_EQ(m_undo.undoActionName(), QString());
}

TEST_F(UndoManagerTest, aNewChangeDropsTheRedoHistory)
{
    change(m_a, 1);
    change(m_a, 2);
    m_undo.undo();
    m_undo.undo();
    m_b.set(1);
    EXPECT_FALSE(m_undo.canRedo());
}

TEST_F(UndoManagerTest, aNameAloneKeepsTheRedoHistory)
{
    change(m_a, 1);
    m_undo.undo();
    m_undo.setActionName(QStringLiteral("nothing"));
    m_undo.closeGroup();
    EXPECT_TRUE(m_undo.canRedo());
}

TEST_F(UndoManagerTest, redoingOneStepKeepsTheOthers)
{
    change(m_a, 1);
    change(m_a, 2);
    m_undo.undo();
    m_undo.undo();
    m_undo.redo();
    EXPECT_EQ(m_a.number, 1);
    EXPECT_TRUE(m_undo.canRedo());
}

TEST_F(UndoManagerTest, anInverseThatRegistersNothingCannotBeRedone)
{
    m_undo.registerUndo(this, [] {});
    m_undo.undo();
    EXPECT_FALSE(m_undo.canRedo());
    EXPECT_EQ(m_counted, (Kinds{ChangeKind::Done, ChangeKind::Undone}));
}

TEST_F(UndoManagerTest, tellsWhatRuns)
{
    QStringList running;
    const auto note = [&] {
        running += m_undo.isUndoing()   ? QStringLiteral("undo")
                   : m_undo.isRedoing() ? QStringLiteral("redo")
                                        : QStringLiteral("nothing");
    };
    m_undo.registerUndo(this, [&] {
        note();
        m_undo.registerUndo(this, note);
    });
    m_undo.undo();
    m_undo.redo();
    note();
    EXPECT_EQ(running, QStringList({QStringLiteral("undo"), QStringLiteral("redo"),
                                    QStringLiteral("nothing")}));
}

TEST_F(UndoManagerTest, undoWithinAnInverseDoesNothing)
{
    change(m_a, 1);
    m_undo.registerUndo(this, [this] { m_undo.undo(); });
    m_undo.undo();
    EXPECT_EQ(m_a.number, 1);
    EXPECT_TRUE(m_undo.canUndo());
}

TEST_F(UndoManagerTest, removalTakesOnlyTheActionsOfTheTarget)
{
    change(m_a, 1, QStringLiteral("A"));
    m_a.set(2);
    m_b.set(2);
    m_undo.setActionName(QStringLiteral("both"));
    m_undo.closeGroup();
    change(m_b, 3, QStringLiteral("B"));

    m_undo.removeAllActionsWithTarget(&m_a);
    EXPECT_EQ(m_undo.undoActionName(), QStringLiteral("B"));
    m_undo.undo();
    EXPECT_EQ(m_b.number, 2);
    EXPECT_EQ(m_undo.undoActionName(), QStringLiteral("both"));
    m_undo.undo();
    EXPECT_EQ(m_b.number, 0);
    EXPECT_EQ(m_a.number, 2);
    EXPECT_FALSE(m_undo.canUndo());
}

TEST_F(UndoManagerTest, removalReachesTheRedoHistory)
{
    change(m_a, 1);
    change(m_b, 1);
    m_undo.undo();
    m_undo.undo();
    m_undo.removeAllActionsWithTarget(&m_a);
    m_undo.redo();
    EXPECT_EQ(m_a.number, 0);
    EXPECT_EQ(m_b.number, 1);
    EXPECT_FALSE(m_undo.canRedo());
}

TEST_F(UndoManagerTest, removalReachesTheOpenGroup)
{
    m_a.set(1);
    m_b.set(1);
    m_undo.removeAllActionsWithTarget(&m_a);
    m_undo.undo();
    EXPECT_EQ(m_a.number, 1);
    EXPECT_EQ(m_b.number, 0);
}

TEST_F(UndoManagerTest, anOpenGroupThatLosesItsLastActionLosesItsNameToo)
{
    m_a.set(1);
    m_undo.setActionName(QStringLiteral("A"));
    m_undo.removeAllActionsWithTarget(&m_a);
    EXPECT_FALSE(m_undo.canUndo());
    m_b.set(1);
    EXPECT_EQ(m_undo.undoActionName(), QString());
    m_undo.closeGroup();
    EXPECT_EQ(m_counted, Kinds{ChangeKind::Done});
}

TEST_F(UndoManagerTest, removalByAnInverseSparesTheRestOfTheGroup)
{
    m_a.set(1);
    m_b.set(1);
    m_undo.registerUndo(this, [this] { m_undo.removeAllActionsWithTarget(&m_a); });
    m_undo.undo();
    EXPECT_EQ(m_a.number, 1);
    EXPECT_EQ(m_b.number, 0);
    m_undo.redo();
    EXPECT_EQ(m_b.number, 1);
}

TEST_F(UndoManagerTest, removalByAnInverseDropsWhatItHasRegistered)
{
    m_undo.registerUndo(this, [this] { m_undo.removeAllActionsWithTarget(&m_a); });
    m_a.set(1);
    m_undo.undo();
    EXPECT_FALSE(m_undo.canRedo());
}

TEST_F(UndoManagerTest, removalOfAnUnknownTargetChangesNothing)
{
    change(m_a, 1);
    m_undo.removeAllActionsWithTarget(this);
    EXPECT_TRUE(m_undo.canUndo());
}

TEST_F(UndoManagerTest, everyStepOfTheHistoryIsAnnounced)
{
    const QSignalSpy announced(&m_undo, &UndoManager::historyChanged);
    const auto announcedBy = [&announced](const auto &step) {
        const auto before = announced.count();
        step();
        return announced.count() > before;
    };
    EXPECT_TRUE(announcedBy([this] { m_a.set(1); }));
    EXPECT_TRUE(announcedBy([this] { m_undo.setActionName(QStringLiteral("A")); }));
    EXPECT_TRUE(announcedBy([this] { m_undo.undo(); }));
    EXPECT_TRUE(announcedBy([this] { m_undo.redo(); }));
    EXPECT_TRUE(announcedBy([this] { m_undo.removeAllActionsWithTarget(&m_a); }));
}
