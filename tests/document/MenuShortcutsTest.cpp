#include "document/TestDocument.h"

#include <QAction>
#include <QComboBox>
#include <QMimeData>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

// The keys of a command act exactly when the command is enabled, in windows in every state that a
// rule asks for.
namespace {

struct Situation
{
    const char *name;
    std::unique_ptr<TestDocument> (*made)();
};

std::unique_ptr<TestDocument> digitizing()
{
    auto test = std::make_unique<TestDocument>();
    test->digitize();
    test->click(120, 100);
    test->click(200, 150);
    return test;
}

std::unique_ptr<TestDocument> withSelection()
{
    auto test = digitizing();
    test->command("selectAll");
    return test;
}

void chooseMode(TestDocument &test, int mode)
{
    for (int i = 0; i < mode; ++i)
        QTest::keyClick(test.ui().autoXModePopUp, Qt::Key_Down);
    test.endEvent();
}

const std::vector<Situation> situations{
    {"nothing", [] { return std::make_unique<TestDocument>(QSize(0, 0)); }},
    {"axisPage", [] { return std::make_unique<TestDocument>(); }},
    {"polarAxes",
     [] {
         auto test = std::make_unique<TestDocument>();
         test->command("choosePolarAxes");
         return test;
     }},
    {"digitizing", digitizing},
    {"seriesSelected", withSelection},
    {"seriesSelectedTableClosed",
     [] {
         auto test = withSelection();
         QTest::mouseClick(test->ui().dataTableDrawer->findChild<QWidget *>("drawerHandle"),
                           Qt::LeftButton);
         return test;
     }},
    {"seriesSelectedAxisPage",
     [] {
         auto test = withSelection();
         test->setAxes();
         return test;
     }},
    {"lastSeries",
     [] {
         auto test = digitizing();
         for (int i = 0; i < 9; ++i)
             test->command("moveToNextSeries");
         return test;
     }},
    {"steppedX",
     [] {
         auto test = digitizing();
         chooseMode(*test, 1);
         return test;
     }},
    {"largestZoom",
     [] {
         auto test = digitizing();
         for (int i = 0; i < 20; ++i)
             test->command("zoomIn");
         return test;
     }},
    {"smallestZoom",
     [] {
         auto test = digitizing();
         for (int i = 0; i < 20; ++i)
             test->command("zoomOut");
         return test;
     }},
    {"goodPasteboard",
     [] {
         auto test = std::make_unique<TestDocument>();
         QImage picture(300, 200, QImage::Format_RGB32);
         picture.fill(Qt::white);
         auto content = std::make_unique<QMimeData>();
         content->setImageData(picture);
         test->services.fakePasteboard.setContent(std::move(content));
         return test;
     }},
};

void becomeKey(const TestDocument &test)
{
    QWidget &window = test.document->window();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    test.document->graphView().setFocus();
}

void press(QWidget &window, const QKeySequence &keys)
{
    const QKeyCombination combination = keys[0];
    QTest::keyClick(&window, combination.key(), combination.keyboardModifiers());
}

std::vector<QAction *> actionsWithRule(const TestDocument &test)
{
    std::vector<QAction *> actions;
    for (QAction *action : test.document->window().findChildren<QAction *>()) {
        if (action->property("tag").toInt() != 0 && !action->shortcuts().isEmpty())
            actions.push_back(action);
    }
    return actions;
}

/// What a command may change.
QByteArray everythingIn(const TestDocument &test)
{
    const QByteArray document = *test.document->dataOfType({});
    return document + QByteArray::number(test.services.fakeClipboard.setCount()) +
           QByteArray::number(test.services.panels->saveCount()) +
           QByteArray::number(test.document->mouseTool());
}

class MenuShortcuts : public testing::TestWithParam<Situation>
{};

} // namespace

TEST_P(MenuShortcuts, ofDisabledCommandsDoNothing)
{
    const auto test = GetParam().made();
    becomeKey(*test);
    int disabled = 0;
    for (QAction *action : actionsWithRule(*test)) {
        if (menurules::validateMenuItem(action->property("tag").toInt(),
                                        test->document->menuState()))
            continue;
        ++disabled;
        EXPECT_FALSE(action->isEnabled()) << qPrintable(action->objectName());
        const QByteArray before = everythingIn(*test);
        const QSignalSpy triggered(action, &QAction::triggered);
        for (const QKeySequence &keys : action->shortcuts())
            press(test->document->window(), keys);
        test->endEvent();
        EXPECT_EQ(triggered.count(), 0) << qPrintable(action->objectName());
        EXPECT_TRUE(everythingIn(*test) == before) << qPrintable(action->objectName());
    }
    EXPECT_GT(disabled, 3);
}

TEST_P(MenuShortcuts, ofEnabledCommandsGiveThem)
{
    const auto test = GetParam().made();
    becomeKey(*test);
    for (QAction *action : actionsWithRule(*test)) {
        for (const QKeySequence &keys : action->shortcuts()) {
            const bool isEnabled = menurules::validateMenuItem(action->property("tag").toInt(),
                                                               test->document->menuState());
            test->document->graphView().setFocus();
            const QSignalSpy triggered(action, &QAction::triggered);
            press(test->document->window(), keys);
            test->endEvent();
            test->services.panels->cancel();
            EXPECT_EQ(triggered.count(), isEnabled ? 1 : 0) << qPrintable(action->objectName());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, MenuShortcuts, testing::ValuesIn(situations),
                         [](const auto &test) { return std::string(test.param.name); });
