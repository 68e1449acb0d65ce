#include "document/RecentFiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class RecentFilesTest : public testing::Test
{
protected:
    [[nodiscard]] QString statePath() const
    {
        return m_folder.filePath(QStringLiteral("state.json"));
    }

    void putState(const QByteArray &json) const
    {
        QFile file(statePath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(json) == json.size());
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(RecentFilesTest, aFileThatIsUsedAgainMovesToTheTop)
{
    RecentFiles files(statePath());
    for (const char *path : {"/a.crvgrab", "/b.crvgrab", "/a.crvgrab"})
        files.add(QString::fromLatin1(path));
    EXPECT_EQ(files.paths(), (QStringList{"/a.crvgrab", "/b.crvgrab"}));
}

TEST_F(RecentFilesTest, entriesThatAreNoPathsAreLeftOut)
{
    putState(R"({"Recent Files": ["/a.crvgrab", 7, null, "/b.crvgrab"]})");
    EXPECT_EQ(RecentFiles(statePath()).paths(), (QStringList{"/a.crvgrab", "/b.crvgrab"}));
}

TEST_F(RecentFilesTest, aListThatIsTooLongIsCutOff)
{
    putState(R"({"Recent Files": ["/1", "/2", "/3", "/4", "/5", "/6", "/7", "/8", "/9", "/10",
                                  "/11", "/12"]})");
    const QStringList paths = RecentFiles(statePath()).paths();
    EXPECT_EQ(paths.size(), RecentFiles::most);
    EXPECT_EQ(paths.last(), "/10");
}
