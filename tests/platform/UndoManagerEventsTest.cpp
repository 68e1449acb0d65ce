#include "platform/UndoManager.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <functional>
#include <memory>
#include <utility>

namespace {

/// A window whose every press, release, key and wheel event is a change.
class ChangingWindow : public QWidget
{
public:
    std::function<void()> change;

protected:
    void mousePressEvent(QMouseEvent *) override { change(); }
    void mouseReleaseEvent(QMouseEvent *) override { change(); }
    void mouseMoveEvent(QMouseEvent *) override { change(); }
    void keyPressEvent(QKeyEvent *) override { change(); }
    void wheelEvent(QWheelEvent *) override { change(); }
};

class UndoManagerEventsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_window.change = [this] { change(); };
        m_window.resize(100, 100);
        m_window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
        m_window.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_window.isActiveWindow(); }));
        QCoreApplication::processEvents();
        m_counted.clear();
    }

    void change()
    {
        m_undo.registerUndo(this, [] {});
    }

    QWindow *native() { return m_window.windowHandle(); }

    UndoManager m_undo;
    QSignalSpy m_counted{&m_undo, &UndoManager::changeCounted};
    ChangingWindow m_window;
};

} // namespace

TEST_F(UndoManagerEventsTest, theGroupClosesAtTheEndOfTheEventLoopsPass)
{
    change();
    change();
    EXPECT_EQ(m_counted.count(), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_counted.count(), 1);
    m_undo.undo();
    EXPECT_FALSE(m_undo.canUndo());
}

TEST_F(UndoManagerEventsTest, changesOfTwoPassesAreTwoGroups)
{
    change();
    QCoreApplication::processEvents();
    change();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_counted.count(), 2);
}

TEST_F(UndoManagerEventsTest, pressAndReleaseInOnePassAreTwoGroups)
{
    QTest::mousePress(native(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QTest::mouseRelease(native(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QCoreApplication::processEvents();
    EXPECT_EQ(m_counted.count(), 2);
}

TEST_F(UndoManagerEventsTest, aPressClosesWhatTheMoveBeforeItHasOpened)
{
    change();
    QTest::mousePress(native(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    EXPECT_GE(m_counted.count(), 1);
    QTest::mouseRelease(native(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
}

TEST_F(UndoManagerEventsTest, twoKeysInOnePassAreTwoGroups)
{
    QTest::keyClick(native(), Qt::Key_A);
    QTest::keyClick(native(), Qt::Key_B);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_counted.count(), 2);
}

TEST_F(UndoManagerEventsTest, anEventSentByTheProgramBeginsNoGroup)
{
    change();
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_window, &event);
    EXPECT_EQ(m_counted.count(), 0);
}

TEST_F(UndoManagerEventsTest, aShortcutBeginsAGroupOfItsOwn)
{
    QAction action;
    action.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_K));
    QObject::connect(&action, &QAction::triggered, &action, [this] { change(); });
    m_window.addAction(&action);
    m_window.change = [] {}; // the modifier key is a key press as well
    change();
    QTest::keyClick(native(), Qt::Key_K, Qt::ControlModifier);
    QTest::keyClick(native(), Qt::Key_K, Qt::ControlModifier);
    m_undo.closeGroup();
    EXPECT_EQ(m_counted.count(), 3);
}

TEST_F(UndoManagerEventsTest, anOlderGroupsDeferredClosingLeavesTheNewerOneOpen)
{
    bool wasOpen = false;
    change();
    QMetaObject::invokeMethod(
        &m_undo, [&] { wasOpen = m_counted.count() == 1; }, Qt::QueuedConnection);
    m_undo.closeGroup();
    change();
    QCoreApplication::processEvents();
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(m_counted.count(), 2);
}

TEST_F(UndoManagerEventsTest, theDeferredClosingDiesWithTheManager)
{
    auto undo = std::make_unique<UndoManager>();
    bool counted = false;
    QObject::connect(undo.get(), &UndoManager::changeCounted, &m_undo,
                     [&counted] { counted = true; });
    undo->registerUndo(this, [] {});
    undo.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(counted);
}
