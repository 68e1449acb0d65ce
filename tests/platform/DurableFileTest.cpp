#include "platform/DurableFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <random>

#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

/// Runs `work` in a process of its own; true if it says so.
template <class Work>
bool succeedsInChild(const Work &work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work() ? 0 : 1);
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Permissions mean nothing to a superuser who keeps the privileges.
bool givesUpPrivileges()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct none[2]{};
    return syscall(SYS_capset, &header, none) == 0;
}

class DurableFileTest : public testing::Test
{
protected:
    [[nodiscard]] QString path(const char *name = "chart.crvgrab") const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }
    [[nodiscard]] QStringList filesInFolder() const
    {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
    }

    /// As another program has it while it saves.
    void putPassingFile(const QDateTime &time) const
    {
        QFile file(path(".chart.crvgrab.saving"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("of another");
        ASSERT_TRUE(file.flush());
        ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
    }

private:
    QTemporaryDir m_folder;
};

/// A block that shows whether it is whole: one letter all through, which tells the length.
QByteArray block(int number)
{
    const int letter = number % 26;
    return {qsizetype{150'000} + letter, static_cast<char>('a' + letter)};
}

bool isWholeBlock(const QByteArray &bytes)
{
    return !bytes.isEmpty() && bytes.at(0) >= 'a' && bytes == block(bytes.at(0) - 'a');
}

void saveForEver(const QString &path, int toParent)
{
    for (int i = 0;; ++i) {
        if (durablefile::write(path, block(i)))
            _exit(1);
        const char done = '.';
        if (write(toParent, &done, 1) != 1)
            _exit(1);
    }
}

void spin(std::chrono::microseconds time)
{
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end)
        continue;
}

/// Kills a process that saves, at a random moment.
void killWhileSaving(const QString &path, std::mt19937 &random)
{
    int pipes[2];
    ASSERT_EQ(pipe(pipes), 0);
    const pid_t child = fork();
    if (child == 0)
        saveForEver(path, pipes[1]);
    char done = 0;
    EXPECT_EQ(read(pipes[0], &done, 1), 1);
    spin(std::chrono::microseconds(random() % 5000));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    close(pipes[0]);
    close(pipes[1]);
}

} // namespace

TEST_F(DurableFileTest, writesNewFilesAndReplacesOldOnes)
{
    EXPECT_EQ(durablefile::write(path(), "old and long"), std::nullopt);
    EXPECT_EQ(durablefile::write(path(), "new"), std::nullopt);
    EXPECT_EQ(contentOf(path()), "new");
}

TEST_F(DurableFileTest, keepsThePermissions)
{
    ASSERT_EQ(durablefile::write(path(), "old"), std::nullopt);
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    ASSERT_TRUE(QFile::setPermissions(path(), permissions));
    ASSERT_EQ(durablefile::write(path(), "new"), std::nullopt);
    EXPECT_EQ(QFile::permissions(path()) &
                  (permissions | QFile::ReadOther | QFile::WriteGroup | QFile::ExeOwner),
              permissions);
}

TEST_F(DurableFileTest, aNewFileHasThePermissionsThatTheUserGivesNewFiles)
{
    QFile other(path("other"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    ASSERT_EQ(durablefile::write(path(), "new"), std::nullopt);
    EXPECT_EQ(QFile::permissions(path()), QFile::permissions(path("other")));
}

TEST_F(DurableFileTest, whatAKillLeftBesideTheFileIsTakenAway)
{
    ASSERT_EQ(durablefile::write(path(), "old"), std::nullopt);
    putPassingFile(QDateTime::currentDateTime().addDays(-2));
    ASSERT_EQ(durablefile::write(path(), "new"), std::nullopt);
    EXPECT_EQ(contentOf(path()), "new");
    EXPECT_EQ(filesInFolder(), QStringList{"chart.crvgrab"});
}

TEST_F(DurableFileTest, whatAnotherProgramIsSavingIsLeftAlone)
{
    ASSERT_EQ(durablefile::write(path(), "old"), std::nullopt);
    putPassingFile(QDateTime::currentDateTime());
    ASSERT_EQ(durablefile::write(path(), "new"), std::nullopt);
    EXPECT_EQ(contentOf(path()), "new");
    EXPECT_EQ(contentOf(path(".chart.crvgrab.saving")), "of another");
}

TEST_F(DurableFileTest, programsThatSaveToOnePathDoNotDisturbEachOther)
{
    const auto saveOften = [this] {
        for (int i = 0; i < 200; ++i) {
            if (durablefile::write(path(), block(i)))
                return false;
        }
        return true;
    };
    const pid_t other = fork();
    if (other == 0)
        _exit(saveOften() ? 0 : 1);
    EXPECT_TRUE(saveOften());
    int status = 0;
    ASSERT_EQ(waitpid(other, &status, 0), other);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_TRUE(isWholeBlock(contentOf(path())));
    EXPECT_EQ(filesInFolder(), QStringList{"chart.crvgrab"});
}

// Where a file needs a name while it is written: here there is no room for the usual one.
TEST_F(DurableFileTest, aFileWithALongNameIsReplacedToo)
{
    const QByteArray name(248, 'n');
    ASSERT_EQ(durablefile::write(path(name.constData()), "old"), std::nullopt);
    ASSERT_EQ(durablefile::write(path(name.constData()), "new"), std::nullopt);
    EXPECT_EQ(contentOf(path(name.constData())), "new");
    EXPECT_EQ(filesInFolder(), QStringList{QString::fromLatin1(name)});
}

TEST_F(DurableFileTest, aLinkToALinkStaysOne)
{
    ASSERT_EQ(durablefile::write(path("real"), "old"), std::nullopt);
    ASSERT_TRUE(QFile::link(path("real"), path("link")));
    ASSERT_TRUE(QFile::link(path("link"), path("second")));
    EXPECT_EQ(durablefile::write(path("second"), "new"), std::nullopt);
    EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
    EXPECT_TRUE(QFileInfo(path("second")).isSymLink());
    EXPECT_EQ(contentOf(path("real")), "new");
}

TEST_F(DurableFileTest, aLinkStaysALink)
{
    ASSERT_EQ(durablefile::write(path("real"), "old"), std::nullopt);
    ASSERT_TRUE(QFile::link(path("real"), path("link")));
    EXPECT_EQ(durablefile::write(path("link"), "new"), std::nullopt);
    EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
    EXPECT_EQ(contentOf(path("real")), "new");
}

TEST_F(DurableFileTest, aFolderThatIsNotThereIsAReason)
{
    EXPECT_EQ(durablefile::write(path("gone/chart.crvgrab"), "x"),
              qtTrId("platform.file.folderGone"));
    ASSERT_EQ(durablefile::write(path("file"), "old"), std::nullopt);
    EXPECT_EQ(durablefile::write(path("file/chart.crvgrab"), "x"),
              qtTrId("platform.file.folderGone"));
    EXPECT_EQ(contentOf(path("file")), "old");
}

TEST_F(DurableFileTest, aFolderIsNotReplaced)
{
    ASSERT_TRUE(QDir().mkpath(path("folder")));
    EXPECT_EQ(durablefile::write(path("folder"), "x"), qtTrId("platform.file.isFolder"));
}

TEST_F(DurableFileTest, foldersAndFilesProtectedFromWritingAreReasons)
{
    ASSERT_TRUE(QDir().mkpath(path("protected")));
    ASSERT_EQ(durablefile::write(path("protected/old"), "old"), std::nullopt);
    ASSERT_TRUE(QFile::setPermissions(path("protected/old"), QFile::ReadOwner | QFile::ReadOther));
    ASSERT_TRUE(QFile::setPermissions(path("protected"), QFile::ReadOwner | QFile::ExeOwner |
                                                             QFile::ReadOther | QFile::ExeOther));
    EXPECT_TRUE(succeedsInChild([this] {
        return givesUpPrivileges() &&
               durablefile::write(path("protected/new"), "x") ==
                   qtTrId("platform.file.folderReadOnly") &&
               durablefile::write(path("protected/old"), "x") == qtTrId("platform.file.readOnly");
    }));
    EXPECT_EQ(contentOf(path("protected/old")), "old");
    QFile::setPermissions(path("protected"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(DurableFileTest, aDiskThatTakesNoMoreLeavesTheOldFile)
{
    ASSERT_EQ(durablefile::write(path(), "old"), std::nullopt);
    EXPECT_TRUE(succeedsInChild([this] {
        const rlimit limit{1000, 1000};
        return std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &limit) == 0 &&
               durablefile::write(path(), QByteArray(500'000, 'x')) ==
                   qtTrId("platform.file.tooLarge");
    }));
    EXPECT_EQ(contentOf(path()), "old");
    EXPECT_EQ(QDir(QFileInfo(path()).absolutePath()).entryList(QDir::Files).size(), 1);
}

TEST_F(DurableFileTest, stampsTellStatesApart)
{
    EXPECT_EQ(durablefile::stampOf(path()), std::nullopt);
    ASSERT_EQ(durablefile::write(path(), "old"), std::nullopt);
    const auto stamp = durablefile::stampOf(path());
    EXPECT_EQ(durablefile::stampOf(path()), stamp);
    ASSERT_EQ(durablefile::write(path(), "newer"), std::nullopt);
    EXPECT_NE(durablefile::stampOf(path()), stamp);
}

// CURVEGRAB_KILLS asks for more of them.
TEST_F(DurableFileTest, aProcessKilledAtAnyMomentLeavesAWholeFile)
{
    std::mt19937 random(5);
    const int kills = std::max(40, qEnvironmentVariableIntValue("CURVEGRAB_KILLS"));
    ASSERT_EQ(durablefile::write(path(), block(0)), std::nullopt);
    for (int i = 0; i < kills; ++i) {
        killWhileSaving(path(), random);
        const QByteArray content = contentOf(path());
        ASSERT_TRUE(isWholeBlock(content))
            << "kill " << i << ", " << content.size() << " bytes, " << content.left(20).constData();
    }
}
