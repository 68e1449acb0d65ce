#include "e2e/ProgramUnderTest.h"

#include <QTest>

#include <gtest/gtest.h>

// What the windows of the program do beside and above each other, which only a window manager
// decides.

namespace {

constexpr QPointF middle(500, 350);
constexpr QPointF nearTop(300, 600);

class SeveralWindows : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_program.waitForPicture());
        m_document = ProgramUnderTest::activeWindow();
    }

    /// A new window has the focus and does not cover the point.
    void useAnotherWindow()
    {
        const QByteArray other = m_program.newWindow();
        ASSERT_NE(other, m_document);
        ProgramUnderTest::moveWindow(other, {0, 900});
    }

    /// Moves the info panel over the middle of the picture.
    void putInfoPanelOverPicture()
    {
        const QImage picture = m_program.screenAround(middle);
        const QByteArray panel = ProgramUnderTest::windowNamed("Info");
        ASSERT_FALSE(panel.isEmpty());
        ProgramUnderTest::moveWindow(panel, m_program.onScreen(middle) - QPoint(80, 80));
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_program.screenAround(middle) != picture; }));
        m_picture = picture;
    }

    ProgramUnderTest m_program{QStringLiteral(CURVEGRAB_EXAMPLES "/damped-oscillation.png")};
    QByteArray m_document;
    QImage m_picture;
};

} // namespace

TEST_F(SeveralWindows, aClickThatBringsAWindowToTheFrontAddsNoPoint)
{
    constexpr QPointF next(360, 600);
    m_program.key("ctrl+2");
    useAnotherWindow();
    const QImage withoutGuide = m_program.screenAround(next);
    m_program.click(nearTop);
    m_program.hover(next);
    // The guide follows the pointer in the window that is in use.
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_program.screenAround(next) != withoutGuide; }));
    m_program.click(next);
    EXPECT_EQ(m_program.savedData().size(), 1U);
}

TEST_F(SeveralWindows, theInfoPanelFloatsAboveWhicheverWindowIsInUse)
{
    putInfoPanelOverPicture();
    useAnotherWindow();
    m_program.click(nearTop);
    ASSERT_TRUE(ProgramUnderTest::waitForActiveWindow(m_document));
    // Once more, now that it is in use.
    m_program.click(nearTop);
    m_program.hover({20, 20});
    EXPECT_NE(m_program.screenAround(middle), m_picture);
}

TEST_F(SeveralWindows, theInfoPanelStaysWhenAWindowIsClosed)
{
    useAnotherWindow();
    putInfoPanelOverPicture();
    m_program.key("ctrl+w");
    ASSERT_TRUE(ProgramUnderTest::waitForActiveWindow(m_document));
    EXPECT_NE(m_program.screenAround(middle), m_picture);
}

TEST_F(SeveralWindows, theInfoPanelComesWithoutTakingTheKeyboard)
{
    putInfoPanelOverPicture();
    m_program.key("ctrl+i");
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_program.screenAround(middle) == m_picture; }));
    m_program.key("ctrl+i");
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_program.screenAround(middle) != m_picture; }));
    EXPECT_EQ(ProgramUnderTest::activeWindow(), m_document);
}

TEST_F(SeveralWindows, dialogsLieAboveTheInfoPanel)
{
    putInfoPanelOverPicture();
    const QImage panel = m_program.screenAround(middle);
    m_program.key("ctrl+o");
    ASSERT_TRUE(QTest::qWaitFor([this] { return ProgramUnderTest::activeWindow() != m_document; }));
    ProgramUnderTest::moveWindow(ProgramUnderTest::activeWindow(),
                                 m_program.onScreen(middle) - QPoint(150, 150));
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_program.screenAround(middle) != panel; }));
}
