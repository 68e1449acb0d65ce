#include "endurance/CountedDocument.h"
#include "endurance/Endurance.h"
#include "platform/DurableFile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <random>

namespace {

constexpr int everydayKills = 40;
constexpr qint64 everydayPatience = 6000; // milliseconds
constexpr int fewestKills = 5;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class KilledSaves : public testing::Test
{
protected:
    KilledSaves()
    {
        EXPECT_TRUE(m_folder.isValid() && m_state.isValid());
        EXPECT_EQ(durablefile::write(path(), counteddocument::unused()), std::nullopt);
    }

    [[nodiscard]] QString path() const
    {
        return m_folder.filePath(QStringLiteral("chart.crvgrab"));
    }
    [[nodiscard]] std::optional<int> count() const
    {
        return counteddocument::countIn(contentOf(path()));
    }
    [[nodiscard]] QStringList files() const
    {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }

    /// Lets a program save the document over and over, and kills it so much later.
    void saveAndKill(std::chrono::microseconds after)
    {
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QStringLiteral(CURVEGRAB_SAVING_PROGRAM), {path(), m_state.path()});
        ASSERT_TRUE(program.waitForReadyRead());
        QElapsedTimer timer;
        timer.start();
        while (timer.nsecsElapsed() < std::chrono::nanoseconds(after).count())
            continue;
        program.kill();
        ASSERT_TRUE(program.waitForFinished());
        ASSERT_EQ(program.exitStatus(), QProcess::CrashExit);
    }

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_state;
};

} // namespace

TEST_F(KilledSaves, theFileIsTheWholeOfTheLastSaveOrOfTheOneBefore)
{
    std::mt19937 dice(8);
    const int kills = endurance::times(everydayKills);
    int last = 0;
    int killed = 0;
    QElapsedTimer timer;
    timer.start();
    for (; killed < kills; ++killed) {
        if (kills == everydayKills && killed >= fewestKills && timer.hasExpired(everydayPatience))
            break;
        saveAndKill(std::chrono::microseconds(dice() % 30'000));
        const std::optional<int> now = count();
        ASSERT_TRUE(now.has_value()) << "kill " << killed;
        ASSERT_GE(*now, last) << "kill " << killed;
        last = *now;
        for (const QString &file : files())
            EXPECT_TRUE(file.contains("chart.crvgrab")) << qPrintable(file);
    }
    EXPECT_GT(last, killed / 4); // the moments were those of saves
    RecordProperty("kills", killed);
    RecordProperty("saves", last);
}

TEST_F(KilledSaves, theNextSaveLeavesNothingElseInTheFolder)
{
    std::mt19937 dice(9);
    for (int i = 0; i < endurance::times(3); ++i)
        ASSERT_NO_FATAL_FAILURE(saveAndKill(std::chrono::microseconds(dice() % 30'000)));
    ASSERT_EQ(durablefile::write(path(), counteddocument::unused()), std::nullopt);
    EXPECT_EQ(files(), QStringList{"chart.crvgrab"});
}
