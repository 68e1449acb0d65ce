#include "capture/DataSeries.h"
#include "document/DocumentArchive.h"
#include "document/TestDocument.h"
#include "endurance/PrivateMounts.h"
#include "platform/Texts.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <csignal>

#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

// The disk refuses a save: the user is told why, the document stays open and modified, the file is
// the whole of the last save, and the next save works once the disk does. Where this process may
// not mount file systems, the system's other ways of refusing stand in for them.
namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Without privileges, permissions count for a superuser too.
void setPrivileges(bool held)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct sets[2]{};
    ASSERT_EQ(syscall(SYS_capget, &header, sets), 0);
    for (__user_cap_data_struct &set : sets)
        set.effective = held ? set.permitted : 0;
    ASSERT_EQ(syscall(SYS_capset, &header, sets), 0);
}

class RefusedSaves : public testing::Test
{
protected:
    RefusedSaves()
    {
        EXPECT_TRUE(QDir().mkpath(folder()));
        std::signal(SIGXFSZ, SIG_IGN);
        m_test.digitize();
        m_test.click(120, 100);
        m_test.click(200, 150);
    }

    ~RefusedSaves() override
    {
        while (privatemounts::allowed() && privatemounts::pullOut(disk()))
            continue;
    }

    [[nodiscard]] QString disk() const { return m_folder.filePath(QStringLiteral("disk")); }
    [[nodiscard]] QString folder() const { return disk() + QStringLiteral("/work"); }
    [[nodiscard]] QString path() const { return folder() + QStringLiteral("/chart.crvgrab"); }
    [[nodiscard]] RecordingSheets &sheets() const { return *m_test.services.sheets; }

    void saveFirst()
    {
        ASSERT_TRUE(QDir().mkpath(folder()));
        m_test.command("saveDocumentAs");
        ASSERT_TRUE(m_test.services.panels->confirm(path()));
        ASSERT_TRUE(QTest::qWaitFor([this] { return !m_test.document->isDocumentEdited(); }));
        m_saved = contentOf(path());
        ASSERT_TRUE(documentarchive::unarchived(m_saved).isWhole());
    }

    void changeAndBeRefused(const char *reason)
    {
        for (int i = 0; i < 40; ++i)
            m_test.click(10 + 9 * i, 20 + i);
        m_test.command("saveDocument");
        ASSERT_TRUE(QTest::qWaitFor([this] { return sheets().waitingCount() == 1; }));
        const QString text = sheets().presented().back().informativeText;
        EXPECT_TRUE(text.contains(texts::localized(reason))) << qPrintable(text);
        sheets().answerFirst();
        EXPECT_TRUE(m_test.document->isDocumentEdited());
        EXPECT_TRUE(m_test.document->window().isVisible());
        EXPECT_EQ(m_test.document->dataSeries().maxRows(), 42);
    }

    void expectTheOldFileAlone() const
    {
        EXPECT_TRUE(contentOf(path()) == m_saved);
        EXPECT_EQ(QDir(folder()).entryList(QDir::Files | QDir::Hidden),
                  QStringList{"chart.crvgrab"});
    }

    void saveAtLast()
    {
        m_test.command("saveDocument");
        ASSERT_TRUE(QTest::qWaitFor([this] { return !m_test.document->isDocumentEdited(); }));
        EXPECT_TRUE(documentarchive::unarchived(contentOf(path())).isWhole());
        EXPECT_FALSE(contentOf(path()) == m_saved);
    }

    [[nodiscard]] const QByteArray &saved() const { return m_saved; }

private:
    QTemporaryDir m_folder;
    TestDocument m_test;
    QByteArray m_saved;
};

} // namespace

TEST_F(RefusedSaves, aFullDisk)
{
    if (privatemounts::allowed()) {
        ASSERT_TRUE(privatemounts::mountMemory(disk(), 256 * 1024));
        ASSERT_NO_FATAL_FAILURE(saveFirst());
        QFile filling(disk() + QStringLiteral("/filling"));
        ASSERT_TRUE(filling.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filling.write(QByteArray(1024, 'x')) > 0)
            continue;
        ASSERT_NO_FATAL_FAILURE(changeAndBeRefused("platform.file.diskFull"));
        expectTheOldFileAlone();
        ASSERT_TRUE(filling.remove());
        saveAtLast();
        return;
    }
    ASSERT_NO_FATAL_FAILURE(saveFirst());
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit tight{1000, limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tight), 0);
    changeAndBeRefused("platform.file.tooLarge");
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    expectTheOldFileAlone();
    saveAtLast();
}

TEST_F(RefusedSaves, aReadOnlyFolder)
{
    ASSERT_NO_FATAL_FAILURE(saveFirst());
    const QFile::Permissions permissions = QFile::permissions(folder());
    if (privatemounts::allowed()) {
        ASSERT_TRUE(privatemounts::protect(folder()));
        changeAndBeRefused("platform.file.readOnly");
        expectTheOldFileAlone();
        ASSERT_TRUE(privatemounts::unprotect(folder()));
    } else {
        ASSERT_TRUE(QFile::setPermissions(folder(), QFile::ReadOwner | QFile::ExeOwner));
        setPrivileges(false);
        changeAndBeRefused("platform.file.folderReadOnly");
        expectTheOldFileAlone();
        setPrivileges(true);
        ASSERT_TRUE(QFile::setPermissions(folder(), permissions));
    }
    saveAtLast();
}

TEST_F(RefusedSaves, aPathThatVanished)
{
    ASSERT_TRUE(!privatemounts::allowed() || privatemounts::mountMemory(disk(), 1024 * 1024));
    ASSERT_NO_FATAL_FAILURE(saveFirst());
    QFile old(path()); // what is open stays, wherever the path goes
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    const QString elsewhere = disk() + QStringLiteral("-elsewhere");
    ASSERT_TRUE(privatemounts::allowed() ? privatemounts::pullOut(disk())
                                         : QDir().rename(disk(), elsewhere));
    QDir(folder()).removeRecursively();
    changeAndBeRefused("platform.file.folderGone");
    EXPECT_TRUE(old.readAll() == saved());
    ASSERT_TRUE(QDir().mkpath(folder()));
    saveAtLast();
}
