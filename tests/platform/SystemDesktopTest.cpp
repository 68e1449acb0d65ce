#include "platform/SystemDesktop.h"

#include <gtest/gtest.h>

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <memory>

namespace {

FloatSize primarySize()
{
    const QSize size = QGuiApplication::primaryScreen()->geometry().size();
    return {static_cast<float>(size.width()), static_cast<float>(size.height())};
}

} // namespace

TEST(SystemDesktop, theScreenIsTheFullOneThatShowsTheWindow)
{
    QWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const SystemDesktop desktop(&window);
    const QSize shown = window.screen()->geometry().size();
    EXPECT_EQ(desktop.mainScreenSize(),
              (FloatSize{static_cast<float>(shown.width()), static_cast<float>(shown.height())}));
}

TEST(SystemDesktop, withoutAWindowThePrimaryScreenCounts)
{
    const SystemDesktop desktop(nullptr);
    EXPECT_EQ(desktop.mainScreenSize(), primarySize());
}

TEST(SystemDesktop, aDeletedWindowCountsAsNone)
{
    auto window = std::make_unique<QWidget>();
    const SystemDesktop desktop(window.get());
    window.reset();
    EXPECT_EQ(desktop.mainScreenSize(), primarySize());
}

TEST(SystemDesktop, thePointerIsWhereTheCursorIs)
{
    const SystemDesktop desktop(nullptr);
    QCursor::setPos(123, 45);
    EXPECT_TRUE(
        QTest::qWaitFor([&desktop] { return desktop.pointerPosition() == QPoint(123, 45); }));
    QCursor::setPos(50, 60);
    EXPECT_TRUE(
        QTest::qWaitFor([&desktop] { return desktop.pointerPosition() == QPoint(50, 60); }));
}

TEST(SystemDesktop, noModifierIsHeldInAQuietDesktop)
{
    const SystemDesktop desktop(nullptr);
    EXPECT_EQ(desktop.modifiers(), Qt::NoModifier);
}
