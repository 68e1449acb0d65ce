#include "document/TestDocument.h"

#include "axes/CurrentAxes.h"
#include "capture/DataSeries.h"
#include "capture/DataTableView.h"
#include "capture/SeriesStore.h"
#include "geometry/ZKVector.h"

#include <QComboBox>
#include <QMimeData>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <memory>
#include <random>
#include <utility>
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

/// A user without a plan. The same seed does the same.
class User
{
public:
    explicit User(unsigned seed)
        : m_random(seed)
    {}

    TestDocument &test() { return m_test; }

    /// One thing that a user does, until the sheets that it brings up are answered.
    void act()
    {
        using Action = void (User::*)();
        static constexpr std::array<Action, 20> actions{
            &User::clickThePicture,  &User::clickThePicture,
            &User::clickThePicture,  &User::clickThePicture,
            &User::dragOnThePicture, &User::dragAnAnchor,
            &User::dragAnAnchor,     &User::rest,
            &User::changePage,       &User::changePage,
            &User::giveACommand,     &User::giveACommand,
            &User::undoOrRedo,       &User::undoOrRedo,
            &User::choose,           &User::check,
            &User::typeAValue,       &User::selectInTheTable,
            &User::pressAKey,        &User::load};
        (this->*actions.at(below(actions.size())))();
        answerSheets();
        m_test.endEvent();
    }

private:
    std::size_t below(std::size_t limit) { return m_random() % limit; }
    int number(int low, int high)
    {
        return low + static_cast<int>(below(static_cast<std::size_t>(high - low)));
    }

    QPoint somewhere()
    {
        return {number(-5, m_test.document->graphView().width() + 5),
                number(-5, m_test.document->graphView().height() + 5)};
    }

    Qt::KeyboardModifiers heldKeys()
    {
        static constexpr std::array<Qt::KeyboardModifiers::enum_type, 8> keys{
            Qt::NoModifier,  Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,
            Qt::AltModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::MetaModifier};
        return keys.at(below(keys.size()));
    }

    void clickThePicture()
    {
        const Qt::KeyboardModifiers keys = heldKeys();
        m_test.services.desktop->heldModifiers = keys;
        QTest::mouseClick(&m_test.document->graphView(), Qt::LeftButton, keys, somewhere());
        m_test.services.desktop->heldModifiers = Qt::NoModifier;
    }

    void dragOnThePicture()
    {
        const Qt::KeyboardModifiers keys = heldKeys();
        m_test.services.desktop->heldModifiers = keys;
        dragFrom(somewhere(), keys);
        m_test.services.desktop->heldModifiers = Qt::NoModifier;
    }

    void dragAnAnchor()
    {
        const MyDocument &document = *m_test.document;
        const FloatPoint anchor = document.currentAxes().currentAnchors().at(below(4));
        const float scale = document.graphView().imageScale();
        dragFrom(m_test.widgetPosition(static_cast<int>(anchor.x * scale),
                                       static_cast<int>(anchor.y * scale)),
                 Qt::NoModifier);
    }

    void dragFrom(QPoint begin, Qt::KeyboardModifiers keys)
    {
        QWidget *view = &m_test.document->graphView();
        QTest::mousePress(view, Qt::LeftButton, keys, begin);
        m_test.endEvent();
        for (int move = 0; move < 2; ++move)
            QTest::mouseMove(view, somewhere());
        QTest::mouseRelease(view, Qt::LeftButton, keys, somewhere());
    }

    void rest()
    {
        m_test.services.desktop->pointer = m_test.document->graphView().mapToGlobal(somewhere());
        m_test.document->graphView().mouseCheckRoutine();
    }

    void changePage()
    {
        QAbstractButton *const button =
            below(3) == 0 ? m_test.ui().axisTabButton : m_test.ui().digitizingTabButton;
        QTest::mouseClick(button, Qt::LeftButton);
    }

    void giveACommand()
    {
        static constexpr std::array commands{"delete",
                                             "selectAll",
                                             "copy",
                                             "showAxisSetting",
                                             "showDigitizing",
                                             "zoomIn",
                                             "zoomOut",
                                             "zoomToActualSize",
                                             "zoomToFitWidth",
                                             "imageRotateCw",
                                             "imageRotateCcw",
                                             "choosePointerTool",
                                             "choosePointerTool",
                                             "choosePointerTool",
                                             "chooseHandTool",
                                             "chooseTrimTool",
                                             "chooseParallelAxes",
                                             "chooseQuadrangleAxes",
                                             "choosePolarAxes",
                                             "resetPosition",
                                             "wholePosition",
                                             "moveToNextSeries",
                                             "moveToPrevSeries",
                                             "setDrawMarkersAndLines",
                                             "simulateToggleSort"};
        QAction *const action = m_test.action(commands.at(below(commands.size())));
        ASSERT_NE(action, nullptr);
        action->trigger();
    }

    void undoOrRedo() { m_test.action(below(3) == 0 ? "redo" : "undo")->trigger(); }

    void choose()
    {
        const std::array popups{m_test.ui().seriesPopup, m_test.ui().markerDrawPopup,
                                m_test.ui().autoXModePopUp, m_test.ui().axisTypePopup,
                                m_test.ui().thetaRangePopup};
        QTest::keyClick(popups.at(below(popups.size())), below(2) == 0 ? Qt::Key_Down : Qt::Key_Up);
    }

    void check()
    {
        const std::array<QAbstractButton *, 5> boxes{m_test.ui().sortCheck, m_test.ui().lockXCheck,
                                                     m_test.ui().lockYCheck, m_test.ui().logXCheck,
                                                     m_test.ui().logYCheck};
        QTest::mouseClick(boxes.at(below(boxes.size())), Qt::LeftButton);
    }

    void typeAValue()
    {
        const std::array<QLineEdit *, 8> fields{
            m_test.ui().minXTextField,     m_test.ui().maxXTextField,
            m_test.ui().minYTextField,     m_test.ui().maxYTextField,
            m_test.ui().initialXTextField, m_test.ui().stepXTextField,
            m_test.ui().currentXTextField, m_test.ui().currentYTextField};
        static constexpr std::array values{"0", "1", "-2.5", "1e3", "1e-3", "x", "", "100"};
        QLineEdit *const field = fields.at(below(fields.size()));
        if (!field->isEnabled() || !field->isVisible())
            return;
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Backspace);
        QTest::keyClicks(field, QString::fromLatin1(values.at(below(values.size()))));
        QTest::keyClick(field, Qt::Key_Return);
    }

    void selectInTheTable()
    {
        DataTableView &table = m_test.document->dataTableView();
        QTest::mouseClick(table.viewport(), Qt::LeftButton, heldKeys(),
                          {number(0, table.viewport()->width()), number(0, 40)});
    }

    void pressAKey()
    {
        static constexpr std::array keys{Qt::Key_Delete, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Left,
                                         Qt::Key_Right};
        QWidget *const place = below(2) == 0
                                   ? static_cast<QWidget *>(&m_test.document->dataTableView())
                                   : &m_test.document->graphView();
        QTest::keyClick(place, keys.at(below(keys.size())));
    }

    /// A new picture, now and then.
    void load()
    {
        if (below(4) != 0)
            return;
        QImage picture(number(40, 700), number(40, 700), QImage::Format_RGB32);
        picture.fill(Qt::white);
        auto content = std::make_unique<QMimeData>();
        content->setImageData(picture);
        m_test.services.fakePasteboard.setContent(std::move(content));
        m_test.action("paste")->trigger();
    }

    void answerSheets()
    {
        m_test.endEvent();
        while (m_test.services.sheets->answerFirst(below(2) == 0 ? SheetAnswer::Default
                                                                 : SheetAnswer::Alternate))
            continue;
    }

    std::mt19937 m_random;
    TestDocument m_test;
};

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
    User user(GetParam());
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
    User user(GetParam());
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

INSTANTIATE_TEST_SUITE_P(Seeds, RandomActions, ::testing::Range(1U, 13U));
