#include "platform/FloatingPanel.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace {

/// A panel beside the window of a document.
class FloatingPanel : public testing::Test
{
protected:
    FloatingPanel()
    {
        m_document.show();
        m_document.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_document));
        floatingpanel::show(m_panel);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_panel));
    }

    QWidget m_panel{nullptr, Qt::Tool | Qt::WindowDoesNotAcceptFocus};
    QWidget m_document;
};

} // namespace

TEST_F(FloatingPanel, isShownWithoutAskingForTheKeyboard)
{
    EXPECT_TRUE(m_panel.isVisible());
    EXPECT_TRUE(m_panel.testAttribute(Qt::WA_ShowWithoutActivating));
}

// Under X11 it belongs to all windows, elsewhere to the one in use.
TEST_F(FloatingPanel, belongsToTheWindowInUseWhereItCannotBelongToAll)
{
    const bool canBelongToAll = QGuiApplication::platformName() == QStringLiteral("xcb");
    EXPECT_EQ(m_panel.windowHandle()->transientParent(),
              canBelongToAll ? nullptr : m_document.windowHandle());
}

TEST_F(FloatingPanel, staysWhenTheWindowThatItWasShownOverIsClosed)
{
    m_document.close();
    QCoreApplication::processEvents();
    EXPECT_TRUE(m_panel.isVisible());
}

TEST_F(FloatingPanel, comesBackOverTheWindowThatIsInUseThen)
{
    m_panel.hide();
    QWidget next;
    next.show();
    next.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&next));
    m_document.close();
    floatingpanel::show(m_panel);
    EXPECT_TRUE(m_panel.isVisible());
    EXPECT_NE(m_panel.windowHandle()->transientParent(), m_document.windowHandle());
}
