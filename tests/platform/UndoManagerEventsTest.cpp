#include "platform/UndoManager.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
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

/// A window that takes every event and does nothing.
class QuietWindow : public QWindow
{
protected:
    bool event(QEvent *) override { return true; }
};

/// Delivers `event` to a window as the window system does.
void deliver(QEvent &event)
{
    QuietWindow window;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&window, &event);
}

QMouseEvent mouse(QEvent::Type type)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    return {type, QPointF(1, 1), QPointF(1, 1), button, button, Qt::NoModifier};
}

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

TEST_F(UndoManagerEventsTest, everyDeedOfTheMouseClosesTheGroup)
{
    int closed = 0;
    for (const auto type :
         {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick}) {
        change();
        QMouseEvent event = mouse(type);
        deliver(event);
        EXPECT_EQ(m_counted.count(), ++closed) << type;
    }
}

TEST_F(UndoManagerEventsTest, movingTheMouseKeepsTheGroupOpen)
{
    change();
    QMouseEvent event = mouse(QEvent::MouseMove);
    deliver(event);
    EXPECT_EQ(m_counted.count(), 0);
}

TEST_F(UndoManagerEventsTest, aTurnOfTheWheelClosesTheGroup)
{
    change();
    QWheelEvent event(QPointF(1, 1), QPointF(1, 1), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    deliver(event);
    EXPECT_EQ(m_counted.count(), 1);
}

TEST_F(UndoManagerEventsTest, aContextMenuClosesTheGroup)
{
    change();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    deliver(event);
    EXPECT_EQ(m_counted.count(), 1);
}

TEST_F(UndoManagerEventsTest, aDropClosesTheGroup)
{
    change();
    const QMimeData data;
    QDropEvent event(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QuietWindow window;
    QCoreApplication::sendEvent(&window, &event);
    EXPECT_EQ(m_counted.count(), 1);
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
