#include "app/LocalSocket.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class LocalSocketTest : public testing::Test
{
protected:
    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("socket")); }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(LocalSocketTest, carriesBytesBothWays)
{
    const LocalSocket server = LocalSocket::listeningAt(path());
    ASSERT_TRUE(server.isOpen());
    const LocalSocket caller = LocalSocket::connectedTo(path());
    ASSERT_TRUE(caller.isOpen());
    const LocalSocket visitor = server.accepted();
    ASSERT_TRUE(visitor.isOpen());
    EXPECT_EQ(visitor.received(), QByteArray());
    EXPECT_TRUE(caller.send("question"));
    EXPECT_EQ(visitor.awaited(), QByteArray("question"));
    EXPECT_TRUE(visitor.send("answer"));
    EXPECT_EQ(caller.awaited(), QByteArray("answer"));
}

TEST_F(LocalSocketTest, tellsTheEnd)
{
    const LocalSocket server = LocalSocket::listeningAt(path());
    LocalSocket caller = LocalSocket::connectedTo(path());
    const LocalSocket visitor = server.accepted();
    caller.close();
    EXPECT_EQ(visitor.received(), std::nullopt);
    EXPECT_EQ(visitor.awaited(), std::nullopt);
    EXPECT_FALSE(visitor.send("too late"));
}

TEST_F(LocalSocketTest, isForItsUserOnly)
{
    const LocalSocket server = LocalSocket::listeningAt(path());
    EXPECT_EQ(QFile::permissions(path()) &
                  (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
              QFile::Permissions());
}

TEST_F(LocalSocketTest, acceptsNobodyWhereNobodyWaits)
{
    const LocalSocket server = LocalSocket::listeningAt(path());
    EXPECT_FALSE(server.accepted().isOpen());
}

TEST_F(LocalSocketTest, staysClosedWhereItCannotBe)
{
    EXPECT_FALSE(LocalSocket::connectedTo(path()).isOpen());
    QFile taken(path());
    ASSERT_TRUE(taken.open(QIODevice::WriteOnly));
    EXPECT_FALSE(LocalSocket::listeningAt(path()).isOpen());
    const QString tooLong = path() + QString(200, u'x');
    EXPECT_FALSE(LocalSocket::listeningAt(tooLong).isOpen());
    EXPECT_FALSE(LocalSocket::connectedTo(tooLong).isOpen());
}
