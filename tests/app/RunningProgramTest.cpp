#include "app/RunningProgram.h"

#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <memory>
#include <thread>

namespace {

class RunningProgramTest : public testing::Test
{
protected:
    [[nodiscard]] QString name() const { return m_folder.filePath(QStringLiteral("socket")); }

    /// A second start, in a thread, while the running one does its events.
    [[nodiscard]] bool secondStartHandsOver(const QStringList &paths) const
    {
        std::future<bool> second = std::async(std::launch::async, [this, paths] {
            RunningProgram program(name());
            return program.handOver(paths);
        });
        EXPECT_TRUE(QTest::qWaitFor([&second] {
            return second.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
        }));
        return second.get();
    }

    /// Sends `request` and waits until the running program hangs up; what it said.
    [[nodiscard]] QByteArray answerTo(const QByteArray &request) const
    {
        QLocalSocket socket;
        socket.connectToServer(name());
        EXPECT_TRUE(socket.waitForConnected());
        socket.write(request);
        socket.flush();
        EXPECT_TRUE(QTest::qWaitFor(
            [&socket] { return socket.state() == QLocalSocket::UnconnectedState; }));
        return socket.readAll();
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(RunningProgramTest, theFirstStartHasNobodyToHandFilesTo)
{
    RunningProgram first(name());
    EXPECT_FALSE(first.handOver({QStringLiteral("/a.png")}));
}

TEST_F(RunningProgramTest, aSecondStartHandsItsFilesToTheFirst)
{
    RunningProgram first(name());
    ASSERT_FALSE(first.handOver({}));
    const QSignalSpy given(&first, &RunningProgram::filesGiven);
    const QStringList paths{QStringLiteral("/charts/line\nbreak.png"),
                            QStringLiteral("/Größe é.crvgrab")};
    EXPECT_TRUE(secondStartHandsOver(paths));
    ASSERT_TRUE(QTest::qWaitFor([&given] { return given.count() == 1; }));
    EXPECT_EQ(given.at(0).at(0).toStringList(), paths);
}

TEST_F(RunningProgramTest, aStartWithoutFilesOnlyShowsTheFirst)
{
    RunningProgram first(name());
    ASSERT_FALSE(first.handOver({}));
    const QSignalSpy given(&first, &RunningProgram::filesGiven);
    EXPECT_TRUE(secondStartHandsOver({}));
    ASSERT_TRUE(QTest::qWaitFor([&given] { return given.count() == 1; }));
    EXPECT_TRUE(given.at(0).at(0).toStringList().isEmpty());
}

TEST_F(RunningProgramTest, whatAKilledProgramLeftIsInNobodysWay)
{
    QFile left(name());
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.close();
    RunningProgram first(name());
    ASSERT_FALSE(first.handOver({}));
    EXPECT_TRUE(secondStartHandsOver({}));
}

TEST_F(RunningProgramTest, afterTheFirstEndedTheNextOneServes)
{
    {
        RunningProgram first(name());
        ASSERT_FALSE(first.handOver({}));
    }
    RunningProgram next(name());
    EXPECT_FALSE(next.handOver({}));
    EXPECT_TRUE(secondStartHandsOver({}));
}

TEST_F(RunningProgramTest, whatIsNoRequestIsHungUpOn)
{
    RunningProgram first(name());
    ASSERT_FALSE(first.handOver({}));
    const QSignalSpy given(&first, &RunningProgram::filesGiven);
    for (const char *request : {"hello\n", "{\"a\":1}\n", "[1]\n", "[\"relative.png\"]\n", "\n"})
        EXPECT_EQ(answerTo(request), QByteArray()) << request;
    EXPECT_EQ(answerTo(QByteArray(1'100'000, 'x')), QByteArray());
    EXPECT_EQ(given.count(), 0);
    EXPECT_TRUE(secondStartHandsOver({}));
}

TEST_F(RunningProgramTest, programsWithOtherFilesOrAnotherDisplayDoNotMeet)
{
    const QString name = RunningProgram::nameFor(QStringLiteral("/home/a"));
    EXPECT_EQ(name, RunningProgram::nameFor(QStringLiteral("/home/a/")));
    EXPECT_NE(name, RunningProgram::nameFor(QStringLiteral("/home/b")));
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":of another screen");
    EXPECT_NE(name, RunningProgram::nameFor(QStringLiteral("/home/a")));
    qputenv("DISPLAY", display);
}

TEST_F(RunningProgramTest, aStartWaitsForItsTurnAndThenFindsTheFirstListening)
{
    auto turn = std::make_unique<HeldFile>(name() + QStringLiteral(".turn"));
    EXPECT_TRUE(turn->hold());
    bool isHandedOver = false;
    std::jthread second([&] {
        RunningProgram program(name());
        isHandedOver = program.handOver({QStringLiteral("/charts/a.png")});
    });
    HeldFile first(name() + QStringLiteral(".lock"));
    EXPECT_TRUE(first.hold());
    const LocalSocket server = LocalSocket::listeningAt(name());
    turn.reset();
    LocalSocket visitor;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        visitor = server.accepted();
        return visitor.isOpen();
    }));
    EXPECT_TRUE(visitor.awaited());
    EXPECT_TRUE(visitor.send("opened\n"));
    second.join();
    EXPECT_TRUE(isHandedOver);
}

// A program that hangs keeps its place, but nobody waits for it for ever.
TEST_F(RunningProgramTest, withoutAnAnswerAStartGoesItsOwnWay)
{
    HeldFile held(name() + QStringLiteral(".lock"));
    ASSERT_TRUE(held.hold());
    EXPECT_FALSE(secondStartHandsOver({}));
}
