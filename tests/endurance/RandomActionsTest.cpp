#include "endurance/Endurance.h"
#include "endurance/RandomUser.h"

#include "axes/CurrentAxes.h"
#include "capture/DataSeries.h"
#include "capture/SeriesStore.h"
#include "geometry/ZKVector.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

// What a user does in a long afternoon, in an order that nobody would think of.
namespace {

constexpr int actionsPerAfternoon = 300;

/// What undo takes back: the anchors and the points of all series. As bits, because anchors on top
/// of each other give values that are no numbers and so are not equal to themselves.
using State = std::vector<std::uint64_t>;

State stateOf(const MyDocument &document)
{
    State state;
    for (const FloatPoint &anchor : document.currentAxes().currentAnchors()) {
        state.push_back(std::bit_cast<std::uint64_t>(static_cast<double>(anchor.x)));
        state.push_back(std::bit_cast<std::uint64_t>(static_cast<double>(anchor.y)));
    }
    for (int series = 0; series < SeriesStore::seriesCount; ++series) {
        state.push_back(static_cast<std::uint64_t>(series));
        for (const ZKVector &point : document.dataSeries().points(series)) {
            state.push_back(std::bit_cast<std::uint64_t>(point.X()));
            state.push_back(std::bit_cast<std::uint64_t>(point.Y()));
        }
    }
    return state;
}

/// Runs a command as long as it is enabled; the states before the first run and after each.
std::vector<State> statesOfRepeating(TestDocument &test, const char *command,
                                     bool (UndoManager::*can)() const)
{
    std::vector<State> states{stateOf(*test.document)};
    while ((test.document->undoManager().*can)()) {
        test.command(command);
        states.push_back(stateOf(*test.document));
    }
    return states;
}

class RandomActions : public ::testing::TestWithParam<unsigned>
{};

} // namespace

TEST_P(RandomActions, redoToTheTopGoesThroughTheStatesThatUndoToTheBottomLeft)
{
    RandomUser user(GetParam());
    for (int action = 0; action < actionsPerAfternoon; ++action)
        user.act();
    statesOfRepeating(user.test(), "redo", &UndoManager::canRedo);
    std::vector<State> undone = statesOfRepeating(user.test(), "undo", &UndoManager::canUndo);
    const std::vector<State> redone = statesOfRepeating(user.test(), "redo", &UndoManager::canRedo);
    std::reverse(undone.begin(), undone.end());
    EXPECT_EQ(redone, undone);
}

TEST_P(RandomActions, undoOfANewChangeRestoresTheStateBeforeItAndRedoTheOneAfterIt)
{
    RandomUser user(GetParam());
    const MyDocument &document = *user.test().document;
    int newChanges = 0;
    QObject::connect(&user.test().document->undoManager(), &UndoManager::changeCounted,
                     [&](ChangeKind kind) { newChanges += kind == ChangeKind::Done ? 1 : 100; });
    for (int action = 0; action < actionsPerAfternoon; ++action) {
        const State before = stateOf(document);
        newChanges = 0;
        user.act();
        const State after = stateOf(document);
        if (newChanges != 1 || !user.test().document->undoManager().canUndo())
            continue;
        user.test().command("undo");
        ASSERT_EQ(stateOf(document), before) << "action " << action;
        user.test().command("redo");
        ASSERT_EQ(stateOf(document), after) << "action " << action;
    }
}

TEST(RandomUser, doesWhatThereIsToDo)
{
    RandomUser user(7);
    QStringList undone;
    int pages = 0;
    QObject::connect(user.test().ui().actionSelectionTab, &ActionTab::didSelectTab,
                     [&pages] { ++pages; });
    QObject::connect(&user.document().undoManager(), &UndoManager::changeCounted,
                     [&](ChangeKind kind) {
                         if (kind == ChangeKind::Done)
                             undone << user.document().undoManager().undoActionName();
                     });
    for (int action = 0; action < 2 * actionsPerAfternoon; ++action)
        user.act();
    for (const char *key :
         {"actionAxisChange", "actionAxisReset", "actionDataAppend", "actionDataDelete"})
        EXPECT_TRUE(undone.contains(qtTrId(key))) << key;
    EXPECT_GT(pages, 5);
    EXPECT_GT(user.saves(), 3);
    EXPECT_GT(user.reverts(), 3);
    EXPECT_GT(user.newPictures(), 3);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomActions,
                         ::testing::Range(1U, 1U + static_cast<unsigned>(endurance::times(5))));
