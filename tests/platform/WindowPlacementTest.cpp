#include "platform/WindowPlacement.h"

#include "platform/StateFile.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

namespace {

class WindowPlacementTest : public testing::Test
{
protected:
    /// What a window at this place, which was closed since, left behind.
    void leave(const QRect &place)
    {
        QWidget window;
        window.setGeometry(place);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        windowplacement::remember(window, m_state, m_key);
    }

    QTemporaryDir m_folder;
    StateFile m_state{m_folder.filePath(QStringLiteral("state.json"))};
    const QString m_key = QStringLiteral("Window");
};

} // namespace

TEST_F(WindowPlacementTest, aWindowComesWhereTheLastOneWasLeft)
{
    leave({110, 120, 400, 300});
    QWidget window;
    EXPECT_TRUE(windowplacement::restore(window, m_state, m_key));
    EXPECT_EQ(window.geometry(), QRect(110, 120, 400, 300));
}

TEST_F(WindowPlacementTest, withoutAKeptPlaceTheWindowStaysAsItIs)
{
    QWidget window;
    window.resize(320, 240);
    EXPECT_FALSE(windowplacement::restore(window, m_state, m_key));
    EXPECT_EQ(window.size(), QSize(320, 240));
}

TEST_F(WindowPlacementTest, nonsenseCountsAsNoPlace)
{
    for (const QJsonValue &nonsense : {QJsonValue(7), QJsonValue("AQID"), QJsonValue("%%")}) {
        m_state.remember(nonsense, m_key);
        QWidget window;
        EXPECT_FALSE(windowplacement::restore(window, m_state, m_key));
    }
}

TEST_F(WindowPlacementTest, aWindowDoesNotCoverAnotherOne)
{
    leave({110, 120, 400, 300});
    QWidget first;
    windowplacement::restore(first, m_state, m_key);
    first.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&first));
    QWidget second;
    windowplacement::restore(second, m_state, m_key);
    EXPECT_NE(second.pos(), first.pos());
    EXPECT_EQ(second.size(), first.size());
}

TEST_F(WindowPlacementTest, aPlaceOnNoScreenIsBroughtOntoOne)
{
    leave({90'000, 90'000, 400, 300});
    QWidget window;
    windowplacement::restore(window, m_state, m_key);
    EXPECT_TRUE(QGuiApplication::primaryScreen()->virtualGeometry().contains(window.pos()));
}
