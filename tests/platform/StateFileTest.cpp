#include "platform/StateFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

namespace {

class StateFileTest : public testing::Test
{
protected:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("state.json"));
    const QString m_key = QStringLiteral("Key");
};

} // namespace

TEST_F(StateFileTest, remembersInTheNextSession)
{
    StateFile(m_path).remember(7, m_key);
    EXPECT_EQ(StateFile(m_path).value(m_key).toInt(), 7);
}

TEST_F(StateFileTest, whatWasNeverRememberedIsNull)
{
    EXPECT_TRUE(StateFile(m_path).value(m_key).isNull());
    EXPECT_TRUE(StateFile(m_path).folder(m_key).isEmpty());
}

TEST_F(StateFileTest, remembersAFolderWhileItIsThere)
{
    StateFile state(m_path);
    const QString folder = m_folder.filePath(QStringLiteral("data"));
    ASSERT_TRUE(QDir().mkdir(folder));
    state.remember(folder, m_key);
    EXPECT_EQ(state.folder(m_key), folder);
    ASSERT_TRUE(QDir().rmdir(folder));
    EXPECT_TRUE(state.folder(m_key).isEmpty());
}

TEST_F(StateFileTest, takesNoPathThatDependsOnWhereTheProgramWasStarted)
{
    StateFile state(m_path);
    state.remember(QStringLiteral("."), m_key);
    EXPECT_TRUE(state.folder(m_key).isEmpty());
}

TEST_F(StateFileTest, whatCannotBeWrittenIsGoodForTheSession)
{
    StateFile state(m_folder.filePath(QStringLiteral("state.json/below a file.json")));
    StateFile(m_path).remember(7, m_key); // a file stands where the folder would be
    state.remember(8, m_key);
    EXPECT_EQ(state.value(m_key).toInt(), 8);
}
